#include <zor/controls/choice/bit_mask.h>
#include <zor/controls/choice/list_box/list_box_rows.h>

#include <algorithm>

namespace zor {
namespace {

using platform::Twips;

constexpr Twips kOneLine = 315; ///< lowest control that its list fills
constexpr Twips kLowest = 285;  ///< a list is no lower
constexpr platform::Rect kDesignedList{0, 0, 2415, 1215};

} // namespace

ctx_ZorListBox::ctx_ZorListBox(platform::Container& container)
    : ChoiceControl(classInfo(), container, kDesignedList, UndoAt::Surface),
      m_list(surface().createListBox(lst_ListBox)), m_entries(*m_list)
{
    adopt(*m_list);
}

core::ControlPtr<ctx_ZorListBox> ctx_ZorListBox::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorListBox>(new ctx_ZorListBox(container));
}

// --- Values

void ctx_ZorListBox::s_ApplyDeviceValue()
{
    const auto underWay = newValue();
    m_reference = m_deviceValue;
    m_outputValue = m_deviceValue;
    if (!s_MarkList(m_reference))
        return;
    raise(raised().outputValueChange);
    if (isOvertaken(underWay))
        return;
    m_status.dataModified = false;
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorListBox::s_ApplyModifiedValue(std::int32_t value)
{
    const auto underWay = newValue();
    if (!s_MarkList(value))
        return;
    assignOutput(value);
    if (isOvertaken(underWay))
        return;
    judge();
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

bool ctx_ZorListBox::s_MarkList(std::int32_t value)
{
    const auto underWay = valueUnderWay();
    const platform::Depth::Level marking(m_markings);
    // An entry that a handler adds meanwhile waits for the next value, as every later one does.
    const std::int32_t last = m_list->count();
    for (std::int32_t i = 0; i < std::min(last, m_list->count()) && !isOvertaken(underWay); ++i)
        m_list->setSelected(i, (value & controls::bitMask(m_list->datum(i))) != 0);
    if (!m_entries.isEmpty() && !isOvertaken(underWay))
        m_list->setCurrent(0);
    return !isOvertaken(underWay);
}

/// The clicks of a marking judge what there is at the time: bits without an entry come last.
void ctx_ZorListBox::judge() { m_status.dataModified = m_outputValue != m_reference; }

// --- The operator

void ctx_ZorListBox::s_HandleClick()
{
    if (isInputLocked()) {
        // The operator's change is undone, the control's own is not.
        if (m_markings.isNone())
            s_MarkList(m_outputValue);
        return;
    }
    const std::int32_t entry = m_list->current();
    if (entry < 0)
        return;
    const std::int32_t mask = controls::bitMask(m_list->datum(entry));
    assignOutput(controls::withBits(m_outputValue, mask, m_list->isSelected(entry)));
    judge();
    if (m_status.dataModified)
        raise(raised().dataModifiedSetTrue);
    s_UpdateColors();
    raise(raised().changed);
}

void ctx_ZorListBox::s_UndoEdit()
{
    if (!m_status.dataModified)
        return;
    const auto underWay = newValue();
    if (!s_MarkList(m_reference))
        return;
    assignOutput(m_reference);
    if (isOvertaken(underWay))
        return;
    judge();
    s_UpdateColors();
}

// --- Display

void ctx_ZorListBox::s_UpdateColors()
{
    ChoiceControl::s_UpdateColors();
    m_list->setBackColour(controls::listBackColour(isReadOnlyForOperator(), m_status.dataModified));
}

void ctx_ZorListBox::s_Layout()
{
    const platform::Rect area = surface().geometry();
    const bool isLow = area.height < kOneLine;
    platform::Rect place = m_list->geometry();
    place.height = isLow ? kLowest : area.height;
    m_list->setGeometry(place);
    controls::layOutListWidth(area.width, *m_list, icon());
    platform::Rect iconPlace = icon().geometry();
    iconPlace.top = (isLow ? 0 : roundToInt32((area.height - kOneLine) / 2)) + core::kIconTop;
    icon().setGeometry(iconPlace);
}

// --- Entries

void ctx_ZorListBox::AddBitFieldEntry(std::string_view Identifier, std::int16_t BitFieldEntryValue)
{
    m_entries.append(Identifier, BitFieldEntryValue);
}
void ctx_ZorListBox::ClearBitFieldList() { m_entries.clear(); }
void ctx_ZorListBox::RemoveBitFieldEntry(std::int16_t BitFieldEntryValue) { m_entries.remove(BitFieldEntryValue); }
std::string ctx_ZorListBox::GetBitFieldEntryText(const std::int16_t& BitFieldEntryValue) const
{
    return m_entries.textOf(BitFieldEntryValue);
}
std::vector<std::string> ctx_ZorListBox::GetBitFieldEntries() const { return m_entries.texts(); }
Variant ctx_ZorListBox::GetBitFieldEntryValue(const std::string& BitFieldText) const
{
    return m_entries.valueOf(BitFieldText);
}
std::vector<Variant> ctx_ZorListBox::GetBitFieldEntryValueArray() const { return m_entries.values(); }
Variant ctx_ZorListBox::GetBitFieldEntryCount() const { return m_entries.count(); }

// --- Properties

void ctx_ZorListBox::InvalidValue(bool value) { write(Rows::InvalidValue, value); }
void ctx_ZorListBox::MsgInvalidValue(std::string_view value) { write(Rows::MsgInvalidValue, value); }
void ctx_ZorListBox::OtherUserValue(std::int32_t value) { write(Rows::OtherUser, value); }

} // namespace zor
