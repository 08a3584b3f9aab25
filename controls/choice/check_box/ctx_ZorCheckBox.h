#pragma once

/// The check box: one bit of a value.

#include <zor/controls/choice/caption_choice.h>
#include <zor/controls/choice/check_box/check_box_events.h>

namespace zor {

/// A check box with a caption and a state icon beside it.
///
/// The host writes the whole value into DeviceValue; the box shows whether its bit is set, and the operator
/// changes that bit alone in OutputValue. Several check boxes on one parameter edit a bit field between them,
/// each with its own bit on top of the device's value.
class ctx_ZorCheckBox final : public controls::CaptionChoice {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorCheckBox> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// Number of the bit shown, 0 to 30; a box with any other number is never checked by a value and changes no
    /// bit. What is shown follows with the next DeviceValue.
    [[nodiscard]] std::int16_t BitFieldEntryIndex() const noexcept { return m_bit; }
    void BitFieldEntryIndex(std::int16_t value);
    [[nodiscard]] const std::string& CheckBoxCaption() const noexcept { return m_caption; }
    void CheckBoxCaption(std::string_view value);
    /// Whether the box is checked. Writing as OutputValue.
    [[nodiscard]] bool CheckBoxValue() const { return m_check->isOn(); }
    void CheckBoxValue(bool value);
    /// What another user made of the bit, shown first in the text of the data-changed state. The host's; False
    /// until it writes it, not stored.
    [[nodiscard]] bool OtherUserValue() const noexcept { return m_otherUser; }
    void OtherUserValue(bool value);

    using CaptionChoice::subscribe;
    using CaptionChoice::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorCheckBox& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorCheckBox& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        chk_CheckBox = controls::kFace, ///< the box with its caption
        img_State = controls::kState,   ///< the state icon; a click explains the state
    };

private:
    struct Rows;
    struct Tables;

    explicit ctx_ZorCheckBox(platform::Container& container);
    ~ctx_ZorCheckBox() override = default;

    void s_ApplyDeviceValue() override;
    void s_ApplyModifiedValue(std::int32_t value) override;
    void s_HandleClick() override;
    void s_UndoEdit() override;
    void setChecked(bool checked);
    [[nodiscard]] bool isBitSet(std::int32_t value) const noexcept;

    std::unique_ptr<platform::CheckBox> m_check;
    std::int16_t m_bit = 0;
    /// The bit in the device value last applied: the box is judged against it and undo returns to it.
    bool m_loaded = false;
    bool m_otherUser = false;
    /// The control itself is changing the box.
    bool m_isSetting = false;
};

} // namespace zor
