#include <zor/core/control.h>
#include <zor/core/setting_order.h>
#include <zor/designer/control_entry.h>
#include <zor/designer/descriptions.h>
#include <zor/designer/extensions.h>

#include <QFile>
#include <QIcon>

#include <memory>

namespace zor::designer {
namespace {

/// "ZorTextBox" of "zor::ZorTextBox".
QString shortName(const WidgetClass& widgetClass) { return toQString(widgetClass.name).section("::", -1); }

/// Which of the control's texts a translator sees, and what each property means.
QString propertyRules(const core::ClassInfo& info)
{
    QString rules;
    for (const core::PropertyRow* row : info.properties) {
        rules += QString("<tooltip name=\"%1\">%2</tooltip>")
                     .arg(toQString(row->name), toQString(row->meaning).toHtmlEscaped());
        if (row->field.kind == core::ValueKind::Text)
            rules += QString("<stringpropertyspecification name=\"%1\" type=\"%2\"%3/>")
                         .arg(toQString(row->name), row->isIdentifier ? "singleline" : "multiline",
                              row->isIdentifier ? " notr=\"true\"" : "");
    }
    return rules;
}

} // namespace

QString ControlEntry::name() const { return toQString(m_class.name); }

QString ControlEntry::toolTip() const { return toQString(descriptionOf(m_class.controlClass).toolTip); }

QString ControlEntry::whatsThis() const
{
    const std::unique_ptr<ZorControl> sample(m_class.create(nullptr));
    return toQString(sample->info().meaning);
}

QIcon ControlEntry::icon() const
{
    const QString own = QString(":/zor/designer/%1.svg").arg(shortName(m_class));
    const QIcon drawing(QFile::exists(own) ? own : QStringLiteral(":/zor/designer/ZorControl.svg"));
    // The widget box takes only icons that name their sizes, which a drawing cannot.
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 44, 48, 64})
        icon.addPixmap(drawing.pixmap(size, size));
    return icon;
}

QString ControlEntry::domXml() const
{
    const std::unique_ptr<ZorControl> sample(m_class.create(nullptr));
    QString objectName = shortName(m_class);
    objectName[0] = objectName[0].toLower();
    return QString("<ui language=\"c++\" displayname=\"%1\"><widget class=\"%2\" name=\"%3\">"
                   "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%4</width><height>%5</height></rect>"
                   "</property></widget><customwidgets><customwidget><class>%2</class><extends>QWidget</extends>"
                   "<header>%6</header><propertyspecifications>%7</propertyspecifications></customwidget>"
                   "</customwidgets></ui>")
        .arg(toQString(descriptionOf(m_class.controlClass).title), name(), objectName)
        .arg(sample->sizeHint().width())
        .arg(sample->sizeHint().height())
        .arg(includeFile(), propertyRules(sample->info()));
}

QWidget* ControlEntry::createWidget(QWidget* parent)
{
    ZorControl* widget = m_class.create(parent);
    widget->setUserMode(!m_inDesigner);
    return widget;
}

void ControlEntry::initialize(QDesignerFormEditorInterface* core)
{
    if (!m_inDesigner)
        addExtensions(*core);
    m_inDesigner = true;
}

} // namespace zor::designer
