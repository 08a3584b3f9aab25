#!/usr/bin/env python3
"""Prints what the benchmarks of one run measured as one table: ours beside its bound and beside a peer of the same run.

    bench/table.py FOLDER [--document FILE]

FOLDER holds the benchmarks' results, PROGRAM.json each. Rows without a result are left out. --document writes the table
as a document, with the machine and the date, and then every row must have its result."""

import argparse
import datetime
import json
import os
import pathlib
import platform
import subprocess
import sys

NS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

# What is done; the program, and the name of its benchmark; how often that does it; the unit of the column and the bound to
# keep in it; the peer, as it stands behind the slash of its name.
ROWS = [
    ("conversion, units chosen at run time", "conversion", "four conversions/zor", 4, "ns", 1.6, "udunits2"),
    ("value text of a double, user's separator", "text", "text of four values/zor", 4, "ns", 15, "std::to_chars"),
    ("number of a text, with the test", "text", "test and read four texts/zor", 4, "ns", 15, "QLocale"),
    ("`DeviceValue`, changing, with a sink: text box", "text_box", "DeviceValue, changing/with listener", 1, "ns", 50, ""),
    ("the same: up-down", "numeric", "DeviceValue, changing, up-down/zor", 1, "ns", 50, ""),
    ("the same: slider", "numeric", "DeviceValue, changing, slider/zor", 1, "ns", 35, ""),
    ("the same: label", "numeric", "DeviceValue, changing, label/zor", 1, "ns", 40, ""),
    ("the same value again: text box", "text_box", "DeviceValue, the same again/with listener", 1, "ns", 25, ""),
    ("create and initialise 10,000 text boxes", "text_box", "create 10,000 text boxes/zor", 1, "ms", 15, ""),
    ("create and initialise 10,000 sliders", "numeric", "create 10,000 sliders/zor", 1, "ms", 20, ""),
    ("list box, a value over 32,767 entries", "choice", "value of a list box/zor/32767", 1, "ms", 0.1, ""),
    ("the same on Qt", "qt_choice", "value of a list box/zor/32767", 1, "ms", 2, ""),
    ("a new value in a field on Qt, with its frame", "qt_text_box", "a value, with a frame/zor", 1, "us", 27, "QDoubleSpinBox"),
]
# Memory: of what, the program and its benchmark, the bound in bytes.
BYTES = [
    ("a text box", "text_box", "create 10,000 text boxes/zor", 1500),
    ("a slider", "numeric", "create 10,000 sliders/zor", 2000),
]


def results(folder):
    """Medians by program and name: processor time in ns, and bytes where they were counted."""
    found = {}
    for path in sorted(pathlib.Path(folder).glob("*.json")):
        for run in json.loads(path.read_text())["benchmarks"]:
            if run.get("aggregate_name") == "median":
                found[path.stem, run["run_name"]] = run["cpu_time"] * NS[run["time_unit"]], run.get("bytes_each")
    return found


def lines(found, complete):
    yield "| work | ours | wanted | a peer in the same run | the peer takes |"
    yield "|---|---|---|---|---|"
    for work, program, name, times, unit, wanted, peer in ROWS:
        ours = found.get((program, name))
        if ours is None:
            if complete:
                sys.exit(f"table: no result for {name} of {program}")
            continue
        other = found.get((program, name.replace("/zor", "/" + peer))) if peer else None
        cells = [f"{ours[0] / times / NS[unit]:.3g} {unit}", f"{wanted:g} {unit}"]
        if other is None:
            cells += ["", ""]
        else:
            cells += [f"{peer} {other[0] / times / NS[unit]:.3g} {unit}", f"{other[0] / ours[0]:.2f} times as long"]
        yield f"| {work} | {' | '.join(cells)} |"
    for work, program, name, wanted in BYTES:
        ours = found.get((program, name))
        if ours is not None and ours[1] is not None:
            yield f"| memory of {work} | {ours[1] / 1000:.3g} kB | {wanted / 1000:g} kB | | |"


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
    table = "\n".join(lines(results(options.folder), options.document is not None)) + "\n"
    sys.stdout.write(table)
    if options.document:
        pathlib.Path(options.document).write_text(
            "# Performance\n\n"
            "Written by `scripts/bench --write`: medians of processor time of one run. Times follow the machine and what else it\n"
            "does; the ratios to the peers of the same run say more. `scripts/instructions` holds the value path's work.\n\n"
            f"{datetime.date.today().isoformat()}; {machine()}\n\n{table}")


main()
