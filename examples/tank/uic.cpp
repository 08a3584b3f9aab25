// A form drawn in Qt Designer, compiled into the program by uic.

#include "ui_tank.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    Ui::Tank tank;
    tank.setupUi(&window);
    tank.level->setDeviceValue(12345); // tenths of a millimetre
    window.show();
    return QApplication::exec();
}
