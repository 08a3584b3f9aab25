#pragma once

#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/memory_bag.h>
#include <zor/platform/headless/operator.h>
#include <zor/tests/error_of.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zor::tests {

/// A text box on a headless form that runs.
class TextBoxTest : public testing::Test {
protected:
    TextBoxTest()
    {
        box->initialiseProperties();
        container.setUserMode(true);
    }

    [[nodiscard]] platform::TextField& field() { return dynamic_cast<platform::TextField&>(*box->widget(1)); }
    [[nodiscard]] std::string text() { return field().text(); }

    platform::headless::HeadlessContainer container;
    platform::headless::HeadlessOperator hands{container};
    core::ControlPtr<ctx_ZorTextBox> box = ctx_ZorTextBox::create(container);
};

} // namespace zor::tests
