// Qt Designer's own components with the plugin: the widget box, the property editor, forms, the device menu.

#include "ui_tank.h"
#include <zor/controls/registration.h>
#include <zor/core/control.h>
#include <zor/core/setting_order.h>
#include <zor/forms/form.h>
#include <zor/platform/headless/container.h>
#include <zor/widgets.h>
#include <zor/widgets/conversion.h>
#include <zor/widgets/form_loader.h>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QMetaProperty>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QUndoStack>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>
#include <gtest/gtest.h>

namespace zor::designer {
namespace {

/// Designer without its main window.
class Editor {
public:
    Editor()
    {
        QCoreApplication::addLibraryPath(ZOR_PLUGINS);
        QDesignerComponents::initializeResources();
        m_core = QDesignerComponents::createFormEditor(&m_window);
        m_core->setTopLevel(&m_window);
        m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, &m_window));
        m_core->setObjectInspector(QDesignerComponents::createObjectInspector(m_core, &m_window));
        m_core->setActionEditor(QDesignerComponents::createActionEditor(m_core, &m_window));
        m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core, &m_window));
        QDesignerComponents::initializePlugins(m_core);
        new QDesignerIntegration(m_core, &m_window);
        QDesignerComponents::createTaskMenu(m_core, &m_window);
        m_core->widgetBox()->setFileName(":/qt-project.org/widgetbox/widgetbox.xml");
        m_core->widgetBox()->load();
    }

    static QDesignerFormEditorInterface& core()
    {
        // Never ends: Designer does not survive the application, which ends before what is static.
        static Editor& editor = *new Editor;
        return *editor.m_core;
    }

private:
    QMainWindow m_window;
    QDesignerFormEditorInterface* m_core;
};

struct OpenForm {
    explicit OpenForm(const QString& text)
    {
        window = Editor::core().formWindowManager()->createFormWindow();
        isOpen = window->setContents(text);
        Editor::core().formWindowManager()->setActiveFormWindow(window);
    }
    ~OpenForm() { delete window; }
    OpenForm(const OpenForm&) = delete;
    OpenForm& operator=(const OpenForm&) = delete;

    /// The plugin's classes are its own: the test knows them by their Qt properties alone.
    [[nodiscard]] QWidget* widget(const char* name) const { return window->findChild<QWidget*>(name); }
    [[nodiscard]] QDesignerPropertySheetExtension& sheet(const char* name) const
    {
        return *qt_extension<QDesignerPropertySheetExtension*>(Editor::core().extensionManager(), widget(name));
    }
    void set(const char* name, const char* property, const QVariant& value) const
    {
        window->cursor()->setWidgetProperty(widget(name), property, value);
    }

    QDesignerFormWindowInterface* window;
    bool isOpen;
};

QString contents(const char* file)
{
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file;
    return QString::fromUtf8(in.readAll());
}

QString example() { return contents(ZOR_EXAMPLES "/tank/tank.ui"); }
QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

const core::ClassRegistry& classes()
{
    static const core::ClassRegistry registry = [] {
        core::ClassRegistry all;
        registerControls(all);
        return all;
    }();
    return registry;
}

/// Whether a write that is refused while a program runs is refused now.
bool isRunning(QObject& widget)
{
    QSignalSpy refused(&widget, SIGNAL(refused(QString, int, QString)));
    widget.setProperty("MaxParamValue", 1);
    return !refused.isEmpty();
}

/// A form with one control of each class.
QString oneOfEach()
{
    QString text = "<ui version=\"4.0\"><class>F</class><widget class=\"QWidget\" name=\"F\">";
    for (const WidgetClass& widgetClass : widgetClasses())
        text += QString("<widget class=\"%1\" name=\"%2\"/>")
                    .arg(toQString(widgetClass.name), toQString(widgetClass.controlClass));
    return text + "</widget></ui>";
}

// First, while no Designer has initialised the plugin.
TEST(Designer, WithoutItThePluginServesProgramsThatRun)
{
    QCoreApplication::addLibraryPath(ZOR_PLUGINS);
    QUiLoader loader;
    EXPECT_TRUE(loader.availableWidgets().contains("zor::ZorTextBox"));
    const std::unique_ptr<QWidget> widget(loader.createWidget("zor::ZorTextBox"));
    ASSERT_TRUE(widget);
    EXPECT_TRUE(isRunning(*widget));
}

TEST(Designer, TheControlsAreInTheWidgetBox)
{
    const QDesignerWidgetBoxInterface& box = *Editor::core().widgetBox();
    QStringList names;
    for (int i = 0; i < box.categoryCount(); ++i) {
        const auto category = box.category(i);
        for (int j = 0; category.name() == "Zor Smart Controls" && j < category.widgetCount(); ++j) {
            names << category.widget(j).name();
            EXPECT_TRUE(category.widget(j).iconName().contains("zor::")) << "the plugin's own icon";
        }
    }
    EXPECT_EQ(names.size(), static_cast<qsizetype>(widgetClasses().size())) << names.join(' ').toStdString();
    EXPECT_TRUE(names.contains("Text Box"));
}

TEST(Designer, EveryPublishedPropertyIsInTheEditorUnderItsHeading)
{
    const OpenForm form(oneOfEach());
    ASSERT_TRUE(form.isOpen);
    for (const core::ClassInfo* info : classes().classes()) {
        const std::string name(info->name);
        const QDesignerPropertySheetExtension& sheet = form.sheet(name.c_str());
        for (const core::PropertyRow* row : info->properties) {
            const int index = sheet.indexOf(toQString(row->name));
            ASSERT_GE(index, 0) << name << '.' << row->name;
            EXPECT_TRUE(sheet.isVisible(index)) << name << '.' << row->name;
            EXPECT_FALSE(sheet.propertyGroup(index).startsWith("zor")) << name << '.' << row->name;
        }
        EXPECT_EQ(sheet.propertyGroup(sheet.indexOf("DeviceTag")), "Parameter") << name;
        EXPECT_EQ(sheet.propertyGroup(sheet.indexOf("CFail")), "State") << name;
        EXPECT_EQ(sheet.propertyGroup(sheet.indexOf("MsgCfail")), "Messages") << name;
    }
    EXPECT_FALSE(isRunning(*form.widget("ctx_ZorTextBox")));
}

TEST(Designer, AFormIsTheSameAfterItWasSavedOnce)
{
    for (const QString& text : {example(), oneOfEach(), contents(ZOR_TEST_DATA "/forms/tank.ui")}) {
        const OpenForm first(text);
        ASSERT_TRUE(first.isOpen);
        const QString saved = first.window->contents();
        const OpenForm second(saved);
        EXPECT_EQ(second.window->contents(), saved);
    }
}

TEST(Designer, WhatIsSetIsSavedAndWhatTheControlDoesNotStoreIsNot)
{
    const OpenForm form(oneOfEach());
    const struct {
        const char* property;
        QVariant value;
        const char* saved;
    } rows[]{{"OutputUnit", 7, "<enum>zor::ZorWidget::LgthU_CM</enum>"},
             {"MaxLength", 25, "<number>25</number>"},
             {"DeviceValue", 12.5, "<double>12.5"},
             {"DeviceTag", "LEVEL", "LEVEL</string>"},
             {"IconEnable", false, "<bool>false</bool>"},
             {"MessageHeader", "Boiler", nullptr},
             {"OutputValue", 7.25, nullptr}};
    for (const auto& [property, value, saved] : rows) {
        form.set("ctx_ZorTextBox", property, value);
        const QString text = form.window->contents();
        const QString element = QString("<property name=\"%1\"").arg(property);
        EXPECT_EQ(text.contains(element), saved != nullptr) << property << '\n' << text.toStdString();
        EXPECT_TRUE(text.contains(saved == nullptr ? "" : saved)) << property << '\n' << text.toStdString();
    }
    EXPECT_TRUE(form.window->isDirty());
    form.window->commandHistory()->undo();
    EXPECT_EQ(form.window->commandHistory()->index(), 6);
}

/// The values of all stored properties, by control and name.
using Values = std::map<std::string, std::string>;

/// The rows of a control's stored properties, by the class of its widget.
std::vector<const core::PropertyRow*> storedRows(const std::string& widgetClass)
{
    const auto known = std::ranges::find(widgetClasses(), widgetClass, &WidgetClass::name);
    std::vector<const core::PropertyRow*> rows;
    if (known != widgetClasses().end()) {
        for (const core::PropertyRow* row : classes().find(known->controlClass)->properties) {
            if (!row->key.empty())
                rows.push_back(row);
        }
    }
    return rows;
}

/// `all`: also those that follow from others, in which the order of the writes may show.
Values valuesOf(const QWidget& form, bool all = true)
{
    Values values;
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        for (const core::PropertyRow* row : storedRows(widget->metaObject()->className())) {
            if (!all && row->access == core::Access::Derived)
                continue;
            const QVariant value = widget->property(std::string(row->name).c_str());
            const bool isEnumeration = core::kindName(row->field.kind).ends_with("_TYPE");
            values[widget->objectName().toStdString() + '.' + std::string(row->name)] =
                (isEnumeration ? QVariant(value.toInt()) : value).toString().toStdString();
        }
    }
    return values;
}

TEST(Designer, EveryReaderOfAFormEndsWithTheSameValues)
{
    const OpenForm form(example());
    form.set("level", "DeviceValue", 2345.0);
    form.set("level", "MaxValue", 4.0);
    form.set("level", "DeviceUnit", 0);
    const QString text = form.window->contents();
    const OpenForm reopened(text);
    EXPECT_EQ(valuesOf(*reopened.window, false), valuesOf(*form.window, false));
    const Values values = valuesOf(*reopened.window);
    ASSERT_GT(values.size(), 100U);

    QByteArray bytes = text.toUtf8();
    const auto load = [&](QUiLoader& loader) {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        return std::unique_ptr<QWidget>(loader.load(&buffer));
    };
    ZorUiLoader own;
    EXPECT_EQ(valuesOf(*load(own)), values);
    QUiLoader plain; // finds the plugin
    EXPECT_EQ(valuesOf(*load(plain)), values);

    platform::headless::HeadlessContainer container;
    forms::Form headless = forms::Form::parse(classes(), bytes.toStdString(), "f");
    Values here;
    for (std::size_t i = 0; i < headless.items().size(); ++i) {
        const auto& item = headless.items()[i];
        const core::ControlPtr<> control = item.info->create(container);
        control->initialiseProperties();
        headless.fill(i, *control);
        for (const core::PropertyRow* row : storedRows("zor::" + std::string(item.info->name.substr(4))))
            here[item.name + '.' + std::string(row->name)] =
                widgets::toQVariant(control->get(*row)).toString().toStdString();
    }
    EXPECT_TRUE(headless.notes().empty());
    EXPECT_EQ(here, values);
}

TEST(Designer, TheFormThatUicCompiledHasTheSameValues)
{
    QWidget window;
    Ui::Tank tank;
    tank.setupUi(&window);
    QByteArray bytes = example().toUtf8();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const std::unique_ptr<QWidget> loaded(ZorUiLoader().load(&buffer));
    EXPECT_EQ(valuesOf(window), valuesOf(*loaded));
    EXPECT_EQ(tank.level->MaxValue(), 20);
}

/// Opens "Device..." and works in the dialog while it is open.
void onPage(const OpenForm& form, const char* name, const std::function<void(QDialog&)>& work)
{
    auto* menu = qt_extension<QDesignerTaskMenuExtension*>(Editor::core().extensionManager(), form.widget(name));
    ASSERT_TRUE(menu) << name;
    ASSERT_TRUE(menu->preferredEditAction()) << name;
    EXPECT_EQ(menu->preferredEditAction()->text(), "Device...");
    EXPECT_TRUE(menu->taskActions().contains(menu->preferredEditAction()));
    bool worked = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        worked = true;
        work(*dialog);
        dialog->reject();
    });
    menu->preferredEditAction()->trigger();
    EXPECT_TRUE(worked) << name;
}

void press(QDialog& dialog, QDialogButtonBox::StandardButton button)
{
    dialog.findChild<QDialogButtonBox*>()->button(button)->click();
}

TEST(Designer, TheDevicePageOfEachControlIsInItsContextMenu)
{
    const OpenForm form(oneOfEach());
    const QString before = form.window->contents();
    for (const WidgetClass& widgetClass : widgetClasses())
        onPage(form, std::string(widgetClass.controlClass).c_str(),
               [](QDialog& dialog) { press(dialog, QDialogButtonBox::Ok); });
    EXPECT_EQ(form.window->contents(), before);
    EXPECT_FALSE(form.window->isDirty());
}

TEST(Designer, AChangeOnAPageIsOneStepThatCanBeTakenBack)
{
    const OpenForm form(oneOfEach());
    const QString before = form.window->contents();
    onPage(form, "ctx_ZorTextBox", [&](QDialog& dialog) {
        EXPECT_NE(qobject_cast<QLineEdit*>(dialog.focusWidget()), nullptr) << "the first field comes first";
        for (auto* box : dialog.findChildren<QComboBox*>()) {
            if (box->findText("Pressure") >= 0)
                box->setCurrentText("Pressure");
        }
        QTest::keyClicks(dialog.findChildren<QLineEdit*>().first(), "X&");
        press(dialog, QDialogButtonBox::Apply);
        EXPECT_TRUE(form.window->isDirty());
        EXPECT_EQ(form.window->commandHistory()->count(), 1);
    });
    const QString after = form.window->contents();
    for (const char* saved : {"<enum>zor::ZorWidget::PRESSURE</enum>", "<enum>zor::ZorWidget::PrU_Psi</enum>",
                              "<string notr=\"true\">X&amp;</string>"})
        EXPECT_TRUE(after.contains(saved)) << saved << '\n' << after.toStdString();
    EXPECT_FALSE(after.contains("MaxLength")) << "what was not changed is not stored";
    EXPECT_TRUE(after.contains("name=\"OutputUnit\""))
        << "a unit that a new control has is shown by none until then";
    form.window->commandHistory()->undo();
    EXPECT_EQ(form.window->contents(), before);
    form.window->commandHistory()->redo();
    EXPECT_EQ(form.window->contents(), after);

    const OpenForm fresh(oneOfEach());
    EXPECT_FALSE(fresh.window->contents().contains("name=\"OutputUnit\""));
    onPage(fresh, "ctx_ZorTextBox", [&](QDialog& dialog) {
        QTest::keyClicks(dialog.findChildren<QLineEdit*>().first(), "X");
        press(dialog, QDialogButtonBox::Apply);
    });
    EXPECT_TRUE(fresh.window->contents().contains("name=\"OutputUnit\""))
        << "no control shows one until it is written";
}

} // namespace
} // namespace zor::designer
