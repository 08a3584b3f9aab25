// What a screen reader is told of the nine, through Qt's own interface.

#include <zor/tests/widgets/all_nine.h>

#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QTimer>

namespace zor {
namespace {

struct Accessible : tests::AllNine {
    static QAccessibleInterface& of(QWidget* widget) { return *QAccessible::queryAccessibleInterface(widget); }
    static QAccessibleInterface& of(ZorControl* control, int part = 1)
    {
        return of(&platform::qt::widgetOf(*control->control().widget(part)));
    }
    static std::string text(QAccessibleInterface& interface, QAccessible::Text text)
    {
        return interface.text(text).toStdString();
    }
    static std::string name(ZorControl* control) { return text(of(control), QAccessible::Name); }
    static std::string description(ZorControl* control) { return text(of(control), QAccessible::Description); }
    static std::string value(ZorControl* control) { return text(of(control), QAccessible::Value); }
    template <class T>
    T* the()
    {
        return form.findChild<T*>();
    }
};

TEST_F(Accessible, RolesAreThoseOfWhatIsSeen)
{
    const std::vector<QAccessible::Role> roles{
        QAccessible::EditableText, QAccessible::SpinBox,    QAccessible::Slider,
        QAccessible::ComboBox,     QAccessible::List,       QAccessible::CheckBox,
        QAccessible::RadioButton,  QAccessible::StaticText, QAccessible::Button};
    for (std::size_t i = 0; i < roles.size(); ++i) {
        controls[i]->setProperty("DataNotAvailable", true);
        EXPECT_EQ(of(controls[i]).role(), roles[i]) << controls[i]->objectName().toStdString();
        for (const core::WidgetRow& row : controls[i]->info().widgets) {
            if (row.name == "img_State") {
                EXPECT_EQ(of(controls[i], row.widget).role(), QAccessible::Button);
            }
        }
    }
}

TEST_F(Accessible, ANameComesFromTheProgramALabelTheCaptionOrTheTag)
{
    for (ZorControl* control : controls) {
        const std::string widget = control->objectName().toStdString();
        const bool hasCaption =
            control->property("CheckBoxCaption").isValid() || control->property("OptionButtonCaption").isValid();
        control->setProperty("DeviceTag", "TAG");
        control->setProperty("MessageHeader", "TAG");
        if (!hasCaption) {
            EXPECT_EQ(name(control), "TAG") << widget;
        }
        QLabel label("Le&vel && more", &form);
        label.setBuddy(control);
        EXPECT_EQ(name(control), "Level & more") << widget;
        control->setAccessibleName("Tank level");
        EXPECT_EQ(name(control), "Tank level") << widget;
    }
    the<ZorCheckBox>()->setAccessibleName({});
    the<ZorCheckBox>()->setCheckBoxCaption("Pump & valve");
    EXPECT_EQ(name(the<ZorCheckBox>()), "Pump & valve");
    auto* label = the<ZorLabel>();
    label->setDeviceValue("serial 4711");
    EXPECT_EQ(value(label), "serial 4711");
    label->setAccessibleName({});
    label->setDeviceTag({});
    EXPECT_EQ(name(label), "serial 4711") << "where there is nothing else";
}

TEST_F(Accessible, StateUnitAndLimitsAreSaid)
{
    auto* box = the<ZorTextBox>();
    box->setMaxValue(5000);
    box->setOutputUnit(ZorWidget::LgthU_Mtr);
    EXPECT_EQ(description(box), "m, 0 to 5");
    box->setFocus();
    QTest::keyClicks(box->focusProxy(), "7");
    EXPECT_EQ(description(box), "m, 0 to 5, changed, not yet saved");
    last->setFocus();
    EXPECT_EQ(description(box), "m, 0 to 5, Invalid Entry  0 m To 5 m, changed, not yet saved");
    EXPECT_EQ(text(of(box, 3), QAccessible::Description), "Invalid Entry  0 m To 5 m");
    box->setCFail(true);
    EXPECT_TRUE(of(box).state().readOnly);
    EXPECT_EQ(description(box), "m, 0 to 5, Communication Failure !, changed, not yet saved");
    box->setUnitLabelCaption("metres");
    box->setReadOnly(true);
    box->setDeviceValue(0);
    EXPECT_EQ(description(box), "metres, Communication Failure !, read-only");
    box->setWaitingForData(true);
    EXPECT_TRUE(of(box).state().busy && of(box).state().disabled);

    auto* slider = the<ZorSlider>();
    slider->setScaleFactor(10);
    slider->setMaxValue(2);
    slider->setOutputUnit(ZorWidget::LgthU_MM);
    slider->setDeviceValue(15);
    EXPECT_EQ(value(slider), "1.5");
    EXPECT_EQ(description(slider), "mm, 0 to 2");
    EXPECT_EQ(of(slider).valueInterface()->maximumValue().toDouble(), 2);
    of(slider).valueInterface()->setCurrentValue(0.5);
    EXPECT_EQ(value(slider), "0.5");

    auto* image = the<ZorImage>();
    image->setDeviceValue(3);
    QTimer::singleShot(0, [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept(); });
    of(image).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(description(image), "Status Not OK") << "not the list of the last click";
    the<ZorComboBox>()->setReadOnly(true);
    EXPECT_TRUE(of(the<ZorComboBox>()).state().readOnly);
}

TEST_F(Accessible, ValuesAreReadAndWorkedWithoutTheScreen)
{
    auto* list = the<ZorListBox>();
    list->AddBitFieldEntry("alarm", 0);
    list->AddBitFieldEntry("fault", 1);
    list->setDeviceValue(2);
    QAccessibleInterface& entries = of(list);
    ASSERT_EQ(entries.childCount(), 2);
    EXPECT_EQ(text(*entries.child(1), QAccessible::Name), "fault");
    EXPECT_TRUE(entries.child(1)->state().checked && !entries.child(0)->state().checked);
    entries.child(0)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(list->OutputValue(), 3);
    EXPECT_EQ(entries.indexOfChild(entries.child(1)), 1);
    list->ClearBitFieldList();
    EXPECT_EQ(entries.childCount(), 0);

    of(the<ZorCheckBox>()).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(the<ZorCheckBox>()->OutputValue(), 1);
    EXPECT_TRUE(of(the<ZorCheckBox>()).state().checked);

    the<ZorComboBox>()->AddEnumEntry("open", 7);
    EXPECT_EQ(value(the<ZorComboBox>()), "open");

    auto* box = the<ZorTextBox>();
    QAccessibleInterface& field = of(box);
    field.editableTextInterface()->replaceText(0, field.textInterface()->characterCount(), "12.5");
    field.editableTextInterface()->deleteText(2, 4);
    field.textInterface()->setSelection(0, 0, 1);
    EXPECT_EQ(box->SelectedText(), "1");
    EXPECT_EQ(text(field, QAccessible::Value), "12");
    const QRect second = field.textInterface()->characterRect(1);
    EXPECT_EQ(field.textInterface()->offsetAtPoint(second.center() - QPoint(1, 0)), 1);
    box->setReadOnly(true);
    field.editableTextInterface()->insertText(0, "9");
    EXPECT_EQ(text(field, QAccessible::Value), "12");
}

} // namespace
} // namespace zor
