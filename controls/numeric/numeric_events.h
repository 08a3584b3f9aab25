#pragma once

/// The outgoing events that numeric controls have in common.

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
    /// The four link events are part of the interface and never raised: no platform's field offers links.
    virtual void textLinkClose() {}
    virtual void textLinkError(std::int16_t& /*LinkErr*/) {}
    virtual void textLinkNotify() {}
    virtual void textLinkOpen(std::int16_t& /*Cancel*/) {}
    /// The field lost the focus, after the commit.
    virtual void textLostFocus() {}
    virtual void textMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void textMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void textMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    /// The OLE events are part of the interface and never raised: no platform reports a drag.
    virtual void textOLECompleteDrag(std::int32_t& /*Effect*/) {}
    virtual void textOLEDragDrop(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                 std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/)
    {}
    virtual void textOLEDragOver(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                 std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/, std::int16_t& /*State*/)
    {}
    virtual void textOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {}
    virtual void textOLESetData(std::string& /*Data*/, std::int16_t& /*DataFormat*/) {}
    virtual void textOLEStartDrag(std::string& /*Data*/, std::int32_t& /*AllowedEffects*/) {}
    /// The focus is about to leave; Cancel set to true keeps it.
    virtual void textValidate(bool& /*Cancel*/) {}
    virtual void unitsChange() {}
    virtual void unitsClick() {}
    virtual void unitsDblClick() {}
    virtual void unitsMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
};

} // namespace zor::controls
