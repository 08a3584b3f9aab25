#include <zor/monitor/data/file_content.h>
#include <zor/monitor/data/json_fields.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/monitor/settings/settings_file.h>
#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>

#include <QDateTime>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <set>

namespace zor::monitor {
namespace {

constexpr std::string_view kFormat = "zor-settings";
constexpr int kVersion = 1;
constexpr int kHighestRegister = 0xFFFF;

const units::UnitRow* unitRow(MEAS_TYPE unit)
{
    const auto* const row = std::ranges::find(units::kUnits, unit, &units::UnitRow::unit);
    return row == units::kUnits.end() ? nullptr : row;
}

Registers readRegisters(const Value& list)
{
    Registers registers;
    for (const Value& one : list.array())
        registers.push_back(static_cast<std::uint16_t>(one.integer(0, kHighestRegister)));
    if (registers.empty() || registers.size() > kMostWriteRegisters)
        list.fail(QT_TRANSLATE_NOOP("texts", "a parameter has 1 to %1 registers"),
                  {std::to_string(kMostWriteRegisters)});
    return registers;
}

Setting readSetting(const Value& value)
{
    Setting setting;
    setting.line = value.line();
    Fields fields = value.object();
    const Value tag = fields.need("tag");
    setting.tag = tag.text();
    if (setting.tag.empty())
        tag.fail(QT_TRANSLATE_NOOP("texts", "a tag is not empty"));
    const Value held = fields.need("value");
    setting.value = held.isText() ? Variant(held.text()) : Variant(held.number());
    if (const auto unit = fields.take("unit")) {
        const auto* const row =
            std::ranges::find(units::kUnits, std::string_view(unit->text()), &units::UnitRow::name);
        if (row == units::kUnits.end())
            unit->fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is no unit"), {unit->text()});
        if (held.isText())
            unit->fail(QT_TRANSLATE_NOOP("texts", "only a number has a unit"));
        setting.unit = row->unit;
    }
    if (const auto registers = fields.take("registers"))
        setting.registers = readRegisters(*registers);
    fields.finish();
    return setting;
}

void readDevice(const Value& device, SettingsFile& file)
{
    Fields fields = device.object();
    if (const auto type = fields.take("type"))
        file.deviceType = type->text();
    if (const auto version = fields.take("version"))
        file.deviceVersion = version->text();
    fields.finish();
}

void readHead(Fields& fields, SettingsFile& file)
{
    fields.take("$schema");
    const Value format = fields.need("format");
    if (format.text() != kFormat)
        format.fail(QT_TRANSLATE_NOOP("texts", "a settings file has the format \"%1\""), {std::string(kFormat)});
    fields.need("formatVersion").version(kVersion);
    if (const auto device = fields.take("device"))
        readDevice(*device, file);
    if (const auto title = fields.take("title"))
        file.title = title->text();
    if (const auto date = fields.take("date")) {
        file.date = date->text();
        if (!QDateTime::fromString(QString::fromStdString(file.date), "yyyy-MM-dd'T'HH:mm:ss'Z'").isValid())
            date->fail(QT_TRANSLATE_NOOP("texts", "\"%1\" is no date like 2026-11-25T08:30:00Z"), {file.date});
    }
}

/// Whole numbers without a decimal point.
nlohmann::ordered_json jsonOf(const Variant& value)
{
    constexpr double kExact = 1e15;
    if (value.isText())
        return value.text();
    const double number = value.number();
    if (number == std::floor(number) && std::fabs(number) < kExact)
        return static_cast<std::int64_t>(number);
    return number;
}

bool isSameKind(const Parameter& parameter, MEAS_TYPE unit)
{
    if (unit == parameter.unit)
        return true;
    const auto* const row = units::rowOf(parameter.unitType);
    const auto number = static_cast<std::int32_t>(unit);
    return row != nullptr && unit != NoneU && row->first <= number && number <= row->last;
}

/// Whether registers say, as far as the type can hold it, what the value says.
bool agree(const Parameter& parameter, const Registers& registers, const Registers& encoded)
{
    return registers.size() == parameter.location.registers &&
           decode(parameter, registers) == decode(parameter, encoded);
}

} // namespace

SettingsFile readSettingsFile(std::string_view text, const std::string& name)
{
    const JsonNode root = parseJson(text, name);
    SettingsFile file;
    file.name = name;
    Fields fields = Value(root, name).object();
    readHead(fields, file);
    std::set<std::string> tags;
    for (const Value& value : fields.need("parameters").array()) {
        file.settings.push_back(readSetting(value));
        if (!tags.insert(file.settings.back().tag).second)
            value.fail(QT_TRANSLATE_NOOP("texts", "the tag \"%1\" stands twice"), {file.settings.back().tag});
    }
    fields.finish();
    return file;
}

SettingsFile loadSettingsFile(const std::string& name) { return readSettingsFile(contentOf(name), name); }

QByteArray textOf(const SettingsFile& file)
{
    nlohmann::ordered_json root;
    root["format"] = kFormat;
    root["formatVersion"] = kVersion;
    root["device"] = {{"type", file.deviceType}, {"version", file.deviceVersion}};
    if (!file.date.empty())
        root["date"] = file.date;
    root["title"] = file.title;
    root["parameters"] = nlohmann::ordered_json::array();
    for (const Setting& setting : file.settings) {
        nlohmann::ordered_json& one = root["parameters"].emplace_back();
        one["tag"] = setting.tag;
        one["value"] = jsonOf(setting.value);
        if (setting.unit != NoneU)
            one["unit"] = unitRow(setting.unit)->name;
        if (!setting.registers.empty())
            one["registers"] = setting.registers;
    }
    constexpr int kIndent = 2;
    return QByteArray::fromStdString(root.dump(kIndent, ' ', false, nlohmann::json::error_handler_t::replace) +
                                     '\n');
}

Setting settingOf(const Parameter& parameter, const Registers& registers)
{
    const Variant value = decode(parameter, registers);
    return {parameter.tag, value.isNumber() ? Variant(recordNumber(parameter, registers)) : value, parameter.unit,
            registers};
}

Wanted wantedOf(const Parameter& parameter, const Setting& setting)
{
    const bool text = parameter.location.type == ValueType::Text;
    if (text != setting.value.isText() || !isSameKind(parameter, setting.unit))
        return {{}, Unfit::NotANumber};
    Variant value = setting.value;
    if (setting.unit != parameter.unit) {
        try {
            value = convert(value.number(), parameter.unitType, setting.unit, parameter.unit);
        } catch (const RunTimeError&) {
            return {{}, Unfit::OutOfRange};
        }
    }
    if (parameter.location.type == ValueType::Bit) {
        const bool on = value == Variant(1.0);
        if (!on && value != Variant(0.0))
            return {{}, Unfit::OutOfRange};
        return {mergeBits(parameter.location, Registers{0}, 1, on ? 1 : 0)};
    }
    Encoded encoded = encode(parameter, value);
    if (encoded.unfit != Unfit::No)
        return {{}, encoded.unfit};
    // Two texts, or two sets of unused bits, may look the same and lie differently.
    if (agree(parameter, setting.registers, encoded.registers))
        return {setting.registers};
    return {std::move(encoded.registers)};
}

} // namespace zor::monitor
