#include <zor/monitor/ui/group_tree.h>
#include <zor/platform/qt/looks.h>

#include <QTabBar>

namespace zor::monitor {

GroupTree::GroupTree(QTabWidget& tabs) : m_tabs(tabs)
{
    m_tabs.tabBar()->hide();
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { open(*item); });
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { show(item); });
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) { choose(item); });
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { choose(item); });
    connect(&m_tabs, &QTabWidget::currentChanged, this, [this](int page) {
        QTreeWidgetItem* item = currentItem();
        if (item != nullptr && item->parent() != nullptr)
            item = item->parent();
        if (item != topLevelItem(page))
            setCurrentItem(topLevelItem(page));
    });
}

void GroupTree::renew(const std::string& language)
{
    m_language = language;
    setAccessibleName(tr("Groups"));
    for (int page = 0; page < m_tabs.count(); ++page) {
        QTreeWidgetItem* group = topLevelItem(page);
        if (group == nullptr) {
            group = new QTreeWidgetItem(this);
            group->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        }
        group->setText(0, m_tabs.tabText(page).replace("&&", "&"));
        const bool wasOpen = group->isExpanded();
        qDeleteAll(group->takeChildren());
        if (wasOpen)
            open(*group);
        mark(page);
    }
    if (currentItem() == nullptr)
        setCurrentItem(topLevelItem(m_tabs.currentIndex()));
}

void GroupTree::mark(int page)
{
    QTreeWidgetItem* group = topLevelItem(page);
    if (group == nullptr)
        return;
    group->setIcon(0, m_tabs.tabIcon(page));
    group->setToolTip(0, m_tabs.tabToolTip(page));
}

void GroupTree::open(QTreeWidgetItem& group)
{
    if (group.childCount() > 0)
        return;
    for (const Parameter* parameter : parametersOf(indexOfTopLevelItem(&group))) {
        auto* item = new QTreeWidgetItem(&group, {QString::fromStdString(parameter->captionIn(m_language))});
        item->setToolTip(0, platform::qt::plainToolTip(parameter->tag));
    }
}

void GroupTree::show(QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    m_tabs.setCurrentIndex(indexOfTopLevelItem(item->parent() != nullptr ? item->parent() : item));
}

void GroupTree::choose(QTreeWidgetItem* item)
{
    QTreeWidgetItem* group = item->parent();
    if (group == nullptr)
        return;
    const auto row = static_cast<std::size_t>(group->indexOfChild(item));
    onChosen(*parametersOf(indexOfTopLevelItem(group))[row]);
}

} // namespace zor::monitor
