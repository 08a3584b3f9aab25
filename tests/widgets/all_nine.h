#pragma once

#include <zor/core/control.h>
#include <zor/platform/qt/container.h>
#include <zor/widgets.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <vector>

namespace zor::tests {

/// A form of all nine between two fields of Qt's.
struct AllNine : testing::Test {
    AllNine()
    {
        layout.addWidget(first);
        for (const WidgetClass& widgetClass : widgetClasses()) {
            controls.push_back(widgetClass.create(nullptr));
            controls.back()->setObjectName(QString::fromStdString(std::string(widgetClass.name)));
            layout.addWidget(controls.back());
        }
        layout.addWidget(last);
        form.show();
        QApplication::setActiveWindow(&form);
    }
    /// Whom Tab or Shift+Tab leads to, until it leads to the other end; a trap ends the list.
    QList<QWidget*> walk(bool isForward)
    {
        (isForward ? first : last)->setFocus();
        QList<QWidget*> seen;
        for (;;) {
            QTest::keyClick(QApplication::focusWidget(), isForward ? Qt::Key_Tab : Qt::Key_Backtab);
            QWidget* now = QApplication::focusWidget();
            if (now == (isForward ? last : first) || seen.contains(now))
                return seen;
            seen << now;
        }
    }
    /// Everything that can take the focus from the keyboard: parts of the nine, in the order of the form.
    QList<QWidget*> reachable()
    {
        QList<QWidget*> parts;
        for (ZorControl* control : controls) {
            for (const core::WidgetRow& row : control->info().widgets) {
                const platform::Widget* part = control->control().widget(row.widget);
                QWidget& widget = platform::qt::widgetOf(*part);
                if ((widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isVisible() && widget.isEnabled())
                    parts << &widget;
            }
        }
        return parts;
    }

    QWidget form;
    QVBoxLayout layout{&form};
    QLineEdit* first = new QLineEdit;
    QLineEdit* last = new QLineEdit;
    std::vector<ZorControl*> controls;
};

} // namespace zor::tests
