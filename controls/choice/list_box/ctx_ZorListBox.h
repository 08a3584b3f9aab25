#pragma once

/// The list box: a bit field, one entry with a check mark for each bit that has a name.

#include <zor/controls/choice/entry_choice.h>
#include <zor/controls/choice/list_box/list_box_events.h>

namespace zor {

/// A list of check marks with a state icon beside it.
///
/// The host fills the list with pairs of a text and a bit number and writes DeviceValue; the operator switches
/// bits on and off; OutputValue hands the value back. Bits that no entry names pass through unchanged. Bit
/// numbers are 0 to 30; an entry with any other number is never marked by a value and changes none.
class ctx_ZorListBox final : public controls::ChoiceControl {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorListBox> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// @name Entries
    /// In the order in which they were added; neither texts nor bit numbers need be unique, and a lookup takes
    /// the first that matches. They are not stored.
    /// @{
    /// Appends an entry, unmarked until the next value, and changes nothing else. Raises Overflow, and changes
    /// nothing at all, when the list holds 32,767 entries.
    void AddBitFieldEntry(std::string_view Identifier, std::int16_t BitFieldEntryValue);
    /// Removes all entries and nothing else.
    void ClearBitFieldList();
    /// Removes the first entry with the bit number, if there is one, and nothing else.
    void RemoveBitFieldEntry(std::int16_t BitFieldEntryValue);
    /// Text of the first entry with the bit number, "ERROR" when there is none.
    [[nodiscard]] std::string GetBitFieldEntryText(const std::int16_t& BitFieldEntryValue) const;
    /// All texts; "ERROR" alone for an empty list.
    [[nodiscard]] std::vector<std::string> GetBitFieldEntries() const;
    /// Bit number (a 32-bit integer) of the first entry with exactly this text; the string "ERROR" when there
    /// is none.
    [[nodiscard]] Variant GetBitFieldEntryValue(const std::string& BitFieldText) const;
    /// All bit numbers (32-bit integers); the string "ERROR" alone for an empty list.
    [[nodiscard]] std::vector<Variant> GetBitFieldEntryValueArray() const;
    /// Number of entries, a 16-bit integer.
    [[nodiscard]] Variant GetBitFieldEntryCount() const;
    /// Number of marked entries.
    [[nodiscard]] std::int16_t SelCount() const { return static_cast<std::int16_t>(m_list->selectedCount()); }
    /// @}

    /// @name State
    /// @{
    /// Only ever true when it was restored so. Writing as OutputValue.
    [[nodiscard]] bool InvalidValue() const noexcept { return m_invalid.isSet; }
    void InvalidValue(bool value);
    [[nodiscard]] const std::string& MsgInvalidValue() const noexcept { return m_invalid.message; }
    void MsgInvalidValue(std::string_view value);
    /// What another user wrote, shown first in the text of the data-changed state. The host's; 0 until it
    /// writes it, not stored.
    [[nodiscard]] std::int32_t OtherUserValue() const noexcept { return m_otherUser; }
    void OtherUserValue(std::int32_t value);
    /// @}

    using ChoiceControl::subscribe;
    using ChoiceControl::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorListBox& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorListBox& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        lst_ListBox = controls::kFace, ///< the list
        img_State = controls::kState,  ///< the state icon; a click explains the state
    };

private:
    struct Rows;
    struct Tables;

    explicit ctx_ZorListBox(platform::Container& container);
    ~ctx_ZorListBox() override = default;

    void s_ApplyDeviceValue() override;
    void s_ApplyModifiedValue(std::int32_t value) override;
    void s_HandleClick() override;
    void s_UndoEdit() override;
    /// False when a handler has written a newer value meanwhile.
    bool s_MarkList(std::int32_t value);
    void s_UpdateColors() override;
    void s_Layout() override;
    void judge();

    std::unique_ptr<platform::ListBox> m_list;
    controls::EntryList m_entries;
    controls::InvalidMark m_invalid;
    std::int32_t m_otherUser = 0;
    /// Markings under way: the reports they cause are not the operator's.
    platform::Depth m_markings;
};

} // namespace zor
