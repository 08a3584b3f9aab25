#include <zor/core/undo_menu.h>

#include <array>

namespace zor::core {
namespace {

constexpr std::array kItems{platform::MenuItem{kUndoEdit, "mnu_UndoEdit", "Undo Edit"}};

} // namespace

UndoMenu::UndoMenu(platform::Surface& surface) : m_menu(surface.createMenu(kItems)) {}

void UndoMenu::offer(platform::Surface& surface, const platform::Widget& widget, platform::EventArgs mouse)
{
    const std::int16_t button = *std::get<std::int16_t*>(mouse[0]);
    if (button != platform::kRightButton)
        return;
    platform::Twips x = *std::get<float*>(mouse[2]);
    platform::Twips y = *std::get<float*>(mouse[3]);
    if (&widget != &surface) {
        x += widget.left();
        y += widget.top();
    }
    m_menu->popUp(x, y);
}

} // namespace zor::core
