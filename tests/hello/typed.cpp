// The README's program, with somebody who does what the README says.

#include <zor/examples/hello/main.cpp>

#include <QLineEdit>
#include <QTest>
#include <QTimer>

static void sitDown()
{
    auto* eyes = new QTimer(qApp);
    QObject::connect(eyes, &QTimer::timeout, [] {
        if (QApplication::activeWindow() == nullptr)
            return;
        auto* field = QApplication::activeWindow()->findChild<QLineEdit*>();
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClicks(field, "1.5");
        QTest::keyClick(field, Qt::Key_Tab);
        QApplication::quit();
    });
    eyes->start(10);
}
Q_COREAPP_STARTUP_FUNCTION(sitDown)
