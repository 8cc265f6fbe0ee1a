#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""Change the models, or what they are made from, in one place at a time, and see if a test fails.

Places are chosen at random, from a fixed seed. In a mutant one operator, constant or comparison is
changed, or one statement is removed. If it does not compile, another one replaces it. A mutant is
caught if a test fails, crashes or takes ten times as long as before. The survivors are listed at the
end. The status is 0 if more than 95 % were caught.

All of this happens in a copy of the sources below build/.
"""

import argparse
import filecmp
import math
import os
import random
import re
import resource
import shutil
import subprocess
import sys
from pathlib import Path
from typing import Iterator, NamedTuple

ROOT = Path(__file__).resolve().parent.parent
COPY = ROOT / "build" / "mutants"
BUILD = COPY / "build" / "mutation"
FOLDERS = ("values", "store", "profiles")
LIBRARIES = [f"dezimo_{folder}" for folder in FOLDERS]
TESTED_IN_WINDOWS = ("checkedsettings",)  # its tests open windows and take too long for each mutant
NEEDED_SHARE = 0.95
MEMORY_LIMIT = 4 << 30  # bytes, because a mutant may allocate without end
BASELINE_SECONDS = 300  # for one test of the unchanged sources

# Texts and comments, to which the rules for code do not apply.
LITERAL = re.compile(r'"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|//[^\n]*|/\*.*?\*/', re.DOTALL)
# clang-format puts blanks around binary operators and nowhere else.
OPERATORS = {
    "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">",
    "+": "-", "-": "+", "*": "/", "/": "*", "&&": "||", "||": "&&", "+=": "-=", "-=": "+=",
}
BINARY = re.compile(r"(?<= )(?:%s)(?= )" % "|".join(
    re.escape(operator) for operator in sorted(OPERATORS, key=len, reverse=True)))
STEP = re.compile(r"\+\+|--")
NEGATION = re.compile(r"!(?=[\w(])|(?<=[(,:?=] )-(?=\w)|(?<=\()-(?=\w)|(?<=return )-(?=\w)")
NUMBER = re.compile(r"(?<![\w.])\d+(?:\.\d+)?(?:e[+-]?\d+)?(?![\w.])")
CONDITION = re.compile(r"(?<=\bif \()(?=\w)")
TRUTH = re.compile(r"\b(?:true|false)\b")
STATEMENT = re.compile(r"(?m)^ +\w[^\n{}]*;$")


class Mutant(NamedTuple):
    file: Path  # relative to ROOT
    begin: int
    end: int
    replacement: str

    def describe(self, text: str) -> str:
        line = text.count("\n", 0, self.begin) + 1
        column = self.begin - text.rfind("\n", 0, self.begin)
        place = f"{self.file}:{line}:{column}"
        return f"{place}: {text[self.begin:self.end].strip()!r} -> {self.replacement!r}"


def other_number(literal: str) -> str:
    if literal.isdigit():
        return str(int(literal) + 1)
    return repr(float(literal) * 2 or 1.0)


def is_whole_statement(code: str, match: re.Match) -> bool:
    """Whether the line is a statement that can be left out; a last return cannot."""
    before = code[:match.start()].rstrip()
    after = code[match.end():].lstrip()
    is_last_return = match[0].lstrip().startswith("return") and after.startswith(("}", "case"))
    return (before.endswith(("{", "}", ";", ":", ")", "else")) and not is_last_return
            and match[0].count("(") == match[0].count(")"))


def mutants_of(file: Path, text: str) -> Iterator[Mutant]:
    code = LITERAL.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), text)
    code = re.sub(r"(?m)^#.*", lambda line: " " * len(line[0]), code)
    for found in BINARY.finditer(code):
        yield Mutant(file, *found.span(), OPERATORS[found[0]])
    for found in STEP.finditer(code):
        yield Mutant(file, *found.span(), "--" if found[0] == "++" else "++")
    for found in NEGATION.finditer(code):
        yield Mutant(file, *found.span(), "")
    for found in NUMBER.finditer(code):
        yield Mutant(file, *found.span(), other_number(found[0]))
    for found in CONDITION.finditer(code):
        yield Mutant(file, *found.span(), "!")
    for found in TRUTH.finditer(code):
        yield Mutant(file, *found.span(), "false" if found[0] == "true" else "true")
    if file.suffix == ".cpp":
        for found in STATEMENT.finditer(code):
            if is_whole_statement(code, found):
                yield Mutant(file, *found.span(), ";")


def copy_sources() -> None:
    tracked = subprocess.run(["git", "-c", f"safe.directory={ROOT}", "ls-files", "-z"], cwd=ROOT,
                             check=True, capture_output=True, text=True).stdout
    for name in filter(None, tracked.split("\0")):
        target = COPY / name
        target.parent.mkdir(parents=True, exist_ok=True)
        # Where the last run has left a mutant, the copy gets a new time and is compiled again.
        if not target.exists() or not filecmp.cmp(ROOT / name, target, shallow=False):
            shutil.copyfile(ROOT / name, target)


def build(targets: list[str]) -> bool:
    return subprocess.run(["cmake", "--build", BUILD, "--parallel", "1", "--target", *targets],
                          capture_output=True, check=False).returncode == 0


def seconds_of_children() -> float:
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


class Tests:
    """The tests of the models, and how many seconds of processor time each takes."""

    def __init__(self) -> None:
        self.seconds: dict[str, float] = {}
        self.names = sorted(path.stem for path in ROOT.glob("tests/*/tst_*.cpp")
                            if path.parent.name in FOLDERS)

    def passes(self, name: str, seconds: float) -> bool:
        def limit() -> None:
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
            resource.setrlimit(resource.RLIMIT_CPU, (math.ceil(seconds), math.ceil(seconds) + 1))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        begin = seconds_of_children()
        status = subprocess.run([BUILD / "tests" / name], check=False, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL, preexec_fn=limit).returncode
        self.seconds.setdefault(name, seconds_of_children() - begin)
        return status == 0

    def failing_before(self) -> list[str]:
        return [name for name in self.names if not self.passes(name, BASELINE_SECONDS)]

    def catcher(self, file: Path) -> str | None:
        """The first test that fails, None if there is none, "" if one does not compile.

        Tests named after the file come first, then short ones. A test is built only when it is
        needed, because a mutant in a header makes all of them out of date.
        """
        def rank(name: str) -> tuple[bool, float]:
            return not name.startswith(f"tst_{file.stem}"), self.seconds[name]

        for name in sorted(self.names, key=rank):
            if not build([name]):
                return ""
            if not self.passes(name, 1 + 10 * self.seconds[name]):
                return name
        return None


def try_out(mutant: Mutant, text: str, tests: Tests) -> str | None:
    """What caught the mutant of text, "" if it does not compile, None if it survived."""
    copy = COPY / mutant.file
    copy.write_text(text[:mutant.begin] + mutant.replacement + text[mutant.end:])
    try:
        return tests.catcher(mutant.file) if build(LIBRARIES) else ""
    finally:
        copy.write_text(text)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--count", type=int, default=200, help="how many mutants (default 200)")
    parser.add_argument("--seed", type=int, default=1, help="which ones (default 1)")
    parser.add_argument("names", nargs="*", metavar="FILE",
                        help="only in these files (default all)")
    arguments = parser.parse_args()

    os.environ["CCACHE_DISABLE"] = "1"  # no mutant is built twice, so the cache would only fill up
    copy_sources()
    subprocess.run(["cmake", "--preset", "mutation"], cwd=COPY, check=True,
                   stdout=subprocess.DEVNULL)
    tests = Tests()
    if not build(tests.names):
        sys.exit("The tests do not build even without a mutant.")
    if failing := tests.failing_before():
        sys.exit(f"These tests fail even without a mutant: {' '.join(failing)}")

    files = sorted(path.relative_to(ROOT) for path in ROOT.glob("*/*.[ch]*")
                   if path.parent.name in FOLDERS and path.stem not in TESTED_IN_WINDOWS
                   and (path.name in arguments.names or not arguments.names))
    texts = {file: (COPY / file).read_text() for file in files}
    candidates = [mutant for file in files for mutant in mutants_of(file, texts[file])]
    random.Random(arguments.seed).shuffle(candidates)
    tried = 0
    survivors = []
    while tried < arguments.count and candidates:
        batch = candidates[:arguments.count - tried]
        candidates = candidates[len(batch):]
        # In the order of the files, so that each file is compiled without a mutant only once.
        for mutant in sorted(batch):
            text = texts[mutant.file]
            catcher = try_out(mutant, text, tests)
            if catcher == "":
                continue
            tried += 1
            line = mutant.describe(text)
            print(f"{tried:4} {line}: {catcher or 'SURVIVED'}", flush=True)
            if catcher is None:
                survivors.append(line)

    caught = tried - len(survivors)
    print(f"\n{caught} of {tried} mutants caught ({100 * caught / tried:.1f} %)", *survivors,
          sep="\n")
    return 0 if caught > NEEDED_SHARE * tried else 1


if __name__ == "__main__":
    sys.exit(main())
