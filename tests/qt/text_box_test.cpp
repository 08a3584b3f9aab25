// What only a real screen has: the focus among neighbours, the mouse on what is disabled.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/tests/qt/screen_fixture.h>

#include <QTest>

namespace zor {
namespace {

class TextBoxOnScreenTest : public tests::ScreenTest {
protected:
    QWidget& part(int number) { return ScreenTest::part(*first, number); }

    core::ControlPtr<ctx_ZorTextBox> first = make<ctx_ZorTextBox>();
};

TEST_F(TextBoxOnScreenTest, AFrozenFieldKeepsTheFocusTheEntryAndItsPlaceAmongTheOthers)
{
    QWidget& field = part(1);
    field.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&field, "12");
    events.clear();
    first->WaitingForData(true);
    QTest::keyClicks(&field, "3");
    EXPECT_EQ(events, "");
    EXPECT_EQ(QApplication::focusWidget(), &field) << "not the next field of the form";
    first->WaitingForData(false);
    QTest::keyClicks(&field, "4");
    EXPECT_EQ(field.property("text").toString(), "124");

    first->WaitingForData(true);
    events.clear();
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_EQ(events, "textValidate InvalidEntrySetTrue textLostFocus") << "the keyboard leads out of it";
    EXPECT_NE(QApplication::focusWidget(), &field);
}

TEST_F(TextBoxOnScreenTest, TheMouseDoesNothingToWhatIsDisabled)
{
    first->DataNotAvailable(true);
    first->WaitingForData(true);
    events.clear();
    for (const int number : {1, 2, 3}) {
        QTest::mouseClick(&part(number), Qt::LeftButton);
        QTest::mouseDClick(&part(number), Qt::LeftButton);
    }
    EXPECT_EQ(events, "");
    EXPECT_TRUE(boxes.empty());
    first->WaitingForData(false);
    QTest::mouseClick(&part(3), Qt::LeftButton);
    EXPECT_EQ(events, "imgClick");
    EXPECT_EQ(boxes.size(), 1U);
}

} // namespace
} // namespace zor
