#pragma once

#include <cstdint>

namespace zor {

/// The outgoing events of ctx_ZorCheckBox, in the order of their published numbers. Derive, override what is
/// of interest, and subscribe. Arguments are by reference: what a handler changes reaches the box.
class __ctx_ZorCheckBox {
public:
    virtual ~__ctx_ZorCheckBox() = default;

    /// The box was changed, by the operator or by a value, and differs from the device's bit then.
    virtual void DataModifiedSetTrue() {}
    /// The box was changed, by the operator or by a value, and is as the device's bit then.
    virtual void DataModifiedReset() {}
    /// OutputValue was assigned.
    virtual void OutputValueChange() {}
    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    virtual void DataChangedSetTrue() {}            ///< declared, never raised
    virtual void CheckChange() {}                   ///< only where the platform's box reports changes apart
    /// The box changed, by the operator or by a value; not while input is locked. A value that the host writes
    /// raises OutputValueChange once more behind it.
    virtual void CheckClick() {}
    virtual void CheckDblClick() {}
    virtual void CheckGotFocus() {}
    virtual void CheckKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void CheckKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void CheckKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void CheckLostFocus() {}
    virtual void CheckMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void CheckMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    /// Before the undo menu opens.
    virtual void CheckMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void CheckOLECompleteDrag(std::int32_t& /*Effect*/) {} ///< never raised
    virtual void CheckOLEDragDrop() {}                             ///< declared, never raised
    virtual void CheckOLEDragOver() {}                             ///< declared, never raised
    virtual void CheckOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {} ///< never raised
    virtual void CheckOLESetData() {}   ///< declared, never raised
    virtual void CheckOLEStartDrag() {} ///< declared, never raised
    virtual void CheckValidate() {}     ///< declared, never raised
    /// The state icon was clicked, after its message.
    virtual void imgClick() {}
    virtual void imgDblClick() {}
};

} // namespace zor
