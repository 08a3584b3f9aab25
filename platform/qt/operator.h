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

private:
    void holding(Widget& widget, const std::function<void()>& action) override;
    void closePopUps() override;
    bool takeFocus(Widget& widget) override;
    void dropFocus(Widget& widget) override;
    void point(Widget& widget, Pointer action) override;
    bool typeCharacter(TextField& field, std::string_view character) override;
    void replace(TextField& field, std::string_view text) override;
    void stroke(Widget& widget, std::int16_t code, std::int16_t character) override;
    void step(SpinButton& button, bool up) override;
    void drag(Track& track, std::int32_t position) override;
    void open(ComboBox& box) override;
    void pick(ComboBox& box, std::int32_t index) override;
    void clickMark(ListBox& box, std::int32_t index) override;
    void clickItem(PopupMenu& menu, std::size_t item) override;

    QtContainer& m_container;
};

} // namespace zor::platform::qt
