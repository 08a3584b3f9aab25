#pragma once

/// Where to save what can be saved in more than one format.

#include <QString>

#include <span>

class QWidget;

namespace zor::monitor {

/// A format to choose, and how the names of its files end.
struct FileKind {
    QString filter; ///< as QFileDialog takes it
    QString suffix; ///< without the dot
};

/// Asks for a file; the first kind is chosen to begin with, and `name` is offered without its ending. Empty where
/// the operator has thought better of it. The ending follows the chosen kind before he is asked whether a file
/// that is there may be overwritten: the one that he sees is the one that is written.
[[nodiscard]] QString askWhereToSave(QWidget* parent, const QString& title, const QString& name,
                                     std::span<const FileKind> kinds);

} // namespace zor::monitor
