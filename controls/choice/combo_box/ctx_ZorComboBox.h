#pragma once

/// The combo box: one value of an enumeration, chosen from a drop-down list of named entries.

#include <zor/controls/choice/combo_box/combo_box_events.h>
#include <zor/controls/choice/entry_choice.h>

namespace zor {

/// A drop-down list with a state icon beside it.
///
/// The host fills the list with pairs of a text and a value and writes DeviceValue; OutputValue hands the
/// value of the operator's choice back. A value that no entry carries is the invalid-value state, no error:
/// the list keeps showing the last choice and OutputValue takes the value all the same.
class ctx_ZorComboBox final : public controls::ChoiceControl {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorComboBox> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// @name Entries
    /// In the order in which they were added; neither texts nor values need be unique, and a lookup takes the
    /// first that matches. They are not stored.
    /// @{
    /// Appends an entry and selects it without an event: it is shown, and OutputValue has its value, until the
    /// next DeviceValue. Raises Overflow, and changes nothing, when the list holds 32,767 entries.
    void AddEnumEntry(std::string_view Identifier, std::int32_t EnumEntryValue);
    /// Removes all entries and nothing else.
    void ClearEnumList();
    /// Removes the first entry with the value, if there is one, and nothing else.
    void RemoveEnumEntry(std::int32_t EnumEntryValue);
    /// Text of the first entry with the value, "ERROR" when there is none.
    [[nodiscard]] std::string GetEnumEntryText(const std::int32_t& EnumEntryValue) const;
    /// All texts; "ERROR" alone for an empty list.
    [[nodiscard]] std::vector<std::string> GetEnumEntries() const;
    /// Value (a 32-bit integer) of the first entry with exactly this text; the string "ERROR" when there is
    /// none.
    [[nodiscard]] Variant GetEnumEntryValue(const std::string& EnumText) const;
    /// All values (32-bit integers); the string "ERROR" alone for an empty list.
    [[nodiscard]] std::vector<Variant> GetEnumEntryValueArray() const;
    /// Number of entries, a 16-bit integer.
    [[nodiscard]] Variant GetEnumEntryCount() const;
    /// The text that the closed list shows; "" when no entry is selected.
    [[nodiscard]] std::string SelectedText() const { return m_combo->selectedText(); }
    /// @}

    /// @name State
    /// @{
    /// The last value looked up is carried by no entry. Writing as OutputValue.
    [[nodiscard]] bool InvalidValue() const noexcept { return m_invalid.isSet; }
    void InvalidValue(bool value);
    [[nodiscard]] const std::string& MsgInvalidValue() const noexcept { return m_invalid.message; }
    void MsgInvalidValue(std::string_view value);
    /// What another user wrote, shown first in the text of the data-changed state. The host's; 0 until it
    /// writes it, not stored.
    [[nodiscard]] std::int16_t OtherUserValue() const noexcept { return m_otherUser; }
    void OtherUserValue(std::int16_t value);
    /// @}

    using ChoiceControl::subscribe;
    using ChoiceControl::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorComboBox& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorComboBox& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        cbo_ComboBox = controls::kFace, ///< the drop-down list
        img_State = controls::kState,   ///< the state icon; a click explains the state
    };

private:
    struct Rows;
    struct Tables;

    explicit ctx_ZorComboBox(platform::Container& container);
    ~ctx_ZorComboBox() override = default;

    void s_ApplyDeviceValue() override;
    void s_ApplyModifiedValue(std::int32_t value) override;
    void s_HandleClick() override;
    void s_UndoEdit() override;
    void s_SelectValue(std::int32_t value);
    void s_UpdateColors() override;
    void s_Layout() override;

    std::unique_ptr<platform::ComboBox> m_combo;
    controls::EntryList m_entries;
    controls::InvalidMark m_invalid;
    std::int16_t m_otherUser = 0;
    bool m_isAdding = false;
};

} // namespace zor
