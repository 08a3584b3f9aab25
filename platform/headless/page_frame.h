#pragma once

/// A property page's frame without a screen.

#include <zor/platform/headless/container.h>
#include <zor/platform/property_page.h>

namespace zor::platform::headless {

/// A window of its own: going there does not end the operator's work in a field of the form.
class HeadlessPageFrame final : public PageFrame {
public:
    void setPage(PropertyPage* /*page*/) override {}
    [[nodiscard]] std::unique_ptr<Surface> createSurface(WidgetListener& listener) override
    {
        return m_window.createSurface(listener, 0, 0);
    }
    [[nodiscard]] bool isChanged() const noexcept override { return m_changed; }
    void setChanged(bool changed) override { m_changed = changed; }

private:
    HeadlessContainer m_window;
    bool m_changed = false;
};

} // namespace zor::platform::headless
