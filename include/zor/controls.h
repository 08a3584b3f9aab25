#pragma once

/// The nine controls, the registry that makes them by name, and the separators that they write numbers with.

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
#include <zor/core/commit_filter.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/regional.h>
