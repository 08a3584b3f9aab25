#pragma once

/// The monitor's window: a form of text boxes, polled from a device.

#include "controls/numeric/text_box/ctx_ZorTextBox.h"
#include "monitor/poller.h"
#include "platform/qt/container.h"

#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>

#include <array>
#include <memory>
#include <string>

namespace zor::monitor {

class Window : public QMainWindow {
public:
    Window(const QString& host, int port, int periodMilliseconds);
    ~Window() override;

    /// Takes the field being edited over, and writes every valid edit to the device. An edit ends when the
    /// device has been read back.
    void writeEdits();
    void undoAll();

    [[nodiscard]] ctx_ZorTextBox& box(std::size_t parameter) { return *m_boxes[parameter]; }
    [[nodiscard]] platform::qt::QtContainer& container() { return m_container; }
    /// Whether the device answered in the last round.
    [[nodiscard]] bool isHealthy() const { return m_healthy; }
    /// A line for each parameter: tag, text, unit, state.
    [[nodiscard]] std::string report();

private:
    void build();
    void addRow(QGridLayout& grid, std::size_t parameter, int row);
    void buildMenus();
    void hear(std::size_t parameter, const Reply& reply);
    void showValue(std::size_t parameter, const Variant& value);
    void writeEdit(std::size_t parameter);
    void say(const QString& text);

    QWidget* m_form;
    platform::qt::QtContainer m_container;
    std::array<core::ControlPtr<ctx_ZorTextBox>, kParameters.size()> m_boxes;
    /// What the device last answered; undo and the test for another user's change go by it.
    std::array<Variant, kParameters.size()> m_last;
    /// A value has been written and not yet read back: the next read ends the edit.
    std::array<bool, kParameters.size()> m_written{};
    QLabel* m_state;
    QString m_address;
    bool m_healthy = false;
    Link m_link;
    Poller m_poller;
};

} // namespace zor::monitor
