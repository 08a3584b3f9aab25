#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // The tests are listed by running the program, also where there is no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
