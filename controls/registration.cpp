#include "controls/registration.h"

#include "controls/numeric/text_box/ctx_ZorTextBox.h"

namespace zor {

void registerControls(core::ClassRegistry& registry) { registry.add(ctx_ZorTextBox::classInfo()); }

} // namespace zor
