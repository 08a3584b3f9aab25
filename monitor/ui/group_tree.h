#pragma once

/// The groups of a large form as a tree beside it.

#include <zor/monitor/data/parameter_file.h>

#include <QCoreApplication>
#include <QTabWidget>
#include <QTreeWidget>

#include <functional>
#include <span>
#include <string>

namespace zor::monitor {

/// Takes the place of a form's tabs: a group brings its page to the front, a parameter below it its control. The
/// parameters of a group are listed when it is first opened.
class GroupTree final : public QTreeWidget {
    Q_DECLARE_TR_FUNCTIONS(GroupTree)
public:
    /// The tabs must outlive the tree; their bar is hidden.
    explicit GroupTree(QTabWidget& tabs);

    /// The parameters of a page.
    std::function<std::span<const Parameter* const>(int page)> parametersOf;
    /// A parameter has been chosen.
    std::function<void(const Parameter& parameter)> onChosen;

    /// Takes over the texts and marks of the tabs; captions in `language`.
    void renew(const std::string& language);
    /// The mark of a page, as its tab would have it.
    void mark(int page);

private:
    void open(QTreeWidgetItem& group);
    void show(QTreeWidgetItem* item);
    void choose(QTreeWidgetItem* item);

    QTabWidget& m_tabs;
    std::string m_language = "en";
};

} // namespace zor::monitor
