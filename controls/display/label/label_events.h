#pragma once

#include <cstdint>
#include <string>

namespace zor {

/// The outgoing events of ctx_ZorLabel, in the order of their published numbers. Arguments are by reference.
class __ctx_ZorLabel {
public:
    virtual ~__ctx_ZorLabel() = default;

    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    /// The caption changed, by whomever.
    virtual void labelChange() {}
    virtual void labelClick() {}
    virtual void labelDblClick() {}
    virtual void labelLinkClose() {}                          ///< never raised: no label offers links
    virtual void labelLinkError(std::int16_t& /*LinkErr*/) {} ///< declared, never raised
    virtual void labelLinkNotify() {}                         ///< never raised
    virtual void labelLinkOpen(std::int16_t& /*Cancel*/) {}   ///< never raised
    virtual void labelMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void labelMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void labelMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void labelOLECompleteDrag(std::int32_t& /*Effect*/) {} ///< never raised
    /// Declared, never raised, as the next one.
    virtual void labelOLEDragDrop(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                  std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/)
    {}
    virtual void labelOLEDragOver(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                  std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/, std::int16_t& /*State*/)
    {}
    virtual void labelOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {}   ///< never raised
    virtual void labelOLESetData(std::string& /*Data*/, std::int16_t& /*DataFormat*/) {}       ///< never raised
    virtual void labelOLEStartDrag(std::string& /*Data*/, std::int32_t& /*AllowedEffects*/) {} ///< never raised
    /// The state icon was clicked, after its message.
    virtual void imgClick() {}
    virtual void imgDblClick() {}
};

} // namespace zor
