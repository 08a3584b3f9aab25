#pragma once

/// What the operator types into a control's text field, to the last digit.

#include <zor/core/control.h>

#include <optional>

namespace zor::monitor {

/// A text box shows a number with its unit's decimals, an entry too once the operator has left the field, and
/// would hand back what it shows. What is written is what was typed: the entry is taken over just before, and kept
/// for as long as it stands, also where the control shows it in another unit or with other separators since.
class TypedEntry {
public:
    explicit TypedEntry(core::Control& control) : m_control(control) {}

    /// Follows what the operator does. True when he has left the field and an entry has been taken over.
    bool hear(const core::EventRow& row);
    /// An entry that nobody typed, to the last digit.
    void put(Variant value);
    /// The entry has ended.
    void forget();

    /// Typed, and not taken over yet.
    [[nodiscard]] bool isTyping() const { return m_typing; }
    [[nodiscard]] bool hasFocus() const { return m_focused; }
    /// The entry that was taken over, in the device's unit; nothing when it was not valid.
    [[nodiscard]] const std::optional<Variant>& value() const { return m_value; }

private:
    void leave();
    bool take();
    [[nodiscard]] std::optional<Variant> typedNumber() const;

    core::Control& m_control;
    std::optional<Variant> m_value;
    std::optional<Variant> m_number; ///< as typed, of a number that is being left
    bool m_typing = false;
    bool m_leaving = false; ///< what the control hands back now is the text as it shows it
    bool m_focused = false;
};

} // namespace zor::monitor
