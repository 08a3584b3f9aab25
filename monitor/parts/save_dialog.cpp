#include <zor/monitor/parts/save_dialog.h>

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace zor::monitor {

QString askWhereToSave(QWidget* parent, const QString& title, const QString& name, std::span<const FileKind> kinds)
{
    QFileDialog dialog(parent, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QStringList filters;
    for (const FileKind& kind : kinds)
        filters.append(kind.filter);
    dialog.setNameFilters(filters);
    const auto follow = [&](const QString& filter) {
        const auto kind = std::ranges::find(kinds, filter, &FileKind::filter);
        if (kind == kinds.end())
            return;
        dialog.setDefaultSuffix(kind->suffix);
        const QStringList chosen = dialog.selectedFiles();
        if (chosen.isEmpty())
            return;
        const QFileInfo file(chosen.front());
        const auto ends = [&](const FileKind& other) { return file.suffix() == other.suffix; };
        if (std::ranges::any_of(kinds, ends))
            dialog.selectFile(file.completeBaseName() + '.' + kind->suffix);
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    dialog.setDefaultSuffix(kinds.front().suffix);
    dialog.selectFile(name + '.' + kinds.front().suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().front() : QString();
}

} // namespace zor::monitor
