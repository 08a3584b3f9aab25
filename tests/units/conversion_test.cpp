#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>

namespace zor {
namespace {

TEST(Conversion, EveryCellAgreesWithExactArithmetic)
{
    std::ifstream file(ZOR_TEST_DATA "/conversions.txt");
    ASSERT_TRUE(file) << "the data file is missing";
    int cells = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        std::istringstream row(line);
        std::int32_t type = 0;
        std::int32_t from = 0;
        std::int32_t to = 0;
        double factor = 0;
        double offset = 0;
        ASSERT_TRUE(row >> type >> from >> to >> factor >> offset) << line;
        const double found = fd_GetConversionFactor(UNIT_TYPE{type}, MEAS_TYPE{from}, MEAS_TYPE{to});
        // Up to six roundings stand between the formula and the exact value.
        EXPECT_LE(std::fabs(found - factor), 6 * std::numeric_limits<double>::epsilon() * factor) << line;
        EXPECT_EQ(fd_GetOffset(MEAS_TYPE{from}, MEAS_TYPE{to}), offset) << line;
        ++cells;
    }
    EXPECT_EQ(cells, 64 + 49 + 25 + 64 + 25 + 9 + 16 + 4);
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
