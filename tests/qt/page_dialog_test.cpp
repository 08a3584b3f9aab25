// The dialog around a property page: its buttons, and what a form designer hooks into.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/pages/page.h>
#include <zor/pages/registration.h>
#include <zor/platform/error.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/qt/page_dialog.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <array>
#include <string>

namespace zor {
namespace {

class PageDialogTest : public testing::Test {
protected:
    PageDialogTest()
    {
        box->initialiseProperties();
        select();
        dialog.show();
        QApplication::setActiveWindow(&dialog);
    }
    void select()
    {
        const std::array<core::Control*, 1> selected{box.get()};
        page.select(selected);
    }
    QPushButton& button(QDialogButtonBox::StandardButton which)
    {
        return *dialog.findChild<QDialogButtonBox*>()->button(which);
    }
    void press(QDialogButtonBox::StandardButton which) { QTest::mouseClick(&button(which), Qt::LeftButton); }
    QLineEdit& field(std::string_view name)
    {
        return dynamic_cast<QLineEdit&>(platform::qt::widgetOf(*page.widget(name)));
    }
    void type(std::string_view name, const char* text)
    {
        field(name).setFocus();
        field(name).selectAll();
        QTest::keyClicks(&field(name), text);
    }

    // The control may live on any platform: the page knows its properties only.
    platform::headless::HeadlessContainer container;
    core::ControlPtr<ctx_ZorTextBox> box = ctx_ZorTextBox::create(container);
    platform::qt::PageDialog dialog;
    pages::Page page{prp_ZorTextBoxGeneral, dialog};
};

TEST_F(PageDialogTest, OkWritesOnlyWhatWasChanged)
{
    EXPECT_EQ(dialog.windowTitle(), "Device");
    box->OutputUnit(LgthU_FEET);
    press(QDialogButtonBox::Ok);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(box->OutputUnit(), LgthU_FEET) << "units start anew on an Apply only";

    dialog.show();
    type("txt_DeviceTag", "Level1");
    press(QDialogButtonBox::Cancel);
    EXPECT_EQ(box->DeviceTag(), "");

    dialog.show();
    select();
    type("txt_DeviceTag", "Level2");
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(box->DeviceTag(), "Level2");
    EXPECT_EQ(box->OutputUnit(), LgthU_MM);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PageDialogTest, ApplyIsThereForAChangeAndTheKeyboardLosesNothing)
{
    EXPECT_FALSE(button(QDialogButtonBox::Apply).isEnabled());
    type("txt_MaxLength", "42");
    ASSERT_TRUE(button(QDialogButtonBox::Apply).isEnabled());
    button(QDialogButtonBox::Apply).click();
    EXPECT_EQ(box->MaxLength(), 42);
    EXPECT_FALSE(button(QDialogButtonBox::Apply).isEnabled());
    EXPECT_TRUE(dialog.isVisible());
    type("txt_MaxLength", "43");
    QTest::keyClick(&field("txt_MaxLength"), Qt::Key_Return);
    EXPECT_EQ(box->MaxLength(), 43);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PageDialogTest, ADesignerRecordsTheWritesAndAFailureKeepsTheDialog)
{
    std::string written;
    int applied = 0;
    page.onApplied = [&](core::Control&) { ++applied; };
    page.onWrite = [&](core::Control& control, std::string_view property, const Variant& value) {
        if (property == "DeviceTag")
            raiseError(ErrorNumber::InvalidCall);
        written.append(written.empty() ? "" : " ").append(property);
        control.setProperty(property, value);
    };
    type("txt_DeviceType", "A");
    QString text;
    QTimer::singleShot(0, [&] {
        auto* message = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(message, nullptr);
        text = message->text();
        message->accept();
    });
    press(QDialogButtonBox::Ok);
    EXPECT_FALSE(text.isEmpty());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(page.isChanged());
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(written, "DeviceTypeSupported DeviceMinVersionSupported DeviceMaxVersionSupported MaxLength "
                       "NumberOfDigits EntryType RegisterType");
    EXPECT_EQ(box->DeviceTypeSupported(), "A");

    page.onWrite = nullptr;
    press(QDialogButtonBox::Ok);
    EXPECT_EQ(applied, 1);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PageDialogTest, AControlThatEndsLeavesNothingToApply)
{
    type("txt_DeviceTag", "Level1");
    box.reset();
    EXPECT_EQ(page.control(), nullptr);
    EXPECT_FALSE(button(QDialogButtonBox::Apply).isEnabled());
    EXPECT_FALSE(field("txt_DeviceTag").isEnabled());
    press(QDialogButtonBox::Ok);
    EXPECT_FALSE(dialog.isVisible());
}

} // namespace
} // namespace zor
