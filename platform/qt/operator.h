#pragma once

/// The operator's hands on real Qt widgets: mouse and key events, sent as Qt itself would send them.

#include <zor/platform/operator.h>
#include <zor/platform/qt/container.h>

class QWidget;

namespace zor::platform::qt {

/// Works the widgets of one container, whose window must be shown.
class QtOperator final : public Operator {
public:
    explicit QtOperator(QtContainer& container) : m_container(container) {}

    Refusal focus(Widget& widget) override;
    Refusal blur(Widget& widget) override;
    Refusal pointer(Widget& widget, Pointer action) override;
    Refusal type(TextField& field, std::string_view text) override;
    Refusal paste(TextField& field, std::string_view text) override;
    Refusal select(TextField& field, std::size_t start, std::size_t length) override;
    Refusal key(Widget& widget, std::int16_t code) override;
    Refusal spin(SpinButton& button, bool up) override;
    Refusal moveTo(Track& track, std::int32_t position) override;
    Refusal choose(ComboBox& box, std::int32_t index) override;
    Refusal dropDown(ComboBox& box) override;
    Refusal toggle(ListBox& box, std::int32_t index) override;
    Refusal press(ToggleButton& button) override;
    Refusal chooseItem(PopupMenu& menu, std::size_t item) override;

private:
    void leavePopUps();
    [[nodiscard]] Refusal reach(Widget& widget);
    /// Reaches the widget and gives it the focus, if it takes one; `there` is false when a handler kept the
    /// focus elsewhere.
    Refusal approach(Widget& widget, bool& there);

    QtContainer& m_container;
};

} // namespace zor::platform::qt
