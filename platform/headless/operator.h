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

    /// Moves the focus of a window; false when a handler keeps it where it is.
    bool moveFocus(Host& window, Widget* widget);

    HeadlessContainer& m_container;
    bool m_validating = false;
};

} // namespace zor::platform::headless
