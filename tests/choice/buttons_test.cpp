// Check box and option button against models that know nothing of widgets.

#include "controls/choice/check_box/ctx_ZorCheckBox.h"
#include "controls/choice/option_button/ctx_ZorOptionButton.h"
#include "tests/choice/choice_rig.h"

#include <utility>

namespace zor::tests {
namespace {

constexpr int kSteps = 4000;

// --- Check box

struct CheckModel {
    int bit = 0;
    bool checked = false;
    bool loaded = false;
    std::int32_t deviceValue = 0;
    std::int32_t output = 0;
    bool modified = false;
    bool locked = false;
    Texts events;

    [[nodiscard]] std::uint32_t mask() const { return bit >= 0 && bit <= 30 ? 1U << bit : 0U; }
    [[nodiscard]] bool has(std::int32_t value) const { return (static_cast<std::uint32_t>(value) & mask()) != 0; }
    void changeTo(bool on)
    {
        if (std::exchange(checked, on) != on)
            click();
    }
    void click()
    {
        if (locked)
            return;
        modified = checked != loaded;
        events.emplace_back(modified ? "DataModifiedSetTrue" : "DataModifiedReset");
        const auto bits = static_cast<std::uint32_t>(output) & ~mask();
        output = static_cast<std::int32_t>(checked ? bits | mask() : bits);
        events.emplace_back("OutputValueChange");
        events.emplace_back("CheckClick");
    }
    void set(std::int32_t value)
    {
        output = value;
        events.emplace_back("OutputValueChange");
    }
    void device(std::int32_t value)
    {
        deviceValue = value;
        loaded = has(value);
        changeTo(loaded);
        set(value);
        modified = false;
    }
    void choice(std::int32_t value)
    {
        changeTo(has(value));
        if (locked)
            modified = checked != loaded;
        set(value);
    }
    /// The operator's press of a locked box leaves it as the device has it.
    void press() { changeTo(locked ? loaded : !checked); }
    void undo()
    {
        if (!modified)
            return;
        if (checked == loaded)
            click();
        else
            changeTo(loaded);
        set(deviceValue);
    }
    [[nodiscard]] std::string state() const { return onOff(checked) + std::to_string(output) + onOff(modified); }
};

class CheckBoxRun : public RandomRun<ctx_ZorCheckBox, CheckModel> {
protected:
    [[nodiscard]] platform::CheckBox& box()
    {
        return dynamic_cast<platform::CheckBox&>(*control->widget(controls::kFace));
    }
    std::string step()
    {
        const std::int32_t value = pick(0, 1) == 0 ? pick(0, 15) : static_cast<std::int32_t>(random());
        switch (pick(0, 7)) {
        case 0:
            model.bit = pick(-1, 4) == -1 ? pick(-3, 33) : pick(0, 3);
            control->BitFieldEntryIndex(static_cast<std::int16_t>(model.bit));
            return "bit " + std::to_string(model.bit);
        case 1:
        case 2:
            control->DeviceValue(value);
            model.device(value);
            return "device " + std::to_string(value);
        case 3:
            control->ModifiedValue(value);
            model.choice(value);
            return "modified " + std::to_string(value);
        case 4: undo(); return "undo";
        case 5: setReadOnly(pick(0, 2) == 0); return "lock" + onOff(model.locked);
        default:
            EXPECT_EQ(hands.press(box()), platform::Refusal::None);
            model.press();
            return "press";
        }
    }
};

TEST_F(CheckBoxRun, TellsTheSameAsItsModel)
{
    compare(
        kSteps, [&] { return step(); },
        [&] {
            return onOff(box().isOn()) + std::to_string(control->OutputValue()) + onOff(control->DataModified());
        });
}

// --- Option button

struct OptionModel {
    std::int32_t entry = 0;
    std::int32_t enumValue = 0;
    std::int32_t deviceValue = 0;
    std::int32_t output = 0;
    bool selected = true; // a new button stands for 0, and 0 is what it was given
    bool isEntryNew = true;
    bool modified = false;
    bool locked = false;
    Texts events;

    /// What a button that becomes selected, or is pressed, does.
    void click()
    {
        if (locked && entry != deviceValue) {
            selected = output == entry;
            return;
        }
        output = selected ? entry : enumValue;
        modified = output != deviceValue;
        if (modified)
            events.emplace_back("DataModifiedSetTrue");
        events.emplace_back("OptionClick");
        if (selected)
            events.emplace_back("OutputValueChange");
    }
    /// Whether a value selects the button anew.
    bool select(bool on)
    {
        const bool isAnew = !selected || isEntryNew;
        isEntryNew = false;
        selected = on;
        return on && isAnew;
    }
    void apply(std::int32_t value)
    {
        enumValue = value;
        const bool stays = selected && value == entry;
        const bool isAnew = select(value == entry);
        output = value;
        modified = stays && !locked && value != deviceValue;
        if (isAnew)
            click();
    }
    void choice(std::int32_t value)
    {
        const bool isAnew = select(value == entry);
        if (!selected)
            modified = false;
        output = value;
        if (isAnew)
            click();
    }
    void undo()
    {
        const bool was = std::exchange(selected, deviceValue == entry);
        if (selected && !was)
            click();
        output = deviceValue;
        modified = false;
    }
    void press()
    {
        if (!std::exchange(selected, true))
            click();
    }
    [[nodiscard]] std::string state() const { return onOff(selected) + std::to_string(output) + onOff(modified); }
};

class OptionButtonRun : public RandomRun<ctx_ZorOptionButton, OptionModel> {
protected:
    [[nodiscard]] platform::OptionButton& button()
    {
        return dynamic_cast<platform::OptionButton&>(*control->widget(controls::kFace));
    }
    std::string step()
    {
        const std::int32_t value = pick(0, 3);
        const auto text = [&](std::string_view what) { return std::string(what) + std::to_string(value); };
        switch (pick(0, 8)) {
        case 0:
            control->EnumEntryValue(value);
            model.entry = value;
            model.isEntryNew = true;
            return text("entry ");
        case 1:
        case 2:
            control->DeviceValue(value);
            model.deviceValue = value;
            model.apply(value);
            return text("device ");
        case 3:
            control->EnumValue(value);
            model.apply(value);
            return text("enum ");
        case 4:
            control->ModifiedValue(value);
            model.choice(value);
            return text("modified ");
        case 5: undo(); return "undo";
        case 6: setReadOnly(pick(0, 2) == 0); return "lock" + onOff(model.locked);
        default:
            EXPECT_EQ(hands.press(button()), platform::Refusal::None);
            model.press();
            return "press";
        }
    }
};

TEST_F(OptionButtonRun, TellsTheSameAsItsModel)
{
    compare(
        kSteps, [&] { return step(); },
        [&] {
            return onOff(button().isOn()) + std::to_string(control->OutputValue()) +
                   onOff(control->DataModified());
        });
}

} // namespace
} // namespace zor::tests
