#include <zor/monitor/data/codec.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/data/parameter_rules.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zor::monitor {
namespace {

/// What a parameter is to a control; some are several of them.
enum Kind : unsigned {
    kNumber = 1, ///< neither entries nor names of bits
    kWord = 2,   ///< an integer as the register holds it, of which the bits may count
    kText = 4,
    kSingleBit = 8,
    kChoice = 16,   ///< has entries
    kBitField = 32, ///< has names of bits
};

struct ControlRow {
    std::string_view name;
    unsigned kinds;      ///< those that it can show
    const char* wants;   ///< for the message
    bool counts = false; ///< in whole steps from limit to limit
};

constexpr std::array kControls{
    ControlRow{"ctx_ZorTextBox", kNumber | kText | kChoice, QT_TRANSLATE_NOOP("texts", "a number or a text")},
    ControlRow{"ctx_ZorUpDown", kNumber, QT_TRANSLATE_NOOP("texts", "a number"), true},
    ControlRow{"ctx_ZorSlider", kNumber, QT_TRANSLATE_NOOP("texts", "a number"), true},
    ControlRow{"ctx_ZorComboBox", kChoice, QT_TRANSLATE_NOOP("texts", "entries")},
    ControlRow{"ctx_ZorOptionButton", kChoice, QT_TRANSLATE_NOOP("texts", "entries")},
    ControlRow{"ctx_ZorListBox", kBitField, QT_TRANSLATE_NOOP("texts", "bits")},
    ControlRow{"ctx_ZorCheckBox", kSingleBit, QT_TRANSLATE_NOOP("texts", "a bit")},
    ControlRow{"ctx_ZorImage", kBitField | kWord,
               QT_TRANSLATE_NOOP("texts", "bits or an integer without scale and unit")},
    ControlRow{"ctx_ZorLabel", kNumber | kText | kSingleBit | kChoice | kBitField, ""},
};

unsigned kindsOf(const Parameter& parameter)
{
    if (parameter.location.type == ValueType::Text)
        return kText;
    unsigned kinds = parameter.location.type == ValueType::Bit ? kSingleBit : 0U;
    if (!parameter.entries.empty())
        return kinds | kChoice;
    if (!parameter.bits.empty())
        return kinds | kBitField;
    if (kinds == 0)
        kinds = kNumber;
    const bool plain = parameter.scale == 1 && parameter.unit == NoneU;
    return isInteger(parameter.location.type) && plain ? kinds | kWord : kinds;
}

bool isWhole(double number) { return number == std::floor(number); }

void checkCounting(const Parameter& parameter, const Value& control)
{
    const Appearance& appearance = parameter.appearance;
    const std::string& name = appearance.control;
    if (!appearance.minimum || !appearance.maximum)
        control.fail(QT_TRANSLATE_NOOP("texts", "a %1 needs a minimum and a maximum"), {name});
    const bool whole = isInteger(parameter.location.type) && isWhole(parameter.scale) &&
                       appearance.unit == parameter.unit && isWhole(*appearance.minimum) &&
                       isWhole(*appearance.maximum);
    if (!whole)
        control.fail(
            QT_TRANSLATE_NOOP("texts", "a %1 shows whole numbers only, without another unit than the device's"),
            {name});
    if (*appearance.minimum < INT32_MIN || *appearance.maximum > INT32_MAX)
        control.fail(QT_TRANSLATE_NOOP("texts", "a %1 reaches from -2147483648 to 2147483647"), {name});
}

void checkControl(const Parameter& parameter, const Value& control)
{
    const auto* const row = std::ranges::find(kControls, parameter.appearance.control, &ControlRow::name);
    if (row == kControls.end()) {
        std::array<std::string_view, kControls.size()> names;
        std::ranges::transform(kControls, names.begin(), &ControlRow::name);
        control.fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is none of %2"),
                     {parameter.appearance.control, joined(names)});
    }
    if ((row->kinds & kindsOf(parameter)) == 0)
        control.fail(QT_TRANSLATE_NOOP("texts", "a %1 needs %2"), {std::string(row->name), message(row->wants)});
    if (row->counts)
        checkCounting(parameter, control);
}

void checkNumbers(const Parameter& parameter, Fields& fields)
{
    const bool number = (kindsOf(parameter) & kNumber) != 0;
    const auto digits = fields.take("digits");
    if (digits && (!number || parameter.unit != NoneU))
        digits->fail(QT_TRANSLATE_NOOP("texts", "only a number without a unit has digits; a unit brings its own"));
    for (const std::string_view name : {"minimum", "maximum"}) {
        const auto limit = fields.take(name);
        if (!limit)
            continue;
        if (!number)
            limit->fail(QT_TRANSLATE_NOOP("texts", "only a number has limits"));
        if (encode(parameter, limit->number()).unfit != Unfit::No)
            limit->fail(QT_TRANSLATE_NOOP("texts", "the parameter's type cannot hold its %1"),
                        {std::string(name)});
    }
}

void checkEntries(const Parameter& parameter, const Value& list)
{
    const std::vector<Value> values = list.array();
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::int32_t value = parameter.entries[i].value;
        const bool fits = parameter.location.type == ValueType::Bit ? value == 0 || value == 1
                                                                    : encode(parameter, value).unfit == Unfit::No;
        if (!fits)
            values[i].fail(QT_TRANSLATE_NOOP("texts", "the parameter's type cannot hold the value %1"),
                           {std::to_string(value)});
    }
}

void checkSupported(const Supported& supported, const Value& value)
{
    const auto commas = [](const std::string& list) { return std::ranges::count(list, ','); };
    for (const std::string* versions : {&supported.minVersions, &supported.maxVersions}) {
        if (!versions->empty() && commas(*versions) != commas(supported.types))
            value.fail(QT_TRANSLATE_NOOP(
                "texts", "the lists are of different length: each version belongs to the type at its place"));
    }
}

} // namespace

std::string usualControl(const Parameter& parameter)
{
    if (!parameter.entries.empty())
        return "ctx_ZorComboBox";
    if (!parameter.bits.empty())
        return parameter.writable ? "ctx_ZorListBox" : "ctx_ZorImage";
    return parameter.location.type == ValueType::Bit ? "ctx_ZorCheckBox" : "ctx_ZorTextBox";
}

void checkParameter(const Parameter& parameter, Fields& fields)
{
    const auto bits = fields.take("bits");
    if (bits && !parameter.entries.empty())
        bits->fail(QT_TRANSLATE_NOOP("texts", "a parameter has entries or bits, not both"));
    if (const auto entries = fields.take("entries"))
        checkEntries(parameter, *entries);
    checkNumbers(parameter, fields);
    if (const auto supported = fields.take("supported"))
        checkSupported(parameter.appearance.supported, *supported);
    if (const auto control = fields.take("control"))
        checkControl(parameter, *control);
}

} // namespace zor::monitor
