#pragma once

#include <cstdint>
#include <string>

namespace zor {

/// The outgoing events of ctx_ZorImage, in the order of their published numbers. Arguments are by reference.
class __ctx_ZorImage {
public:
    virtual ~__ctx_ZorImage() = default;

    virtual void DeviceVerNotSupportedSetTrue() {}  ///< declared, never raised
    virtual void DeviceTypeNotSupportedSetTrue() {} ///< declared, never raised
    /// The picture was clicked, after its message.
    virtual void imageClick() {}
    virtual void imageDblClick() {}
    virtual void imageMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void imageMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void imageMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void imageOLECompleteDrag(std::int32_t& /*Effect*/) {} ///< never raised
    /// Declared, never raised, as the next one.
    virtual void imageOLEDragDrop(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                  std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/)
    {}
    virtual void imageOLEDragOver(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                  std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/, std::int16_t& /*State*/)
    {}
    virtual void imageOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {}   ///< never raised
    virtual void imageOLESetData(std::string& /*Data*/, std::int16_t& /*DataFormat*/) {}       ///< never raised
    virtual void imageOLEStartDrag(std::string& /*Data*/, std::int32_t& /*AllowedEffects*/) {} ///< never raised
};

} // namespace zor
