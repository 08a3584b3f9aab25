#pragma once

#include <zor/controls/numeric/numeric_events.h>

namespace zor {

/// The outgoing events of ctx_ZorSlider. Derive, override what is of interest, and subscribe. Arguments are by
/// reference, as the widget reports them.
class __ctx_ZorSlider : public controls::NumericEvents {
public:
    /// A device value or a modification was found invalid.
    virtual void InvalidValueSetTrue() {}
    /// The track was moved and its value taken, by whomever; not while input is locked.
    virtual void sliderChange() {}
    virtual void sliderClick() {}
    virtual void sliderGotFocus() {}
    virtual void sliderKeyDown(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void sliderKeyPress(std::int16_t& /*KeyAscii*/) {}
    virtual void sliderKeyUp(std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/) {}
    virtual void sliderLostFocus() {}
    virtual void sliderMouseDown(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void sliderMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    virtual void sliderMouseUp(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/) {}
    /// The six drag events: only where the platform's track offers drags.
    virtual void sliderOLECompleteDrag(std::int32_t& /*Effect*/) {} ///< never raised
    virtual void sliderOLEDragDrop(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                   std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/)
    {}
    virtual void sliderOLEDragOver(std::string& /*Data*/, std::int32_t& /*Effect*/, std::int16_t& /*Button*/,
                                   std::int16_t& /*Shift*/, float& /*X*/, float& /*Y*/, std::int16_t& /*State*/)
    {}
    virtual void sliderOLEGiveFeedback(std::int32_t& /*Effect*/, bool& /*DefaultCursors*/) {} ///< never raised
    virtual void sliderOLESetData(std::string& /*Data*/, std::int16_t& /*DataFormat*/) {}
    virtual void sliderOLEStartDrag(std::string& /*Data*/, std::int32_t& /*AllowedEffects*/) {}
    /// The handle is being dragged.
    virtual void sliderScroll() {}
    /// The focus is about to leave; Cancel set to true keeps it.
    virtual void sliderValidate(bool& /*Cancel*/) {}

    // The six labels: caption changed, click, double click, mouse move.
    virtual void LabelMinUnitChange() {}
    virtual void LabelMinUnitClick() {}
    virtual void LabelMinUnitDblClick() {}
    virtual void LabelMinUnitMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/,
                                       float& /*Y*/)
    {}
    virtual void LabelMaxUnitChange() {}
    virtual void LabelMaxUnitClick() {}
    virtual void LabelMaxUnitDblClick() {}
    virtual void LabelMaxUnitMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/,
                                       float& /*Y*/)
    {}
    virtual void LabelMinValueChange() {}
    virtual void LabelMinValueClick() {}
    virtual void LabelMinValueDblClick() {}
    virtual void LabelMinValueMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/,
                                        float& /*Y*/)
    {}
    virtual void LabelMaxValueChange() {}
    virtual void LabelMaxValueClick() {}
    virtual void LabelMaxValueDblClick() {}
    virtual void LabelMaxValueMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/,
                                        float& /*Y*/)
    {}
    virtual void LabelMinPrefixChange() {}
    virtual void LabelMinPrefixClick() {}
    virtual void LabelMinPrefixDblClick() {}
    virtual void LabelMinPrefixMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/,
                                         float& /*Y*/)
    {}
    virtual void LabelMaxPrefixChange() {}
    virtual void LabelMaxPrefixClick() {}
    virtual void LabelMaxPrefixDblClick() {}
    virtual void LabelMaxPrefixMouseMove(std::int16_t& /*Button*/, std::int16_t& /*Shift*/, float& /*X*/,
                                         float& /*Y*/)
    {}
};

} // namespace zor
