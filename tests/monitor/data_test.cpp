// Parameter files and the coding of values.

#include <zor/monitor/data/codec.h>
#include <zor/monitor/session/plan.h>
#include <zor/tests/monitor/files.h>
#include <zor/tests/random.h>

#include <gtest/gtest.h>

namespace zor::monitor {
namespace {

ParameterFile fileOf(const std::string& parameters)
{
    return readParameterFile("{\"parameters\": [" + parameters + "]}", "test.json");
}

Parameter parameterOf(const std::string& members)
{
    return fileOf(R"({"tag": "X", "bank": "holding", "address": 0, )" + members + "}").parameters.at(0);
}

TEST(ParameterFile, SaysWhatIsWrongAndWhere)
{
    struct Row {
        std::string text;
        std::string error;
    };
    const auto one = [](const std::string& members) {
        return "{\n\"parameters\": [\n{\"tag\": \"X\", \"bank\": \"holding\", \"address\": 7,\n" + members +
               "}\n]\n}";
    };
    const std::vector<Row> rows{
        {"", "f:1: this is not JSON"},
        {"{\n\"parameters\": []\n}", "f:1: no parameters"},
        {"{\n\n\"parameter\": []}", "f:1: \"parameters\" is missing"},
        {"{\"parameters\": [\n{\"tag\": \"A\",}]}", "f:2: this is not JSON"},
        {"{\"parameters\": [\n5\n]}", "f:2: an object is expected here"},
        {one(R"("type": "uint24")"), "f:4: \"uint24\" is none of int16, uint16"},
        {one(R"("type": "uint16", "oder": "ABCD")"), "f:4: \"oder\" is not known here"},
        {one("\"type\": \"uint16\",\n\"type\": \"int16\""), "f:5: \"type\" stands twice"},
        {one(R"("type": "uint16", "scale": 0)"), "f:4: a scale is not 0"},
        {one(R"("type": "uint16", "unit": "LgthU_Inches")"), "f:4: \"LgthU_Inches\" is no unit"},
        {one(R"("type": "uint16", "unit": "PrU_Bar", "displayUnit": "TempU_DegC")"), "f:4: the unit shown is not"},
        {one(R"("type": "text")"), "f:3: \"registers\" is missing"},
        {one(R"("type": "text", "registers": 124)"), "f:4: a whole number from 1 to 123"},
        {one(R"("type": "uint16", "registers": 2)"), "f:4: only a text has a number of registers"},
        {one(R"("type": "bit")"), "f:3: \"bit\" is missing"},
        {R"({"parameters": [{"tag": "A", "bank": "coil", "address": 1, "type": "uint16"}]})",
         "f:1: a coil or a discrete input is of the type bit"},
        {R"({"parameters": [{"tag": "A", "bank": "coil", "address": 1, "type": "bit", "bit": 1}]})",
         "f:1: \"bit\" is not known here"},
        {R"({"parameters": [{"tag": "A", "bank": "discrete", "address": 1, "type": "bit", "access": "write"}]})",
         "f:1: a discrete input cannot be written"},
        {R"({"requests": {"underWay": 17}})", "f:1: a whole number from 1 to 16"},
        {R"({"requests": {"write": "never"}})", "f:1: \"never\" is none of usual, single, multiple"},
        {"{\"requests\": {\"registers\": 1}, \"parameters\": [\n{\"tag\": \"A\", \"bank\": \"input\", \"type\": "
         "\"int32\", \"address\": 1}]}",
         "f:2: the parameter is longer than a request may be"},
        {one(R"("type": "float32", "bits": [{"bit": 1, "text": "a"}])"), "f:4: only an integer"},
        {one("\"type\": \"uint16\", \"entries\": [{\"value\": 1, \"text\": \"a\"},\n{\"value\": 1, \"text\": "
             "\"b\"}]"),
         "f:5: value 1 stands twice"},
        {one(R"("type": "uint16", "minimum": 5, "maximum": 4)"), "f:4: the maximum is less than the minimum"},
        {one("\"type\": \"uint16\",\n\"minimum\": -7"), "f:5: the parameter's type cannot hold its minimum"},
        {one(R"("type": "bit", "bit": 1, "maximum": 1)"), "f:4: only a number has limits"},
        {one(R"("type": "uint16", "unit": "PrU_Bar", "digits": 2)"), "f:4: only a number without a unit has dig"},
        {one("\"type\": \"uint16\", \"entries\": [\n{\"value\": -1, \"text\": \"a\"}]"),
         "f:5: the parameter's type cannot hold the value -1"},
        {one(R"("type": "bit", "bit": 0, "entries": [{"value": 2, "text": "a"}])"), "f:4: the parameter's type"},
        {one(R"("type": "uint16", "supported": {"types": "A,B", "minVersions": "1.0"})"), "f:4: the lists are of"},
        {one(R"("type": "uint16", "control": "ctx_ZorKnob")"), "f:4: \"ctx_ZorKnob\" is none of ctx_ZorTextBox"},
        {one(R"("type": "text", "registers": 1, "control": "ctx_ZorCheckBox")"), "f:4: a ctx_ZorCheckBox needs a"},
        {one(R"("type": "uint16", "control": "ctx_ZorSlider", "minimum": 1)"), "f:4: a ctx_ZorSlider needs a min"},
        {one(R"("type": "uint16", "scale": 0.1, "control": "ctx_ZorUpDown", "minimum": 0, "maximum": 9)"),
         "f:4: a ctx_ZorUpDown shows whole numbers only"},
        {"{\"parameters\": [{\"tag\": \"A\", \"bank\": \"input\", \"type\": \"int16\",\n\"address\": 1, "
         "\"access\": "
         "\"write\"}]}",
         "f:2: an input register cannot be written"},
        {"{\"parameters\": [{\"tag\": \"A\", \"bank\": \"input\", \"type\": \"int32\",\n\"address\": 65535\n}]}",
         "f:2: the parameter reaches beyond address 65535"},
        {"{\"parameters\": [{\"tag\": \"A\", \"bank\": \"input\", \"type\": \"int32\", \"address\": 1},\n"
         "{\"tag\": \"A\", \"bank\": \"input\", \"type\": \"int32\", \"address\": 3}]}",
         "f:2: the tag \"A\" stands twice"},
        {std::string(100000, '['), "f:1: nested too deeply"},
        {"{\"parameters\": [{\"tag\": 1e999}]}", "f:1: this is not JSON"},
    };
    for (const Row& row : rows) {
        try {
            const ParameterFile file = readParameterFile(row.text, "f");
            ADD_FAILURE() << "accepted: " << row.text;
        } catch (const FileError& error) {
            EXPECT_EQ(std::string(error.what()).substr(0, row.error.size()), row.error) << error.what();
        }
    }
}

TEST(ParameterFile, RandomDamageIsReadOrRefused)
{
    const std::string whole = tests::textIn(ZOR_TEST_DATA "/../../monitor/device/demo.json").toStdString();
    EXPECT_GT(readParameterFile(whole, "demo").parameters.size(), 20U);
    tests::Random random;
    int refused = 0;
    for (int i = 0; i < 600; ++i) {
        std::string text = whole.substr(0, i % 3 == 0 ? random() % whole.size() : whole.size());
        for (unsigned long damage = random() % 4; !text.empty() && damage > 0; --damage) {
            const std::size_t at = random() % text.size();
            switch (random() % 3) {
            case 0: text[at] = static_cast<char>(random()); break;
            case 1: text.erase(at, random() % 40); break;
            default: text.insert(at, text.substr(random() % text.size(), random() % 40)); break;
            }
        }
        try {
            (void)readParameterFile(text, "damaged");
        } catch (const FileError& error) {
            ++refused;
            ASSERT_GT(error.line(), 0) << error.what();
        }
    }
    EXPECT_GT(refused, 200);
}

TEST(ParameterFile, GivesEachParameterItsUsualControlAndTexts)
{
    const auto usual = [](const char* members) { return parameterOf(members).appearance.control; };
    EXPECT_EQ(usual(R"("type": "float32")"), "ctx_ZorTextBox");
    EXPECT_EQ(usual(R"("type": "bit", "bit": 3)"), "ctx_ZorCheckBox");
    EXPECT_EQ(usual(R"("type": "uint16", "bits": [{"bit": 0, "text": "a"}])"), "ctx_ZorImage");
    const auto entries = R"("type": "int16", "entries": [{"value": -2, "text": {"de": "zwei", "en": "two"}}])";
    EXPECT_EQ(usual(entries), "ctx_ZorComboBox");
    const LocalText text = parameterOf(entries).entries.at(0).text;
    EXPECT_EQ(text.in("de") + text.in("fr"), "zweitwo");
}

// Registers made by another program (Python's struct) from the same values.
struct Coded {
    std::string type;
    std::string order;
    double value;
    Registers registers;
};

const std::vector<Coded> kCoded{
    {"int16", "ABCD", -1234, {0xFB2E}},
    {"int16", "DCBA", -1234, {0x2EFB}},
    {"uint16", "ABCD", 54321, {0xD431}},
    {"int32", "ABCD", -123456789, {0xF8A4, 0x32EB}},
    {"int32", "CDAB", -123456789, {0x32EB, 0xF8A4}},
    {"int32", "BADC", -123456789, {0xA4F8, 0xEB32}},
    {"int32", "DCBA", -123456789, {0xEB32, 0xA4F8}},
    {"uint32", "CDAB", 4000000001, {0x2801, 0xEE6B}},
    {"float32", "CDAB", -12.75, {0x0000, 0xC14C}},
    {"float64", "CDAB", 1234.5678, {0xFAAD, 0x6D5C, 0x4A45, 0x4093}},
    {"float64", "BADC", 1234.5678, {0x9340, 0x454A, 0x5C6D, 0xADFA}},
};

TEST(Codec, NumbersLieInRegistersAsOtherProgramsPutThem)
{
    for (const Coded& row : kCoded) {
        const Parameter parameter = parameterOf(R"("type": ")" + row.type + R"(", "order": ")" + row.order + '"');
        EXPECT_EQ(decode(parameter, row.registers), Variant(row.value)) << row.type << ' ' << row.order;
        EXPECT_EQ(encode(parameter, row.value).registers, row.registers) << row.type << ' ' << row.order;
    }
}

TEST(Codec, RandomRegistersComeBackTheSame)
{
    tests::Random random;
    for (int i = 0; i < 5000; ++i) {
        const Coded& row = kCoded[random() % kCoded.size()];
        const Parameter parameter = parameterOf(R"("type": ")" + row.type + R"(", "order": ")" + row.order + '"');
        Registers registers(parameter.location.registers);
        for (std::uint16_t& word : registers)
            word = static_cast<std::uint16_t>(random());
        const Variant value = decode(parameter, registers);
        if (value.isEmpty())
            continue;
        ASSERT_EQ(encode(parameter, value).registers, registers) << row.type << ' ' << row.order;
    }
}

TEST(Codec, WhatTheDeviceCannotHoldIsRefused)
{
    const auto unfit = [](const std::string& members, const Variant& value) {
        const Encoded encoded = encode(parameterOf(members), value);
        EXPECT_EQ(encoded.registers.empty(), encoded.unfit != Unfit::No);
        return encoded.unfit;
    };
    EXPECT_EQ(unfit(R"("type": "uint16")", -1), Unfit::OutOfRange);
    EXPECT_EQ(unfit(R"("type": "uint16")", 65535.4), Unfit::No);
    EXPECT_EQ(unfit(R"("type": "uint16")", 65535.6), Unfit::OutOfRange);
    EXPECT_EQ(unfit(R"("type": "int16", "scale": 0.1)", 3276.8), Unfit::OutOfRange);
    EXPECT_EQ(unfit(R"("type": "int16", "scale": -0.1)", 3276.8), Unfit::No);
    EXPECT_EQ(unfit(R"("type": "float32")", 1e39), Unfit::OutOfRange);
    EXPECT_EQ(unfit(R"("type": "float64")", "abc"), Unfit::NotANumber);
    EXPECT_EQ(unfit(R"("type": "text", "registers": 2)", "abcde"), Unfit::TextTooLong);
    EXPECT_EQ(unfit(R"("type": "text", "registers": 2)", "\u00D6l 1"), Unfit::No);
    EXPECT_EQ(unfit(R"("type": "text", "registers": 2)", "\u20AC"), Unfit::CharactersUnknown);
    EXPECT_TRUE(decode(parameterOf(R"("type": "float32")"), Registers{0x7FC0, 0}).isEmpty())
        << "no number, no value";
}

TEST(Codec, TextsAndBits)
{
    const Parameter text = parameterOf(R"("type": "text", "registers": 3)");
    EXPECT_EQ(decode(text, Registers{0xD66C, 0x2031, 0x2000}), Variant("\u00D6l 1"));
    EXPECT_EQ(encode(text, "\u00D6l 1").registers, (Registers{0xD66C, 0x2031, 0}));
    EXPECT_EQ(encode(parameterOf(R"("type": "text", "registers": 1, "order": "BADC")"), "ab").registers,
              (Registers{0x6261}));
    const Parameter bit = parameterOf(R"("type": "bit", "bit": 9)");
    EXPECT_EQ(decodeBits(bit.location, Registers{0x0200}), 1U);
    EXPECT_EQ(mergeBits(bit.location, Registers{0xF0F1}, 1, 1), (Registers{0xF2F1}));
    const Parameter field = parameterOf(R"("type": "uint32", "order": "CDAB")");
    EXPECT_EQ(mergeBits(field.location, Registers{0x1111, 0x8000}, 0x80000001, 0x1), (Registers{0x1111, 0}));
}

// --- Planning

/// "first+count" of each batch.
std::string planned(const ParameterFile& file, const std::vector<std::size_t>& wanted, const Cuts& cuts = {})
{
    std::string text;
    for (const Batch& batch : plan(file.parameters, wanted, cuts))
        text += std::string(batch.bank == Bank::Input ? "i" : "h") + std::to_string(batch.first) + '+' +
                std::to_string(batch.count) + ' ';
    return text;
}

TEST(Plan, ReadsNeighboursTogetherAndDividesWhatIsRefused)
{
    std::string rows;
    for (const auto& [bank, address] : std::vector<std::pair<std::string, int>>{
             {"holding", 0}, {"holding", 2}, {"holding", 12}, {"holding", 23}, {"input", 2}, {"input", 4}})
        rows += std::string(rows.empty() ? "" : ",") + R"({"tag": ")" + bank + std::to_string(address) +
                R"(", "type": "float32", "bank": ")" + bank + R"(", "address": )" + std::to_string(address) + "}";
    const ParameterFile file = fileOf(rows);
    EXPECT_EQ(planned(file, {5, 0, 1, 4, 3, 2, 0}), "h0+14 h23+2 i2+4 ");
    EXPECT_EQ(planned(file, {}), "");
    const std::optional<Cut> cut = cutOf(file.parameters, plan(file.parameters, {0, 1, 2}, {}).at(0));
    EXPECT_EQ(cut, (Cut{Bank::Holding, 12})) << "the widest gap first";
    EXPECT_EQ(planned(file, {0, 1, 2, 4, 5}, {*cut}), "h0+4 h12+2 i2+4 ");
    EXPECT_EQ(cutOf(file.parameters, plan(file.parameters, {3}, {}).at(0)), std::nullopt);
    Requests shy;
    shy.registers = 4;
    shy.gap = 0;
    EXPECT_EQ(plan(file.parameters, {0, 1, 2, 3, 4, 5}, {}, shy).size(), 4U);
}

TEST(Plan, OfRandomParametersHasNoRequestLongerThanTheProtocolAllowsAndTearsNoValue)
{
    tests::Random random;
    std::string rows;
    for (int i = 0; i < 300; ++i) {
        const auto registers = 1 + random() % 123;
        rows += std::string(rows.empty() ? "" : ",") + R"({"tag": "T)" + std::to_string(i) +
                R"(", "type": "text", "bank": ")" + (random() % 2 == 0 ? "input" : "holding") +
                R"(", "registers": )" + std::to_string(registers) + R"(, "address": )" +
                std::to_string(random() % 2000) + "}";
    }
    const ParameterFile file = fileOf(rows);
    std::vector<std::size_t> wanted(file.parameters.size());
    for (std::size_t i = 0; i < wanted.size(); ++i)
        wanted[i] = i;
    Cuts cuts;
    for (int i = 0; i < 50; ++i)
        cuts.insert({random() % 2 == 0 ? Bank::Input : Bank::Holding, static_cast<int>(random() % 2000)});
    std::size_t found = 0;
    for (const Batch& batch : plan(file.parameters, wanted, cuts)) {
        EXPECT_LE(batch.count, 125);
        for (const std::size_t i : batch.parameters) {
            const Location& location = file.parameters[i].location;
            ++found;
            EXPECT_TRUE(location.bank == batch.bank && location.address >= batch.first &&
                        location.address + location.registers <= batch.first + batch.count);
        }
    }
    EXPECT_EQ(found, file.parameters.size());
}

} // namespace
} // namespace zor::monitor
