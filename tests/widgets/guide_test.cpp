// The form that the guide to the QWidgets shows, and what it promises of it.

#include <zor/widgets.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace {

struct Form : QWidget {
    Form();
    void write(const QVariant& value) { written << value; }
    QVariantList written;
};

Form::Form()
{
    auto* level = new zor::ZorTextBox(this);
    level->setOutputUnit(zor::ZorWidget::LgthU_Mtr);
    level->setDefaultUnit(zor::ZorWidget::LgthU_Mtr);
    level->setMaxValue(20); // both limits are 0 at first, and nothing but 0 is a valid entry
    connect(level, &zor::ZorTextBox::valueCommitted, this, [this](const QVariant& value) { write(value); });
    level->setDeviceValue(12345); // whatever was read: 1.235 m
}

TEST(Guide, TheFormWritesWhatTheOperatorCommitsAndNothingElse)
{
    Form form;
    auto* level = form.findChild<zor::ZorTextBox*>();
    auto* field = form.findChild<QLineEdit*>();
    form.show();
    QApplication::setActiveWindow(&form);
    EXPECT_EQ(field->text(), "1.235");
    level->setFocus();
    field->clearFocus();
    level->setDeviceValue(12346);
    EXPECT_EQ(form.written, QVariantList());
    level->setFocus();
    QTest::keyClicks(field, "2.5");
    field->clearFocus();
    EXPECT_EQ(form.written, QVariantList{25000.0});
}

} // namespace
