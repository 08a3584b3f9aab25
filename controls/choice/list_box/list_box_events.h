#pragma once

#include <cstdint>

namespace zor {

/// The outgoing events of ctx_ZorListBox, in the order of their published numbers. Derive, override what is of
/// interest, and subscribe. Arguments are by reference: what a handler changes reaches the list.
class __ctx_ZorListBox {
public:
    virtual ~__ctx_ZorListBox() = default;

    virtual void InvalidValueSetTrue() {} ///< declared, never raised
    /// A mark was changed, by the operator or by a value, and OutputValue differs from the device's value then; on
    /// every such change.
    virtual void DataModifiedSetTrue() {}
    /// OutputValue was assigned.
    virtual void OutputValueChange() {}
    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    virtual void DataChangedSetTrue() {}            ///< declared, never raised
    /// The current entry or its mark changed, by the operator or by a value; not while input is locked. A value
    /// that the host writes raises OutputValueChange once more behind it.
    virtual void ListClick() {}
    virtual void ListDblClick() {}
    virtual void ListGotFocus() {}
    virtual void ListItemCheck(std::int16_t& /*Item*/) {} ///< declared, never raised
    virtual void ListKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void ListKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void ListKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void ListLostFocus() {}
    virtual void ListMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void ListMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void ListMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void ListOLECompleteDrag(std::int32_t& /*Effect*/) {} ///< never raised
    virtual void ListOLEDragDrop() {}                             ///< declared, never raised
    virtual void ListOLEDragOver() {}                             ///< declared, never raised
    virtual void ListOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {} ///< never raised
    virtual void ListOLESetData() {}   ///< declared, never raised
    virtual void ListOLEStartDrag() {} ///< declared, never raised
    /// The operator scrolled the list.
    virtual void ListScroll() {}
    /// The focus is about to leave; Cancel set to true keeps it.
    virtual void ListValidate(bool& /*Cancel*/) {}
    /// The state icon was clicked, after its message.
    virtual void imgClick() {}
    virtual void imgDblClick() {}
};

} // namespace zor
