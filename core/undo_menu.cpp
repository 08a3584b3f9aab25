#include <zor/core/undo_menu.h>

#include <array>

namespace zor::core {
namespace {

constexpr std::array kItems{platform::MenuItem{kUndoEdit, "mnu_UndoEdit", "Undo Edit"}};

} // namespace

platform::PopupMenu& UndoMenu::menu()
{
    if (!m_menu)
        m_menu = m_surface.createMenu(kItems);
    return *m_menu;
}

void UndoMenu::offer(const platform::Widget& widget, platform::EventArgs mouse)
{
    const std::int16_t button = *std::get<std::int16_t*>(mouse[0]);
    if (button != platform::kRightButton)
        return;
    platform::Twips x = *std::get<float*>(mouse[2]);
    platform::Twips y = *std::get<float*>(mouse[3]);
    if (&widget != &m_surface) {
        x += widget.left();
        y += widget.top();
    }
    menu().popUp(x, y);
}

} // namespace zor::core
