#include <zor/core/control.h>
#include <zor/designer/descriptions.h>
#include <zor/designer/headings.h>
#include <zor/widgets/zor_control.h>

#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace zor::designer {
namespace {

constexpr const char* kSorted = "_zor_sorted";

void sort(QDesignerPropertySheetExtension& sheet, const core::ClassInfo& info)
{
    for (const core::PropertyRow* row : info.properties) {
        const int index = sheet.indexOf(toQString(row->name));
        if (index >= 0)
            sheet.setPropertyGroup(index, toQString(headingOf(*row)));
    }
}

} // namespace

Headings::Headings(QExtensionManager& manager) : QObject(&manager), m_manager(manager) {}

QObject* Headings::extension(QObject* object, const QString& iid) const
{
    auto* widget = qobject_cast<ZorControl*>(object);
    if (widget == nullptr || m_isAsking)
        return nullptr;
    m_isAsking = true;
    QObject* sheet = m_manager.extension(object, iid);
    m_isAsking = false;
    if (sheet != nullptr && !sheet->property(kSorted).toBool()) {
        sheet->setProperty(kSorted, true);
        if (auto* properties = qobject_cast<QDesignerPropertySheetExtension*>(sheet))
            sort(*properties, widget->info());
    }
    return sheet;
}

} // namespace zor::designer
