// What a host writes to the device: each value that the operator hands over, once, and nothing else.

#include <zor/controls.h>
#include <zor/headless.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace zor::tests {
namespace {

using platform::headless::HeadlessContainer;
using platform::headless::HeadlessOperator;

struct Written final : core::EventSink {
    explicit Written(core::Control& control) : commits(control) { control.subscribe(*this); }
    void event(core::Control& /*control*/, const core::EventRow& row, platform::EventArgs /*args*/) override
    {
        if (const auto value = row.name == "OutputValueChange" ? commits.take() : std::nullopt)
            values.push_back(value->toDouble());
    }
    std::vector<double> taken() { return std::exchange(values, {}); }

    core::CommitFilter commits;
    std::vector<double> values;
};
using Values = std::vector<double>;

TEST(CommitFilters, HandOverAnEntryOnceItsTakingBackAndAFailedOneAgain)
{
    HeadlessContainer form;
    form.setUserMode(true);
    const auto box = ctx_ZorTextBox::create(form);
    box->initialiseProperties();
    box->InvalidEntryEnable(false);
    HeadlessOperator hands(form);
    auto& field = dynamic_cast<platform::TextField&>(*box->widget(ctx_ZorTextBox::txt_TextBox));
    Written written(*box);
    const auto enter = [&](std::string_view text) {
        hands.select(field, 0, field.text().size());
        hands.type(field, text);
        hands.blur(field);
    };
    box->DeviceValue(12346); // shown as 1234.6
    enter("");
    EXPECT_EQ(written.taken(), Values()) << "who only passes through";
    enter("50");
    enter("");
    enter("50");
    EXPECT_EQ(written.taken(), Values{500});
    written.commits.forget();
    enter("");
    EXPECT_EQ(written.taken(), Values{500}) << "the write has failed";
    enter("1234.6");
    EXPECT_EQ(written.taken(), Values{12346}) << "taken back before the device has confirmed anything";
    box->DeviceValue(12346);
    box->ModifiedValue(70);
    EXPECT_EQ(written.taken(), Values()) << "the host's own doing";
    box->unsubscribe(written);
}

TEST(CommitFilters, KnowASlidersFirstMoveThoughItIsNotMarkedYet)
{
    HeadlessContainer form;
    form.setUserMode(true);
    const auto slider = ctx_ZorSlider::create(form);
    slider->initialiseProperties();
    slider->DeviceValue(30);
    Written written(*slider);
    HeadlessOperator(form).moveTo(dynamic_cast<platform::Track&>(*slider->widget(ctx_ZorSlider::sld_Slider)), 5);
    EXPECT_EQ(written.taken(), Values{50});
    slider->unsubscribe(written);
}

} // namespace
} // namespace zor::tests
