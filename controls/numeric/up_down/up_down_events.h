#pragma once

#include <zor/controls/numeric/numeric_events.h>

namespace zor {

/// The outgoing events of ctx_ZorUpDown. Derive, override what is of interest, and subscribe. textChange comes
/// only when the text has become a valid number.
class __ctx_ZorUpDown : public controls::EntryFieldEvents {
public:
    /// A device value or a modification was found invalid.
    virtual void InvalidValueSetTrue() {}
    /// The value of the spin button changed, by whomever.
    virtual void upDownChange() {}
    /// The spin button was clicked, after its step; also where the step was not taken.
    virtual void upDownDownClick() {}
    virtual void upDownUpClick() {}
};

} // namespace zor
