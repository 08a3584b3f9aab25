#pragma once

/// The option button: one value of an enumeration, a button each.

#include <zor/controls/choice/caption_choice.h>
#include <zor/controls/choice/option_button/option_button_events.h>

namespace zor {

/// An option button with a caption and a state icon beside it.
///
/// Each button stands for one value, its EnumEntryValue, and is selected when the value written to it is that
/// one. Buttons know nothing of each other: a host that writes the same value into all buttons of a group sees
/// the right ones selected, and a host that hears of the operator's choice tells the rest of the group.
class ctx_ZorOptionButton final : public controls::CaptionChoice {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorOptionButton> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// The value this button stands for. Whether it is selected follows with the next value.
    [[nodiscard]] std::int32_t EnumEntryValue() const noexcept { return m_entryValue; }
    void EnumEntryValue(std::int32_t value);
    /// The parameter's value as the host last gave it, with DeviceValue or here. A value other than the
    /// device's shows the button that stands for it as the operator's choice. Not stored.
    [[nodiscard]] std::int32_t EnumValue() const noexcept { return m_enumValue; }
    void EnumValue(std::int32_t value);
    [[nodiscard]] const std::string& OptionButtonCaption() const noexcept { return m_caption; }
    void OptionButtonCaption(std::string_view value);
    /// Whether the button is selected. Writing does nothing, at any time.
    [[nodiscard]] bool OptionButtonValue() const { return m_option->isOn(); }
    void OptionButtonValue(bool /*value*/) {}
    /// What another user wrote, shown first in the text of the data-changed state. The host's; 0 until it
    /// writes it, not stored.
    [[nodiscard]] std::int32_t OtherUserValue() const noexcept { return m_otherUser; }
    void OtherUserValue(std::int32_t value);

    using CaptionChoice::subscribe;
    using CaptionChoice::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorOptionButton& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorOptionButton& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        opt_OptionButton = controls::kFace, ///< the button with its caption
        img_State = controls::kState,       ///< the state icon; a click explains the state
    };

private:
    struct Rows;
    struct Tables;

    explicit ctx_ZorOptionButton(platform::Container& container);
    ~ctx_ZorOptionButton() override = default;

    void s_AfterLoading() override;
    void s_ApplyDeviceValue() override;
    void s_ApplyEnumValue();
    void s_ApplyModifiedValue(std::int32_t value) override;
    void s_HandleClick() override;
    /// Selects or deselects the button, disarmed.
    void s_Select(bool selected);
    void s_TakeChoice();
    void s_UndoEdit() override;

    std::unique_ptr<platform::OptionButton> m_option;
    std::int32_t m_entryValue = 0;
    std::int32_t m_enumValue = 0;
    std::int32_t m_otherUser = 0;
    /// A click does its work only when armed. A value disarms it, so that the report of a button that the value
    /// selects, which may or may not come, only arms it, and the work is done once, at the end.
    bool m_isArmed = false;
    /// EnumEntryValue when the last value came.
    std::int32_t m_stoodFor = 0;
};

} // namespace zor
