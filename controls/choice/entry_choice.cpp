#include <zor/controls/choice/entry_choice.h>

namespace zor::controls {

void layOutListWidth(platform::Twips controlWidth, platform::Widget& list, platform::Widget& icon)
{
    constexpr platform::Twips kGap = 100;
    platform::Rect place = list.geometry();
    place.width = std::max(controlWidth - kListRoom, kSmallestList);
    list.setGeometry(place);
    icon.setGeometry({place.left + place.width + kGap, icon.top(), icon.width(), icon.height()});
}

} // namespace zor::controls
