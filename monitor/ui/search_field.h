#pragma once

/// The field in which the operator looks for a parameter.

#include <zor/monitor/session/search.h>

#include <QCoreApplication>
#include <QLineEdit>
#include <QStandardItemModel>

#include <functional>

namespace zor::monitor {

/// Lists what is found below the field while the operator types. Return takes the first, or the one that he has
/// gone to in the list.
class SearchField final : public QLineEdit {
    Q_DECLARE_TR_FUNCTIONS(SearchField)
public:
    SearchField();

    std::function<std::vector<Hit>(const QString& text)> find;
    /// With the parameter that has been chosen.
    std::function<void(std::size_t parameter)> onChosen;
    /// Return was pressed, and there is nothing to choose.
    std::function<void(const QString& text)> onNothing;
    void translate();

private:
    void list(const QString& text);
    void choose();

    QStandardItemModel* m_found;
};

} // namespace zor::monitor
