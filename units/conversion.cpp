#include <zor/platform/error.h>
#include <zor/units/mod_Common.h>
#include <zor/units/unit_catalogue.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace zor {
namespace {

// The formulas are kept as they are, not simplified: a compiler evaluates them from left to right in double
// precision, and the last digits that operators see follow from that order.
constexpr double MI = MM_PER_INCH;
constexpr double GM = GAL_PER_M3;
constexpr double PB = PSI_PER_BAR;
constexpr double GI = GAL_PER_IMPGAL;
constexpr double LI = LITRE_PER_IMPGAL;
constexpr double YM = YD3_PER_M3;
constexpr double CL = IN3_PER_LITRE;

constexpr double cubed(double x) { return x * x * x; }

template <std::size_t N>
using Table = std::array<std::array<double, N>, N>;

// Row: the unit converted from; column: the unit converted to; both in the order of their values.
// clang-format off
constexpr Table<8> kLength = {{
    {{1.0, 0.001, 10.0, 256.0 / MI, 16.0 / MI, 1.0 / MI, 1.0 / MI / 12.0, 0.1}},
    {{1000.0, 1.0, 10000.0, 256000.0 / MI, 16000.0 / MI, 1000.0 / MI, 1000.0 / MI / 12.0, 100.0}},
    {{0.1, 0.0001, 1.0, 256.0 / MI / 10.0, 16.0 / MI / 10.0, 1.0 / MI / 10.0, 1.0 / MI / 10.0 / 12.0, 0.01}},
    {{MI / 256.0, MI / 256.0 / 1000.0, MI * 10.0 / 256.0, 1.0, 1.0 / 16.0, 1.0 / 256.0, 1.0 / 256.0 / 12.0, MI / 256.0 / 10.0}},
    {{MI / 16.0, MI / 16.0 / 1000.0, MI * 10.0 / 16.0, 16.0, 1.0, 1.0 / 16.0, 1.0 / 16.0 / 12.0, MI / 16.0 / 10.0}},
    {{MI, MI / 1000.0, MI * 10.0, 256.0, 16.0, 1.0, 1.0 / 12.0, MI / 10.0}},
    {{MI * 12.0, MI * 12.0 / 1000.0, MI * 12.0 * 10.0, 3072.0, 192.0, 12.0, 1.0, MI * 12.0 / 10.0}},
    {{10.0, 0.01, 100.0, 2560.0 / MI, 160.0 / MI, 10.0 / MI, 10.0 / MI / 12.0, 1.0}},
}};

constexpr Table<7> kVELOCITY = {{
    {{1.0, 360000.0, 36000000.0 / MI / 12.0, 3600.0, 1000.0 / MI / 12.0, 3600000.0 / MI / 12.0, 60000.0 / MI}},
    {{1.0 / 100.0 / 3600.0, 1.0, 100.0 / MI / 12.0, 0.01, 10.0 / MI / 12.0 / 3600.0, 10.0 / MI / 12.0, 10.0 / MI / 60.0}},
    {{MI * 12.0 / 10000.0 / 3600.0, MI * 12.0 / 100.0, 1.0, MI * 12.0 / 10000.0, 1.0 / 3600.0 / 10.0, 0.1, 0.1 * 12.0 / 60.0}},
    {{1.0 / 3600.0, 100.0, 10000.0 / MI / 12.0, 1.0, 1000.0 / MI / 3600.0 / 12.0, 1000.0 / MI / 12.0, 1000.0 / MI / 60.0}},
    {{MI * 12.0 / 1000.0, MI * 12.0 * 3600.0 / 10.0, 36000.0, MI * 12.0 * 3600.0 / 1000.0, 1.0, 3600.0, 720.0}},
    {{MI * 12.0 / 1000.0 / 3600.0, MI * 12.0 / 10.0, 10.0, MI * 12.0 / 1000.0, 1.0 / 3600.0, 1.0, 12.0 / 60.0}},
    {{MI / 1000.0 / 60.0, MI * 60.0 / 10.0, 600.0 / 12.0, MI * 60.0 / 1000.0, 1.0 / 60.0 / 12.0, 60.0 / 12.0, 1.0}},
}};

constexpr Table<5> kTEMPERATURE = {{
    {{1.0, 1.8, 1.0, 10.0, 18.0}},
    {{1.0 / 1.8, 1.0, 1.0 / 1.8, 10.0 / 1.8, 10.0}},
    {{1.0, 1.8, 1.0, 10.0, 18.0}},
    {{0.1, 0.18, 0.1, 1.0, 1.8}},
    {{1.0 / 18.0, 0.1, 1.0 / 18.0, 10.0 / 18.0, 1.0}},
}};

constexpr Table<8> kVOLUMEE = {{
    {{1.0, cubed(1000.0 / MI / 12.0), GM / 42.0, GM, GM / GI, GM * LI / GI, YM, GM * LI * CL / GI}},
    {{cubed(MI * 12.0 / 1000.0), 1.0, cubed(MI * 12.0 / 1000.0) * GM / 42.0, cubed(MI * 12.0 / 1000.0) * GM, cubed(MI * 12.0 / 1000.0) * GM / GI, cubed(MI * 12.0 / 1000.0) * GM * LI / GI, cubed(MI * 12.0 / 1000.0) * YM, cubed(MI * 12.0 / 1000.0) * GM * LI * CL / GI}},
    {{42.0 / GM, cubed(1000.0 / MI / 12.0) * 42.0 / GM, 1.0, 42.0, 42.0 / GI, LI * 42.0 / GI, YM * 42.0 / GM, LI * 42.0 * CL / GI}},
    {{1.0 / GM, cubed(1000.0 / MI / 12.0) / GM, 1.0 / 42.0, 1.0, 1.0 / GI, LI / GI, YM / GM, LI * CL / GI}},
    {{GI / GM, cubed(1000.0 / MI / 12.0) * GI / GM, GI / 42.0, GI, 1.0, LI, GI * YM / GM, LI * CL}},
    {{0.001, cubed(1000.0 / MI / 12.0) / 1000.0, GM / 42.0 / 1000.0, GM / 1000.0, GM / GI / 1000.0, 1.0, 0.001 * YM, CL}},
    {{1.0 / YM, cubed(1000.0 / MI / 12.0) / YM, GM / 42.0 / YM, GM / YM, GM / GI / YM, GM * LI / GI / YM, 1.0, GM * LI * CL / GI / YM}},
    {{0.001 / CL, cubed(1000.0 / MI / 12.0) / 1000.0 / CL, GM / 42.0 / 1000.0 / CL, GM / 1000.0 / CL, GM / GI / 1000.0 / CL, 1.0 / CL, 0.001 * YM / CL, 1.0}},
}};

constexpr Table<5> kPRESSURE = {{
    {{1.0, 1000.0, 100000.0, 100.0, PB}},
    {{0.001, 1.0, 100.0, 0.1, PB / 1000.0}},
    {{0.00001, 0.01, 1.0, 0.001, PB / 100000.0}},
    {{0.01, 10.0, 1000.0, 1.0, PB / 100.0}},
    {{1.0 / PB, 1000.0 / PB, 100000.0 / PB, 100.0 / PB, 1.0}},
}};

constexpr Table<3> kVOLUMETRICFLOW = {{
    {{1.0, GM, GM / 42.0}},
    {{1.0 / GM, 1.0, 1.0 / 42.0}},
    {{42.0 / GM, 42.0, 1.0}},
}};

constexpr Table<4> kTIMEUNITS = {{
    {{1.0, 1000.0, 1.0 / 60.0, 1.0 / 3600.0}},
    {{1.0 / 1000.0, 1.0, 1.0 / 60.0 / 1000.0, 1.0 / 1000.0 / 3600.0}},
    {{60.0, 60000.0, 1.0, 1.0 / 60.0}},
    {{3600.0, 3600000.0, 60.0, 1.0}},
}};

constexpr Table<2> kFREQUENCY = {{
    {{1.0, 0.000001}},
    {{1000000.0, 1.0}},
}};

// The shortened constants are the catalogue's own: devices and hosts use them as they stand.
constexpr Table<5> kTemperatureOffsets = {{
    {{0.0, 32.0, 273.15, 0.0, 320.0}},
    {{-17.7778, 0.0, 255.37222, -177.7778, 0.0}},
    {{-273.15, -459.67, 0.0, -2731.5, -4596.7}},
    {{0.0, 32.0, 273.15, 0.0, 320.0}},
    {{-17.7778, 0.0, 255.372222, -177.7778, 0.0}},
}};
// clang-format on

struct Cell {
    double factor = 1.0;
    double offset = 0.0;
};

/// Number of units of a type.
constexpr std::size_t unitsOf(const units::UnitTypeRow& type)
{
    return static_cast<std::size_t>(std::int64_t{type.last} - type.first + 1);
}

constexpr std::size_t kMostUnits = unitsOf(*std::ranges::max_element(units::kUnitTypes, {}, unitsOf));

/// Which type a unit is of, and the first unit of that type.
struct Kind {
    UNIT_TYPE type;
    std::uint32_t first;
};

constexpr auto kKinds = [] {
    std::array<Kind, units::kUnits.size()> kinds{};
    for (const units::UnitTypeRow& type : units::kUnitTypes)
        for (std::int32_t unit = type.first; unit <= type.last; ++unit)
            kinds[static_cast<std::size_t>(unit)] = {type.type, static_cast<std::uint32_t>(type.first)};
    return kinds;
}();

/// For each unit the conversions to the units of its type, in the order of their values.
using Cells = std::array<std::array<Cell, kMostUnits>, units::kUnits.size()>;

template <UNIT_TYPE Type, std::size_t N>
constexpr void fill(Cells& cells, const Table<N>& table, double Cell::*field)
{
    constexpr units::UnitTypeRow kType = units::kUnitTypes[static_cast<std::size_t>(Type)];
    static_assert(unitsOf(kType) == N, "the table has a row and a column for each unit of the type");
    for (std::size_t from = 0; from < N; ++from)
        for (std::size_t to = 0; to < N; ++to)
            cells[static_cast<std::size_t>(kType.first) + from][to].*field = table[from][to];
}

/// All tables in one, so that a conversion reads one cell. A type without a table converts nothing.
constexpr Cells kCells = [] {
    Cells cells{};
    fill<Length>(cells, kLength, &Cell::factor);
    fill<VELOCITY>(cells, kVELOCITY, &Cell::factor);
    fill<TEMPERATURE>(cells, kTEMPERATURE, &Cell::factor);
    fill<TEMPERATURE>(cells, kTemperatureOffsets, &Cell::offset);
    fill<VOLUMEE>(cells, kVOLUMEE, &Cell::factor);
    fill<PRESSURE>(cells, kPRESSURE, &Cell::factor);
    fill<VOLUMETRICFLOW>(cells, kVOLUMETRICFLOW, &Cell::factor);
    fill<TIMEUNITS>(cells, kTIMEUNITS, &Cell::factor);
    fill<FREQUENCY>(cells, kFREQUENCY, &Cell::factor);
    return cells;
}();

/// What takes a value of one unit to another. The factor belongs to the unit type that is asked for, the offset to
/// the units alone. Units of two types have neither.
Cell cellOf(UNIT_TYPE type, MEAS_TYPE fromUnit, MEAS_TYPE toUnit) noexcept
{
    // As unsigned numbers, what lies below a range lies beyond its end.
    const auto from = static_cast<std::uint32_t>(fromUnit);
    if (from >= kCells.size()) [[unlikely]]
        return {};
    const std::uint32_t to = static_cast<std::uint32_t>(toUnit) - kKinds[from].first;
    if (to >= kMostUnits) [[unlikely]]
        return {};
    Cell cell = kCells[from][to];
    if (kKinds[from].type != type) [[unlikely]]
        cell.factor = 1.0;
    return cell;
}

} // namespace

double fd_GetConversionFactor(const UNIT_TYPE& i_UnitType, MEAS_TYPE i_FromUnit,
                              const MEAS_TYPE& i_ToUnit) noexcept
{
    return cellOf(i_UnitType, i_FromUnit, i_ToUnit).factor;
}

double fd_GetOffset(MEAS_TYPE i_FromUnit, const MEAS_TYPE& i_ToUnit) noexcept
{
    return cellOf(None, i_FromUnit, i_ToUnit).offset;
}

double converted(double value, UNIT_TYPE type, MEAS_TYPE from, MEAS_TYPE to) noexcept
{
    const Cell cell = cellOf(type, from, to);
    const double scaled = value * cell.factor;
    return scaled + cell.offset;
}

double convert(double value, UNIT_TYPE type, MEAS_TYPE from, MEAS_TYPE to)
{
    const double result = converted(value, type, from, to);
    if (!std::isfinite(result))
        raiseError(ErrorNumber::Overflow);
    return result;
}

} // namespace zor
