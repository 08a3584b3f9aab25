#include <zor/designer/device_menu.h>
#include <zor/designer/extensions.h>
#include <zor/designer/headings.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>

namespace zor::designer {

void addExtensions(QDesignerFormEditorInterface& core)
{
    QExtensionManager* manager = core.extensionManager();
    if (manager->findChild<Headings*>() != nullptr)
        return;
    manager->registerExtensions(new Headings(*manager), Q_TYPEID(QDesignerPropertySheetExtension));
    manager->registerExtensions(new DeviceMenuFactory(manager), Q_TYPEID(QDesignerTaskMenuExtension));
}

} // namespace zor::designer
