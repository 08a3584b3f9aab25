#pragma once

/// "Device..." in a control's context menu: its property page.

#include <QAction>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

namespace zor {
class ZorControl;
namespace pages {
struct PageInfo;
} // namespace pages
} // namespace zor

namespace zor::designer {

class DeviceMenu : public QObject, public QDesignerTaskMenuExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    DeviceMenu(ZorControl& widget, const pages::PageInfo& page, QObject* parent);

    /// What a double click on the control does.
    [[nodiscard]] QAction* preferredEditAction() const override;
    [[nodiscard]] QList<QAction*> taskActions() const override;

private:
    /// Shows the page. Each Apply is one step of the form's undo stack.
    void open();

    ZorControl& m_widget;
    const pages::PageInfo& m_page;
    QAction* m_action;
};

class DeviceMenuFactory : public QExtensionFactory {
    Q_OBJECT

public:
    using QExtensionFactory::QExtensionFactory;

protected:
    [[nodiscard]] QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;
};

} // namespace zor::designer
