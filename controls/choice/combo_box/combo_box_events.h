#pragma once

#include <cstdint>

namespace zor {

/// The outgoing events of ctx_ZorComboBox, in the order of their published numbers. Derive, override what is
/// of interest, and subscribe. Arguments are by reference: what a handler changes reaches the list.
class __ctx_ZorComboBox {
public:
    virtual ~__ctx_ZorComboBox() = default;

    /// A value looked up (a new DeviceValue or ModifiedValue, an undo) is carried by no entry.
    virtual void InvalidValueSetTrue() {}
    /// A selection left the list on another value than the device's; on every such selection.
    virtual void DataModifiedSetTrue() {}
    /// OutputValue was assigned.
    virtual void OutputValueChange() {}
    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    virtual void DataChangedSetTrue() {}            ///< declared, never raised
    virtual void ComboChange() {}                   ///< only where the platform's list takes typed text
    /// An entry was selected, by the operator or by a value; after everything else that follows from it.
    virtual void ComboClick() {}
    virtual void ComboDblClick() {}
    /// The list opens.
    virtual void ComboDropDown() {}
    virtual void ComboGotFocus() {}
    virtual void ComboKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void ComboKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void ComboKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void ComboLostFocus() {}
    virtual void ComboOLECompleteDrag(std::int32_t& /*Effect*/) {} ///< never raised
    virtual void ComboOLEDragDrop() {}                             ///< declared, never raised
    virtual void ComboOLEDragOver() {}                             ///< declared, never raised
    virtual void ComboOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {} ///< never raised
    virtual void ComboOLESetData() {}   ///< declared, never raised
    virtual void ComboOLEStartDrag() {} ///< declared, never raised
    /// The operator scrolled the open list.
    virtual void ComboScroll() {}
    /// The focus is about to leave; Cancel set to true keeps it.
    virtual void ComboValidate(bool& /*Cancel*/) {}
    /// The state icon was clicked, after its message.
    virtual void imgClick() {}
    virtual void imgDblClick() {}
};

} // namespace zor
