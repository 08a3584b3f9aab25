#pragma once

#include <cstdint>

namespace zor {

/// The outgoing events of ctx_ZorOptionButton, in the order of their published numbers. Derive, override what
/// is of interest, and subscribe. Arguments are by reference: what a handler changes reaches the button.
class __ctx_ZorOptionButton {
public:
    virtual ~__ctx_ZorOptionButton() = default;

    /// The button was changed, by the operator or by a value, and OutputValue differs from the device's value
    /// then.
    virtual void DataModifiedSetTrue() {}
    /// A click left the button selected: OutputValue is its value. A new value from the device, or an undo,
    /// raises it only by selecting the button.
    virtual void OutputValueChange() {}
    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    virtual void DataChangedSetTrue() {}            ///< declared, never raised
    /// The button was selected, by the operator or by a value; before OutputValueChange tells of its value.
    virtual void OptionClick() {}
    virtual void OptionDblClick() {}
    virtual void OptionGotFocus() {}
    virtual void OptionKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void OptionKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void OptionKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void OptionLostFocus() {}
    virtual void OptionMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void OptionMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    /// Before the undo menu opens.
    virtual void OptionMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void OptionOLECompleteDrag(std::int32_t& /*Effect*/) {} ///< never raised
    virtual void OptionOLEDragDrop() {}                             ///< declared, never raised
    virtual void OptionOLEDragOver() {}                             ///< declared, never raised
    virtual void OptionOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {} ///< never raised
    virtual void OptionOLESetData() {}   ///< declared, never raised
    virtual void OptionOLEStartDrag() {} ///< declared, never raised
    /// The focus is about to leave; Cancel set to true keeps it.
    virtual void OptionValidate(bool& /*Cancel*/) {}
    /// The state icon was clicked, after its message.
    virtual void imgClick() {}
    virtual void imgDblClick() {}
};

} // namespace zor
