// The same form, loaded while the program runs.

#include <zor/widgets.h>
#include <zor/widgets/form_loader.h>

#include <QApplication>
#include <QFile>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QFile file(argc > 1 ? argv[1] : "tank.ui");
    QWidget* window = file.open(QIODevice::ReadOnly) ? zor::ZorUiLoader().load(&file) : nullptr;
    if (window == nullptr)
        return 1;
    window->findChild<zor::ZorTextBox*>("level")->setDeviceValue(12345);
    window->show();
    return QApplication::exec();
}
