#pragma once

#include <zor/platform/headless/widget_base.h>

namespace zor::platform::headless {

class HeadlessTextField final : public FontBase<TextField> {
public:
    HeadlessTextField(Host& host, int number) : FontBase(host, number, WindowBackground) {}

    [[nodiscard]] const std::string& text() const override { return m_text; }
    void setText(std::string_view text) override;
    [[nodiscard]] bool isLocked() const override { return m_locked; }
    void setLocked(bool locked) override { m_locked = locked; }
    [[nodiscard]] Alignment alignment() const override { return m_alignment; }
    void setAlignment(Alignment alignment) override { m_alignment = alignment; }
    [[nodiscard]] std::size_t selectionStart() const override { return m_start; }
    [[nodiscard]] std::size_t selectionLength() const override { return m_length; }
    void select(std::size_t start, std::size_t length) override;
    [[nodiscard]] std::string selectedText() const override;
    void replaceSelection(std::string_view text) override;
    [[nodiscard]] bool hasFocus() const override { return host().focused() == this; }
    void setStepper(Stepper& stepper) noexcept { m_stepper = &stepper; }
    /// What Up and Down step; nullptr for a field by itself.
    [[nodiscard]] Stepper* stepper() const noexcept { return m_stepper; }

private:
    [[nodiscard]] std::size_t bytesTo(std::size_t character) const noexcept;

    std::string m_text;
    Stepper* m_stepper = nullptr;
    std::size_t m_start = 0;
    std::size_t m_length = 0;
    Alignment m_alignment = Alignment::Left;
    bool m_locked = false;
};

} // namespace zor::platform::headless
