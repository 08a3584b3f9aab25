"""Units, their conversion, and numbers as people write them: a part of the catalogue, formula by formula."""

import re
from decimal import ROUND_HALF_UP, Decimal
from fractions import Fraction

# A unit's size in one that its type has in common; a factor is the ratio of two sizes.
SIZES = {0: {0: 1, 1: 1000, 2: Fraction(1, 10), 5: Fraction("25.4"), 7: 10}, 2: {15: 1, 16: Fraction(5, 9), 17: 1}}
OFFSETS = {(15, 16): 32, (15, 17): 273.15, (16, 15): -17.7778, (16, 17): 255.37222, (17, 15): -273.15, (17, 16): -459.67}
# Label, identifier, decimals.
UNITS = {0: ("mm", "LENGTH_MM", 0), 1: ("m", "LENGTH_MTR", 3), 2: ("1/10mm", "LENGTH_1/10_MM", 2), 5: ("in", "LENGTH_INCH", 1),
         7: ("cm", "LENGTH_CM", 1), 15: ("°C", "TEMP_DEGC", 1), 16: ("°F", "TEMP_DEGF", 1), 17: ("°K", "TEMP_DEGK", 1),
         52: ("", "NONE", None), 53: ("", "ERROR", None)}
TYPES = (0, 0, 2, 11)


class Overflow(Exception):
    """A number that does not fit."""


def convert(value, kind, source, target):
    sizes = SIZES.get(kind, {})
    factor = float(Fraction(sizes[source]) / sizes[target]) if source in sizes and target in sizes else 1
    return value * factor + OFFSETS.get((source, target), 0)


def whole(value):
    """To the nearest whole number, halves to the even one."""
    rounded = round(value)
    if not -2**31 <= rounded < 2**31:
        raise Overflow
    return rounded


def plain(value, decimal="."):
    """A number in up to 15 digits, as the platform writes it; what is rounded is the decimal that people see."""
    exact = Decimal(repr(float(value)))
    if not exact:
        return "0"
    exact = exact.quantize(Decimal(1).scaleb(exact.adjusted() - 14), ROUND_HALF_UP).normalize()
    if -4 <= exact.adjusted() < 15:
        return f"{exact:f}".replace(".", decimal)
    digits, power = f"{exact:E}".split("E")
    return f"{digits}E{int(power):+03d}".replace(".", decimal)


def fixed(value, decimals, decimal="."):
    return str(Decimal(repr(float(value))).quantize(Decimal(1).scaleb(-decimals), ROUND_HALF_UP)).replace(".", decimal)


def reading(text, decimal, group):
    """The number that a user with these separators reads, or None."""
    dot, comma = re.escape(decimal), re.escape(group) or "(?!)"
    match = re.fullmatch(rf" *([+-]?)((?:\d(?:{comma}(?=\d))?)*)(?:{dot}(\d*))?(?:[eE]([+-]?\d+))? *", text)
    if not match or not (match[2] or match[3]):
        return None
    return float(f"{match[1]}{match[2].replace(group, '') if group else match[2] or 0}.{match[3] or 0}e{match[4] or 0}") \
        if match[2] else float(f"{match[1]}0.{match[3]}e{match[4] or 0}")


def is_valid(value, decimal, group):
    """Whether both readings of a number agree to 1."""
    text = value if isinstance(value, str) else plain(value, decimal)
    own = reading(text, decimal, group)
    if own is None:
        return False
    for letter in "eE":
        if letter in text:
            return is_valid(text.split(letter)[0], decimal, group)
    other = re.match(r" *([+-]?\d*\.?\d*)", text)[1]
    return abs(own - (float(other) if re.search(r"\d", other) else 0)) <= 1
