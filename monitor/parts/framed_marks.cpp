#include <zor/monitor/parts/framed_marks.h>
#include <zor/platform/qt/looks.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QScrollBar>

namespace zor::monitor {

FramedMarks::FramedMarks(QWidget& widget) : QObject(&widget), m_widget(widget)
{
    widget.installEventFilter(this);
    apply();
}

bool FramedMarks::eventFilter(QObject* widget, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !m_isApplying)
        apply();
    return QObject::eventFilter(widget, event);
}

void FramedMarks::apply()
{
    const QPalette theme = QApplication::palette();
    QPalette framed;
    framed.setColor(QPalette::Window, platform::qt::frameSource(theme.color(QPalette::Active, QPalette::Text),
                                                                theme.color(QPalette::Active, QPalette::Base)));
    m_isApplying = true;
    m_widget.setPalette(framed);
    m_isApplying = false;
    // Its bars are the theme's.
    QPalette plain;
    plain.setColor(QPalette::Window, theme.color(QPalette::Active, QPalette::Window));
    if (auto* view = qobject_cast<QAbstractItemView*>(&m_widget)) {
        for (QScrollBar* bar : {view->verticalScrollBar(), view->horizontalScrollBar()})
            bar->setPalette(plain);
    }
}

} // namespace zor::monitor
