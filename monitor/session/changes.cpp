#include <zor/monitor/session/changes.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

// In the order of Unfit.
constexpr std::array kProblemOf{Problem::None, Problem::NotANumber, Problem::OutOfRange, Problem::TextTooLong,
                                Problem::CharactersUnknown};

void takeValue(Change& change, const Parameter& parameter, const Variant& value)
{
    const Encoded encoded = encode(parameter, value);
    if (!change.target.empty() && change.target != encoded.registers)
        change.problem = Problem::Conflict;
    else if (encoded.unfit != Unfit::No)
        change.problem = problemOf(encoded.unfit);
    else if (!isWithinLimits(parameter, encoded.registers))
        change.problem = Problem::OutsideLimits;
    change.target = encoded.registers;
}

void takeBits(Change& change, const Edit& edit)
{
    if (((change.bits ^ edit.bits) & change.mask & edit.mask) != 0)
        change.problem = Problem::Conflict;
    change.mask |= edit.mask;
    change.bits = (change.bits & ~edit.mask) | (edit.bits & edit.mask);
}

/// The control has refused the entry and does not say why.
void takeRefused(Change& change, const Parameter& parameter, const Binding& binding)
{
    const std::optional<std::string> typed = binding.typedText();
    change.problem = Problem::InvalidEntry;
    if (!typed)
        return;
    change.newText = *typed;
    if (parameter.location.type != ValueType::Text)
        change.problem = validNumber(std::string_view(*typed)) ? Problem::OutsideLimits : Problem::NotANumber;
    else if (const Unfit unfit = encode(parameter, *typed).unfit; unfit != Unfit::No)
        change.problem = problemOf(unfit);
}

/// What the entry might have been.
void nameLimits(Change& change, const Parameter& parameter, const Binding& binding, const std::string& language)
{
    if (change.problem == Problem::TextTooLong)
        change.highest = std::to_string(parameter.location.registers * 2);
    if (change.problem != Problem::OutsideLimits && change.problem != Problem::OutOfRange)
        return;
    const Range range = rangeOf(parameter);
    const Range limits = change.problem == Problem::OutsideLimits ? binding.limits() : range;
    const auto text = [&](double limit, double end) {
        if (parameter.location.type == ValueType::Bit)
            return std::to_string(static_cast<int>(limit));
        const Encoded encoded = encode(parameter, limit);
        // The ends of a float have more digits than they tell.
        const bool endless = !isInteger(parameter.location.type) && limit == end;
        return endless || encoded.registers.empty()
                   ? std::string()
                   : describeExactly(parameter, encoded.registers, change.unit, language).text;
    };
    change.lowest = text(limits.lowest, range.lowest);
    change.highest = text(limits.highest, range.highest);
}

void take(Change& change, const Parameter& parameter, Binding& binding)
{
    change.origins.push_back({&binding, binding.actions()});
    change.before = binding.seen;
    change.unit = binding.shownUnit();
    change.otherDevice = change.otherDevice || binding.isOfOtherDevice();
    change.changedByOther =
        change.changedByOther ||
        (!binding.isOfOtherDevice() && binding.getIfThere("DataChanged").value_or(Variant(false)).toBoolean());
    if (!binding.isSupported()) {
        change.problem = Problem::NotThere;
    } else if (!parameter.writable) {
        change.problem = Problem::ReadOnly;
    } else if (binding.isInvalid()) {
        takeRefused(change, parameter, binding);
    } else {
        try {
            const Edit edit = binding.edit();
            if (edit.mask != 0)
                takeBits(change, edit);
            else if (parameter.location.type == ValueType::Bit)
                change.problem = Problem::OutOfRange; // neither 0 nor 1
            else
                takeValue(change, parameter, edit.value);
        } catch (const RunTimeError&) {
            change.problem = Problem::InvalidEntry;
        }
    }
}

void describeChange(Change& change, const Parameter& parameter, const std::string& language)
{
    change.tag = parameter.tag;
    if (change.mask != 0 && change.problem == Problem::None) {
        if (change.before.empty())
            change.problem = Problem::NeverRead;
        else
            change.target = mergeBits(parameter.location, change.before, change.mask, change.bits);
    }
    nameLimits(change, parameter, *change.origins.front().binding, language);
    const MEAS_TYPE shown = change.unit;
    change.oldText = describeExactly(parameter, change.before, shown, language, change.mask).text;
    if (change.target.empty()) {
        if (change.newText.empty() && change.problem != Problem::InvalidEntry)
            change.newText =
                change.origins.front().binding->getIfThere("OutputValue").value_or(Variant()).toText();
        return;
    }
    const ShownValue value = describeExactly(parameter, change.target, shown, language, change.mask);
    change.newText = value.text;
    change.unit = value.unit;
}

} // namespace

Problem problemOf(Unfit unfit) noexcept { return kProblemOf[static_cast<std::size_t>(unfit)]; }

std::vector<Change> collectChanges(const ParameterFile& file, std::span<const std::vector<Binding*>> shownBy,
                                   const std::string& language)
{
    std::vector<Change> changes;
    for (std::size_t i = 0; i < file.parameters.size(); ++i) {
        Change change;
        change.parameter = i;
        for (Binding* binding : shownBy[i]) {
            if (binding->isModified())
                take(change, file.parameters[i], *binding);
        }
        if (change.origins.empty())
            continue;
        describeChange(change, file.parameters[i], language);
        changes.push_back(std::move(change));
    }
    return changes;
}

bool isAsReviewed(const Change& change, const Location& location, const Registers& registers)
{
    if (change.mask == 0 || registers.empty() || change.before.empty())
        return registers == change.before;
    return ((decodeBits(location, registers) ^ decodeBits(location, change.before)) & change.mask) == 0;
}

bool isFulfilled(const Change& change, const Location& location, const Registers& registers)
{
    if (change.mask == 0)
        return registers == change.target;
    return ((decodeBits(location, registers) ^ change.bits) & change.mask) == 0;
}

} // namespace zor::monitor
