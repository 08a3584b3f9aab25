#pragma once

/// The properties of the status image.

#include <zor/controls/display/image/ctx_ZorImage.h>
#include <zor/core/shared_rows.h>

namespace zor {

struct ctx_ZorImage::Rows {
    using This = ctx_ZorImage;
    using S = core::SharedRows;

    static constexpr auto DeviceValue =
        core::fieldRow<&This::m_deviceValue>("DeviceValue", core::Topic::Value)
            .saying("The status word from the device: 0 is well, each set bit a condition.")
            .placed(core::Placing::Device)
            .stored(0)
            .refreshing({core::Refresh::Status});
    static constexpr auto UseAuxIcon =
        core::fieldRow<&This::m_useAuxIcon>("UseAuxIcon", core::Topic::Appearance)
            .saying("Shows the second pair of pictures. Takes effect with the next refresh of the state.")
            .stored(false);
    static constexpr auto ReadOnly =
        S::ReadOnly.saying("Kept for the host, without effect: nothing is edited here.")
            .with(core::Access::Silent)
            .refreshing({});
    static constexpr auto MessageHeader =
        S::MessageHeader
            .saying("What the status word stands for: tooltip, part of the titles and texts of the message boxes, "
                    "and the name that is read out.")
            .initially("Qex");

    // Three texts of a new image are not those of a form that says nothing; forms in the field rely on both.
    static constexpr auto MsgDefault =
        S::MsgDefault
            .saying("First words of the box that lists the bits, or says that none is set; before MessageHeader.")
            .stored("Detailed Information about ")
            .initially("Status OK");
    static constexpr auto StatusText =
        core::fieldRow<&This::m_texts, &Texts::status>("StatusText", core::Topic::Messages)
            .saying("First words of the titles of the message boxes.")
            .stored("Status")
            .initially("");
    static constexpr auto MsgStatusOK =
        core::fieldRow<&This::m_texts, &Texts::ok>("MsgStatusOK", core::Topic::Messages)
            .saying("Message when no bit is set.")
            .stored("- No Information. Status OK.")
            .initially("- No Information. Status OK")
            .with(core::Access::Silent)
            .refreshing({core::Refresh::Status});
    static constexpr auto MsgStatusNotOK =
        core::fieldRow<&This::m_texts, &Texts::notOk>("MsgStatusNotOK", core::Topic::Messages)
            .saying("Message when a bit is set; a click puts the list of the set bits in its place.")
            .stored("Status Not OK")
            .with(core::Access::Silent)
            .refreshing({core::Refresh::Status})
            .live();
    static constexpr auto MsgUndefined =
        core::fieldRow<&This::m_texts, &Texts::undefined>("MsgUndefined", core::Topic::Messages)
            .saying("Words for a set bit that has no name; the bit's number is added behind MsgBit.")
            .with(core::Access::Silent);
    static constexpr auto MsgBit = core::fieldRow<&This::m_texts, &Texts::bit>("MsgBit", core::Topic::Messages)
                                       .saying("Word before the number of a set bit that has no name.")
                                       .with(core::Access::Silent);
};

} // namespace zor
