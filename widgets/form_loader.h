#pragma once

/// Forms at run time.

#include <QUiLoader>

namespace zor {

/// A QUiLoader that also knows the widgets of the library, wherever Qt looks for plugins.
class ZorUiLoader : public QUiLoader {
    Q_OBJECT

public:
    explicit ZorUiLoader(QObject* parent = nullptr) : QUiLoader(parent) {}

    [[nodiscard]] QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;
};

} // namespace zor
