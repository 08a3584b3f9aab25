#pragma once

/// The property pages of the library.

#include <zor/pages/page_info.h>

namespace zor {

extern const pages::PageInfo prp_ZorTextBoxGeneral; ///< of the text box
extern const pages::PageInfo prp_ZorUpDSldDevice;   ///< of up-down and slider
extern const pages::PageInfo prp_ZorOtherControls;  ///< of label, combo box, list box, check box, option button
extern const pages::PageInfo prp_ZorImage;          ///< of the status image

/// Adds the library's pages to a registry.
void registerPages(pages::PageRegistry& registry);

} // namespace zor
