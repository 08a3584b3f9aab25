// The ready-made QWidgets, as a Qt program meets them.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/controls/registration.h>
#include <zor/platform/qt/container.h>
#include <zor/widgets.h>
#include <zor/widgets/conversion.h>
#include <zor/widgets/form_loader.h>

#include <QApplication>
#include <QBuffer>
#include <QLineEdit>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <cmath>

namespace zor {
namespace {

std::vector<const core::ClassInfo*> classes()
{
    static core::ClassRegistry registry;
    if (registry.classes().empty())
        registerControls(registry);
    return {registry.classes().begin(), registry.classes().end()};
}

/// What a test calls of a widget that it knows by name alone.
std::unique_ptr<ZorControl> make(std::string_view controlClass)
{
    const auto known = std::ranges::find(widgetClasses(), controlClass, &WidgetClass::controlClass);
    return std::unique_ptr<ZorControl>(known->create(nullptr));
}

QByteArray text(std::string_view utf8) { return {utf8.data(), static_cast<qsizetype>(utf8.size())}; }

TEST(Widgets, EveryPublishedMemberIsThere)
{
    ASSERT_EQ(widgetClasses().size(), classes().size());
    for (const core::ClassInfo* info : classes()) {
        const auto widget = make(info->name);
        const QMetaObject& meta = *widget->metaObject();
        for (const core::PropertyRow* row : info->properties) {
            const QMetaProperty property = meta.property(meta.indexOfProperty(text(row->name)));
            ASSERT_TRUE(property.isValid()) << info->name << '.' << row->name;
            EXPECT_TRUE(property.isWritable() && property.isDesignable()) << info->name << '.' << row->name;
            EXPECT_EQ(property.isStored(), !row->key.empty() && row->access != core::Access::Derived &&
                                               row->access != core::Access::ReadOnly)
                << info->name << '.' << row->name;
            EXPECT_EQ(property.isEnumType(), core::kindName(row->field.kind).ends_with("_TYPE"))
                << info->name << '.' << row->name;
            if (row->get == nullptr && row->field.at == nullptr)
                continue;
            const QVariant own = widgets::toQVariant(widget->control().get(*row));
            const QVariant read = property.read(widget.get());
            EXPECT_EQ(property.isEnumType() ? QVariant(read.toInt()) : read, own)
                << info->name << '.' << row->name;
        }
        QList<QByteArray> names;
        for (int i = 0; i < meta.methodCount(); ++i)
            names << meta.method(i).name();
        for (const core::MethodRow& row : info->methods)
            EXPECT_TRUE(names.contains(text(row.name))) << info->name << '.' << row.name;
        for (const char* event : {"DataChangedSetTrue", "textOLESetData", "textLinkError"})
            EXPECT_FALSE(names.contains(event)) << info->name;
    }
}

TEST(Widgets, PropertiesGoByNameAndEnumerationsByMember)
{
    ZorTextBox box;
    EXPECT_TRUE(box.setProperty("DeviceUnit", "PrU_mBar"));
    EXPECT_EQ(box.DeviceUnit(), ZorWidget::PrU_mBar);
    EXPECT_EQ(box.control().DeviceUnit(), PrU_mBar);
    box.setUnitType(ZorWidget::PRESSURE);
    box.setOutputUnit(ZorWidget::PrU_Bar);
    box.setDeviceValue(1500);
    EXPECT_EQ(box.property("OutputValue").toDouble(), 1500);
    EXPECT_EQ(box.findChild<QLineEdit*>()->text(), "1.500");
    EXPECT_EQ(box.fc_GetMessageID(1), "MSG_CFAIL");
    bool replaced = false;
    EXPECT_TRUE(QMetaObject::invokeMethod(&box, "fb_SetMessage", Q_RETURN_ARG(bool, replaced), Q_ARG(int, 1),
                                          Q_ARG(QString, "Ausfall")));
    EXPECT_TRUE(replaced);
    EXPECT_EQ(box.MsgCfail(), "Ausfall");
    EXPECT_EQ(box.fd_GetConversionFactor(ZorWidget::PRESSURE, ZorWidget::PrU_Bar, ZorWidget::PrU_mBar), 1000);
}

TEST(Widgets, WhatIsRefusedIsSaidAndChangesNothing)
{
    ZorTextBox box;
    QSignalSpy refused(&box, &ZorControl::refused);
    const struct {
        const char* property;
        QVariant value;
        int error;
    } rows[]{{"MaxLength", 70000, 6},
             {"InvalidEntry", true, 383},
             {"OutputUnit", -1, 5}, // as Qt makes it of a unit that there is not
             {"DeviceValue", QPoint(1, 2), 13},
             {"DeviceValue", qInf(), 6},
             {"DeviceValue", QVariant::fromValue(std::numeric_limits<quint64>::max()), 0},
             {"DeviceValue", QVariant(), 0},
             {"MinValue", "abc", 0}};
    for (const auto& [property, value, error] : rows) {
        const QVariant before = box.property(property);
        refused.clear();
        box.setProperty(property, value);
        EXPECT_EQ(refused.size(), error == 0 ? 0 : 1) << property;
        if (error != 0) {
            EXPECT_EQ(refused[0][0], property);
            EXPECT_EQ(refused[0][1], error) << property;
            EXPECT_TRUE(refused[0][2].toString().startsWith(QString("ctx_ZorTextBox.") + property + ": "));
            EXPECT_EQ(box.property(property), before) << property;
        } else if (value.isValid()) {
            EXPECT_EQ(box.property(property).toDouble(), value.toDouble());
        }
    }
    ZorSlider slider;
    QSignalSpy ticks(&slider, &ZorSlider::TickFrequencyChanged);
    slider.setScaleFactor(0);
    EXPECT_EQ(ticks.size(), 1) << "what has no value any more";

    box.setUserMode(false);
    refused.clear();
    box.setInvalidEntry(true);
    EXPECT_TRUE(refused.isEmpty() && !box.InvalidEntry());
}

TEST(Widgets, EventsAreSignalsAndASinkChangesTheirArguments)
{
    QWidget form;
    auto* box = new ZorTextBox(&form);
    form.show();
    QApplication::setActiveWindow(&form);
    QSignalSpy presses(box, &ZorTextBox::textKeyPress);
    QSignalSpy modified(box, &ZorTextBox::DataModifiedSetTrue);
    struct NoSevens : __ctx_ZorTextBox {
        void textKeyPress(std::int16_t& KeyAscii) override { KeyAscii = KeyAscii == '7' ? 0 : KeyAscii; }
    } noSevens;
    box->control().subscribe(noSevens);
    box->setFocus();
    QTest::keyClicks(box->focusProxy(), "175");
    EXPECT_EQ(presses.size(), 3);
    EXPECT_EQ(presses[1][0], '7');
    EXPECT_EQ(modified.size(), 2);
    EXPECT_EQ(box->findChild<QLineEdit*>()->text(), "15");
    box->control().unsubscribe(noSevens);
}

TEST(Widgets, TheSizeOfTheControlIsFifteenTwipsToThePixel)
{
    for (const core::ClassInfo* info : classes()) {
        const auto widget = make(info->name);
        const QSize hint = widget->sizeHint();
        EXPECT_TRUE(hint.width() > 10 && hint.height() > 10) << info->name;
        widget->show();
        widget->resize(301, 57);
        QApplication::processEvents();
        const platform::Rect area = widget->control().surface().geometry();
        EXPECT_EQ(area.width, 4515) << info->name;
        // Combo box and slider have a height of their own, whatever the form says.
        const bool isOwnHeight = std::abs(area.height - hint.height() * 15) < 15;
        EXPECT_TRUE(area.height == 855 || isOwnHeight) << info->name << ' ' << area.height;
    }
}

TEST(Widgets, AStyleSheetOfTheProgramHidesNoState)
{
    QWidget form;
    QVBoxLayout layout(&form);
    auto* box = new ZorTextBox;
    layout.addWidget(box);
    form.setStyleSheet("QLineEdit { background: #ccddee; color: black; border: 1px solid gray; }");
    form.show();
    const auto field = [&] { return box->findChild<QLineEdit*>()->grab().toImage().pixelColor(8, 8); };
    EXPECT_EQ(field(), QColor(0xccddee));
    box->setDataModified(true);
    EXPECT_EQ(field(), QColor(Qt::yellow));
    form.setStyleSheet("* { background: #223344; }");
    EXPECT_EQ(field(), QColor(Qt::yellow));
    box->setDataModified(false);
    EXPECT_EQ(field(), QColor(0x223344));
    form.setStyleSheet({});
    EXPECT_EQ(field(), form.palette().color(QPalette::Base));
    // A field keeps its colour where its form is disabled, one that has never had a palette of its own too; and
    // where somebody gives the form another palette.
    auto* plain = new ZorTextBox(&form);
    auto* edit = plain->findChild<QLineEdit*>();
    EXPECT_FALSE(edit->testAttribute(Qt::WA_SetPalette));
    QPalette own = form.palette();
    const QColor theme = own.color(QPalette::Base);
    own.setColor(QPalette::Disabled, QPalette::Base, Qt::gray);
    form.setPalette(own);
    EXPECT_FALSE(edit->testAttribute(Qt::WA_SetPalette));
    form.setEnabled(false);
    EXPECT_EQ(edit->palette().color(QPalette::Base), theme);
    auto* late = new ZorTextBox(&form);
    EXPECT_EQ(late->findChild<QLineEdit*>()->palette().color(QPalette::Base), theme);
    own.setColor(QPalette::Base, Qt::green);
    form.setPalette(own);
    for (const QLineEdit* one : form.findChildren<QLineEdit*>())
        EXPECT_EQ(one->palette().color(QPalette::Base), theme);
}

TEST(Widgets, ALargerFontMakesThemLargerAndCutsNothing)
{
    for (const int points : {8, 9, 12, 16, 24}) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        for (const core::ClassInfo* info : classes()) {
            QWidget form;
            QVBoxLayout layout(&form);
            ZorControl* widget = make(info->name).release();
            layout.addWidget(widget);
            widget->setProperty("OutputUnit", "LgthU_Mtr");
            form.setFont(font);
            form.show();
            for (QWidget* part : platform::qt::widgetOf(widget->control().surface()).findChildren<QWidget*>()) {
                if (!part->isVisible() || part->parentWidget()->parentWidget() != widget)
                    continue;
                EXPECT_EQ(part->font().pointSize(), points) << info->name;
                EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry()))
                    << info->name << ' ' << points << ' ' << part->metaObject()->className();
                EXPECT_GE(part->height() + 1, QFontMetrics(font).height())
                    << info->name << ' ' << points << ' ' << part->metaObject()->className();
            }
        }
    }
}

TEST(Widgets, AFormAtRunTimeKnowsThem)
{
    QByteArray form = R"(<ui version="4.0"><class>F</class><widget class="QWidget" name="F">
      <widget class="zor::ZorTextBox" name="level"><property name="geometry"><rect><x>10</x><y>20</y>
      <width>300</width><height>30</height></rect></property>
      <property name="OutputUnit"><enum>zor::ZorWidget::LgthU_CM</enum></property>
      <property name="DeviceValue"><double>1234</double></property>
      <property name="DeviceTag"><string notr="true">LEVEL</string></property></widget></widget></ui>)";
    QBuffer buffer(&form);
    buffer.open(QIODevice::ReadOnly);
    ZorUiLoader loader;
    const std::unique_ptr<QWidget> widget(loader.load(&buffer));
    ASSERT_TRUE(widget);
    auto* box = widget->findChild<ZorTextBox*>("level");
    ASSERT_TRUE(box);
    EXPECT_EQ(box->geometry(), QRect(10, 20, 300, 30));
    EXPECT_EQ(box->OutputUnit(), ZorWidget::LgthU_CM);
    EXPECT_EQ(box->DeviceTag(), "LEVEL");
    EXPECT_EQ(box->findChild<QLineEdit*>()->text(), "12.3");
}

} // namespace
} // namespace zor
