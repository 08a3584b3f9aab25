#include <zor/controls/choice/choice_control.h>
#include <zor/controls/choice/choice_rows.h>

#include <cassert>

namespace zor::controls {

using platform::Notice;

ChoiceControl::ChoiceControl(const core::ClassInfo& info, platform::Container& container, platform::Rect designed,
                             UndoAt undoAt)
    : Control(info, container, designed.width, designed.height), m_undo(surface()), m_undoAt(undoAt)
{}

void ChoiceControl::adopt(platform::FontWidget& face)
{
    // After the face: the keyboard goes from one to the other in the order in which they are made.
    m_icon = surface().createImage(kState, false);
    m_icon->setGeometry({0, core::kIconTop, core::kIconSize, core::kIconSize});
    assert(m_face == nullptr); // once, at the end of the class's constructor
    m_face = &face;
    m_body = {&face};
    s_Layout();
}

platform::Widget* ChoiceControl::widget(int number) noexcept
{
    switch (number) {
    case kFace: return m_face;
    case kState: return m_icon.get();
    default: return Control::widget(number);
    }
}

// --- Values

void ChoiceControl::DeviceValue(std::int32_t value) { write(ChoiceRows::DeviceValue, value); }
void ChoiceControl::OutputValue(std::int32_t value) { write(ChoiceRows::OutputValue, value); }
void ChoiceControl::ModifiedValue(std::int32_t value)
{
    carryOut([&] { s_ApplyModifiedValue(value); });
}

void ChoiceControl::assignOutput(std::int32_t value)
{
    m_outputValue = value;
    raise(raised().outputValueChange);
}

// --- Display

void ChoiceControl::s_UpdateColors()
{
    m_face->setForeColour(m_status.cFail ? kRed : ButtonText);
    m_face->setBold(m_status.cFail || m_status.dataModified);
    m_inputLocked = m_status.cFail || isReadOnlyForOperator();
}

void ChoiceControl::s_UpdateDeviceSupportDisplay()
{
    const bool supported = isDeviceSupported();
    m_face->setVisible(supported);
    // The state icon comes back with the next status refresh: what it showed may be out of date.
    if (!supported)
        m_icon->setVisible(false);
}

void ChoiceControl::s_AfterLoading()
{
    m_reference = m_deviceValue;
    s_UpdateColors();
    s_UpdateEnabledState();
    s_Layout();
}

// --- The operator

void ChoiceControl::onNotice(int widget, Notice notice, platform::EventArgs args)
{
    if (widget == kFace && notice == Notice::Click)
        return s_HandleClick();
    if (widget == core::kUndoEdit)
        return s_UndoEdit();
    if (widget == kState && notice == Notice::Click)
        s_ExplainState();
    forward(widget, notice, args);
    if (notice != Notice::MouseUp)
        return;
    if (widget == platform::kSurfaceWidget)
        offerUndo(surface(), args);
    else if (widget == kFace && m_undoAt == UndoAt::SurfaceAndFace)
        offerUndo(*m_face, args);
}

void ChoiceControl::offerUndo(platform::Widget& widget, platform::EventArgs mouse)
{
    if (!m_inputLocked && m_status.enableControl)
        m_undo.offer(widget, mouse);
}

} // namespace zor::controls
