#pragma once

/// The properties of the label.

#include <zor/controls/display/label/ctx_ZorLabel.h>

namespace zor {

struct ctx_ZorLabel::Rows {
    using This = ctx_ZorLabel;

    static constexpr auto DeviceValue =
        core::fieldRow<&This::m_deviceValue>("DeviceValue", core::Topic::Value)
            .saying("The text from the device, shown as it comes.")
            .placed(core::Placing::Device)
            .stored("")
            .then<[](This& label) { label.m_label->setCaption(label.m_deviceValue); }>();
    static constexpr auto LabelCaption =
        core::fieldRow<&This::m_writtenCaption>("LabelCaption", core::Topic::Appearance)
            .saying("Text of the label; a DeviceValue replaces it.")
            .stored("Label")
            .reading<[](This& label) { return label.LabelCaption(); }>()
            .then<[](This& label) {
                label.showWrittenCaption();
                label.s_PlaceIcon();
            }>()
            .live();
    static constexpr auto LabelFontItalic =
        core::computedRow<[](This& label) { return label.LabelFontItalic(); }>("LabelFontItalic",
                                                                               core::Topic::Appearance)
            .saying("Whether the label's text is italic.")
            .written<[](This& label, bool italic) { label.LabelFontItalic(italic); }>()
            .stored(false);
    static constexpr auto LabelFontBold = core::computedRow<[](This& label) { return label.LabelFontBold(); }>(
                                              "LabelFontBold", core::Topic::Appearance)
                                              .saying("Whether the label's text is bold.")
                                              .written<[](This& label, bool bold) { label.LabelFontBold(bold); }>()
                                              .live();
};

} // namespace zor
