#pragma once

#include <zor/controls/numeric/numeric_events.h>

namespace zor {

/// The outgoing events of ctx_ZorTextBox. Derive, override what is of interest, and subscribe.
class __ctx_ZorTextBox : public controls::EntryFieldEvents {
public:
    /// A commit found the entry invalid.
    virtual void InvalidEntrySetTrue() {}
};

} // namespace zor
