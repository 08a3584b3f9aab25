#pragma once

/// The host's form designer or run time, as a control sees it, and a control, as its container sees it.

#include <zor/platform/property_bag.h>
#include <zor/platform/widgets.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace zor::platform {

/// What the container tells a control. Either initialiseProperties or readProperties comes once, after creation.
class Component {
public:
    /// Gives a new control its initial values.
    virtual void initialiseProperties() = 0;
    /// Takes the stored properties; what the bag does not have gets its default. They are not written one by one:
    /// the host writes DeviceValue afterwards, once also where DataModified was stored as true. Entries of lists
    /// and names of bits are not stored.
    virtual void readProperties(const PropertyBag& bag) = 0;
    /// Stores the properties.
    virtual void writeProperties(PropertyBag& bag) = 0;
    /// The container has given the surface a new size.
    virtual void resized() = 0;

protected:
    ~Component() = default;
};

/// The picture of a message box.
enum class BoxIcon : std::uint8_t { Critical, Information, Exclamation };

/// A message box with one OK button. The texts are data from outside and shown as plain text.
struct MessageBox {
    /// How serious it is.
    BoxIcon icon = BoxIcon::Information;
    /// Title of the box.
    std::string_view title;
    /// The message, of several lines if need be.
    std::string_view text;
};

/// A form, as its controls see it. A platform implements it.
class Container {
public:
    /// True while the host runs, false while a form is being designed.
    [[nodiscard]] virtual bool userMode() const noexcept = 0;
    /// A property was written through its accessor, whether its value is another now or not; the rows say which
    /// are told of (core::Access::Silent ones are not).
    virtual void propertyChanged(Component& component, std::string_view name) = 0;
    /// What a write, a call or an action of the operator has set going is done, down to the last handler.
    virtual void settled(Component& /*component*/) noexcept {}
    /// Shows a message box; returns when it is closed.
    virtual void showMessage(Component& component, const MessageBox& box) = 0;
    /// Creates the surface of a control in the given size (twips). It does not outlive the container.
    [[nodiscard]] virtual std::unique_ptr<Surface> createSurface(WidgetListener& listener, Twips width,
                                                                 Twips height) = 0;

protected:
    ~Container() = default;
};

} // namespace zor::platform
