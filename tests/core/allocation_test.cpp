// The value path of a control allocates nothing: ten thousand controls are refreshed many times a second.

#include <zor/controls/choice/check_box/ctx_ZorCheckBox.h>
#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>
#include <zor/controls/choice/list_box/ctx_ZorListBox.h>
#include <zor/controls/choice/option_button/ctx_ZorOptionButton.h>
#include <zor/controls/display/image/ctx_ZorImage.h>
#include <zor/controls/display/label/ctx_ZorLabel.h>
#include <zor/controls/numeric/slider/ctx_ZorSlider.h>
#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/controls/numeric/up_down/ctx_ZorUpDown.h>
#include <zor/platform/headless/container.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <new>
#include <type_traits>

namespace {

bool counting = false;
int allocations = 0;

void* allocate(std::size_t size)
{
    if (counting)
        ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace zor::tests {
namespace {

/// Writes a hundred values; how often that allocates.
template <class Write>
int allocationsOfWrites(Write&& write)
{
    allocations = 0;
    counting = true;
    for (int i = 0; i < 100; ++i)
        write(i);
    counting = false;
    return allocations;
}

template <class Interface>
struct Listener : Interface {
    void OutputValueChange() override { ++outputs; }
    int outputs = 0;
};

/// A class of numeric controls, its events, and what shows that a value arrives in another unit and leaves anew.
template <class Control, class Interface>
void expectNoAllocation(const char* name, double scale)
{
    SCOPED_TRACE(name);
    platform::headless::HeadlessContainer container;
    const auto control = Control::create(container);
    control->initialiseProperties();
    control->MaxValue(1e6);
    control->OutputUnit(LgthU_Mtr);
    Listener<Interface> listener;
    control->subscribe(listener);
    using Value = std::remove_cvref_t<decltype(control->DeviceValue())>;
    const auto write = [&](double value) {
        if constexpr (std::is_same_v<Value, std::int32_t>)
            control->DeviceValue(static_cast<std::int32_t>(value));
        else
            control->DeviceValue(value);
    };
    write(1.0);
    const int before = listener.outputs;
    EXPECT_EQ(allocationsOfWrites([&](int i) { write(scale * i); }), 0);
    EXPECT_GE(listener.outputs, before + 100);
    control->unsubscribe(listener);
}

/// A choice control, with what it takes for each value to change what it shows.
template <class Control, class Prepare>
void expectNoAllocationOfChoice(const char* name, Prepare&& prepare)
{
    SCOPED_TRACE(name);
    platform::headless::HeadlessContainer container;
    const auto control = Control::create(container);
    control->initialiseProperties();
    prepare(*control);
    EXPECT_EQ(allocationsOfWrites([&](int i) { control->DeviceValue(i % 2); }), 0);
}

TEST(ValuePath, ShowsAChoiceWithoutAllocation)
{
    expectNoAllocationOfChoice<ctx_ZorComboBox>("combo box", [](auto& box) {
        box.AddEnumEntry("no", 0);
        box.AddEnumEntry("yes", 1);
    });
    expectNoAllocationOfChoice<ctx_ZorListBox>("list box", [](auto& box) { box.AddBitFieldEntry("bit", 0); });
    expectNoAllocationOfChoice<ctx_ZorCheckBox>("check box", [](auto& box) { box.CheckBoxCaption("bit"); });
    expectNoAllocationOfChoice<ctx_ZorOptionButton>("option button",
                                                    [](auto& button) { button.EnumEntryValue(1); });
}

TEST(ValuePath, ShowsAValueAndHandsItBackWithoutAllocation)
{
    expectNoAllocation<ctx_ZorTextBox, __ctx_ZorTextBox>("text box", 12345.25);
    expectNoAllocation<ctx_ZorUpDown, __ctx_ZorUpDown>("up-down", 20'000'000);
    expectNoAllocation<ctx_ZorSlider, __ctx_ZorSlider>("slider", 12345.25);
    EXPECT_EQ(
        allocationsOfWrites([](int i) { ::operator delete(::operator new(static_cast<std::size_t>(i) + 1)); }),
        100)
        << "the counter counts";
}

TEST(ValuePath, ShowsATextAndAStatusWordWithoutAllocation)
{
    platform::headless::HeadlessContainer container;
    const auto label = ctx_ZorLabel::create(container);
    label->initialiseProperties();
    const auto image = ctx_ZorImage::create(container);
    image->initialiseProperties();
    // A new state is described to a screen reader once; after that it is values only.
    image->DeviceValue(1);
    EXPECT_EQ(allocationsOfWrites([&](int i) {
                  label->DeviceValue(i % 2 == 0 ? "12.5 m" : "12.6 m");
                  image->DeviceValue(i + 1);
              }),
              0);
    EXPECT_EQ(label->LabelCaption(), "12.6 m");
    EXPECT_EQ(dynamic_cast<platform::Image&>(*image->widget(1)).picture(), 5);
}

} // namespace
} // namespace zor::tests
