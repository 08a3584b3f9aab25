#include <zor/monitor/ui/no_value_veil.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/widgets.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace zor::monitor {
namespace {

// By name: without a meta-object of its own a veil is found as any widget.
const QString kVeilName = QStringLiteral("noValueVeil");

constexpr int kStrength = 80; ///< of the hatching, of 255: the control stays recognisable
constexpr int kMargin = 4;    ///< around the words

} // namespace

bool isNeverEmpty(core::Control& control)
{
    const QWidget& surface = platform::qt::widgetOf(control.surface());
    return control.info().name != "ctx_ZorLabel" && surface.findChild<QLineEdit*>() == nullptr &&
           surface.findChild<QComboBox*>() == nullptr;
}

bool isEdited(core::Control& control)
{
    const core::PropertyRow* modified = control.info().property("DataModified");
    return modified != nullptr && control.get(*modified).toBoolean();
}

QWidget* NoValueVeil::faceOf(core::Control& control)
{
    if (control.info().property("EnumEntryValue") != nullptr)
        return nullptr;
    for (const core::WidgetRow& row : control.info().widgets) {
        platform::Widget* widget = control.widget(row.widget);
        if (dynamic_cast<platform::Track*>(widget) != nullptr ||
            dynamic_cast<platform::ListBox*>(widget) != nullptr ||
            dynamic_cast<platform::ToggleButton*>(widget) != nullptr)
            return &platform::qt::widgetOf(*widget);
    }
    return nullptr;
}

void NoValueVeil::put(QWidget& face, bool veiled)
{
    const auto* veil = face.findChild<QWidget*>(kVeilName, Qt::FindDirectChildrenOnly);
    if (!veiled)
        delete veil;
    else if (veil == nullptr)
        new NoValueVeil(face);
}

NoValueVeil::NoValueVeil(QWidget& face) : QWidget(&face)
{
    setObjectName(kVeilName);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("no value"));
    setFont(QApplication::font());
    face.installEventFilter(this);
    setGeometry(face.rect());
    show();
}

bool NoValueVeil::eventFilter(QObject* face, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(static_cast<QWidget*>(face)->rect());
    return QWidget::eventFilter(face, event);
}

void NoValueVeil::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    // The colours of the program: those of a control tell its state.
    const QPalette colours = QApplication::palette();
    QColor line = colours.color(QPalette::WindowText);
    line.setAlpha(kStrength);
    painter.fillRect(rect(), QBrush(line, Qt::BDiagPattern));
    const QString words = tr("no value");
    QRect place = fontMetrics().boundingRect(words).adjusted(-kMargin, 0, kMargin, 0);
    place.moveCenter(rect().center());
    if (qobject_cast<QAbstractButton*>(parent()) != nullptr || !rect().contains(place))
        return;
    painter.fillRect(place, colours.window());
    painter.setPen(colours.color(QPalette::WindowText));
    painter.drawText(place, Qt::AlignCenter, words);
}

} // namespace zor::monitor
