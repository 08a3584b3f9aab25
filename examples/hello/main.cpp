#include <zor/controls.h>
#include <zor/qt.h>

#include <QApplication>
#include <QPushButton>
#include <QWidget>

#include <iostream>

/// Hears what the operator hands over, and would write it to the device.
class Host final : public zor::__ctx_ZorTextBox {
public:
    explicit Host(zor::ctx_ZorTextBox& level) : m_commits(level) {}
    void OutputValueChange() override
    {
        // It also comes with every value of the device's, and when somebody only passes through the field.
        if (const auto value = m_commits.take())
            std::cout << "OutputValue " << value->toText() << std::endl;
    }

private:
    zor::core::CommitFilter m_commits;
};

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
    level->MaxValue(20);                // without limits a fresh field admits nothing but 0
    level->DeviceValue(12345);          // what the device sent, in tenths of a millimetre
    Host host(*level);
    level->subscribe(host);
    QPushButton next("Next", &form); // somewhere to go on to
    next.move(0, 40);
    form.show();
    const int status = QApplication::exec();
    level->unsubscribe(host);
    return status;
}
