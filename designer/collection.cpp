#include <zor/designer/collection.h>
#include <zor/designer/control_entry.h>

namespace zor::designer {

Collection::Collection()
{
    for (const WidgetClass& widgetClass : widgetClasses())
        m_entries.push_back(std::make_unique<ControlEntry>(widgetClass));
}

Collection::~Collection() = default;

QList<QDesignerCustomWidgetInterface*> Collection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> widgets;
    for (const auto& entry : m_entries)
        widgets << entry.get();
    return widgets;
}

} // namespace zor::designer
