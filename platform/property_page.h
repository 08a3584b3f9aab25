#pragma once

/// A property page of a form designer, and the frame that shows it.

#include <zor/platform/widgets.h>

#include <memory>
#include <string_view>

namespace zor::platform {

/// A page, as its frame sees it.
class PropertyPage {
public:
    /// What the frame calls the page.
    [[nodiscard]] virtual std::string_view caption() const noexcept = 0;
    /// Where its widgets stand; has the size that they need.
    [[nodiscard]] virtual Surface& surface() noexcept = 0;
    /// Writes what the page shows into what is selected. Raises what a write raises; the writes before it stay.
    virtual void apply() = 0;

protected:
    ~PropertyPage() = default;
};

/// A frame, as its page sees it: a place for the widgets, and the flag that says there is something to apply.
class PageFrame {
public:
    virtual ~PageFrame() = default;

    /// The page that Apply goes to, complete with its widgets; nullptr when it ends, which it does before its
    /// frame.
    virtual void setPage(PropertyPage* page) = 0;
    /// Creates the surface of the page, which sizes it itself. It must not outlive the frame.
    [[nodiscard]] virtual std::unique_ptr<Surface> createSurface(WidgetListener& listener) = 0;
    /// Whether the page shows something that has not been applied.
    [[nodiscard]] virtual bool isChanged() const noexcept = 0;
    virtual void setChanged(bool changed) = 0;
};

} // namespace zor::platform
