#pragma once

/// The event rows of a text field with a unit label.

#include <zor/core/event_row.h>
#include <zor/platform/macros_aside.h>

#include <array>

namespace zor::controls {

/// Which of the field's link reports a control forwards.
struct LinkNotices {
    platform::Notice close = platform::Notice::None;
    platform::Notice error = platform::Notice::None;
    platform::Notice notify = platform::Notice::None;
    platform::Notice open = platform::Notice::None;
};

/// The rows of a control with a text field and a unit label.
template <class E>
constexpr std::array<core::EventRow, 26> entryFieldRows(int text, int units, const LinkNotices& links)
{
    using core::declared;
    using core::event;
    using core::ownEvent;
    using platform::Notice;
    return {
        ownEvent<&E::textChange, E>("textChange")
            .saying("The text changed, after it was judged; on the up-down only to a valid number."),
        event<&E::textClick, E>("textClick", text, Notice::Click),
        event<&E::textDblClick, E>("textDblClick", text, Notice::DblClick),
        event<&E::textGotFocus, E>("textGotFocus", text, Notice::GotFocus),
        event<&E::textKeyDown, E>("textKeyDown", text, Notice::KeyDown, "KeyCode", "Shift"),
        event<&E::textKeyPress, E>("textKeyPress", text, Notice::KeyPress, "KeyAscii"),
        event<&E::textKeyUp, E>("textKeyUp", text, Notice::KeyUp, "KeyCode", "Shift"),
        event<&E::textLinkClose, E>("textLinkClose", text, links.close),
        event<&E::textLinkError, E>("textLinkError", text, links.error, "LinkErr"),
        event<&E::textLinkNotify, E>("textLinkNotify", text, links.notify),
        event<&E::textLinkOpen, E>("textLinkOpen", text, links.open, "Cancel"),
        event<&E::textLostFocus, E>("textLostFocus", text, Notice::LostFocus),
        event<&E::textMouseDown, E>("textMouseDown", text, Notice::MouseDown, "Button", "Shift", "X", "Y"),
        event<&E::textMouseMove, E>("textMouseMove", text, Notice::MouseMove, "Button", "Shift", "X", "Y"),
        event<&E::textMouseUp, E>("textMouseUp", text, Notice::MouseUp, "Button", "Shift", "X", "Y"),
        event<&E::textOLECompleteDrag, E>("textOLECompleteDrag", text, Notice::OLECompleteDrag, "Effect"),
        declared<&E::textOLEDragDrop, E>("textOLEDragDrop", "Data", "Effect", "Button", "Shift", "X", "Y"),
        declared<&E::textOLEDragOver, E>("textOLEDragOver", "Data", "Effect", "Button", "Shift", "X", "Y",
                                         "State"),
        event<&E::textOLEGiveFeedback, E>("textOLEGiveFeedback", text, Notice::OLEGiveFeedback, "Effect",
                                          "DefaultCursors"),
        declared<&E::textOLESetData, E>("textOLESetData", "Data", "DataFormat"),
        declared<&E::textOLEStartDrag, E>("textOLEStartDrag", "Data", "AllowedEffects"),
        event<&E::textValidate, E>("textValidate", text, Notice::Validate, "Cancel"),
        event<&E::unitsChange, E>("unitsChange", units, Notice::Change)
            .saying("The caption of the unit label changed, by whomever."),
        event<&E::unitsClick, E>("unitsClick", units, Notice::Click),
        event<&E::unitsDblClick, E>("unitsDblClick", units, Notice::DblClick),
        event<&E::unitsMouseMove, E>("unitsMouseMove", units, Notice::MouseMove, "Button", "Shift", "X", "Y"),
    };
}

} // namespace zor::controls

#include <zor/platform/macros_back.h>
