#pragma once

/// The devices of the window, and how each stands.

#include <zor/monitor/ui/device_panel.h>

#include <QDockWidget>
#include <QTreeWidget>

#include <memory>
#include <span>

namespace zor::monitor {

class DeviceList final : public QDockWidget {
    Q_DECLARE_TR_FUNCTIONS(DeviceList)
public:
    DeviceList();

    /// With the place of a device that the operator has chosen.
    std::function<void(std::size_t index)> onChosen;

    /// Lists the devices; the list speaks the language in force.
    void list(std::span<const std::unique_ptr<DevicePanel>> panels, const DevicePanel& front);
    /// Shows how a device stands now.
    void renew(std::size_t index, const DevicePanel& panel);
    void choose(std::size_t index);

private:
    QTreeWidget* m_tree;
};

} // namespace zor::monitor
