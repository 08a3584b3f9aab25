#include <zor/controls/choice/option_button/option_button_rows.h>

#include <utility>

namespace zor {
namespace {

constexpr controls::CaptionLayout kOptionLayout{315, 20};

} // namespace

ctx_ZorOptionButton::ctx_ZorOptionButton(platform::Container& container)
    : CaptionChoice(classInfo(), container, kOptionLayout),
      m_option(surface().createOptionButton(opt_OptionButton))
{
    adopt(*m_option, "option");
}

core::ControlPtr<ctx_ZorOptionButton> ctx_ZorOptionButton::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorOptionButton>(new ctx_ZorOptionButton(container));
}

// --- Values

void ctx_ZorOptionButton::s_ApplyDeviceValue()
{
    m_enumValue = m_deviceValue;
    s_ApplyEnumValue();
}

void ctx_ZorOptionButton::s_ApplyEnumValue()
{
    newValue();
    m_reference = m_deviceValue;
    const bool wasOn = m_option->isOn();
    const bool isOn = m_enumValue == m_entryValue;
    s_Select(isOn);
    // A button that was selected before makes no click, and stays the choice that it is; one selected anew is
    // judged by its click.
    m_status.dataModified = wasOn && isOn && !m_isArmed && !isInputLocked() && m_enumValue != m_reference;
    m_outputValue = m_enumValue;
    s_UpdateStatusDisplay();
    s_UpdateColors();
    s_HandleClick();
}

void ctx_ZorOptionButton::s_ApplyModifiedValue(std::int32_t value)
{
    newValue();
    const bool isOn = value == m_entryValue;
    s_Select(isOn);
    if (!isOn)
        m_status.dataModified = false;
    m_outputValue = value;
    s_UpdateStatusDisplay();
    s_UpdateColors();
    s_HandleClick();
}

void ctx_ZorOptionButton::s_Select(bool selected)
{
    m_isArmed = false;
    const bool wasOn = m_option->isOn();
    m_option->setOn(selected);
    // A button that has come to stand for another value is selected anew, though it looks the same.
    const bool isAnother = std::exchange(m_stoodFor, m_entryValue) != m_entryValue;
    if (isAnother && wasOn && selected)
        m_isArmed = true;
}

void ctx_ZorOptionButton::s_AfterLoading()
{
    CaptionChoice::s_AfterLoading();
    m_stoodFor = m_entryValue;
}

// --- The operator

void ctx_ZorOptionButton::s_HandleClick()
{
    if (!m_isArmed) {
        m_isArmed = true;
        return;
    }
    if (isInputLocked() && m_entryValue != m_deviceValue)
        m_option->setOn(m_outputValue == m_entryValue);
    else
        s_TakeChoice();
    m_isArmed = true;
}

void ctx_ZorOptionButton::s_TakeChoice()
{
    m_outputValue = m_option->isOn() ? m_entryValue : m_enumValue;
    m_status.dataModified = m_outputValue != m_reference;
    if (m_status.dataModified)
        raise(raised().dataModifiedSetTrue);
    s_UpdateColors();
    raise(raised().changed);
    // A button that is not selected has no value to hand over; the one that is tells the host.
    if (m_option->isOn())
        raise(raised().outputValueChange);
}

void ctx_ZorOptionButton::s_UndoEdit()
{
    const auto underWay = newValue();
    // The edit is over, whether a click says so or not; what is written by those who hear of it stays.
    m_status.dataModified = false;
    s_UpdateColors();
    m_option->setOn(m_reference == m_entryValue);
    if (!isOvertaken(underWay))
        m_outputValue = m_deviceValue;
}

// --- Properties

void ctx_ZorOptionButton::EnumEntryValue(std::int32_t value) { write(Rows::EnumEntryValue, value); }
void ctx_ZorOptionButton::EnumValue(std::int32_t value) { write(Rows::EnumValue, value); }
void ctx_ZorOptionButton::OptionButtonCaption(std::string_view value) { write(Rows::OptionButtonCaption, value); }
void ctx_ZorOptionButton::OtherUserValue(std::int32_t value) { write(Rows::OtherUser, value); }

} // namespace zor
