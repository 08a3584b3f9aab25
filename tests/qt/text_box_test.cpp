// What only a real screen has: the focus among neighbours, the mouse on what is disabled, a screen reader.

#include "controls/numeric/text_box/ctx_ZorTextBox.h"
#include "core/frm_Container.h"
#include "platform/qt/container.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <string>

namespace zor {
namespace {

class TextBoxOnScreenTest : public testing::Test, public core::EventSink {
protected:
    TextBoxOnScreenTest()
    {
        form.resize(600, 200);
        form.show();
        QApplication::setActiveWindow(&form);
        container.setUserMode(true);
        container.onMessage = [this](platform::Component&, const platform::MessageBox&) { ++boxes; };
        for (const auto& box : {first.get(), second.get()})
            box->initialiseProperties();
        platform::qt::widgetOf(*second->widget(1)).setFocus();
        first->subscribe(static_cast<core::EventSink&>(*this));
    }
    ~TextBoxOnScreenTest() override { first->unsubscribe(static_cast<core::EventSink&>(*this)); }
    void event(core::Control&, const core::EventRow& row, platform::EventArgs) override
    {
        events.append(events.empty() ? "" : " ").append(row.name);
    }
    QWidget& part(int number) { return platform::qt::widgetOf(*first->widget(number)); }

    QWidget form;
    platform::qt::QtContainer container{form, core::pictureData};
    core::ControlPtr<ctx_ZorTextBox> first = ctx_ZorTextBox::create(container);
    core::ControlPtr<ctx_ZorTextBox> second = ctx_ZorTextBox::create(container);
    std::string events;
    int boxes = 0;
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
    EXPECT_EQ(boxes, 0);
    first->WaitingForData(false);
    QTest::mouseClick(&part(3), Qt::LeftButton);
    EXPECT_EQ(events, "imgClick");
    EXPECT_EQ(boxes, 1);
}

TEST_F(TextBoxOnScreenTest, AScreenReaderHearsTagUnitAndState)
{
    first->DeviceTag("LEVEL");
    first->OutputUnit(LgthU_Mtr);
    EXPECT_EQ(part(1).accessibleName(), "LEVEL");
    EXPECT_EQ(part(1).accessibleDescription(), "m");
    first->CFail(true);
    first->UnitLabelCaption("metres");
    EXPECT_EQ(part(1).accessibleDescription(), "metres, Communication Failure !");
}

} // namespace
} // namespace zor
