#pragma once

/// What can be done with a control by a right click or the menu key, beside what the control offers itself.

#include <zor/monitor/session/binding.h>

#include <QObject>

#include <functional>
#include <span>
#include <vector>

class QMenu;
class QWidget;

namespace zor::monitor {

/// Takes the place of the menu of a control that holds no edit; one that does shows its own. A text field's own
/// entries (copy, paste ...) stand first. Of a form that is made later the controls are found as well.
class ControlMenu final : public QObject {
public:
    using Fill = std::function<void(QMenu& menu, Binding& binding)>;

    explicit ControlMenu(QWidget& window);

    /// The controls that have a menu.
    std::function<std::span<const std::unique_ptr<Binding>>()> bindings;
    /// Somebody clicks on a choice that cannot be made now, or presses Space on it: what looks like any other says
    /// nothing itself.
    std::function<void()> onLocked;
    /// Adds entries to the menu of a control.
    void add(Fill fill) { m_fills.push_back(std::move(fill)); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] bool triesLocked(QWidget& widget, const QEvent& event) const;
    [[nodiscard]] Binding* bindingAt(const QWidget& widget) const;

    QWidget& m_window;
    std::vector<Fill> m_fills;
};

} // namespace zor::monitor
