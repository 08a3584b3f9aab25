#pragma once

/// The outgoing events that numeric controls have in common.

#include <zor/core/event_row.h>

#include <array>
#include <cstdint>
#include <string>

namespace zor::controls {

/// The events of every numeric control.
class NumericEvents {
public:
    virtual ~NumericEvents() = default;

    /// The shown value was changed and differs from the device value; on every such change.
    virtual void DataModifiedSetTrue() {}
    /// OutputValue was assigned.
    virtual void OutputValueChange() {}
    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    virtual void DataChangedSetTrue() {}            ///< declared, never raised
    /// The state icon was clicked, after its message.
    virtual void imgClick() {}
    virtual void imgDblClick() {}
};

/// The events of a control with a text field and a unit label. Arguments are by reference: what a handler
/// changes reaches the text field, so KeyAscii set to 0 swallows a key.
class EntryFieldEvents : public NumericEvents {
public:
    /// The text changed, after the modification check.
    virtual void textChange() {}
    virtual void textClick() {}
    virtual void textDblClick() {}
    /// The field got the focus, after its text was selected.
    virtual void textGotFocus() {}
    virtual void textKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void textKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void textKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    /// The four link events: only where the control forwards them and the platform's field offers links.
    virtual void textLinkClose() {}
    virtual void textLinkError(std::int16_t& /*LinkErr*/) {}
    virtual void textLinkNotify() {}
    virtual void textLinkOpen(std::int16_t& /*Cancel*/) {}
    /// The field lost the focus, after the commit.
    virtual void textLostFocus() {}
    virtual void textMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void textMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void textMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void textOLECompleteDrag(std::int32_t& /*Effect*/) {}
    /// Declared, never raised, as the next one.
    virtual void textOLEDragDrop(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                 std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/)
    {}
    virtual void textOLEDragOver(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                 std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/, std::int16_t& /*State*/)
    {}
    virtual void textOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {}
    virtual void textOLESetData(std::string& /*Data*/, std::int16_t& /*DataFormat*/) {}       ///< never raised
    virtual void textOLEStartDrag(std::string& /*Data*/, std::int32_t& /*AllowedEffects*/) {} ///< never raised
    /// The focus is about to leave; Cancel set to true keeps it.
    virtual void textValidate(bool& /*Cancel*/) {}
    virtual void unitsChange() {}
    virtual void unitsClick() {}
    virtual void unitsDblClick() {}
    virtual void unitsMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
};

/// The rows 2 to 6 of a numeric control's events; `E` is its interface, as below.
template <class E>
constexpr std::array<core::EventRow, 5> conditionRows()
{
    return {core::ownEvent<&E::DataModifiedSetTrue, E>("DataModifiedSetTrue"),
            core::ownEvent<&E::OutputValueChange, E>("OutputValueChange"),
            core::ownEvent<&E::DeviceVerNotSupportedSetTrue, E>("DeviceVerNotSupportedSetTrue"),
            core::ownEvent<&E::DeviceTypeNotSupportedSetTrue, E>("DeviceTypeNotSupportedSetTrue"),
            core::ownEvent<&E::DataChangedSetTrue, E>("DataChangedSetTrue")};
}

/// The last two rows.
template <class E>
constexpr std::array<core::EventRow, 2> iconRows(int icon)
{
    return {core::event<&E::imgClick, E>("imgClick", icon, platform::Notice::Click),
            core::event<&E::imgDblClick, E>("imgDblClick", icon, platform::Notice::DblClick)};
}

/// Which of the field's link reports a control forwards.
struct LinkNotices {
    platform::Notice close = platform::Notice::None;
    platform::Notice error = platform::Notice::None;
    platform::Notice notify = platform::Notice::None;
    platform::Notice open = platform::Notice::None;
};

/// The rows 7 to 32 of a control with a text field and a unit label.
template <class E>
constexpr std::array<core::EventRow, 26> entryFieldRows(int text, int units, const LinkNotices& links)
{
    using core::event;
    using core::ownEvent;
    using platform::Notice;
    return {
        ownEvent<&E::textChange, E>("textChange"),
        event<&E::textClick, E>("textClick", text, Notice::Click),
        event<&E::textDblClick, E>("textDblClick", text, Notice::DblClick),
        event<&E::textGotFocus, E>("textGotFocus", text, Notice::GotFocus),
        event<&E::textKeyDown, E>("textKeyDown", text, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::textKeyPress, E>("textKeyPress", text, Notice::KeyPress, "KeyAscii"),
        event<&E::textKeyUp, E>("textKeyUp", text, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::textLinkClose, E>("textLinkClose", text, links.close),
        event<&E::textLinkError, E>("textLinkError", text, links.error, "LinkErr"),
        event<&E::textLinkNotify, E>("textLinkNotify", text, links.notify),
        event<&E::textLinkOpen, E>("textLinkOpen", text, links.open, "Cancel"),
        event<&E::textLostFocus, E>("textLostFocus", text, Notice::LostFocus),
        event<&E::textMouseDown, E>("textMouseDown", text, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::textMouseMove, E>("textMouseMove", text, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::textMouseUp, E>("textMouseUp", text, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::textOLECompleteDrag, E>("textOLECompleteDrag", text, Notice::OLECompleteDrag, "Effect"),
        ownEvent<&E::textOLEDragDrop, E>("textOLEDragDrop", "Data", "Effect", "Button", "Shift", "X", "Y"),
        ownEvent<&E::textOLEDragOver, E>("textOLEDragOver", "Data", "Effect", "Button", "Shift", "X", "Y",
                                         "State"),
        event<&E::textOLEGiveFeedback, E>("textOLEGiveFeedback", text, Notice::OLEGiveFeedback, "Effect",
                                          "DefaultCursors"),
        ownEvent<&E::textOLESetData, E>("textOLESetData", "Data", "DataFormat"),
        ownEvent<&E::textOLEStartDrag, E>("textOLEStartDrag", "Data", "AllowedEffects"),
        event<&E::textValidate, E>("textValidate", text, Notice::Validate, "Cancel"),
        event<&E::unitsChange, E>("unitsChange", units, Notice::Change),
        event<&E::unitsClick, E>("unitsClick", units, Notice::Click),
        event<&E::unitsDblClick, E>("unitsDblClick", units, Notice::DblClick),
        event<&E::unitsMouseMove, E>("unitsMouseMove", units, Notice::MouseMove, "Button", "Shift", "X", "Y"),
    };
}

} // namespace zor::controls
