#pragma once

/// A form of real Qt widgets.

#include <zor/platform/container.h>
#include <zor/platform/depth.h>
#include <zor/platform/qt/looks.h>

#include <QPointer>

#include <cstddef>
#include <exception>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

class QEvent;
class QWidget;

namespace zor::platform::qt {

/// Holds the surfaces of the controls created in it as children of `parent`; it must outlive them, and the
/// parent must outlive it. Starts in design mode. A QApplication must exist.
class QtContainer final : public Container {
public:
    /// `pictures`: the SVG texts of the image list, picture 1 first; they must outlive the container.
    QtContainer(QWidget& parent, std::span<const std::string_view> pictures);
    ~QtContainer();
    QtContainer(const QtContainer&) = delete;
    QtContainer& operator=(const QtContainer&) = delete;

    [[nodiscard]] bool userMode() const noexcept override { return m_userMode; }
    /// Runs the form, or goes back to designing.
    void setUserMode(bool userMode) noexcept { m_userMode = userMode; }
    void propertyChanged(Component& component, std::string_view name) override
    {
        if (onPropertyChanged)
            onPropertyChanged(component, name);
    }
    void settled(Component& component) noexcept override
    {
        if (onSettled)
            onSettled(component);
    }
    /// Shows a real message box, unless onMessage is set.
    void showMessage(Component& component, const MessageBox& box) override;
    [[nodiscard]] std::unique_ptr<Surface> createSurface(WidgetListener& listener, Twips width,
                                                         Twips height) override;

    /// Follows the parent's font: its line height decides how large the controls are drawn. Says whether they are
    /// drawn in another size now; then each widget must be placed anew.
    bool followFont();

    /// Hears of every property change.
    std::function<void(Component&, std::string_view)> onPropertyChanged;
    /// Hears when all that one action has changed stands. Must not throw.
    std::function<void(Component&)> onSettled;
    /// Takes the place of the real message boxes.
    std::function<void(Component&, const MessageBox&)> onMessage;
    /// Hears, before the part itself, that the form enables, disables, shows or hides a control's part, or takes
    /// the focus from it.
    std::function<void(QWidget& part, const QEvent&)> onFormChanges;
    /// Receives what an event handler of the host threw; without it, it is logged.
    std::function<void(std::exception_ptr)> onError;

    /// The menu that is open; nullptr for none.
    [[nodiscard]] PopupMenu* openMenu() const noexcept { return m_openMenu; }

    /// @name For the widgets of this container
    /// @{
    /// Parent of the surfaces.
    [[nodiscard]] QWidget& parent() const noexcept { return m_parent; }
    /// Twips and pixels of the form.
    [[nodiscard]] const Scale& scale() const noexcept { return m_scale; }
    /// The SVG text of a picture; empty for another number.
    [[nodiscard]] std::string_view picture(int index) const noexcept;
    /// A menu opened; nullptr: it closed.
    void setOpenMenu(PopupMenu* menu) noexcept { m_openMenu = menu; }
    /// Passes on what a handler threw.
    void failed(const std::exception_ptr& error);
    /// Takes a Qt widget away; inside an event it is deleted when that has ended, whatever event loops run in it.
    void discard(QWidget& widget);
    /// Deletes what was taken away inside the event that has just ended.
    void sweep() noexcept
    {
        if (!m_discarded.empty() && events.isNone())
            deleteDiscarded();
    }
    /// Counts the events under way.
    Depth events;
    /// @}

private:
    void deleteDiscarded() noexcept;

    QWidget& m_parent;
    std::vector<QPointer<QWidget>> m_discarded;
    std::span<const std::string_view> m_pictures;
    PopupMenu* m_openMenu = nullptr;
    Scale m_scale;
    bool m_userMode = false;
};

/// What the operator needs of an open menu.
class MenuHands {
public:
    /// Chooses an item as a key on the open menu would.
    virtual void trigger(std::size_t item) = 0;

protected:
    ~MenuHands() = default;
};

/// The Qt widget under a widget or a surface.
[[nodiscard]] QWidget& widgetOf(const Widget& widget);

/// Places a widget where its twips are now, after its container has followed a font.
void placeAnew(Widget& widget);

} // namespace zor::platform::qt
