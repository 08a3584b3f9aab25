// A list of check marks, entry by entry.

#include <zor/platform/qt/accessible_parts.h>

namespace zor::platform::qt {
namespace {

/// One entry, by its position: it is there as long as the list has so many.
class Entry final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    Entry(CheckList& list, int row) : m_list(&list), m_row(row) {}

    [[nodiscard]] bool isValid() const override { return m_list != nullptr && index().isValid(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return parent()->window(); }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_list.data());
    }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text text) const override
    {
        return text == QAccessible::Name && isValid() ? index().data().toString() : QString();
    }
    void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect place = m_list->visualRect(index());
        return {m_list->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool isCurrent = m_list->currentIndex() == index();
        state.checkable = true;
        state.checked = index().data(Qt::CheckStateRole).toInt() == Qt::Checked;
        state.focusable = true;
        state.focused = isCurrent && m_list->hasFocus();
        state.selectable = true;
        state.selected = isCurrent;
        state.disabled = !m_list->isEnabled();
        state.offscreen = !m_list->viewport()->rect().intersects(m_list->visualRect(index()));
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return isValid() && m_list->isEnabled() ? QStringList{toggleAction()} : QStringList();
    }
    void doAction(const QString& action) override
    {
        if (action != toggleAction() || !actionNames().contains(action))
            return;
        m_list->makeCurrent(index(), true);
        QKeyEvent mark(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
        QCoreApplication::sendEvent(m_list, &mark);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    [[nodiscard]] QModelIndex index() const { return m_list->model()->index(m_row, 0); }

    QPointer<CheckList> m_list;
    int m_row;
};

} // namespace

AccessibleList::~AccessibleList()
{
    for (const auto& [row, id] : m_entries)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessible::State AccessibleList::state() const
{
    QAccessible::State state = AccessiblePart::state();
    state.multiSelectable = true;
    return state;
}

int AccessibleList::childCount() const { return list().model()->rowCount(); }

QAccessibleInterface* AccessibleList::child(int row) const
{
    if (row < 0 || row >= childCount())
        return nullptr;
    const auto known = m_entries.find(row);
    if (known != m_entries.end())
        return QAccessible::accessibleInterface(known->second);
    auto* entry = new Entry(list(), row);
    m_entries[row] = QAccessible::registerAccessibleInterface(entry);
    return entry;
}

int AccessibleList::indexOfChild(const QAccessibleInterface* child) const
{
    const auto known = std::ranges::find_if(
        m_entries, [child](const auto& entry) { return QAccessible::accessibleInterface(entry.second) == child; });
    return known == m_entries.end() ? -1 : known->first;
}

QAccessibleInterface* AccessibleList::childAt(int x, int y) const
{
    return child(list().indexAt(list().viewport()->mapFromGlobal(QPoint(x, y))).row());
}

QAccessibleInterface* AccessibleList::focusChild() const
{
    return list().hasFocus() ? child(list().currentIndex().row()) : nullptr;
}

} // namespace zor::platform::qt
