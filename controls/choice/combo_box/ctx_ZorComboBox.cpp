#include <zor/controls/choice/combo_box/combo_box_rows.h>
#include <zor/platform/temporarily.h>

namespace zor {
namespace {

constexpr platform::Twips kHeight = 315;
constexpr platform::Rect kDesigned{0, 0, 2415, kHeight};

} // namespace

ctx_ZorComboBox::ctx_ZorComboBox(platform::Container& container)
    : ChoiceControl(classInfo(), container, kDesigned, UndoAt::Surface),
      m_combo(surface().createComboBox(cbo_ComboBox)), m_entries(*m_combo)
{
    m_combo->setGeometry(kDesigned);
    adopt(*m_combo);
}

core::ControlPtr<ctx_ZorComboBox> ctx_ZorComboBox::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorComboBox>(new ctx_ZorComboBox(container));
}

// --- Values

void ctx_ZorComboBox::s_ApplyDeviceValue()
{
    const auto underWay = newValue();
    m_reference = m_deviceValue;
    s_SelectValue(m_reference);
    if (isOvertaken(underWay))
        return;
    assignOutput(m_reference);
    if (isOvertaken(underWay))
        return;
    m_status.dataModified = false;
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorComboBox::s_ApplyModifiedValue(std::int32_t value)
{
    const auto underWay = newValue();
    s_SelectValue(value);
    if (isOvertaken(underWay))
        return;
    assignOutput(value);
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorComboBox::s_SelectValue(std::int32_t value)
{
    // Without entries there is nothing to judge a value by.
    if (m_entries.isEmpty())
        return;
    const auto index = m_entries.find(value);
    m_invalid.isSet = !index;
    if (index)
        m_combo->setCurrent(*index);
    else
        raise(raised().invalid);
}

// --- The operator

void ctx_ZorComboBox::s_HandleClick()
{
    const auto value = m_entries.currentValue();
    if (!value)
        return;
    if (m_isAdding) {
        m_outputValue = *value;
        return;
    }
    const auto before = valueUnderWay();
    m_status.dataModified = *value != m_reference;
    if (m_status.dataModified)
        raise(raised().dataModifiedSetTrue);
    // A handler may have added an entry, which is the selected one then.
    if (!isOvertaken(before))
        assignOutput(m_entries.currentValue().value_or(*value));
    s_UpdateColors();
    raise(raised().changed);
}

void ctx_ZorComboBox::s_UndoEdit()
{
    if (!m_status.dataModified)
        return;
    const auto underWay = newValue();
    const std::int32_t before = m_combo->current();
    s_SelectValue(m_reference);
    if (isOvertaken(underWay))
        return;
    // A list that shows the device's value already does not report: the flag came from elsewhere.
    if (m_entries.currentValue() == m_reference && m_combo->current() == before)
        s_HandleClick();
    if (isOvertaken(underWay))
        return;
    assignOutput(m_reference);
    s_UpdateStatusDisplay();
}

// --- Display

void ctx_ZorComboBox::s_UpdateColors()
{
    ChoiceControl::s_UpdateColors();
    m_combo->setBackColour(controls::listBackColour(isReadOnlyForOperator(), m_status.dataModified));
    m_combo->setLocked(isInputLocked());
}

void ctx_ZorComboBox::s_Layout()
{
    platform::Rect area = surface().geometry();
    controls::layOutListWidth(area.width, *m_combo, icon());
    // A drop-down list has one height, whatever the container asks for.
    area.height = kHeight;
    surface().setGeometry(area);
}

// --- Entries

void ctx_ZorComboBox::AddEnumEntry(std::string_view Identifier, std::int32_t EnumEntryValue)
{
    m_entries.append(Identifier, EnumEntryValue);
    const platform::Temporarily adding(m_isAdding, true);
    m_combo->setCurrent(m_combo->count() - 1);
}

void ctx_ZorComboBox::ClearEnumList() { m_entries.clear(); }
void ctx_ZorComboBox::RemoveEnumEntry(std::int32_t EnumEntryValue) { m_entries.remove(EnumEntryValue); }
std::string ctx_ZorComboBox::GetEnumEntryText(const std::int32_t& EnumEntryValue) const
{
    return m_entries.textOf(EnumEntryValue);
}
std::vector<std::string> ctx_ZorComboBox::GetEnumEntries() const { return m_entries.texts(); }
Variant ctx_ZorComboBox::GetEnumEntryValue(const std::string& EnumText) const
{
    return m_entries.valueOf(EnumText);
}
std::vector<Variant> ctx_ZorComboBox::GetEnumEntryValueArray() const { return m_entries.values(); }
Variant ctx_ZorComboBox::GetEnumEntryCount() const { return m_entries.count(); }

// --- Properties

void ctx_ZorComboBox::InvalidValue(bool value) { write(Rows::InvalidValue, value); }
void ctx_ZorComboBox::MsgInvalidValue(std::string_view value) { write(Rows::MsgInvalidValue, value); }
void ctx_ZorComboBox::OtherUserValue(std::int16_t value) { write(Rows::OtherUser, value); }

} // namespace zor
