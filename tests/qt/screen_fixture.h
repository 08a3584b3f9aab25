#pragma once

#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/qt/container.h>

#include <QApplication>
#include <QLineEdit>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zor::tests {

/// A form on the screen with controls on it, and another field that has the focus; events and boxes are written
/// down.
class ScreenTest : public testing::Test, public core::EventSink {
protected:
    ScreenTest()
    {
        form.resize(600, 300);
        form.show();
        other.move(0, 250);
        other.show();
        QApplication::setActiveWindow(&form);
        other.setFocus();
        container.setUserMode(true);
        container.onMessage = [this](platform::Component&, const platform::MessageBox& box) {
            boxes.emplace_back(box.text);
        };
    }
    void event(core::Control&, const core::EventRow& row, platform::EventArgs) override
    {
        events.append(events.empty() ? "" : " ").append(row.name);
    }
    template <class T>
    core::ControlPtr<T> make()
    {
        core::ControlPtr<T> control = T::create(container);
        control->initialiseProperties();
        control->subscribe(static_cast<core::EventSink&>(*this));
        return control;
    }
    /// A constituent widget; number 1 is the field, list or caption.
    static QWidget& part(core::Control& control, int number = 1)
    {
        return platform::qt::widgetOf(*control.widget(number));
    }

    QWidget form;
    QLineEdit other{&form};
    platform::qt::QtContainer container{form, core::pictureData};
    std::string events;
    std::vector<std::string> boxes;
};

} // namespace zor::tests
