#pragma once

#include <zor/controls/registration.h>
#include <zor/monitor/ui/settings_dialog.h>
#include <zor/monitor/ui/window.h>
#include <zor/tests/monitor/files.h>
#include <zor/tests/monitor/times.h>

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace zor::tests {

using namespace zor::monitor;

inline ParameterFile demoFile()
{
    return readParameterFile(textIn(":/monitor/demo.json").toStdString(), "demo.json");
}

struct Demo : testing::Test {
    /// With the form of a file, or else a generated one.
    explicit Demo(const char* drawn = nullptr, ParameterFile parameters = demoFile()) : file(std::move(parameters))
    {
        registerControls(classes);
        languages.use("en");
        DeviceEntry entry;
        entry.period = kPeriod;
        auto own = std::make_unique<Device>(entry, file);
        std::unique_ptr<Form> form;
        if (drawn != nullptr)
            form = std::make_unique<UiForm>(drawn, classes);
        else
            form = std::make_unique<GeneratedForm>(own->session().file(), classes);
        window = std::make_unique<Window>(std::make_unique<DevicePanel>(std::move(own), std::move(form)),
                                          languages, classes);
        window->show();
        window->front().device().start();
        EXPECT_TRUE(untilLive());
    }
    ~Demo() override
    {
        window.reset();
        languages.use("en");
    }

    Simulator& device() { return *window->front().device().simulator(); }
    Binding& binding(std::string_view tag)
    {
        const auto all = window->session().bindings();
        return **std::ranges::find_if(all, [&](const auto& bound) { return bound->control().DeviceTag() == tag; });
    }
    /// Every control that the operator sees.
    template <class Condition>
    bool all(Condition condition)
    {
        return std::ranges::all_of(window->session().bindings(), [&](const auto& bound) {
            return !isInSight(bound->control()) || condition(bound->control());
        });
    }
    bool untilLive()
    {
        return QTest::qWaitFor(
            [&] { return all([](core::Control& c) { return !c.CFail() && !c.WaitingForData(); }); }, kPatience);
    }
    void open(int tab)
    {
        window->form().tabs()->setCurrentIndex(tab);
        EXPECT_TRUE(untilLive());
    }
    platform::TextField& field(std::string_view tag)
    {
        return dynamic_cast<platform::TextField&>(*binding(tag).control().widget(1));
    }
    void type(std::string_view tag, const QString& text)
    {
        QWidget& edit = platform::qt::widgetOf(field(tag));
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&edit, text);
    }
    /// Whether a label that can be seen has the text in it.
    bool says(const QString& text)
    {
        const auto labels = window->findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&](QLabel* l) { return l->isVisible() && l->text().contains(text); });
    }
    QAbstractButton* button(QWidget& dialog, const QString& text)
    {
        const auto buttons = dialog.findChildren<QAbstractButton*>();
        const auto found = std::ranges::find_if(buttons, [&](auto* one) { return one->text() == text; });
        return found == buttons.end() ? nullptr : *found;
    }

    core::ClassRegistry classes;
    Languages languages;
    const ParameterFile file;
    std::unique_ptr<Window> window;
};

} // namespace zor::tests
