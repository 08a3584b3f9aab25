#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace zor {
namespace {

// Sizes are written down unit by unit, not pair by pair: a pair's factor is the ratio of two sizes. Nothing is
// taken from the tables under test.
constexpr long double kInch = 25.4L;
constexpr long double kFoot = kInch * 12;
constexpr long double kCubicFoot = kFoot * kFoot * kFoot / 1e9L; // in cubic metres
constexpr long double kPsiInBar = 14.50377L;
constexpr long double kGallonsInM3 = 264.172L;
constexpr long double kGallonsInImperial = 1.20095L;
constexpr long double kLitresInImperial = 4.54609L;
constexpr long double kYardsInM3 = 1.30795L; // cubic ones
constexpr long double kInchesInLitre = 61.02374L;

/// The units of a type, each by its size in a unit that they have in common.
struct Units {
    UNIT_TYPE type;
    std::int32_t first;
    std::vector<long double> sizes;
};
const Units kUnits[]{
    {Length, 0, {1, 1000, 0.1L, kInch / 256, kInch / 16, kInch, kFoot, 10}},         // millimetres
    {VELOCITY, 8, {3600000, 10, kFoot / 10, 1000, kFoot * 3600, kFoot, kInch * 60}}, // of them an hour
    {TEMPERATURE, 15, {1, 5 / 9.0L, 1, 0.1L, 5 / 90.0L}},                            // kelvin a step
    // Cubic metres.
    {VOLUMEE,
     20,
     {1, kCubicFoot, 42 / kGallonsInM3, 1 / kGallonsInM3, kGallonsInImperial / kGallonsInM3, 0.001L,
      1 / kYardsInM3, 0.001L / kInchesInLitre}},
    {PRESSURE, 28, {100000, 100, 1, 1000, 100000 / kPsiInBar}}, // pascal
    {VOLUMETRICFLOW, 33, {kGallonsInM3, 1, 42}},                // US gallons an hour
    {TIMEUNITS, 38, {1000, 1, 60000, 3600000}},                 // milliseconds
    {FREQUENCY, 42, {1, 1000000}},
};
constexpr double kOffsets[5][5]{{0, 32, 273.15, 0, 320},
                                {-17.7778, 0, 255.37222, -177.7778, 0},
                                {-273.15, -459.67, 0, -2731.5, -4596.7},
                                {0, 32, 273.15, 0, 320},
                                {-17.7778, 0, 255.372222, -177.7778, 0}};

/// Litres and cubic inches are counted from imperial gallons on the way to them, and by their own size on the way
/// back, so the two directions are not each other's reciprocal.
long double detour(const Units& units, std::size_t from, std::size_t to)
{
    const auto isLitres = [](std::size_t unit) { return unit == 5 || unit == 7; };
    const bool isCounted = units.type == VOLUMEE && isLitres(to) && !isLitres(from);
    return isCounted ? kGallonsInM3 / kGallonsInImperial * kLitresInImperial / 1000 : 1;
}

TEST(Conversion, EveryCellAgreesWithTheSizesOfItsUnits)
{
    for (const Units& units : kUnits) {
        for (std::size_t i = 0; i < units.sizes.size(); ++i) {
            for (std::size_t j = 0; j < units.sizes.size(); ++j) {
                const auto from = MEAS_TYPE{units.first + static_cast<std::int32_t>(i)};
                const auto to = MEAS_TYPE{units.first + static_cast<std::int32_t>(j)};
                const long double factor = units.sizes[i] / units.sizes[j] * detour(units, i, j);
                const double found = fd_GetConversionFactor(units.type, from, to);
                // Up to six roundings stand between the formula and the exact value.
                EXPECT_LE(std::fabs(found - factor), 6 * std::numeric_limits<double>::epsilon() * factor)
                    << units.first << ' ' << i << ' ' << j;
                EXPECT_EQ(fd_GetOffset(from, to), units.type == TEMPERATURE ? kOffsets[i][j] : 0);
            }
        }
    }
}

TEST(Conversion, WhatIsNoPairOfTheTypeHasFactorOne)
{
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    for (const std::int32_t type : {-1, 6, 7, 10, 11, 12, 13, 14, kMost, kLeast})
        for (std::int32_t from = -1; from <= 53; ++from)
            for (std::int32_t to = -1; to <= 53; ++to)
                ASSERT_EQ(fd_GetConversionFactor(UNIT_TYPE{type}, MEAS_TYPE{from}, MEAS_TYPE{to}), 1.0);
    EXPECT_EQ(fd_GetConversionFactor(Length, TempU_DegC, TempU_DegF), 1.0);
    EXPECT_EQ(fd_GetOffset(TempU_DegC, TempU_DegF), 32.0) << "the offset takes no unit type";
    for (const std::int32_t unit : {-1, 14, 20, 52, 53, kMost, kLeast}) {
        EXPECT_EQ(fd_GetOffset(MEAS_TYPE{unit}, TempU_DegC), 0.0);
        EXPECT_EQ(fd_GetConversionFactor(Length, MEAS_TYPE{unit}, LgthU_MM), 1.0);
    }
}

TEST(Conversion, AnInfiniteResultIsAnError)
{
    EXPECT_THROW(static_cast<void>(convert(1e308, Length, LgthU_Mtr, LgthU_MM)), RunTimeError);
    EXPECT_THROW(static_cast<void>(convert(std::nan(""), Length, LgthU_MM, LgthU_MM)), RunTimeError);
    EXPECT_NEAR(convert(100, TEMPERATURE, TempU_DegC, TempU_DegF), 212.0, 1e-12);
}

} // namespace
} // namespace zor
