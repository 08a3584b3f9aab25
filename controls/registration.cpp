#include "controls/registration.h"

#include "controls/choice/check_box/ctx_ZorCheckBox.h"
#include "controls/choice/combo_box/ctx_ZorComboBox.h"
#include "controls/choice/list_box/ctx_ZorListBox.h"
#include "controls/choice/option_button/ctx_ZorOptionButton.h"
#include "controls/display/image/ctx_ZorImage.h"
#include "controls/display/label/ctx_ZorLabel.h"
#include "controls/numeric/slider/ctx_ZorSlider.h"
#include "controls/numeric/text_box/ctx_ZorTextBox.h"
#include "controls/numeric/up_down/ctx_ZorUpDown.h"

namespace zor {

void registerControls(core::ClassRegistry& registry)
{
    registry.add(ctx_ZorTextBox::classInfo());
    registry.add(ctx_ZorUpDown::classInfo());
    registry.add(ctx_ZorSlider::classInfo());
    registry.add(ctx_ZorComboBox::classInfo());
    registry.add(ctx_ZorListBox::classInfo());
    registry.add(ctx_ZorCheckBox::classInfo());
    registry.add(ctx_ZorOptionButton::classInfo());
    registry.add(ctx_ZorLabel::classInfo());
    registry.add(ctx_ZorImage::classInfo());
}

} // namespace zor
