#pragma once

/// The menu behind the right mouse button of the editing controls: one item, "Undo Edit".

#include <zor/platform/widgets.h>

#include <memory>

namespace zor::core {

/// The number under which the item reports.
inline constexpr int kUndoEdit = 100;

class UndoMenu {
public:
    explicit UndoMenu(platform::Surface& surface);

    [[nodiscard]] platform::PopupMenu& menu() noexcept { return *m_menu; }

    /// Opens the menu when the right button was released; `x` and `y` are relative to `widget`, a widget of
    /// the surface or the surface itself.
    void offer(platform::Surface& surface, const platform::Widget& widget, platform::EventArgs mouse);

private:
    std::unique_ptr<platform::PopupMenu> m_menu;
};

} // namespace zor::core
