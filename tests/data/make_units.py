#!/usr/bin/env python3
"""Writes conversions.txt: every factor and offset, computed from unit sizes in exact arithmetic.

The sizes are written down here unit by unit, not pair by pair: a pair's factor is the ratio of two sizes. Where
a pair is reached over another unit (litres over gallons), the detour is written as such. Nothing is taken from
the table under test."""
from fractions import Fraction as F
import os

INCH, GM, PB, GI, LI, YM, CL = (F(x) for x in (
    "25.4", "264.172", "14.50377", "1.20095", "4.54609", "1.30795", "61.02374"))
FOOT = INCH * 12
rows = []


def ratios(unit_type, first, sizes):
    """A unit's size in a common unit; converting divides by the size of the target."""
    for i, source in enumerate(sizes):
        for j, target in enumerate(sizes):
            rows.append((unit_type, first + i, first + j, source / target))


# millimetres
ratios(0, 0, [F(1), F(1000), F(1, 10), INCH / 256, INCH / 16, INCH, FOOT, F(10)])
# millimetres an hour
ratios(1, 8, [F(3600000), F(10), FOOT / 10, F(1000), FOOT * 3600, FOOT, INCH * 60])
# kelvin a step
ratios(2, 15, [F(1), F(5, 9), F(1), F(1, 10), F(5, 90)])
# pascal
ratios(4, 28, [F(100000), F(100), F(1), F(1000), F(100000) / PB])
# US gallons an hour
ratios(5, 33, [GM, F(1), F(42)])
# milliseconds
ratios(8, 38, [F(1000), F(1), F(60000), F(3600000)])
# hertz
ratios(9, 42, [F(1), F(1000000)])

# Volumes. Cubic metres, feet and yards know each other and gallons; barrels and imperial gallons are counted in
# gallons. Litres and cubic inches are a thousandth of a cubic metre on the way to the others, but on the way
# back they are counted from imperial gallons, so the two directions are not each other's reciprocal.
M3, FT3, BBL, GAL, IMP, L, YD3, IN3 = range(20, 28)
cubic_foot = (FOOT / 1000) ** 3
in_m3 = {M3: F(1), FT3: cubic_foot, BBL: 42 / GM, GAL: 1 / GM, IMP: GI / GM, L: F(1, 1000), YD3: 1 / YM,
         IN3: F(1, 1000) / CL}
for source in range(20, 28):
    for target in range(20, 28):
        if source == target:
            factor = F(1)
        elif target in (L, IN3) and source in (L, IN3):
            factor = CL if source == L else 1 / CL
        elif target in (L, IN3):
            litres = in_m3[source] * GM / GI * LI
            factor = litres * (CL if target == IN3 else 1)
        else:
            factor = in_m3[source] / in_m3[target]
        rows.append((3, source, target, factor))

offsets = {15: ["0", "32", "273.15", "0", "320"], 16: ["-17.7778", "0", "255.37222", "-177.7778", "0"],
           17: ["-273.15", "-459.67", "0", "-2731.5", "-4596.7"], 18: ["0", "32", "273.15", "0", "320"],
           19: ["-17.7778", "0", "255.372222", "-177.7778", "0"]}

with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "conversions.txt"), "w") as out:
    out.write("# unit type, from, to, factor, offset; written by make_units.py\n")
    for unit_type, source, target, factor in rows:
        offset = offsets[source][target - 15] if source in offsets and target in offsets else "0"
        out.write(f"{unit_type} {source} {target} {float(factor)!r} {float(offset)!r}\n")
