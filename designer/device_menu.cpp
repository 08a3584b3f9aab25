#include <zor/core/control.h>
#include <zor/designer/device_menu.h>
#include <zor/pages/page.h>
#include <zor/pages/registration.h>
#include <zor/platform/qt/page_dialog.h>
#include <zor/widgets/conversion.h>
#include <zor/widgets/zor_control.h>

#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>

#include <array>
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

/// Writes through Designer, so that the form knows of the change and can take it back. What a property has
/// already is left alone: Designer would store it from then on.
void record(QDesignerFormWindowInterface& form, ZorControl& widget, const std::vector<Write>& writes)
{
    form.beginCommand(DeviceMenu::tr("Device settings of %1").arg(widget.objectName()));
    for (const auto& [property, value] : writes) {
        if (!(widget.control().property(property) == value))
            form.cursor()->setWidgetProperty(&widget, QString::fromStdString(property),
                                             widgets::toQVariant(value));
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
