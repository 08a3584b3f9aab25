// Random hosts and operators: what always holds of the four controls for a choice.

#include <zor/controls/choice/check_box/ctx_ZorCheckBox.h>
#include <zor/controls/choice/combo_box/ctx_ZorComboBox.h>
#include <zor/controls/choice/list_box/ctx_ZorListBox.h>
#include <zor/controls/choice/option_button/ctx_ZorOptionButton.h>
#include <zor/platform/error.h>
#include <zor/platform/headless/container.h>
#include <zor/platform/headless/operator.h>
#include <zor/tests/random.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <string>
#include <vector>

namespace zor::tests {
namespace {

bool hasBit(std::int32_t value, int bit)
{
    return bit >= 0 && bit < 31 && ((static_cast<std::uint32_t>(value) >> bit) & 1U) != 0;
}

/// A control of a class on a headless form that runs, with an operator.
template <class Control, class Widget>
struct Rig {
    Rig()
    {
        control->initialiseProperties();
        container.setUserMode(true);
    }
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
    [[nodiscard]] bool isModified() const { return control->DataModified(); }
    [[nodiscard]] bool differs() const { return control->OutputValue() != control->DeviceValue(); }

    platform::headless::HeadlessContainer container;
    platform::headless::HeadlessOperator hands{container};
    core::ControlPtr<Control> control = Control::create(container);
    Widget& face = dynamic_cast<Widget&>(*control->widget(controls::kFace));
    std::mt19937 random;
};

/// Each class says what its entries are, what a device value looks like, and what the operator's act makes of it.
struct ComboBox : Rig<ctx_ZorComboBox, platform::ComboBox> {
    std::vector<std::int32_t> values;
    std::int32_t value() { return below(8) - 2; }
    void arrange()
    {
        const std::int32_t entry = value();
        if (below(3) != 0) {
            control->AddEnumEntry(std::to_string(entry), entry);
            values.push_back(entry);
            EXPECT_EQ(face.selectedText(), std::to_string(entry)) << "the newest entry shows";
        } else {
            control->RemoveEnumEntry(entry);
            if (const auto at = std::ranges::find(values, entry); at != values.end())
                values.erase(at);
        }
        EXPECT_EQ(static_cast<std::size_t>(face.count()), values.size());
    }
    [[nodiscard]] bool isKnown(std::int32_t wanted) const { return std::ranges::count(values, wanted) != 0; }
    void expectShown(std::int32_t wanted)
    {
        EXPECT_TRUE(values.empty() || control->InvalidValue() == !isKnown(wanted));
        if (isKnown(wanted)) {
            EXPECT_EQ(face.current(), std::ranges::find(values, wanted) - values.begin()) << "the first of equals";
        }
    }
    void operate(bool isLocked)
    {
        if (values.empty())
            return;
        const int index = below(static_cast<int>(values.size()));
        EXPECT_EQ(hands.choose(face, index) == platform::Refusal::Locked, isLocked);
        if (!isLocked) {
            EXPECT_EQ(control->OutputValue(), values[static_cast<std::size_t>(index)]);
            EXPECT_EQ(isModified(), differs());
        }
    }
};

struct ListBox : Rig<ctx_ZorListBox, platform::ListBox> {
    std::vector<int> bits;
    std::int32_t value() { return static_cast<std::int32_t>(random()); }
    void arrange()
    {
        bits.push_back(below(34) - 1);
        control->AddBitFieldEntry("bit", static_cast<std::int16_t>(bits.back()));
    }
    static bool isKnown(std::int32_t) { return true; }
    void expectShown(std::int32_t wanted)
    {
        for (std::size_t i = 0; i < bits.size(); ++i)
            EXPECT_EQ(face.isSelected(static_cast<int>(i)), hasBit(wanted, bits[i])) << "bit " << bits[i];
        EXPECT_EQ(control->SelCount(), std::ranges::count_if(bits, [&](int bit) { return hasBit(wanted, bit); }));
    }
    void operate(bool isLocked)
    {
        if (bits.empty())
            return;
        const int index = below(static_cast<int>(bits.size()));
        const int bit = bits[static_cast<std::size_t>(index)];
        const std::int32_t before = control->OutputValue();
        EXPECT_EQ(hands.toggle(face, index), platform::Refusal::None);
        const std::int32_t changed = before ^ control->OutputValue();
        if (!isLocked) {
            EXPECT_TRUE(changed == 0 ||
                        (hasBit(changed, bit) && std::has_single_bit(static_cast<std::uint32_t>(changed))));
            EXPECT_TRUE(bit < 0 || bit > 30 || face.isSelected(index) == hasBit(control->OutputValue(), bit));
            EXPECT_EQ(isModified(), differs());
        }
    }
};

struct CheckBox : Rig<ctx_ZorCheckBox, platform::CheckBox> {
    int bit = 0;
    std::int32_t value() { return static_cast<std::int32_t>(random()); }
    void arrange()
    {
        bit = below(34) - 1;
        control->BitFieldEntryIndex(static_cast<std::int16_t>(bit));
        control->DeviceValue(value());
    }
    static bool isKnown(std::int32_t) { return true; }
    void expectShown(std::int32_t wanted) { EXPECT_EQ(face.isOn(), hasBit(wanted, bit)); }
    void operate(bool isLocked)
    {
        const std::int32_t before = control->OutputValue();
        const bool wasOn = face.isOn();
        EXPECT_EQ(hands.press(face), platform::Refusal::None);
        if (isLocked)
            return;
        EXPECT_NE(face.isOn(), wasOn);
        EXPECT_EQ(isModified(), face.isOn() != hasBit(control->DeviceValue(), bit));
        const std::int32_t changed = before ^ control->OutputValue();
        EXPECT_TRUE(changed == 0 ||
                    (hasBit(changed, bit) && std::has_single_bit(static_cast<std::uint32_t>(changed))));
        EXPECT_TRUE(bit < 0 || bit > 30 || face.isOn() == hasBit(control->OutputValue(), bit));
    }
};

struct OptionButton : Rig<ctx_ZorOptionButton, platform::OptionButton> {
    std::int32_t entry = 0;
    std::int32_t value() { return below(4); }
    void arrange()
    {
        control->EnumEntryValue(entry = value());
        control->DeviceValue(value());
    }
    static bool isKnown(std::int32_t) { return true; }
    void expectShown(std::int32_t wanted) { EXPECT_EQ(face.isOn(), wanted == entry); }
    void operate(bool isLocked)
    {
        // A locked button that stands for the device's own value takes the press.
        if (isLocked && entry == control->DeviceValue())
            return;
        const bool wasOn = face.isOn();
        EXPECT_EQ(hands.press(face), platform::Refusal::None);
        if (isLocked) {
            EXPECT_EQ(face.isOn(), control->OutputValue() == entry);
        } else if (!wasOn) {
            EXPECT_EQ(control->OutputValue(), entry);
            EXPECT_EQ(isModified(), differs());
        }
    }
};

template <class Choice>
void act(Choice& choice)
{
    auto& control = *choice.control;
    const bool isLocked = control.ReadOnly() || control.CFail();
    const std::int32_t value = choice.value();
    switch (choice.below(7)) {
    case 0: choice.arrange(); break;
    case 1:
        control.DeviceValue(value);
        EXPECT_EQ(control.DeviceValue(), value);
        EXPECT_EQ(control.OutputValue(), value);
        EXPECT_FALSE(control.DataModified());
        choice.expectShown(value);
        break;
    case 2:
        control.ModifiedValue(value);
        EXPECT_EQ(control.OutputValue(), value);
        break;
    case 3: {
        choice.hands.pointer(control.surface(), platform::Pointer::RightClick);
        EXPECT_EQ(control.menu()->isOpen(), !isLocked);
        const bool isModified = control.DataModified();
        if (choice.hands.chooseItem(*control.menu(), 0) == platform::Refusal::None && isModified) {
            EXPECT_EQ(control.OutputValue(), control.DeviceValue());
            EXPECT_TRUE(!control.DataModified() || !choice.isKnown(control.DeviceValue()));
        }
        break;
    }
    case 4:
        control.ReadOnly(choice.below(3) == 0);
        control.CFail(choice.below(4) == 0);
        break;
    default: {
        const std::int32_t output = control.OutputValue();
        const bool isModified = control.DataModified();
        choice.operate(isLocked);
        if (isLocked) {
            EXPECT_EQ(control.OutputValue(), output);
            EXPECT_EQ(control.DataModified(), isModified);
        }
    }
    }
}

template <class Choice>
class ChoiceProperties : public testing::Test {};
using Choices = testing::Types<ComboBox, ListBox, CheckBox, OptionButton>;
TYPED_TEST_SUITE(ChoiceProperties, Choices);

TYPED_TEST(ChoiceProperties, HoldInRandomHistories)
{
    Random random;
    for (unsigned i = 0; i < 100 && !this->HasFailure(); ++i) {
        TypeParam choice;
        choice.random.seed(random());
        for (int step = 0; step < 60 && !this->HasFailure(); ++step)
            act(choice);
    }
}

// --- Full lists

template <class Add>
int errorOf(Add&& add)
{
    try {
        add();
    } catch (const RunTimeError& error) {
        return static_cast<int>(error.number());
    }
    return 0;
}

constexpr int kMost = 32'767;

TEST(FullList, OfAComboBoxRefusesOneMore)
{
    ComboBox full;
    for (int i = 0; i < kMost; ++i)
        full.control->AddEnumEntry("entry", i);
    EXPECT_EQ(errorOf([&] { full.control->AddEnumEntry("one more", -1); }), 6);
    EXPECT_TRUE(full.control->GetEnumEntryCount() == Variant(kMost));
    EXPECT_EQ(full.control->GetEnumEntryText(-1), "ERROR");
    EXPECT_EQ(full.control->OutputValue(), kMost - 1);
}

TEST(FullList, OfAListBoxIsAppliedWhoeverMayChoose)
{
    ListBox full;
    for (int i = 0; i < kMost; ++i)
        full.control->AddBitFieldEntry("entry", 0);
    EXPECT_EQ(errorOf([&] { full.control->AddBitFieldEntry("one more", 1); }), 6);
    full.control->DeviceValue(1);
    EXPECT_EQ(full.control->SelCount(), kMost);
    // Marks that nobody may change must not be undone one by one.
    full.control->ReadOnly(true);
    full.control->DeviceValue(0);
    EXPECT_EQ(full.control->SelCount(), 0);
}

} // namespace
} // namespace zor::tests
