#!/usr/bin/env python3
"""Prints what the benchmarks of one run measured as tables: ours beside its bound and beside a peer of the same run, and
how the work grows with what there is of it.

    bench/table.py FOLDER [--document FILE]

FOLDER holds the benchmarks' results, PROGRAM.json each. Rows without a result are left out. --document writes the tables
into a document, with the machine and the date, in place of those that stand between its two marks, and then every row
must have its result. What the document says around them is people's."""

import argparse
import datetime
import json
import os
import pathlib
import platform
import subprocess
import sys
from typing import NamedTuple

# Between them stands what has been measured.
BEGIN = "<!-- written by scripts/bench --write -->\n"
END = "<!-- end of what is written -->\n"
UNITS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9, "B": 1, "kB": 1e3, "MB": 1e6, "%": 1e7, "": 1}


class Row(NamedTuple):
    """What is done; the program, and its benchmark; the unit of the columns and the bound in it, None: what the peer takes, if
    there is one; the peer, as it stands behind the slash of its name; how often the benchmark does it; what is looked at: the time, or a
    counter; what the peer took on the machine on which the bound was set."""

    work: str
    program: str
    name: str
    unit: str
    wanted: float | None
    peer: str = ""
    times: int = 1
    what: str = "time"
    then: float | None = None


def changing(control, wanted):
    return [Row(f"`DeviceValue`, changing, with a listener: {control}", "numeric", f"DeviceValue, changing, {control}/zor",
                "ns", wanted),
            Row("allocations of that", "numeric", f"DeviceValue, changing, {control}/zor", "", 0, what="allocations")]


def memory(work, program, name, unit, wanted, peer="", then=None):
    return Row(work, program, name, unit, wanted, peer, what="bytes_each", then=then)


ROWS = [
    Row("conversion, units chosen at run time", "conversion", "four conversions/zor", "ns", 1.6, "udunits2", 4),
    Row("value text of a double, user's separator", "text", "text of four values/zor", "ns", 15, "std::to_chars", 4, then=35),
    Row("number of a text, with the test", "text", "test and read four texts/zor", "ns", 15, "QLocale", 4, then=370),
    *changing("text box", 50), *changing("up-down", 50), *changing("slider", 35), *changing("label", 40),
    Row("the same value again: text box", "numeric", "DeviceValue, the same again, text box/zor", "ns", 25),
    Row("create and initialise 10,000 text boxes", "numeric", "create, text box/zor/10000", "ms", 15),
    memory("memory of one", "numeric", "create, text box/zor/10000", "kB", 1.5),
    Row("create and initialise 10,000 sliders", "numeric", "create, slider/zor/10000", "ms", 20),
    memory("memory of one", "numeric", "create, slider/zor/10000", "kB", 2),
    Row("list box, a value over 32,767 entries", "choice", "value of a list box/zor/32767", "ms", 0.1),
    Row("the same on Qt", "qt_choice", "value of a list box/zor/32767", "ms", 2),
    Row("create a `ZorTextBox` on Qt", "qt_widgets", "create/zor/1000", "us", 45, "QDoubleSpinBox", 1000, then=37),
    Row("the same", "qt_widgets", "create/zor/1000", "us", None, "a line edit and two labels", 1000, then=52),
    memory("memory of one", "qt_widgets", "create/zor/1000", "kB", 9, "QDoubleSpinBox", then=7),
    memory("the same", "qt_widgets", "create/zor/1000", "kB", None, "a line edit and two labels", then=8.8),
    Row("show 10,000 of them", "qt_widgets", "show/zor/10000", "ms", None, "QDoubleSpinBox"),
    Row("delete 10,000 of them", "qt_widgets", "delete/zor/10000", "ms", None, "QDoubleSpinBox"),
    Row("load a form of 1,000 (`ZorUiLoader`)", "qt_widgets", "load/zor/1000", "ms", 90, "QUiLoader"),
    Row("a new value in a visible field, with its frame", "qt_text_box", "a value, with a frame/zor", "us", 27, "QDoubleSpinBox", then=27),
    Row("the same", "qt_text_box", "a value, with a frame/zor", "us", None, "QLineEdit"),
    Row("monitor, 2,000 parameters in 50 groups, from start to first values", "monitor", "start/2000/50", "s", 0.4),
    Row("its memory", "monitor", "start/2000/50", "MB", 60, what="bytes"),
    Row("monitor, 10,000 parameters in 50 groups", "monitor", "start/10000/50", "s", 1),
    Row("its memory", "monitor", "start/10000/50", "MB", 90, what="bytes"),
    Row("monitor, a form file of 1,000 controls", "monitor", "start with a form file/1000/1", "s", None),
    Row("monitor, 1,000 visible parameters at 10 Hz: of a core", "monitor", "follow ten times a second/1000", "%", 15),
]
# How one item's time grows: of what, the program and its benchmark, and how many there are.
TENFOLD = [1, 10, 100, 1000, 10_000]
ENTRIES = [10, 100, 1000, 10_000, 32_767]
GROWTH = [
    ("text boxes, created", "numeric", "create, text box/zor/{}", TENFOLD),
    ("sliders, created", "numeric", "create, slider/zor/{}", TENFOLD),
    ("`ZorTextBox` on Qt, created", "qt_widgets", "create/zor/{}", TENFOLD),
    ("combo box, a value", "choice", "value of a combo box/zor/{}", ENTRIES),
    ("list box, a value", "choice", "value of a list box/zor/{}", ENTRIES),
    ("the same on Qt", "qt_choice", "value of a list box/zor/{}", ENTRIES),
    ("monitor, parameters", "monitor", "start/{}/50", [10, 100, 1000, 2000, 10_000]),
]


def results(folder):
    """Medians by program and name: time in ns, processor time unless the benchmark measured by itself, and counters."""
    found = {}
    for path in sorted(pathlib.Path(folder).glob("*.json")):
        for run in json.loads(path.read_text())["benchmarks"]:
            if run.get("aggregate_name") != "median":
                continue
            own = "/manual_time" in run["run_name"]
            name = run["run_name"].split("/iterations:")[0].split("/repeats:")[0].removesuffix("/manual_time")
            found[path.stem, name] = run | {"time": run["real_time" if own else "cpu_time"] * UNITS[run["time_unit"]]}
    return found


def figure(value):
    """Three digits, without an exponent."""
    return f"{value:.0f}" if value >= 100 else f"{value:.3g}"


def bounds(found, complete):
    yield "| work | ours | wanted | reached | a peer in the same run | ours takes |"
    yield "|---|---|---|---|---|---|"
    for row in ROWS:
        ours = found.get((row.program, row.name))
        if ours is None or row.what not in ours:
            if complete:
                sys.exit(f"table: no {row.what} for {row.name} of {row.program}")
            continue
        shown = lambda run: run[row.what] / row.times / UNITS[row.unit]
        other = found.get((row.program, row.name.replace("/zor", "/" + row.peer))) if row.peer else None
        wanted = shown(other) if row.wanted is None and other else row.wanted
        reached = "" if wanted is None else "yes" if float(figure(shown(ours))) <= float(figure(wanted)) else "**no**"
        unit = " µs" if row.unit == "us" else f" {row.unit}" if row.unit else ""
        cells = [row.work, figure(shown(ours)) + unit,
                 f"{row.wanted:g}{unit}" if row.wanted is not None else "the peer's" if row.peer else "", reached,
                 f"{row.peer} {figure(shown(other))}{unit}" + (f", then {row.then:g}" if row.then else "") if other else "",
                 f"{shown(ours) / shown(other):.2f} of it" if other else ""]
        yield f"| {' | '.join(cells)} |"


def growth(found):
    yield "| work | " + " | ".join(["how many: time for each"] + [""] * 4) + " |"
    yield "|---|---|---|---|---|---|"
    for work, program, name, counts in GROWTH:
        runs = [found.get((program, name.format(count))) for count in counts]
        if None not in runs:
            each = [run["time"] / count for run, count in zip(runs, counts)]
            cells = [f"{count:,}: " + (figure(ns) + " ns" if ns < 1e4 else figure(ns / 1e3) + " µs")
                     for count, ns in zip(counts, each)]
            yield f"| {work} | {' | '.join(cells)} |"


def machine():
    model = platform.processor() or platform.machine()
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            model = line.split(":", 1)[1].strip()
            break
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=True).stdout.splitlines()[0]
    return f"{model}, {os.cpu_count()} cores, {platform.system()} {platform.release()}, {compiler}"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--document")
    options = parser.parse_args()
    found = results(options.folder)
    tables = ["\n".join(bounds(found, options.document is not None)) + "\n", "\n".join(growth(found)) + "\n"]
    print(*tables, sep="\n", end="")
    if options.document:
        document = pathlib.Path(options.document)
        before, mark, rest = document.read_text().partition(BEGIN)
        old, end, after = rest.partition(END)
        if not mark or not end:
            sys.exit(f"table: {document} lacks its marks")
        document.write_text(f"{before}{BEGIN}\n{datetime.date.today().isoformat()}; {machine()}\n\n{tables[0]}\n## Growth\n\n"
                            "Linear is what takes each as long as the one before; what only few ask for carries what is paid once.\n\n"
                            f"{tables[1]}{END}{after}")


main()
