#pragma once

/// A form without a screen.

#include <zor/platform/container.h>
#include <zor/platform/headless/widget_base.h>

#include <functional>

namespace zor::platform::headless {

class HeadlessMenu;

/// Holds the surfaces of the controls created in it; it must outlive them. Starts in design mode.
class HeadlessContainer final : public Container {
public:
    HeadlessContainer() = default;
    HeadlessContainer(const HeadlessContainer&) = delete;
    HeadlessContainer& operator=(const HeadlessContainer&) = delete;

    [[nodiscard]] bool userMode() const noexcept override { return m_userMode; }
    /// Runs the form, or goes back to designing.
    void setUserMode(bool userMode) noexcept { m_userMode = userMode; }

    void propertyChanged(Component& component, std::string_view name) override
    {
        if (onPropertyChanged)
            onPropertyChanged(component, name);
    }
    void showMessage(Component& component, const MessageBox& box) override
    {
        if (onMessage)
            onMessage(component, box);
    }
    [[nodiscard]] std::unique_ptr<Surface> createSurface(WidgetListener& listener, Twips width,
                                                         Twips height) override;

    /// Hears of every property change.
    std::function<void(Component&, std::string_view)> onPropertyChanged;
    /// Sees every message box; each is answered OK when it returns.
    std::function<void(Component&, const MessageBox&)> onMessage;

    /// The menu that is open; nullptr for none.
    [[nodiscard]] PopupMenu* openMenu() const noexcept;

    /// @name For the widgets of this container
    /// @{
    /// The widget that has the focus; nullptr for none.
    [[nodiscard]] Widget* focused() const noexcept { return m_focused; }
    void setFocused(Widget* widget) noexcept { m_focused = widget; }
    /// The widget ends.
    void forget(const Widget& widget) noexcept
    {
        if (m_focused == &widget)
            m_focused = nullptr;
    }
    /// What handlers throw at the operator's actions.
    [[nodiscard]] Failures& failures() noexcept { return m_failures; }
    /// A menu opened; nullptr: it closed.
    void setOpenMenu(HeadlessMenu* menu) noexcept { m_openMenu = menu; }
    /// @}

private:
    Widget* m_focused = nullptr;
    HeadlessMenu* m_openMenu = nullptr;
    Failures m_failures;
    bool m_userMode = false;
};

} // namespace zor::platform::headless
