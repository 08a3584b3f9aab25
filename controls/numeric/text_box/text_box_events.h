#pragma once

#include <cstdint>
#include <string>

namespace zor {

/// The outgoing events of ctx_ZorTextBox, in the order of their published numbers. Derive, override what is
/// of interest, and subscribe. Arguments are by reference: what a handler changes reaches the text field, so
/// KeyAscii set to 0 swallows a key.
class __ctx_ZorTextBox {
public:
    virtual ~__ctx_ZorTextBox() = default;

    /// A commit found the entry invalid.
    virtual void InvalidEntrySetTrue() {}
    /// A text change left the text different from the device value; on every such change.
    virtual void DataModifiedSetTrue() {}
    /// OutputValue was assigned.
    virtual void OutputValueChange() {}
    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    virtual void DataChangedSetTrue() {}            ///< declared, never raised
    /// The text changed, after the modification check.
    virtual void textChange() {}
    virtual void textClick() {}
    virtual void textDblClick() {}
    /// The field got the focus, after its text was selected.
    virtual void textGotFocus() {}
    virtual void textKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void textKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void textKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void textLinkClose() {}                          ///< declared, never raised
    virtual void textLinkError(std::int16_t& /*LinkErr*/) {} ///< declared, never raised
    virtual void textLinkNotify() {}                         ///< only where the platform's field offers links
    virtual void textLinkOpen(std::int16_t& /*Cancel*/) {}   ///< only where the platform's field offers links
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
    /// The state icon was clicked, after its message.
    virtual void imgClick() {}
    virtual void imgDblClick() {}
};

} // namespace zor
