#pragma once

/// One control and the parameter it shows. Goes by the names of the control's properties, so that it serves every
/// class of controls.

#include <zor/core/control.h>
#include <zor/monitor/data/codec.h>
#include <zor/monitor/session/control_texts.h>
#include <zor/monitor/session/poller.h>
#include <zor/monitor/session/typed_entry.h>
#include <zor/platform/depth.h>

#include <functional>
#include <optional>

namespace zor::monitor {

/// What an operator has made of a parameter and not yet written.
struct Edit {
    Variant value;          ///< in the device's unit; when the mask is 0
    std::uint32_t mask = 0; ///< of an edit of single bits: those that differ
    std::uint32_t bits = 0;
};

class Binding final : public core::EventSink {
public:
    /// `parameter` is nullptr for a tag that the file does not have. The control must outlive the binding.
    Binding(core::Control& control, const Parameter* parameter);
    ~Binding();
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    [[nodiscard]] core::Control& control() const { return m_control; }
    [[nodiscard]] const Parameter* parameter() const { return m_parameter; }
    /// Of the choice between several buttons, of which one edit takes all.
    [[nodiscard]] bool isChoice() const { return m_row.entryValue != nullptr; }

    /// Tells the control what the file says: bank, unit, limits, access, entries, names of bits.
    void applyFile();
    /// The control's texts in the language of the program.
    [[nodiscard]] ControlTexts& texts() { return m_texts; }

    /// @name The device's side
    /// @{
    /// How the last read went; leaves the value as it is.
    void showOutcome(ReadOutcome outcome);
    /// The value is not to be trusted any more, and not known to be wrong: it is read when it is next seen.
    void await();
    /// As if nothing had been read yet; ends an edit.
    void showNothing();
    /// Shows a value and so ends an edit. False when the control cannot show it.
    bool showValue(std::span<const std::uint16_t> registers, const std::string& language);
    /// The value has been changed by somebody else, to this.
    void tellOther(std::span<const std::uint16_t> registers, const std::string& language);
    /// The value is no longer that of the device that it was read from.
    void tellOtherDevice();
    /// Whether that has been said of the edit that there is.
    [[nodiscard]] bool isOfOtherDevice() const { return m_isOfOtherDevice; }
    /// The change by somebody else has been overwritten.
    void forgetOther();
    /// Whether the device is of a type and a version that have the parameter.
    [[nodiscard]] bool isSupported() const
    {
        return !m_control.DeviceTypeNotSupported() && !m_control.DeviceVerNotSupported();
    }
    /// The part of the registers that this control is about.
    [[nodiscard]] Registers relevant(std::span<const std::uint16_t> registers) const;
    /// @}

    /// @name The operator's side
    /// @{
    [[nodiscard]] bool isModified() const;
    /// An edit, or the beginning of one: nothing else may be shown now.
    [[nodiscard]] bool isInHand() const { return isModified() || m_typed.isTyping(); }
    [[nodiscard]] bool isInvalid() const;
    [[nodiscard]] Edit edit() const;
    /// What stands in the control's field; nothing where it has none.
    [[nodiscard]] std::optional<std::string> typedText() const;
    /// Between which an entry may lie, in the device's unit.
    [[nodiscard]] Range limits() const;
    /// Counts what the operator has done to the control.
    [[nodiscard]] std::uint64_t actions() const { return m_actions; }
    /// The unit in which the operator sees numbers.
    [[nodiscard]] MEAS_TYPE shownUnit() const;
    /// The control's own: none where it shows the device's numbers with decimals of its own.
    [[nodiscard]] MEAS_TYPE outputUnit() const;
    /// Changes it and shows the value anew; an edit stays. Raises what the control raises when the value cannot be
    /// expressed in the unit.
    void showIn(MEAS_TYPE unit, const std::string& language);
    /// Fills the entries in a language and shows the edit anew, or the value when there is none. An entry that
    /// is no valid value stays as it was typed.
    void refresh(const std::string& language);
    /// Called when an edit may have begun, changed or ended, by the operator or by the device.
    std::function<void()> onEdit;
    /// Called when the operator has chosen this button of several.
    std::function<void(const Variant& value)> onChosen;
    void follow(const Variant& chosen);
    /// Makes a value an edit, as if the operator had entered it. False where the control cannot take it.
    bool propose(std::span<const std::uint16_t> registers);
    /// @}

    /// What the control was last given; empty before the first value.
    Registers shown;
    /// The device's value when it was last heard of, for telling whether somebody has changed it.
    Registers seen;

    /// @name Properties by name
    /// @{
    [[nodiscard]] bool has(std::string_view property) const;
    void putIfThere(std::string_view property, const Variant& value);
    [[nodiscard]] std::optional<Variant> getIfThere(std::string_view property) const;
    /// @}

private:
    void event(core::Control& control, const core::EventRow& row, platform::EventArgs args) override;
    /// As the operator reads it, with its unit; of single bits where there is a mask.
    [[nodiscard]] std::string textOf(std::span<const std::uint16_t> registers, const std::string& language,
                                     std::uint32_t mask = 0) const;
    [[nodiscard]] Variant valueFor(std::span<const std::uint16_t> registers, const std::string& language) const;
    /// The bits that an edit changes one by one, as they lie in the device; none where it is of the whole value.
    [[nodiscard]] std::uint32_t bitsAsTheyLie() const;
    void applyEntries(const std::string& language);
    void nameStranger(const Variant& value);
    void dropStranger();
    void explain(bool busy);
    void takeTyped();
    [[nodiscard]] Variant entry() const;
    void showEntry(const Variant& value);
    template <class Action>
    void quietly(Action&& action)
    {
        const platform::Depth::Level level(m_quiet);
        std::forward<Action>(action)();
    }
    void setFlag(const core::PropertyRow* row, bool value);

    /// Properties that are read and written again and again; nullptr where the class has none.
    struct Rows {
        const core::PropertyRow* value;
        const core::PropertyRow* output;
        const core::PropertyRow* modified;
        const core::PropertyRow* changed;
        const core::PropertyRow* other;
        const core::PropertyRow* cFail;
        const core::PropertyRow* noData;
        const core::PropertyRow* waiting;
        const core::PropertyRow* entryValue;
        const core::PropertyRow* bitIndex;
        const core::PropertyRow* invalid;
        const core::PropertyRow* unit;
    };

    core::Control& m_control;
    const Parameter* m_parameter;
    ControlTexts m_texts;
    TypedEntry m_typed;
    Rows m_row;
    std::uint64_t m_actions = 0;
    platform::Depth m_quiet;
    MEAS_TYPE m_textUnit = NoneU;           ///< of a control that shows numbers as texts
    bool m_unfit = false;                   ///< the last value could not be shown
    bool m_isOfOtherDevice = false;         ///< the edit was begun on another device than the one that answers
    std::optional<std::int32_t> m_stranger; ///< the last value, when no entry has it
};

} // namespace zor::monitor
