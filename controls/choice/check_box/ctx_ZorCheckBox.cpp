#include <zor/controls/choice/bit_mask.h>
#include <zor/controls/choice/check_box/check_box_rows.h>
#include <zor/platform/temporarily.h>

namespace zor {
namespace {

constexpr controls::CaptionLayout kCheckLayout{330, 25};

} // namespace

ctx_ZorCheckBox::ctx_ZorCheckBox(platform::Container& container)
    : CaptionChoice(classInfo(), container, kCheckLayout), m_check(surface().createCheckBox(chk_CheckBox))
{
    adopt(*m_check, "Check1");
}

core::ControlPtr<ctx_ZorCheckBox> ctx_ZorCheckBox::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorCheckBox>(new ctx_ZorCheckBox(container));
}

bool ctx_ZorCheckBox::isBitSet(std::int32_t value) const noexcept
{
    return (value & controls::bitMask(m_bit)) != 0;
}

// --- Values

void ctx_ZorCheckBox::s_ApplyDeviceValue()
{
    const auto underWay = newValue();
    m_loaded = isBitSet(m_deviceValue);
    setChecked(m_loaded);
    if (isOvertaken(underWay))
        return;
    assignOutput(m_deviceValue);
    if (isOvertaken(underWay))
        return;
    m_status.dataModified = false;
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorCheckBox::s_ApplyModifiedValue(std::int32_t value)
{
    const auto underWay = newValue();
    setChecked(isBitSet(value));
    if (isOvertaken(underWay))
        return;
    // No click has judged what a locked operator could not have done.
    if (isInputLocked())
        m_status.dataModified = m_check->isOn() != m_loaded;
    assignOutput(value);
    s_UpdateColors();
    s_UpdateStatusDisplay();
}

void ctx_ZorCheckBox::setChecked(bool checked)
{
    const platform::Temporarily setting(m_isSetting, true);
    m_check->setOn(checked);
}

// --- The operator

void ctx_ZorCheckBox::s_HandleClick()
{
    if (isInputLocked()) {
        // The operator's change is undone, the control's own is not.
        if (!m_isSetting)
            setChecked(m_loaded);
        return;
    }
    const auto before = valueUnderWay();
    m_status.dataModified = m_check->isOn() != m_loaded;
    raise(m_status.dataModified ? raised().dataModifiedSetTrue : raised().dataModifiedReset);
    // The bit alone: the others are the device's, or other check boxes'.
    if (!isOvertaken(before))
        assignOutput(controls::withBits(m_outputValue, controls::bitMask(m_bit), m_check->isOn()));
    s_UpdateColors();
    raise(raised().changed);
}

void ctx_ZorCheckBox::s_UndoEdit()
{
    if (!m_status.dataModified)
        return;
    const auto underWay = newValue();
    // A box that shows the device's bit already does not report: the flag came from elsewhere.
    if (m_check->isOn() == m_loaded)
        s_HandleClick();
    else
        setChecked(m_loaded);
    if (isOvertaken(underWay))
        return;
    // Where the operator is locked out, no click ends his edit.
    if (isInputLocked()) {
        m_status.dataModified = false;
        s_UpdateColors();
    }
    assignOutput(m_deviceValue);
}

// --- Properties

void ctx_ZorCheckBox::BitFieldEntryIndex(std::int16_t value) { write(Rows::BitFieldEntryIndex, value); }
void ctx_ZorCheckBox::CheckBoxCaption(std::string_view value) { write(Rows::CheckBoxCaption, value); }
void ctx_ZorCheckBox::CheckBoxValue(bool value) { put(Rows::CheckBoxValue, value); }
void ctx_ZorCheckBox::OtherUserValue(bool value) { write(Rows::OtherUser, value); }

} // namespace zor
