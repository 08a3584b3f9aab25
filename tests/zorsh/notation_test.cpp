// Values as they are written and printed, and lines cut into words.

#include <zor/platform/regional.h>
#include <zor/tests/error_of.h>
#include <zor/tools/zorsh/notation.h>

#include <gtest/gtest.h>

#include <array>

namespace zor::console {
namespace {

int errorOf(std::string_view word)
{
    return tests::errorOf([&] { static_cast<void>(parseValue(word)); });
}

TEST(Notation, ValuesAreReadAsWhatTheyAre)
{
    const struct {
        std::string_view written;
        Variant value;
    } rows[]{
        {"True", true},
        {"12", 12},
        {"-3", -3},
        {"0x100", 256},
        {"-0x10", -16},
        {"2147483648", 2147483648.0},
        {"0xFFFFFFFF", -1},
        {"-0x80000000", 2147483648.0},
        {"0x100000000", 4294967296.0},
        {"0.5", 0.5},
        {".5", 0.5},
        {"1e6", 1e6},
        {"1e-999", 0.0},
        {"Empty", {}},
        {"\"\"", ""},
        {R"("a\"\\\r\n\t\u{B0}\u{1F600}")", "a\"\\\r\n\t°😀"},
        {"LgthU_1By10_MM", 2},
        {"PRESSURE", 4},
        {"InputRegister", 1},
        {"Text", 0},
        {"None", 11},
    };
    for (const auto& [written, value] : rows) {
        const Variant read = parseValue(written);
        EXPECT_TRUE(read == value) << written;
        EXPECT_EQ(read.storage().index(), value.storage().index()) << written;
    }
}

TEST(Notation, WhatIsNoValueIsRefused)
{
    for (const std::string_view word :
         {"", "-", "true", "1.2.3", "0x", "0xG", "1e", "inf", "nan", "\"", "\"a", "\"a\"b", R"("\")", R"("\x")",
          R"("\u{}")", R"("\u{41")", R"("\u{D800}")", R"("\u{110000}")"})
        EXPECT_EQ(errorOf(word), 5) << word;
    EXPECT_EQ(errorOf("1e999"), 6);
}

TEST(Notation, NumbersPrintTheSameWhateverTheUserSeparates)
{
    platform::setRegionalSettings({",", "."});
    EXPECT_EQ(print(0.5), "0.5");
    EXPECT_EQ(print(1500.0), "1500");
    EXPECT_EQ(print(Variant(1500)), "1500");
    EXPECT_EQ(print(-0.0), "0");
    EXPECT_EQ(print(0.1 + 0.2), "0.3");
    EXPECT_EQ(print(123456789012345.0), "123456789012345");
    EXPECT_EQ(print(1e20), "1e+20");
    platform::setRegionalSettings({});
}

TEST(Notation, TextsPrintWithEscapesWhereTheyCouldNotBeSeen)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(printText("a\"\\\r\n\t\0\x7F°"sv), R"("a\"\\\r\n\t\u{0}\u{7F}°")");
    EXPECT_EQ(printText("\u0085\u202E\u00A0"), "\"\\u{85}\\u{202E}\u00A0\"");
    EXPECT_EQ(printText("\xFF\xC3"), "\"\uFFFD\uFFFD\"");
    EXPECT_EQ(print(core::MethodResult(std::vector<Variant>{"a", 1, {}})), R"(["a", 1, Empty])");
    EXPECT_EQ(printColour(0x00FF7F), "#00FF7F");
    EXPECT_EQ(printColour(ButtonFace), "ButtonFace");
}

TEST(Notation, EventArgumentsPrintWithoutBlanks)
{
    std::int16_t button = 1;
    float x = 0.1F;
    bool cancel = false;
    const std::array<platform::ArgRef, 3> args{&button, &x, &cancel};
    EXPECT_EQ(printEvent("move", args), "move(1,0.1,False)");
    EXPECT_EQ(printEvent("click", {}), "click");
}

TEST(Notation, LinesAreCutAtBlanksOutsideStrings)
{
    using Words = std::vector<std::string_view>;
    EXPECT_EQ(words("  put\ta.B  \"x # y\" # rest \"open"), (Words{"put", "a.B", "\"x # y\""}));
    EXPECT_EQ(words("KEY=\"a b\" c#d\r"), (Words{"KEY=\"a b\"", "c#d"}));
    EXPECT_EQ(words("# all"), Words{});
    EXPECT_THROW(static_cast<void>(words("put \"open")), RunTimeError);
}

} // namespace
} // namespace zor::console
