#pragma once

/// The operator's hands on a form without a screen.

#include <zor/platform/headless/container.h>
#include <zor/platform/operator.h>

namespace zor::platform::headless {

/// Works widgets by what their platform keeps of them.
class HeadlessOperator final : public Operator {
public:
    /// The container whose widgets it works; it must outlive the operator.
    explicit HeadlessOperator(HeadlessContainer& container) : m_container(container) {}

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
    [[nodiscard]] Refusal reach(Widget& widget);
    /// Moves the focus of a window; false when a handler keeps it where it is.
    bool moveFocus(Host& window, Widget* widget);
    /// Reaches the widget and gives it the focus; `moved` is false when the focus was kept elsewhere.
    Refusal approach(Widget& widget, bool& moved);

    HeadlessContainer& m_container;
    bool m_validating = false;
};

} // namespace zor::platform::headless
