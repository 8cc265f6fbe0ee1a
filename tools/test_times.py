#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""Where does ./test.sh spend its time? A table of what the logs of its builds and tests say.

ninja and CTest note when each step began and ended. What a step takes grows with what else the
machine does, so only shares and a second run on the same machine can be compared.

It reads what a build from nothing leaves behind, as ./test.sh in a fresh clone does. After several
builds each output counts with its last time, and how long the whole took is not known any more.
"""

import argparse
import re
import sys
import xml.etree.ElementTree as xml
from pathlib import Path
from typing import NamedTuple, Optional

ROOT = Path(__file__).resolve().parent.parent

# The first that is found in an output's path.
KINDS = [
    ("precompiled headers", re.compile(r"cmake_pch\.hxx\.gch$")),
    ("moc and uic, compiled", re.compile(r"mocs_compilation\.cpp\.o")),
    ("moc and uic", re.compile(r"_autogen/|\.moc$")),
    ("test objects", re.compile(r"(^|/)tests/.*\.o(bj)?$")),
    ("tool objects", re.compile(r"(^|/)(tools|bench)/.*\.o(bj)?$")),
    ("program objects", re.compile(r"\.o(bj)?$")),
    ("rcc, fonts and icons", re.compile(r"\.(ttf|png|ico)$|qrc_\w+\.cpp$")),
    ("links", re.compile(r"\.(a|so|dll|exe)$|^(bin|tests|tools/endurance)/[\w.-]+$")),
    ("other", re.compile("")),
]


class Step(NamedTuple):
    begin: int  # milliseconds since ninja's start
    end: int
    command: str  # its hash, equal for all outputs of one command


class Build(NamedTuple):
    steps: dict[str, Step]  # by output
    was_repeated: bool


def read_ninja_log(log: Path) -> Build:
    steps: dict[str, Step] = {}
    last_end = 0
    repeated = False
    for line in log.read_text(encoding="utf-8").splitlines()[1:]:
        begin, end, _, output, command = line.split("\t")
        repeated = repeated or output in steps or int(end) < last_end
        last_end = int(end)
        steps[output] = Step(int(begin), int(end), command)
    return Build(steps, repeated)


def kind_of(output: str) -> str:
    return next(name for name, pattern in KINDS if pattern.search(output))


def print_row(name: str, count: Optional[int], seconds: float) -> None:
    print(f"  {name:34} {'' if count is None else count:>6} {seconds:9.1f}")


def print_build(folder: Path) -> None:
    build = read_ninja_log(folder / ".ninja_log")
    commands: dict[Step, str] = {}
    for output, step in build.steps.items():
        commands.setdefault(step, kind_of(output.removeprefix(f"{folder}/")))
    print(f"\n{folder.relative_to(ROOT)}, built {'':14} count   seconds")
    for name, _ in KINDS:
        times = [step.end - step.begin for step, kind in commands.items() if kind == name]
        if times:
            print_row(name, len(times), sum(times) / 1000)
    if build.was_repeated:
        print("  several builds: how long the whole took is not known")
    else:
        print_row("from start to end", None, max(step.end for step in commands) / 1000)


def print_tests(folder: Path, slowest: int) -> None:
    log = folder / "Testing" / "times.xml"
    if not log.exists():
        return
    suite = xml.parse(log).getroot()
    times = sorted(((float(test.get("time", 0)), test.get("name", "")) for test in suite), reverse=True)
    print(f"\n{folder.relative_to(ROOT)}, tested {'':13} count   seconds")
    for seconds, name in times[:slowest]:
        print_row(name, None, seconds)
    print_row("the others", len(times[slowest:]), sum(seconds for seconds, _ in times[slowest:]))
    print_row("all", len(times), sum(seconds for seconds, _ in times))
    print_row("from start to end", None, float(suite.get("time", 0)))


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("--slowest", type=int, default=25, help="how many tests to name")
    parser.add_argument("presets", nargs="*", default=["tsan", "asan"],
                        help="whose build folders to read (tsan and asan)")
    options = parser.parse_args()
    folders = [ROOT / "build" / preset for preset in options.presets]
    missing = [str(folder) for folder in folders if not (folder / ".ninja_log").exists()]
    if missing:
        print(f"Not built: {', '.join(missing)}", file=sys.stderr)
        return 1
    print("Wall time of each step, with other steps beside it, as the logs of ninja and CTest have it.")
    for folder in folders:
        print_build(folder)
        print_tests(folder, options.slowest)
    return 0


if __name__ == "__main__":
    sys.exit(main())
