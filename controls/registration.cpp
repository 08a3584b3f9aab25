#include <zor/controls/choice/check_box/ctx_ZorCheckBox.h>
#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>
#include <zor/controls/choice/list_box/ctx_ZorListBox.h>
#include <zor/controls/choice/option_button/ctx_ZorOptionButton.h>
#include <zor/controls/display/image/ctx_ZorImage.h>
#include <zor/controls/display/label/ctx_ZorLabel.h>
#include <zor/controls/numeric/slider/ctx_ZorSlider.h>
#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/controls/numeric/up_down/ctx_ZorUpDown.h>
#include <zor/controls/registration.h>

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
