#pragma once

/// Tables that are read line by line.

#include <QHeaderView>
#include <QStringList>
#include <QTableWidget>

namespace zor::monitor {

/// An empty table with these headings, the last of which takes what is left of the width. Whole lines are chosen,
/// none is edited, and Tab leads past it.
[[nodiscard]] inline QTableWidget* makeRowTable(const QStringList& headings, const QString& accessibleName,
                                                QWidget* parent)
{
    auto* table = new QTableWidget(0, static_cast<int>(headings.size()), parent);
    table->setHorizontalHeaderLabels(headings);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setAccessibleName(accessibleName);
    return table;
}

} // namespace zor::monitor
