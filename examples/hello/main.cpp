#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/qt/container.h>

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget form;
    zor::platform::qt::QtContainer container(form, zor::core::pictureData);
    const auto level = zor::ctx_ZorTextBox::create(container);
    level->initialiseProperties();
    container.setUserMode(true);
    level->OutputUnit(zor::LgthU_Mtr);  // what the operator reads and types
    level->DefaultUnit(zor::LgthU_Mtr); // the unit of the limits
    level->MaxValue(20);
    level->DeviceValue(12345); // what the device sent, in tenths of a millimetre
    form.show();
    return QApplication::exec();
}
