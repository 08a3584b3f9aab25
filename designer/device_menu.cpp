#include <zor/core/control.h>
#include <zor/designer/device_menu.h>
#include <zor/pages/page.h>
#include <zor/pages/registration.h>
#include <zor/platform/qt/page_dialog.h>
#include <zor/widgets/conversion.h>
#include <zor/widgets/zor_control.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace zor::designer {
namespace {

struct Write {
    std::string property;
    Variant value;
};

const pages::PageInfo* pageFor(const ZorControl& widget)
{
    static const pages::PageRegistry registry = [] {
        pages::PageRegistry all;
        registerPages(all);
        return all;
    }();
    return registry.forControl(widget.info().name);
}

/// A text as Designer keeps one that no translator sees. Only Designer can make such a value, which it does when
/// it reads a form.
QVariant untranslated(QDesignerFormEditorInterface& core, const QString& text)
{
    const std::unique_ptr<QDesignerFormWindowInterface> form(core.formWindowManager()->createFormWindow());
    form->setContents(QString("<ui version=\"4.0\"><class>F</class><widget class=\"QLabel\" name=\"F\"><property "
                              "name=\"text\"><string notr=\"true\">%1</string></property></widget></ui>")
                          .arg(text.toHtmlEscaped()));
    const auto* sheet =
        qt_extension<QDesignerPropertySheetExtension*>(core.extensionManager(), form->mainContainer());
    return sheet == nullptr ? QVariant(text) : sheet->property(sheet->indexOf("text"));
}

/// Writes through Designer, so that the form knows of the change and can take it back. What a property has
/// already is left alone: Designer would store it from then on. Not so a unit: the one of a new control is shown
/// by none until it is written.
void record(QDesignerFormWindowInterface& form, ZorControl& widget, const std::vector<Write>& writes)
{
    form.beginCommand(DeviceMenu::tr("Device settings of %1").arg(widget.objectName()));
    for (const auto& [property, value] : writes) {
        const core::PropertyRow* row = widget.info().property(property);
        const bool isUnit = row != nullptr && row->field.kind == core::ValueKind::MeasType;
        if (!isUnit && widget.control().property(property) == value)
            continue;
        const bool isIdentifier = row != nullptr && row->isIdentifier && value.isText();
        form.cursor()->setWidgetProperty(&widget, QString::fromStdString(property),
                                         isIdentifier
                                             ? untranslated(*form.core(), QString::fromStdString(value.text()))
                                             : widgets::toQVariant(value));
    }
    form.endCommand();
}

} // namespace

DeviceMenu::DeviceMenu(ZorControl& widget, const pages::PageInfo& page, QObject* parent)
    : QObject(parent), m_widget(widget), m_page(page), m_action(new QAction(tr("Device..."), this))
{
    connect(m_action, &QAction::triggered, this, [this] { open(); });
}

QAction* DeviceMenu::preferredEditAction() const { return m_action; }

QList<QAction*> DeviceMenu::taskActions() const { return {m_action}; }

void DeviceMenu::open()
{
    auto* form = QDesignerFormWindowInterface::findFormWindow(&m_widget);
    if (form == nullptr)
        return;
    platform::qt::PageDialog dialog(form->window());
    pages::Page page(m_page, dialog);
    std::vector<Write> writes;
    page.onWrite = [&](core::Control&, std::string_view property, const Variant& value) {
        writes.push_back({std::string(property), value});
    };
    page.onApplied = [&](core::Control&) { record(*form, m_widget, std::exchange(writes, {})); };
    page.select(std::array{&m_widget.control()});
    dialog.exec();
}

QObject* DeviceMenuFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const
{
    auto* widget = qobject_cast<ZorControl*>(object);
    if (widget == nullptr || iid != Q_TYPEID(QDesignerTaskMenuExtension))
        return nullptr;
    const pages::PageInfo* page = pageFor(*widget);
    return page == nullptr ? nullptr : new DeviceMenu(*widget, *page, parent);
}

} // namespace zor::designer
