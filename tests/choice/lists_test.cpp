// Combo box and list box against models that know nothing of widgets.

#include "controls/choice/combo_box/ctx_ZorComboBox.h"
#include "controls/choice/list_box/ctx_ZorListBox.h"
#include "platform/error.h"
#include "tests/choice/choice_rig.h"

namespace zor::tests {
namespace {

constexpr int kSteps = 4000;

// --- Combo box

struct ComboModel {
    std::vector<std::int32_t> values;
    std::int32_t current = -1;
    std::int32_t output = 0;
    std::int32_t reference = 0;
    bool modified = false;
    bool invalid = false;
    bool locked = false;
    Texts events;

    [[nodiscard]] std::int32_t find(std::int32_t value) const
    {
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (values[i] == value)
                return static_cast<std::int32_t>(i);
        }
        return -1;
    }
    void click()
    {
        output = values[static_cast<std::size_t>(current)];
        modified = output != reference;
        if (modified)
            events.emplace_back("DataModifiedSetTrue");
        events.emplace_back("OutputValueChange");
        events.emplace_back("ComboClick");
    }
    void select(std::int32_t value)
    {
        if (values.empty())
            return;
        const std::int32_t at = find(value);
        invalid = at < 0;
        if (invalid)
            events.emplace_back("InvalidValueSetTrue");
        else if (std::exchange(current, at) != at)
            click();
    }
    void set(std::int32_t value)
    {
        output = value;
        events.emplace_back("OutputValueChange");
    }
    void device(std::int32_t value)
    {
        reference = value;
        select(value);
        set(value);
        modified = false;
    }
    void undo()
    {
        if (!modified)
            return;
        if (!values.empty() && find(reference) == current && current >= 0) {
            invalid = false;
            click();
        } else {
            select(reference);
        }
        set(reference);
    }
    void remove(std::int32_t value)
    {
        const std::int32_t at = find(value);
        if (at < 0)
            return;
        values.erase(values.begin() + at);
        current = at == current ? -1 : at < current ? current - 1 : current;
    }
    [[nodiscard]] std::string state() const
    {
        return std::to_string(current) + '/' + std::to_string(output) + onOff(modified) + onOff(invalid);
    }
};

class ComboBoxRun : public RandomRun<ctx_ZorComboBox, ComboModel> {
protected:
    std::string step()
    {
        auto& combo = dynamic_cast<platform::ComboBox&>(*control->widget(controls::kFace));
        const std::int32_t value = pick(-2, 6);
        const auto text = [&](std::string_view what) { return std::string(what) + std::to_string(value); };
        switch (pick(0, 9)) {
        case 0:
        case 1:
            control->AddEnumEntry(text("entry "), value);
            model.values.push_back(value);
            model.current = static_cast<std::int32_t>(model.values.size()) - 1;
            model.output = value;
            return text("add ");
        case 2:
            control->RemoveEnumEntry(value);
            model.remove(value);
            return text("remove ");
        case 3:
        case 4:
            control->DeviceValue(value);
            model.device(value);
            return text("device ");
        case 5:
            control->ModifiedValue(value);
            model.select(value);
            model.set(value);
            return text("modified ");
        case 6:
        case 7: return choose(combo, value);
        case 8: undo(); return "undo";
        default: setReadOnly(pick(0, 3) == 0); return "lock" + onOff(model.locked);
        }
    }
    std::string choose(platform::ComboBox& combo, std::int32_t index)
    {
        if (index < 0 || index >= combo.count()) {
            if (pick(0, 9) == 0) {
                control->ClearEnumList();
                model.values.clear();
                model.current = -1;
                return "clear";
            }
            return "nothing";
        }
        const platform::Refusal refusal = hands.choose(combo, index);
        EXPECT_EQ(refusal == platform::Refusal::Locked, model.locked);
        if (!model.locked) {
            model.current = index;
            model.click();
        }
        return "choose " + std::to_string(index);
    }
};

TEST_F(ComboBoxRun, TellsTheSameAsItsModel)
{
    compare(
        kSteps, [&] { return step(); },
        [&] {
            const auto& combo = dynamic_cast<platform::ComboBox&>(*control->widget(controls::kFace));
            return std::to_string(combo.current()) + '/' + std::to_string(control->OutputValue()) +
                   onOff(control->DataModified()) + onOff(control->InvalidValue());
        });
}

// --- List box

struct ListModel {
    struct Entry {
        int bit;
        bool marked;
    };
    std::vector<Entry> entries;
    std::size_t current = 0;
    bool hasCurrent = false;
    std::int32_t output = 0;
    std::int32_t reference = 0;
    bool modified = false;
    bool locked = false;
    Texts events;

    static bool has(std::int32_t value, int bit)
    {
        return bit >= 0 && bit < 31 && ((static_cast<std::uint32_t>(value) >> bit) & 1U) != 0;
    }
    void click()
    {
        if (locked)
            return;
        const auto [bit, marked] = entries[current];
        if (bit >= 0 && bit < 31 && has(output, bit) != marked)
            output ^= std::int32_t{1} << bit;
        events.emplace_back("OutputValueChange");
        modified = output != reference;
        if (modified)
            events.emplace_back("DataModifiedSetTrue");
        events.emplace_back("ListClick");
    }
    void mark(std::int32_t value)
    {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (entries[i].marked == has(value, entries[i].bit))
                continue;
            entries[i].marked = !entries[i].marked;
            current = i;
            hasCurrent = true;
            click();
        }
        if (entries.empty() || (hasCurrent && current == 0))
            return;
        hasCurrent = true;
        current = 0;
        click();
    }
    void set(std::int32_t value)
    {
        output = value;
        events.emplace_back("OutputValueChange");
    }
    void device(std::int32_t value)
    {
        reference = output = value;
        mark(value);
        set(value);
        modified = false;
    }
    void choice(std::int32_t value)
    {
        mark(value);
        set(value);
        modified = output != reference;
    }
    void undo()
    {
        if (modified)
            choice(reference);
    }
    void toggle(std::size_t index)
    {
        if (locked)
            return mark(output);
        entries[index].marked = !entries[index].marked;
        current = index;
        hasCurrent = true;
        click();
    }
    [[nodiscard]] std::string state() const
    {
        std::string text =
            (hasCurrent ? std::to_string(current) : "-1") + '/' + std::to_string(output) + onOff(modified) + '/';
        for (const Entry& entry : entries)
            text += onOff(entry.marked);
        return text;
    }
};

class ListBoxRun : public RandomRun<ctx_ZorListBox, ListModel> {
protected:
    [[nodiscard]] platform::ListBox& list()
    {
        return dynamic_cast<platform::ListBox&>(*control->widget(controls::kFace));
    }
    std::string add()
    {
        const int bit = pick(-1, 32);
        if (model.entries.size() == 12) {
            control->ClearBitFieldList();
            model.entries.clear();
            model.hasCurrent = false;
            return "clear";
        }
        control->AddBitFieldEntry("bit", static_cast<std::int16_t>(bit));
        model.entries.push_back({bit, false});
        return "add " + std::to_string(bit);
    }
    std::string toggle()
    {
        if (model.entries.empty())
            return "nothing";
        const std::int32_t index = pick(0, list().count() - 1);
        // What a locked operator does comes to nothing, but it brings the list back to its first entry.
        if (model.locked)
            model.hasCurrent = false;
        EXPECT_EQ(hands.toggle(list(), index), platform::Refusal::None);
        model.toggle(static_cast<std::size_t>(index));
        return "toggle " + std::to_string(index);
    }
    std::string step()
    {
        const std::int32_t value = static_cast<std::int32_t>(random());
        switch (pick(0, 7)) {
        case 0: return add();
        case 1:
            control->DeviceValue(value);
            model.device(value);
            return "device " + std::to_string(value);
        case 2:
            control->ModifiedValue(value);
            model.choice(value);
            return "modified " + std::to_string(value);
        case 3: undo(); return "undo";
        case 4: setReadOnly(pick(0, 2) == 0); return "lock" + onOff(model.locked);
        default: return toggle();
        }
    }
};

TEST_F(ListBoxRun, TellsTheSameAsItsModel)
{
    compare(
        kSteps, [&] { return step(); },
        [&] {
            std::string text = std::to_string(list().current()) + '/' + std::to_string(control->OutputValue()) +
                               onOff(control->DataModified()) + '/';
            int marked = 0;
            for (std::int32_t i = 0; i < list().count(); ++i) {
                text += onOff(list().isSelected(i));
                marked += list().isSelected(i) ? 1 : 0;
            }
            EXPECT_EQ(control->SelCount(), marked);
            return text;
        });
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

TEST_F(ComboBoxRun, AFullListRefusesOneMore)
{
    for (int i = 0; i < 32'767; ++i)
        control->AddEnumEntry("entry", i);
    const std::int32_t output = control->OutputValue();
    EXPECT_EQ(errorOf([&] { control->AddEnumEntry("one more", -1); }), 6);
    EXPECT_TRUE(control->GetEnumEntryCount() == Variant(32'767));
    EXPECT_EQ(control->GetEnumEntryText(-1), "ERROR");
    EXPECT_EQ(control->OutputValue(), output);
    EXPECT_EQ(control->SelectedText(), "entry");
}

TEST_F(ListBoxRun, AFullListIsAppliedWhoeverMayChoose)
{
    for (int i = 0; i < 32'767; ++i)
        control->AddBitFieldEntry("entry", 0);
    EXPECT_EQ(errorOf([&] { control->AddBitFieldEntry("one more", 1); }), 6);
    EXPECT_TRUE(control->GetBitFieldEntryCount() == Variant(32'767));
    control->DeviceValue(1);
    EXPECT_EQ(control->SelCount(), 32'767);
    // Marks that nobody may change must not be undone one by one.
    control->ReadOnly(true);
    control->DeviceValue(0);
    EXPECT_EQ(control->SelCount(), 0);
}

} // namespace
} // namespace zor::tests
