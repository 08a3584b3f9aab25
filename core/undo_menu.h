#pragma once

/// The menu behind the right mouse button of the editing controls: one item, "Undo Edit".

#include <zor/platform/widgets.h>

#include <memory>

namespace zor::core {

/// The number under which the item reports.
inline constexpr int kUndoEdit = 100;

class UndoMenu {
public:
    explicit UndoMenu(platform::Surface& surface) noexcept : m_surface(surface) {}

    /// Made when somebody asks: most controls are never right-clicked.
    [[nodiscard]] platform::PopupMenu& menu();

    /// Opens the menu when the right button was released; `x` and `y` are relative to `widget`, a widget of
    /// the surface or the surface itself.
    void offer(const platform::Widget& widget, platform::EventArgs mouse);

private:
    platform::Surface& m_surface;
    std::unique_ptr<platform::PopupMenu> m_menu;
};

} // namespace zor::core
