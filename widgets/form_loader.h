#pragma once

/// Forms at run time.

#include <QUiLoader>

namespace zor {

/// A QUiLoader that also knows the widgets of the library, wherever Qt looks for plugins. availableWidgets(),
/// which is Qt's and not virtual, names what plugins offer and not these; widgetClasses() does. A value in a form
/// that a control refuses is left out without a note: `zorsh` and forms::Form tell of it when they open the form.
class ZorUiLoader : public QUiLoader {
    Q_OBJECT

public:
    /// A loader that knows the widgets of the library.
    explicit ZorUiLoader(QObject* parent = nullptr) : QUiLoader(parent) {}

    /// A widget of the library, or what QUiLoader makes of the class.
    [[nodiscard]] QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;
};

} // namespace zor
