#include <zor/widgets/form_loader.h>
#include <zor/widgets/zor_control.h>

#include <algorithm>

namespace zor {

QWidget* ZorUiLoader::createWidget(const QString& className, QWidget* parent, const QString& name)
{
    const std::string wanted = className.toStdString();
    const auto known = std::ranges::find(widgetClasses(), wanted, &WidgetClass::name);
    if (known == widgetClasses().end())
        return QUiLoader::createWidget(className, parent, name);
    ZorControl* widget = known->create(parent);
    widget->setObjectName(name);
    return widget;
}

} // namespace zor
