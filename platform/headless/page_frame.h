#pragma once

/// A property page's frame without a screen.

#include "platform/headless/container.h"
#include "platform/property_page.h"

namespace zor::platform::headless {

/// Puts the page among the widgets of a container, which must outlive the frame.
class HeadlessPageFrame final : public PageFrame {
public:
    explicit HeadlessPageFrame(HeadlessContainer& container) noexcept : m_container(container) {}

    void setPage(PropertyPage* /*page*/) override {}
    [[nodiscard]] std::unique_ptr<Surface> createSurface(WidgetListener& listener) override
    {
        return m_container.createSurface(listener, 0, 0);
    }
    [[nodiscard]] bool isChanged() const noexcept override { return m_changed; }
    void setChanged(bool changed) override { m_changed = changed; }

private:
    HeadlessContainer& m_container;
    bool m_changed = false;
};

} // namespace zor::platform::headless
