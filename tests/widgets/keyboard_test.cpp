// A form of all nine, worked with the keyboard, in every state that a control can be in.

#include <zor/tests/widgets/all_nine.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QTest>

namespace zor {
namespace {

using tests::AllNine;

TEST_F(AllNine, TabLeadsThroughEveryStateAndShiftTabTheSameWayBack)
{
    const struct {
        const char* property;
        bool value;
        int stops; ///< nine faces but the label's, and the icons
    } states[]{{"IconEnable", true, 8},
               {"CFail", true, 16},
               {"DataNotAvailable", true, 16},
               {"DeviceTagNotFound", true, 9},
               {"DataChanged", true, 15},
               {"DataModified", true, 8},
               {"ReadOnly", true, 8},
               {"WaitingForData", true, 0},
               {"EnableControl", false, 0},
               {"DeviceTypeNotSupported", true, 0},
               {"DeviceVerNotSupported", true, 0}};
    for (const auto& [property, value, stops] : states) {
        for (ZorControl* control : controls)
            control->setProperty(property, value);
        QList<QWidget*> there = walk(true);
        EXPECT_EQ(there.size(), stops) << property;
        EXPECT_EQ(there, reachable()) << property;
        std::reverse(there.begin(), there.end());
        EXPECT_EQ(walk(false), there) << property;
        for (ZorControl* control : controls)
            control->setProperty(property, !value || QByteArrayView(property) == "IconEnable");
    }
}

TEST_F(AllNine, TheMenuKeyOffersTheUndo)
{
    form.findChild<ZorComboBox*>()->AddEnumEntry("first", 0);
    form.findChild<ZorComboBox*>()->AddEnumEntry("other", 101);
    form.findChild<ZorListBox*>()->AddBitFieldEntry("bit", 0);
    for (ZorControl* widget : controls) {
        platform::PopupMenu* menu = widget->control().menu();
        if (menu == nullptr)
            continue;
        widget->setProperty("DeviceValue", 0);
        const std::string name = widget->objectName().toStdString();
        QWidget& face = *widget->focusProxy();
        for (const char* property : {"MaxValue", "EnumEntryValue", "ModifiedValue"})
            widget->setProperty(property, 101);
        EXPECT_TRUE(widget->property("DataModified").toBool()) << name;
        QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(1, 1), face.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&face, &key);
        ASSERT_TRUE(menu->isOpen()) << name;
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
        EXPECT_FALSE(widget->property("DataModified").toBool()) << name;
        widget->setProperty("ReadOnly", true);
        QApplication::sendEvent(&face, &key);
        EXPECT_FALSE(menu->isOpen()) << name;
        // A field offers its own menu then, to copy from.
        if (QWidget* own = QApplication::activePopupWidget())
            own->close();
    }
}

TEST_F(AllNine, WhatTheDeviceDoesNotHaveLeavesNoHole)
{
    const int whole = layout.sizeHint().height();
    const int few = first->sizeHint().height() * 2 + layout.spacing() + layout.contentsMargins().top() * 2;
    controls[0]->hide();
    for (ZorControl* control : controls)
        control->setProperty("DeviceTypeNotSupported", true);
    EXPECT_EQ(layout.sizeHint().height(), few);
    controls[1]->hide();
    controls[0]->show();
    EXPECT_EQ(layout.sizeHint().height(), few) << "not before the device has it";
    for (ZorControl* control : controls)
        control->setProperty("DeviceTypeNotSupported", false);
    EXPECT_TRUE(controls[0]->isVisible());
    EXPECT_FALSE(controls[1]->isVisible()) << "as the program said meanwhile";
    controls[1]->show();
    EXPECT_EQ(layout.sizeHint().height(), whole);

    controls[0]->setFocus();
    QTest::keyClicks(controls[0]->focusProxy(), "1");
    controls[0]->setProperty("DeviceTypeNotSupported", true);
    EXPECT_EQ(QApplication::focusWidget(), controls[0]->focusProxy()) << "nobody has left it";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(controls[0]->property("InvalidEntry").toBool()) << "now it is left";
    controls[0]->setProperty("DeviceTypeNotSupported", false);

    ZorTextBox fresh;
    fresh.setDeviceTypeNotSupported(true);
    layout.addWidget(&fresh);
    QApplication::processEvents();
    EXPECT_FALSE(fresh.isVisible());
    fresh.setUserMode(false);
    EXPECT_TRUE(fresh.isVisible()) << "a designer must see what it works on";
}

} // namespace
} // namespace zor
