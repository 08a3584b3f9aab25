// What the QWidgets tell a program that listens, and what it may do then.

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/platform/qt/container.h>
#include <zor/widgets.h>

#include <QAbstractSlider>
#include <QApplication>
#include <QDataWidgetMapper>
#include <QDoubleSpinBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <utility>

namespace zor {
namespace {

TEST(WidgetSignals, WhatChangesByItselfSaysSo)
{
    ZorTextBox box;
    box.setMaxValue(1000);
    QSignalSpy modified(&box, &ZorTextBox::DataModifiedChanged);
    QSignalSpy upper(&box, &ZorTextBox::MaxParamValueChanged);
    QSignalSpy support(&box, &ZorTextBox::DeviceTypeNotSupportedChanged);
    QSignalSpy value(&box, &ZorTextBox::valueChanged);
    box.setModifiedValue(50);
    box.setModifiedValue(60);
    EXPECT_EQ(modified.size(), 1);
    box.setDeviceValue(60);
    EXPECT_EQ(modified.size(), 2);
    EXPECT_EQ(value.size(), 3);
    box.setDefaultUnit(ZorWidget::LgthU_CM);
    EXPECT_EQ(upper.size(), 1);
    box.setDeviceTypeSupported("A");
    box.setDeviceType("B");
    EXPECT_EQ(support.size(), 1);

    ZorSlider slider;
    slider.setMaxValue(100);
    slider.setScaleFactor(10);
    slider.setValue(5);
    EXPECT_EQ(slider.value(), 5.0) << "would grow with each round through a model";
}

TEST(WidgetSignals, OnlyWhatTheOperatorHandsOverIsCommitted)
{
    QWidget form;
    QVBoxLayout layout(&form);
    auto* box = new ZorTextBox;
    auto* count = new ZorUpDown;
    auto* slider = new ZorSlider;
    auto* choice = new ZorOptionButton;
    auto* other = new QLineEdit;
    for (QWidget* widget : std::initializer_list<QWidget*>{box, count, slider, choice, other})
        layout.addWidget(widget);
    form.show();
    QApplication::setActiveWindow(&form);
    box->setMaxValue(1000);
    box->setDeviceUnit(ZorWidget::LgthU_MM);
    QVariantList committed;
    for (ZorControl* control : std::initializer_list<ZorControl*>{box, count, slider, choice})
        QObject::connect(control, &ZorControl::valueCommitted, &form, [&](const QVariant& v) { committed << v; });
    const auto leave = [&](const char* text) {
        box->setFocus();
        QTest::keyClicks(box->focusProxy(), text);
        other->setFocus();
    };
    // As a program does that answers a commit by reading the device.
    QObject::connect(box, &ZorControl::valueCommitted, box, [box](const QVariant& v) { box->setDeviceValue(v); });
    box->setDeviceValue(5);
    box->setModifiedValue(6);
    leave("");
    box->setDeviceUnit(ZorWidget::LgthU_CM);
    leave("");
    EXPECT_EQ(committed, QVariantList());
    leave("70");
    EXPECT_EQ(committed, QVariantList{7.0}) << "in the device's unit, once";
    leave("70");
    leave("9999");
    EXPECT_EQ(committed, QVariantList{7.0});

    // 40.5 feet, shown as 41.
    committed.clear();
    count->setOutputUnit(ZorWidget::LgthU_FEET);
    count->setDefaultUnit(ZorWidget::LgthU_FEET);
    count->setMaxValue(1000);
    count->setDeviceValue(12345);
    for (const char* text : {"", "41", "50", "41"}) {
        count->setFocus();
        QTest::keyClicks(count->focusProxy(), text);
        other->setFocus();
    }
    EXPECT_EQ(committed, (QVariantList{15240, 12497})) << "an edit, and it taken back";

    committed.clear();
    auto& track = dynamic_cast<QAbstractSlider&>(*slider->focusProxy());
    track.setSliderDown(true);
    track.setSliderPosition(3);
    track.setSliderPosition(5);
    EXPECT_EQ(committed, QVariantList());
    track.setSliderDown(false);
    EXPECT_EQ(committed, QVariantList{50.0});

    committed.clear();
    choice->setEnumEntryValue(2);
    for (int device : {1, 1}) {
        choice->setDeviceValue(device);
        QTest::mouseClick(choice->focusProxy(), Qt::LeftButton, {}, QPoint(8, choice->focusProxy()->height() / 2));
    }
    EXPECT_EQ(committed, (QVariantList{2, 2}));
}

// Keys, submit() and a model that changes: our widgets beside a spin box of Qt's, which shows what is usual.
TEST(WidgetSignals, ADataMapperTakesThemAsItTakesASpinBox)
{
    QWidget form;
    QVBoxLayout layout(&form);
    auto* box = new ZorTextBox;
    auto* whole = new ZorUpDown;
    auto* spin = new QDoubleSpinBox;
    auto* other = new QLineEdit;
    const QList<QWidget*> fields{box, whole, spin};
    QStandardItemModel model(2, 3);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    for (int i = 0; i < 3; ++i) {
        layout.addWidget(fields[i]);
        mapper.addMapping(fields[i], i);
        fields[i]->setProperty("DeviceUnit", "LgthU_MM");
        fields[i]->setProperty("MaxValue", 100);
        model.setData(model.index(0, i), 12.0);
        model.setData(model.index(1, i), 34.0);
    }
    layout.addWidget(other);
    form.show();
    QApplication::setActiveWindow(&form);
    mapper.toFirst();
    mapper.toNext();
    for (int i = 0; i < 3; ++i) {
        const auto stored = [&] { return model.data(model.index(1, i)).toDouble(); };
        auto* field = i < 2 ? fields[i]->focusProxy() : fields[i];
        const auto type = [&](const char* text) {
            field->setFocus();
            QMetaObject::invokeMethod(field, "selectAll");
            QTest::keyClicks(field, text);
        };
        const auto settle = [] { QTest::qWait(0); };
        const auto shown = [&] { return fields[i]->property("value").toDouble(); };
        EXPECT_EQ(shown(), 34) << i;
        type("56");
        EXPECT_EQ(shown(), 56) << i << ": under way";
        EXPECT_EQ(stored(), 34) << i;
        QTest::keyClick(field, Qt::Key_Return);
        settle();
        EXPECT_EQ(stored(), 56) << i << ": Return";
        type("57");
        QTest::keyClick(field, Qt::Key_Escape);
        settle();
        EXPECT_EQ(shown(), 56) << i << ": Escape";
        type("58");
        other->setFocus();
        settle();
        EXPECT_EQ(stored(), 58) << i << ": left";
        mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
        type("59");
        EXPECT_TRUE(mapper.submit());
        EXPECT_EQ(stored(), 59) << i << ": submit";
        mapper.setSubmitPolicy(QDataWidgetMapper::AutoSubmit);
        mapper.setCurrentIndex(1);
    }
    model.setData(model.index(1, 0), 12.345);
    box->setFocus();
    other->setFocus();
    QTest::qWait(0);
    EXPECT_EQ(model.data(model.index(1, 0)).toDouble(), 12.345) << "what nobody edited is not rounded";
    box->setFocus();
    QTest::keyClicks(box->focusProxy(), "100");
    EXPECT_EQ(box->value(), 100) << "the limit is an entry";
    QTest::keyClicks(box->focusProxy(), "1");
    EXPECT_EQ(box->value(), 12.345) << "what is no valid entry";
}

TEST(WidgetSignals, AWidgetMayBeDeletedInASlotOfItsOwnSignal)
{
    QWidget form;
    auto* box = new ZorTextBox(&form);
    form.show();
    QApplication::setActiveWindow(&form);
    box->setFocus();
    QPointer<ZorTextBox> alive = box;
    QObject::connect(box, &ZorTextBox::textKeyPress, &form, [box] { delete box; });
    QTest::keyClick(box->focusProxy(), Qt::Key_1);
    EXPECT_TRUE(alive.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    auto* other = new ZorTextBox(&form);
    alive = other;
    QObject::connect(other, &ZorTextBox::OutputValueChange, &form, [other] { delete other; });
    other->setDeviceValue(5);
    EXPECT_TRUE(alive.isNull());

    // A listener of the control itself, told of what the program writes.
    struct Deleter final : core::EventSink {
        ZorControl* widget = nullptr;
        void event(core::Control& /*control*/, const core::EventRow& row, platform::EventArgs /*args*/) override
        {
            if (row.name == "OutputValueChange")
                delete std::exchange(widget, nullptr);
        }
        void ended(core::Control& /*control*/) noexcept override {}
    } deleter;
    auto* heard = new ZorTextBox(&form);
    heard->control().subscribe(deleter);
    alive = heard;
    deleter.widget = heard;
    heard->control().setProperty("DeviceValue", 5);
    EXPECT_TRUE(alive.isNull());

    // Two notches of a wheel, of which the first ends what they turn.
    auto* count = new ZorUpDown(&form);
    count->setMaxValue(100);
    count->show();
    count->setFocus();
    const QPointer<QWidget> turned = count->focusProxy();
    QObject::connect(count, &ZorUpDown::upDownChange, &form, [count] { delete count; });
    const QPointF at = turned->rect().center();
    QWheelEvent wheel(at, turned->mapToGlobal(at), {}, QPoint(0, 240), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(turned, &wheel);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(turned.isNull());
}

// Where a slot asks the operator, the event that it answers is still under way while another one ends the widget.
TEST(WidgetSignals, AWidgetMayBeDeletedWhileASlotOrItsOwnBoxWaits)
{
    QWidget form;
    form.show();
    QApplication::setActiveWindow(&form);
    const auto deleteMeanwhile = [](const QPointer<ZorTextBox>& box) {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] { delete box; });
        QTimer::singleShot(40, &loop, &QEventLoop::quit);
        loop.exec();
    };
    const QPointer<ZorTextBox> box = new ZorTextBox(&form);
    box->show();
    box->setFocus();
    QObject::connect(box, &ZorTextBox::textChange, &form, [&] { deleteMeanwhile(box); });
    QTest::keyClick(box->focusProxy(), Qt::Key_1);
    EXPECT_TRUE(box.isNull());

    const QPointer<ZorTextBox> other = new ZorTextBox(&form);
    QObject::connect(other, &ZorTextBox::propertyChanged, &form, [&] { deleteMeanwhile(other); });
    other->setMaxValue(5);
    EXPECT_TRUE(other.isNull());

    auto* failed = new ZorTextBox(&form);
    failed->show();
    failed->setCFail(true);
    const QPointer<QWidget> icon = &platform::qt::widgetOf(*failed->control().widget(ctx_ZorTextBox::img_State));
    QTimer::singleShot(20, &form, [failed] { delete failed; });
    QTest::mouseClick(icon, Qt::LeftButton);
    EXPECT_TRUE(form.findChildren<QMessageBox*>().isEmpty());
    QTest::qWait(60);
    EXPECT_TRUE(icon.isNull());
}

TEST(WidgetSignals, WhatTheDeviceLackedBeforeItHadAPlaceComesBackWithTheDevice)
{
    const auto swap = [](ZorTextBox& box, const char* type) {
        box.setDeviceTypeSupported("A");
        box.setDeviceType(type);
    };
    QWidget form;
    QVBoxLayout layout(&form);
    auto* placed = new ZorTextBox;
    swap(*placed, "B");
    swap(*placed, "A");
    layout.addWidget(placed);
    form.show();
    EXPECT_TRUE(placed->isVisible());
    placed->setFocusPolicy(Qt::ClickFocus);
    swap(*placed, "B");
    swap(*placed, "A");
    EXPECT_EQ(placed->focusProxy()->focusPolicy(), Qt::ClickFocus) << "what the program has chosen";

    ZorTextBox window;
    window.show();
    swap(window, "B");
    EXPECT_FALSE(window.isVisible());
    swap(window, "A");
    EXPECT_TRUE(window.isVisible());
}

} // namespace
} // namespace zor
