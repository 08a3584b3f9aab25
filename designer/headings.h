#pragma once

/// The headings of the property editor.

#include <QObject>
#include <QtDesigner/QAbstractExtensionFactory>

class QExtensionManager;

namespace zor::designer {

/// Sorts a control's properties under headings when Designer first asks for them. Makes nothing of its own: the
/// property sheet is Designer's.
class Headings : public QObject, public QAbstractExtensionFactory {
    Q_OBJECT
    Q_INTERFACES(QAbstractExtensionFactory)

public:
    explicit Headings(QExtensionManager& manager);

    [[nodiscard]] QObject* extension(QObject* object, const QString& iid) const override;

private:
    QExtensionManager& m_manager;
    mutable bool m_isAsking = false;
};

} // namespace zor::designer
