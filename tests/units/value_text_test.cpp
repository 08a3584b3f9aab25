#include <zor/platform/error.h>
#include <zor/platform/number_text.h>
#include <zor/platform/regional.h>
#include <zor/tests/random.h>
#include <zor/units/mod_Common.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace zor {
namespace {

using platform::doubleToText;
using platform::formatFixed;

class ValueText : public testing::Test {
protected:
    ~ValueText() override { platform::setRegionalSettings({}); }
};

TEST_F(ValueText, RoundsHalfAwayFromZeroOnTheShortestDecimal)
{
    struct Row {
        double value;
        int decimals;
        const char* text;
    };
    for (const auto& [value, decimals, text] :
         {Row{1.005, 2, "1.01"}, Row{2.5, 0, "3"}, Row{-0.5, 0, "-1"}, Row{-0.04, 1, "-0.0"}, Row{0.0, 3, "0.000"},
          Row{1234.5678, 3, "1234.568"}, Row{9.9996, 3, "10.000"}, Row{0.0005, 3, "0.001"},
          Row{0.00049, 3, "0.000"}, Row{1e22, 1, "10000000000000000000000.0"}, Row{999999.5, 0, "1000000"},
          Row{123.0, 2, "123.00"}})
        EXPECT_EQ(formatFixed(value, decimals), text);
    EXPECT_EQ(formatFixed(1e308, 3), "1" + std::string(308, '0') + ".000");
    EXPECT_EQ(formatFixed(5e-324, 2), "0.00");
    EXPECT_THROW(static_cast<void>(formatFixed(std::numeric_limits<double>::infinity(), 1)), RunTimeError);
}

TEST_F(ValueText, OfRandomNumbersAgreesWithThePrinterOfTheStandardLibraryAwayFromHalves)
{
    tests::Random random;
    std::uniform_real_distribution<double> exponent(-4, 12);
    std::array<char, 64> printed{};
    for (int i = 0; i < 200'000; ++i) {
        const double value = std::pow(10, exponent(random)) * (i % 2 == 0 ? 1 : -1);
        const int decimals = i % 5;
        const double scaled = std::fabs(value) * std::pow(10, decimals);
        // At a half the printer rounds the binary value, and texts of numbers round the decimal.
        if (std::fabs(scaled - std::floor(scaled) - 0.5) < std::max(1e-4, scaled * 1e-14))
            continue;
        std::snprintf(printed.data(), printed.size(), "%.*f", decimals, value);
        ASSERT_EQ(formatFixed(value, decimals), printed.data()) << value;
        ASSERT_EQ(platform::textToDouble(printed.data()), std::strtod(printed.data(), nullptr)) << printed.data();
    }
}

TEST_F(ValueText, FollowsTheUnitAndForNumbersWithoutOneTheCaller)
{
    EXPECT_TRUE(fc_FormatValue(1234.5678, LgthU_MM, 3) == Variant("1235"));
    EXPECT_TRUE(fc_FormatValue(3.7, NoneU, 0) == Variant("4"));
    EXPECT_TRUE(fc_FormatValue(3.7, NoneU, -5) == Variant("4"));
    EXPECT_TRUE(fc_FormatValue("3.7", NoneU, 3) == Variant("3.700"));
    EXPECT_EQ(fc_FormatValue(1, NoneU, 32767).text().size(), 32769U);
    for (const int unit : {-1, 53})
        EXPECT_TRUE(fc_FormatValue(1, MEAS_TYPE{unit}, 1).isEmpty());
    EXPECT_EQ(fc_GetUnitLabel(TempU_1By10_DegF), "1/10\u00B0F");
}

TEST_F(ValueText, PlainTextOfADouble)
{
    for (const auto& [value, text] : {std::pair{0.1 + 0.2, "0.3"},
                                      {1e15, "1E+15"},
                                      {999999999999999.0, "999999999999999"},
                                      {1e-4, "0.0001"},
                                      {0.00001234, "1.234E-05"},
                                      {-1.5e300, "-1.5E+300"},
                                      {-0.0, "0"},
                                      {123456789.0125, "123456789.0125"},
                                      {9999999999999999.0, "1E+16"}})
        EXPECT_EQ(doubleToText(value), text);
}

TEST_F(ValueText, WhatIsANumberDependsOnTheSeparators)
{
    const auto valid = [](std::string_view text) { return fb_IsValidNumber(text); };
    for (const char* text : {"12", " -12.5 ", "+.5", "5.", "1e5", "1.5E3", "1E-400"})
        EXPECT_TRUE(valid(text)) << text;
    for (const char* text : {"", "abc", "1,234", "12-", "$5", "0x10", "inf", "nan", "1e", "1e5.0", "--1", ".",
                             "1 2", "1E400", "e5", "1..2"})
        EXPECT_FALSE(valid(text)) << text;
    EXPECT_FALSE(valid(std::string_view("1\0002", 3)));
    EXPECT_TRUE(valid(std::string(300, '7')));
    EXPECT_FALSE(valid(std::string(400, '7'))) << "beyond a double";
    EXPECT_TRUE(valid("0" + std::string(10 << 20, '0') + "1"));
    platform::setRegionalSettings({",", "."});
    EXPECT_TRUE(valid("12,5"));
    EXPECT_FALSE(valid("1.000")) << "a thousand for one reader, one for the other";
    EXPECT_EQ(formatFixed(0.5, 2), "0,50");
    platform::setRegionalSettings({",", "\u202F"});
    EXPECT_EQ(platform::textToDouble("1\u202F234,5"), 1234.5);
}

} // namespace
} // namespace zor
