#include <zor/monitor/data/codec.h>
#include <zor/monitor/data/json_fields.h>
#include <zor/monitor/data/language_rows.h>
#include <zor/monitor/data/parameter_file.h>
#include <zor/monitor/data/parameter_rules.h>
#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>

#include <algorithm>
#include <array>
#include <set>

namespace zor::monitor {
namespace {

constexpr int kLastAddress = 65535;

LocalText readText(const Value& value)
{
    if (value.isText())
        return LocalText({{"en", value.text()}});
    std::map<std::string, std::string> texts;
    Fields fields = value.object();
    for (const LanguageRow& language : kLanguages) {
        if (const auto text = fields.take(language.code))
            texts.emplace(language.code, text->text());
    }
    fields.finish();
    if (texts.empty())
        value.fail(QT_TRANSLATE_NOOP("texts", "a text has at least one language"));
    return LocalText(std::move(texts));
}

template <class Enum>
Enum readName(const Value& value, std::span<const std::string_view> names)
{
    const auto at = std::ranges::find(names, value.text());
    if (at == names.end())
        value.fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is none of %2"), {value.text(), joined(names)});
    return static_cast<Enum>(at - names.begin());
}

// In the order of Bank and of WriteWith.
constexpr std::array<std::string_view, 4> kBanks{"holding", "input", "coil", "discrete"};
constexpr std::array<std::string_view, 3> kWriteWith{"usual", "single", "multiple"};
constexpr std::array<std::string_view, 2> kAccesses{"read", "write"};

MEAS_TYPE readUnit(const Value& value)
{
    const auto* const row =
        std::ranges::find(units::kUnits, std::string_view(value.text()), &units::UnitRow::name);
    if (row == units::kUnits.end())
        value.fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is no unit"), {value.text()});
    return row->unit;
}

UNIT_TYPE typeOf(MEAS_TYPE unit)
{
    const auto number = static_cast<std::int32_t>(unit);
    for (const units::UnitTypeRow& row : units::kUnitTypes) {
        if (row.first <= number && number <= row.last)
            return row.type;
    }
    return None;
}

/// What is read of a parameter's place; `fixed` is the type where the file does not say one.
Location readLocation(Fields& fields, std::optional<ValueType> fixed)
{
    Location location;
    location.bank = readName<Bank>(fields.need("bank"), kBanks);
    const Value address = fields.need("address");
    location.address = static_cast<std::uint16_t>(address.integer(0, kLastAddress));
    const auto type = fixed ? fields.take("type") : std::optional(fields.need("type"));
    location.type = type ? readName<ValueType>(*type, valueTypeNames()) : *fixed;
    if (holdsBits(location.bank) && location.type != ValueType::Bit)
        type.value_or(address).fail(QT_TRANSLATE_NOOP("texts", "a coil or a discrete input is of the type bit"));
    location.registers = registersOf(location.type);
    if (location.type == ValueType::Text) {
        location.registers = static_cast<std::uint16_t>(fields.need("registers").integer(1, kMostWriteRegisters));
    } else if (const auto count = fields.take("registers")) {
        if (!fixed)
            count->fail(QT_TRANSLATE_NOOP("texts", "only a text has a number of registers"));
        location.registers = static_cast<std::uint16_t>(count->integer(1, 4));
    }
    if (const auto order = fields.take("order"))
        location.order = readName<Order>(*order, orderNames());
    if (location.address + location.registers > kLastAddress + 1)
        address.fail(QT_TRANSLATE_NOOP("texts", "the parameter reaches beyond address 65535"));
    return location;
}

std::vector<Entry> readEntries(const Value& list, std::string_view key, int lowest, int highest)
{
    std::vector<Entry> entries;
    std::set<std::int32_t> seen;
    for (const Value& value : list.array()) {
        Fields fields = value.object();
        const Value number = fields.need(key);
        const auto integer = static_cast<std::int32_t>(number.integer(lowest, highest));
        if (!seen.insert(integer).second)
            number.fail(QT_TRANSLATE_NOOP("texts", "%1 stands twice"),
                        {std::string(key) + ' ' + std::to_string(integer)});
        entries.push_back({integer, readText(fields.need("text"))});
        fields.finish();
    }
    if (entries.empty())
        list.fail(QT_TRANSLATE_NOOP("texts", "an empty list"));
    return entries;
}

void readSupported(const Value& value, Supported& supported)
{
    Fields fields = value.object();
    if (const auto types = fields.take("types"))
        supported.types = types->text();
    if (const auto versions = fields.take("minVersions"))
        supported.minVersions = versions->text();
    if (const auto versions = fields.take("maxVersions"))
        supported.maxVersions = versions->text();
    fields.finish();
}

Simulation readSimulation(const Value& value, ValueType type)
{
    Simulation simulation;
    Fields fields = value.object();
    if (const auto absent = fields.take("absent"))
        simulation.absent = absent->boolean();
    if (const auto start = fields.take("value")) {
        if (type == ValueType::Text)
            simulation.text = start->text();
        else
            simulation.value = start->number();
    }
    if (const auto swing = fields.take("swing"))
        simulation.swing = swing->number();
    if (const auto period = fields.take("period")) {
        simulation.period = period->number();
        if (!(simulation.period > 0))
            period->fail(QT_TRANSLATE_NOOP("texts", "a period is longer than 0 seconds"));
    }
    fields.finish();
    return simulation;
}

void readAppearance(Fields& fields, Parameter& parameter)
{
    Appearance& appearance = parameter.appearance;
    const auto caption = fields.take("caption");
    appearance.caption = caption ? readText(*caption) : LocalText({{"en", parameter.tag}});
    if (const auto group = fields.take("group"))
        appearance.group = readText(*group);
    if (const auto control = fields.take("control"))
        appearance.control = control->text();
    appearance.unit = parameter.unit;
    if (const auto unit = fields.take("displayUnit")) {
        appearance.unit = readUnit(*unit);
        if (typeOf(appearance.unit) != parameter.unitType)
            unit->fail(QT_TRANSLATE_NOOP("texts", "the unit shown is not of the type of the parameter's unit"));
    }
    if (const auto digits = fields.take("digits"))
        appearance.digits = static_cast<std::int16_t>(digits->integer(0, 15));
    if (const auto minimum = fields.take("minimum"))
        appearance.minimum = minimum->number();
    if (const auto maximum = fields.take("maximum")) {
        appearance.maximum = maximum->number();
        if (appearance.minimum && *appearance.minimum > *appearance.maximum)
            maximum->fail(QT_TRANSLATE_NOOP("texts", "the maximum is less than the minimum"));
    }
    if (const auto supported = fields.take("supported"))
        readSupported(*supported, appearance.supported);
}

void readQuantity(Fields& fields, bool isNumber, Parameter& parameter)
{
    if (const auto scale = fields.take("scale")) {
        parameter.scale = scale->number();
        if (!isNumber || parameter.scale == 0)
            scale->fail(isNumber ? QT_TRANSLATE_NOOP("texts", "a scale is not 0")
                                 : QT_TRANSLATE_NOOP("texts", "only a number has a scale"));
    }
    if (const auto unit = fields.take("unit")) {
        parameter.unit = readUnit(*unit);
        if (!isNumber)
            unit->fail(QT_TRANSLATE_NOOP("texts", "only a number has a unit"));
    }
    parameter.unitType = typeOf(parameter.unit);
}

Parameter readParameter(const Value& value)
{
    Parameter parameter;
    parameter.line = value.line();
    Fields fields = value.object();
    const Value tag = fields.need("tag");
    parameter.tag = tag.text();
    if (parameter.tag.empty())
        tag.fail(QT_TRANSLATE_NOOP("texts", "a tag is not empty"));
    Location& location = parameter.location = readLocation(fields, std::nullopt);
    const bool integer = isInteger(location.type);
    const bool number = integer || location.type == ValueType::Float32 || location.type == ValueType::Float64;
    if (location.type == ValueType::Bit && !holdsBits(location.bank))
        location.bit = static_cast<std::uint8_t>(fields.need("bit").integer(0, 15));
    readQuantity(fields, number, parameter);
    if (const auto access = fields.take("access")) {
        parameter.writable = access->text() == "write";
        if (std::ranges::find(kAccesses, access->text()) == kAccesses.end())
            access->fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is none of %2"), {access->text(), joined(kAccesses)});
        if (parameter.writable && isReadOnly(location.bank))
            access->fail(holdsBits(location.bank)
                             ? QT_TRANSLATE_NOOP("texts", "a discrete input cannot be written")
                             : QT_TRANSLATE_NOOP("texts", "an input register cannot be written"));
    }
    const auto named = [&](std::string_view list, bool allowed) {
        auto taken = fields.take(list);
        if (taken && (!allowed || parameter.scale != 1 || parameter.unit != NoneU))
            taken->fail(QT_TRANSLATE_NOOP("texts", "only an integer without scale and unit has %1"),
                        {std::string(list)});
        return taken;
    };
    if (const auto entries = named("entries", integer || location.type == ValueType::Bit))
        parameter.entries = readEntries(*entries, "value", INT32_MIN, INT32_MAX);
    if (const auto bits = named("bits", integer))
        parameter.bits = readEntries(*bits, "bit", 0, std::min(location.registers * 16 - 1, kHighestBit));
    readAppearance(fields, parameter);
    if (parameter.appearance.control.empty())
        parameter.appearance.control = usualControl(parameter);
    checkParameter(parameter, fields);
    if (const auto simulation = fields.take("simulation"))
        parameter.simulation = readSimulation(*simulation, location.type);
    fields.finish();
    return parameter;
}

std::optional<Location> readIdentityPart(Fields& fields, std::string_view name, Simulation& simulation)
{
    const auto part = fields.take(name);
    if (!part)
        return std::nullopt;
    Fields inner = part->object();
    const ValueType usual = name == "type" ? ValueType::Text : ValueType::UInt16;
    const Location location = readLocation(inner, usual);
    if (location.type != ValueType::Text && location.type != usual)
        part->fail(QT_TRANSLATE_NOOP("texts", "what the device is comes as a text, its version also as uint16"));
    if (const auto simulated = inner.take("simulation"))
        simulation.text = simulated->text();
    inner.finish();
    return location;
}

struct RequestsRow {
    std::string_view name;
    int Requests::*member;
    int lowest;
    int highest;
};

constexpr std::array kRequests{
    RequestsRow{"registers", &Requests::registers, 1, kMostReadRegisters},
    RequestsRow{"bits", &Requests::bits, 1, kMostReadBits},
    RequestsRow{"gap", &Requests::gap, 0, kMostReadRegisters},
    RequestsRow{"pause", &Requests::pause, 0, 10000},
    RequestsRow{"retries", &Requests::retries, 0, 10},
    RequestsRow{"underWay", &Requests::underWay, 1, 16},
};

Requests readRequests(const Value& value)
{
    Requests requests;
    Fields fields = value.object();
    for (const RequestsRow& row : kRequests) {
        if (const auto number = fields.take(row.name))
            requests.*row.member = static_cast<int>(number->integer(row.lowest, row.highest));
    }
    if (const auto write = fields.take("write"))
        requests.write = readName<WriteWith>(*write, kWriteWith);
    if (const auto masked = fields.take("masked"))
        requests.masked = masked->boolean();
    fields.finish();
    return requests;
}

} // namespace

const std::string& LocalText::in(const std::string& language) const
{
    static const std::string none;
    for (const std::string& wanted : {language, std::string("en")}) {
        if (const auto found = m_texts.find(wanted); found != m_texts.end())
            return found->second;
    }
    return m_texts.empty() ? none : m_texts.begin()->second;
}

std::optional<std::size_t> ParameterFile::indexOf(std::string_view tag) const
{
    const auto found = std::ranges::find(parameters, tag, &Parameter::tag);
    return found == parameters.end() ? std::nullopt
                                     : std::optional(static_cast<std::size_t>(found - parameters.begin()));
}

TagIndex::TagIndex(const ParameterFile& file)
{
    m_indices.reserve(file.parameters.size());
    for (std::size_t i = 0; i < file.parameters.size(); ++i)
        m_indices.emplace(file.parameters[i].tag, i);
}

std::optional<std::size_t> TagIndex::operator()(std::string_view tag) const
{
    const auto found = m_indices.find(tag);
    return found == m_indices.end() ? std::nullopt : std::optional(found->second);
}

bool isSupported(const Supported& by, const std::string& type, const std::string& version)
{
    const std::int16_t index = fi_GetDeviceTypeIndex(by.types, type);
    return index != -1 && !fb_VersionNotSupported(by.minVersions, by.maxVersions, version, index);
}

ParameterFile readParameterFile(std::string_view text, const std::string& name)
{
    const JsonNode root = parseJson(text, name);
    ParameterFile file;
    const Value whole(root, name);
    Fields fields = whole.object();
    fields.take("$schema");
    if (const auto title = fields.take("title"))
        file.title = readText(*title);
    if (const auto identity = fields.take("identity")) {
        Fields inner = identity->object();
        file.identity.type = readIdentityPart(inner, "type", file.identity.simulatedType);
        file.identity.version = readIdentityPart(inner, "version", file.identity.simulatedVersion);
        inner.finish();
    }
    if (const auto requests = fields.take("requests"))
        file.requests = readRequests(*requests);
    for (const auto& part : {file.identity.type, file.identity.version}) {
        if (part && part->registers > file.requests.registers)
            whole.fail(QT_TRANSLATE_NOOP("texts", "the identity is longer than a request may be"));
    }
    std::set<std::string> tags;
    for (const Value& value : fields.need("parameters").array()) {
        file.parameters.push_back(readParameter(value));
        if (!tags.insert(file.parameters.back().tag).second)
            value.fail(QT_TRANSLATE_NOOP("texts", "the tag \"%1\" stands twice"), {file.parameters.back().tag});
        if (file.parameters.back().location.registers > file.requests.registers)
            value.fail(QT_TRANSLATE_NOOP("texts", "the parameter is longer than a request may be"));
    }
    fields.finish();
    if (file.parameters.empty())
        whole.fail(QT_TRANSLATE_NOOP("texts", "no parameters"));
    return file;
}

} // namespace zor::monitor
