#pragma once

#include <zor/platform/headless/container.h>

namespace zor::platform::headless {

/// At most one menu of a container is open: opening one closes the other.
class HeadlessMenu final : public PopupMenu {
public:
    HeadlessMenu(HeadlessContainer& container, Host& host, std::span<const MenuItem> items)
        : m_container(container), m_host(host), m_items(items)
    {}
    ~HeadlessMenu() override { close(); }
    HeadlessMenu(const HeadlessMenu&) = delete;
    HeadlessMenu& operator=(const HeadlessMenu&) = delete;

    [[nodiscard]] bool isOpen() const override { return m_container.openMenu() == this; }
    [[nodiscard]] std::span<const MenuItem> items() const override { return m_items; }
    void popUp(Twips /*x*/, Twips /*y*/) override { m_container.setOpenMenu(this); }
    void close() override
    {
        if (isOpen())
            m_container.setOpenMenu(nullptr);
    }
    [[nodiscard]] Host& host() const noexcept { return m_host; }

private:
    HeadlessContainer& m_container;
    Host& m_host;
    std::span<const MenuItem> m_items;
};

} // namespace zor::platform::headless
