#pragma once

/// Forms at run time.

#include <QUiLoader>

namespace zor {

/// A QUiLoader that also knows the widgets of the library, wherever Qt looks for plugins.
class ZorUiLoader : public QUiLoader {
    Q_OBJECT

public:
    /// A loader that knows the widgets of the library.
    explicit ZorUiLoader(QObject* parent = nullptr) : QUiLoader(parent) {}

    /// A widget of the library, or what QUiLoader makes of the class.
    [[nodiscard]] QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;
};

} // namespace zor
