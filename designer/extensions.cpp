#include "designer/extensions.h"

#include "designer/headings.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace zor::designer {

void addExtensions(QDesignerFormEditorInterface& core)
{
    QExtensionManager* manager = core.extensionManager();
    if (manager->findChild<Headings*>() != nullptr)
        return;
    manager->registerExtensions(new Headings(*manager), Q_TYPEID(QDesignerPropertySheetExtension));
}

} // namespace zor::designer
