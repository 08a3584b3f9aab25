// The forms that the guide to the QWidgets shows, and what it promises of them.

#include <zor/widgets.h>

#include <QApplication>
#include <QDataWidgetMapper>
#include <QFormLayout>
#include <QLineEdit>
#include <QStandardItemModel>
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

/// Layout, mapper and style sheet.
struct Tanks : QWidget {
    explicit Tanks(QAbstractItemModel* tanks);
    zor::ZorTextBox* level = nullptr;
    zor::ZorUpDown* damping = nullptr;
    QDataWidgetMapper* mapper = nullptr;
};

Tanks::Tanks(QAbstractItemModel* tanks)
{
    level = new zor::ZorTextBox;
    damping = new zor::ZorUpDown;
    for (zor::ZorControl* control : std::initializer_list<zor::ZorControl*>{level, damping}) {
        control->setProperty("DeviceUnit", "NoneU"); // as the model has it
        control->setProperty("OutputUnit", "NoneU");
        control->setProperty("DefaultUnit", "NoneU");
        control->setProperty("MaxValue", 100);
    }

    auto* rows = new QFormLayout(this);
    rows->addRow("&Level", level); // Alt+L leads into the field, and a screen reader says it
    rows->addRow("&Damping", damping);

    mapper = new QDataWidgetMapper(this);
    mapper->setModel(tanks);
    mapper->addMapping(level, 0);
    mapper->addMapping(damping, 1);
    mapper->toFirst();

    setStyleSheet("zor--ZorTextBox QLineEdit { background: #ddeeff; border: 1px solid gray; }"
                  "zor--ZorUpDown { font-size: 14pt; }");
}

TEST(Guide, AFormLaysThemOutMapsThemAndStylesThem)
{
    QStandardItemModel model(2, 2);
    for (int row = 0; row < 2; ++row) {
        model.setData(model.index(row, 0), 10 + row);
        model.setData(model.index(row, 1), 20 + row);
    }
    Tanks form(&model);
    form.resize(500, 100);
    form.show();
    QApplication::setActiveWindow(&form);
    auto* field = form.level->findChild<QLineEdit*>();
    const auto back = [field] { return field->grab().toImage().pixelColor(4, 4); };
    EXPECT_EQ(form.level->x(), form.damping->x()) << "one column";
    EXPECT_GT(form.level->width(), form.level->sizeHint().width()) << "which takes the room there is";
    EXPECT_GT(form.damping->height(), form.level->height()) << "a larger font, a larger control";
    EXPECT_EQ(back(), QColor(0xddeeff));
    QTest::keyClick(&form, Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClicks(field, "56");
    EXPECT_EQ(back(), QColor(Qt::yellow)) << "an edit shows through the style sheet";
    QTest::keyClick(field, Qt::Key_Return);
    QTest::qWait(0);
    EXPECT_EQ(model.data(model.index(0, 0)), 56);
    form.mapper->toNext();
    EXPECT_EQ(form.level->value(), 11);
    EXPECT_EQ(form.damping->value(), 21);
}

} // namespace
