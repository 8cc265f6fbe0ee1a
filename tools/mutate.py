#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""Change the program in one place at a time, and see if a test fails.

Each folder gets its share of the places by its lines. Its places are chosen at random, from a seed
of its own, so that a folder has the same ones whichever others are tried. In a mutant one condition
is turned, one operator or number is changed, or one statement is left out, such as a connection or
what a slot does. If it does not compile, another one replaces it, and so it does for a source that
compiles to what it was before. A mutant is caught if a test fails, crashes or takes many times as
long as before, twice. The survivors are listed at the end. The status is 0 if at least 95 % were
caught in the models and 90 % in the other folders.

A model is tried by the tests of the models, all else by the tests of all else: by those that link
the file, says the build. Only test programs count. What needs a display or a package is left out,
and so is a file that no test links here: what is compiled for Windows, and the main function. The
forms are not changed, only the code.

All of this happens in a copy of the sources below build/.
"""

import argparse
import filecmp
import json
import math
import os
import random
import re
import resource
import shutil
import subprocess
import sys
import textwrap
import time
from pathlib import Path
from tempfile import TemporaryDirectory
from typing import Iterator, NamedTuple

ROOT = Path(__file__).resolve().parent.parent
COPY = ROOT / "build" / "mutants"
BUILD = COPY / "build" / "mutation"
MODELS = ("values", "store", "profiles")
OTHERS = ("views", "app", "widgets", "sysinfo")
TESTED_BY_OTHERS = ("checkedsettings",)  # a file of the models that only the tests of app/ know
NEEDED_SHARE = {MODELS: 0.95, OTHERS: 0.9}
MEMORY_LIMIT = 4 << 30  # bytes, because a mutant may allocate without end
BASELINE_SECONDS = 300  # for one test of the unchanged sources
# A mutant may write anywhere. Run by root, one has put a file in the place of /dev/zero.
WITHOUT_RIGHTS = ({"user": "nobody", "group": "nogroup", "extra_groups": []}
                  if os.geteuid() == 0 else {})

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
CONDITION = re.compile(r"\b(?:if|while) \(")
CHOICE = re.compile(r"(?<= )\?(?= )")
TRUTH = re.compile(r"\b(?:true|false)\b")
# A statement that holds others is not left out as a whole.
STATEMENT = re.compile(r"(?m)^ +(?!(?:if|else|for|while|do|switch|case|default)\b)(?=[\w*])")
CONNECTION = re.compile(r"(?:\w+::)?connect\(")


class Mutant(NamedTuple):
    file: Path  # relative to ROOT
    begin: int
    end: int
    replacement: str

    def place(self, text: str) -> str:
        line = text.count("\n", 0, self.begin) + 1
        column = self.begin - text.rfind("\n", 0, self.begin)
        return f"{self.file}:{line}:{column}"

    def names(self, text: str) -> set[str]:
        """What one may ask for to get it."""
        return {self.file.name, str(self.file), self.place(text)}

    def describe(self, text: str) -> str:
        original = textwrap.shorten(text[self.begin:self.end], 100, placeholder=" ...")
        return f"{self.place(text)}: {original!r} -> {self.replacement!r}"


def other_number(literal: str) -> str:
    if literal.isdigit():
        return str(int(literal) + 1)
    return repr(float(literal) * 2 or 1.0)


def conditions_of(code: str) -> Iterator[tuple[int, int]]:
    """Begin and end of what is asked by an if or a while, without what is declared before it."""
    for found in CONDITION.finditer(code):
        begin, depth = found.end(), 1
        for end, character in enumerate(code[begin:], begin):
            depth += (character in "([{") - (character in ")]}")
            if character == ";" and depth == 1:
                begin = end + 2
            if depth == 0:
                yield begin, end
                break


def end_of_statement(code: str, begin: int) -> int | None:
    """Where the statement ends that begins there, None if it is a block or no statement at all.

    It may span several lines, and in brackets even hold blocks, as the lambda of a connection does.
    """
    depth = 0
    for position, character in enumerate(code[begin:], begin):
        if character == ";" and depth == 0:
            return position + 1
        if character == "{" and depth == 0 and not code.endswith("= ", begin, position):
            return None
        if character in "([{":
            depth += 1
        elif character in ")]}":
            depth -= 1
        if depth < 0:
            return None
    return None


def statements_of(code: str) -> Iterator[tuple[int, int]]:
    """Begin and end of each statement that can be left out; a function's last return cannot."""
    for found in STATEMENT.finditer(code):
        begin, end = found.end(), end_of_statement(code, found.end())
        if end is None or not code[:begin].rstrip().endswith(("{", "}", ";", ":", ")", "else")):
            continue
        if not (code.startswith("return", begin) and code.startswith("\n}", end)):
            yield begin, end


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
    for begin, end in conditions_of(code):
        if not code.startswith("!", begin):  # that negation can be left out
            yield Mutant(file, begin, end, f"!({text[begin:end]})")
    for found in CHOICE.finditer(code):
        yield Mutant(file, *found.span(), "== false ?")
    for found in TRUTH.finditer(code):
        yield Mutant(file, *found.span(), "false" if found[0] == "true" else "true")
    for begin, end in statements_of(code):
        # Most of what a header has are declarations, which cannot be left out.
        if file.suffix == ".cpp" or CONNECTION.match(code, begin):
            yield Mutant(file, begin, end, ";")


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


def told_by(*command: str) -> str:
    return subprocess.run(command, cwd=BUILD, check=True, capture_output=True, text=True).stdout


def target_of(folder: str) -> str:
    return "dezimo_shell" if folder == "app" else f"dezimo_{folder}"


def library_of(folder: str) -> bytes:
    return (BUILD / folder / f"lib{target_of(folder)}.so").read_bytes()


def seconds_of_children() -> float:
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


class Test(NamedTuple):
    name: str
    folder: str
    program: str
    arguments: list[str]
    environment: dict[str, str]

    def passes(self, processor_seconds: float, seconds: float) -> bool:
        def limit() -> None:
            whole = math.ceil(processor_seconds)
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
            resource.setrlimit(resource.RLIMIT_CPU, (whole, whole + 1))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        # What a mutant leaves behind is not there for the next test.
        with TemporaryDirectory() as folder:
            if WITHOUT_RIGHTS:
                shutil.chown(folder, WITHOUT_RIGHTS["user"], WITHOUT_RIGHTS["group"])
            own_folders = {"TMPDIR": folder, "HOME": folder, "XDG_RUNTIME_DIR": folder}
            try:
                return subprocess.run([BUILD / "tests" / self.program, *self.arguments],
                                      check=False, cwd=folder,
                                      env=os.environ | self.environment | own_folders,
                                      stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                      preexec_fn=limit, timeout=seconds,
                                      **WITHOUT_RIGHTS).returncode == 0
            except subprocess.TimeoutExpired:
                return False


def tests_of(folders: list[str]) -> list[Test]:
    """The test programs of tests/<folder> with what CTest gives them. They have to be built."""
    tests = []
    for entry in json.loads(told_by("ctest", "--show-only=json-v1"))["tests"]:
        properties = {each["name"]: each["value"] for each in entry["properties"]}
        folder = Path(properties["WORKING_DIRECTORY"]).name
        program = Path(entry["command"][0]) if "command" in entry else Path()
        if folder in folders and program.parent == BUILD / "tests":
            environment = dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))
            arguments = entry["command"][1:]
            tests.append(Test(entry["name"], folder, program.name, arguments, environment))
    return tests


def files_by_object() -> dict[str, set[Path]]:
    """The files of this project that the compiler read for each object."""
    files: dict[str, set[Path]] = {}
    for line in told_by("ninja", "-t", "deps").splitlines():
        if line.startswith(" "):
            path = Path(os.path.normpath(BUILD / line.strip()))
            if path.is_relative_to(COPY):
                files[output].add(path.relative_to(COPY))
        elif line:
            output = line.split(":")[0]
            files[output] = set()
    return files


class Suite:
    """The tests, the files that each of them links, and the seconds that each takes."""

    def __init__(self, tests: list[Test]) -> None:
        self.tests = tests
        self.processor_seconds: dict[str, float] = {}
        self.seconds: dict[str, float] = {}
        self.files: dict[str, set[Path]] = {}
        read = files_by_object()
        for program in {test.program for test in tests}:
            inputs = told_by("ninja", "-t", "inputs", f"tests/{program}").splitlines()
            self.files[program] = set().union(*(read.get(name, set()) for name in inputs))

    def failing_before(self) -> list[str]:
        failing = []
        for test in self.tests:
            begin, processor_begin = time.monotonic(), seconds_of_children()
            if not test.passes(BASELINE_SECONDS, BASELINE_SECONDS):
                failing.append(test.name)
            self.seconds[test.name] = time.monotonic() - begin
            self.processor_seconds[test.name] = seconds_of_children() - processor_begin
        return failing

    def linking(self, file: Path) -> list[Test]:
        """The tests of the file, nearest first: named after it, then of its folder, then short."""
        def rank(test: Test) -> tuple[bool, bool, float]:
            subject = test.name.removeprefix("tst_")
            is_namesake = file.stem in subject or subject in file.stem  # guidewindow, for one
            return not is_namesake, test.folder != file.parent.name, self.seconds[test.name]

        return sorted((test for test in self.tests if file in self.files[test.program]), key=rank)

    def fails(self, test: Test) -> bool:
        """Whether it fails twice, because once may be the fault of what else the machine does."""
        # What opens windows mostly waits, and how long depends on the rest of the machine, too.
        limits = 1 + 10 * self.processor_seconds[test.name], 20 + 5 * self.seconds[test.name]
        return not any(test.passes(*limits) for _ in range(2))

    def catcher(self, file: Path) -> str | None:
        """The first test that fails, None if there is none, "" if one does not compile."""
        tests = self.linking(file)
        # A mutant in a header makes all tests out of date, so each is built when it is needed.
        is_header = file.suffix == ".h"
        if not is_header and not build([test.program for test in tests]):
            return ""
        for test in tests:
            if is_header and not build([test.program]):
                return ""
            if self.fails(test):
                return test.name
        return None


def try_out(mutant: Mutant, text: str, suite: Suite, library: bytes) -> str | None:
    """What caught the mutant of text, None if it survived.

    "" if there is no mutant: it does not compile, or to the library that there was before.
    """
    copy = COPY / mutant.file
    copy.write_text(text[:mutant.begin] + mutant.replacement + text[mutant.end:])
    folder = mutant.file.parent.name
    try:
        if not build([target_of(folder)]):
            return ""
        if mutant.file.suffix == ".cpp" and library_of(folder) == library:
            return ""
        return suite.catcher(mutant.file)
    finally:
        copy.write_text(text)


class Tally(NamedTuple):
    folder: str
    lines: int
    tried: int
    survivors: list[str]

    @property
    def caught(self) -> int:
        return self.tried - len(self.survivors)

    def __str__(self) -> str:
        return (f"{self.folder:10} {self.lines:5} lines, {self.caught:3} of {self.tried:3} mutants"
                f" caught ({100 * self.caught / max(self.tried, 1):.1f} %)")


class Folder:
    """The files of a folder that can be tried, and all their mutants in the order of the seed."""

    def __init__(self, name: str, wanted: list[str], seed: int, suite: Suite) -> None:
        self.name = name
        self.library = library_of(name)
        files = sorted(path.relative_to(ROOT) for path in (ROOT / name).glob("*.[ch]*")
                       if path.stem not in TESTED_BY_OTHERS)
        self.without_test = [file for file in files if not suite.linking(file)]
        self.texts = {file: (COPY / file).read_text() for file in files
                      if file not in self.without_test}
        self.mutants = [mutant for file, text in self.texts.items()
                        for mutant in mutants_of(file, text)
                        if not wanted or not mutant.names(text).isdisjoint(wanted)]
        random.Random(f"{seed} {name}").shuffle(self.mutants)
        self.lines = sum(text.count("\n") for text in self.texts.values())

    def try_out(self, count: int, suite: Suite) -> Tally:
        tried = 0
        survivors = []
        while tried < count and self.mutants:
            batch = self.mutants[:count - tried]
            self.mutants = self.mutants[len(batch):]
            # In the order of the files, so that each file is compiled without a mutant only once.
            for mutant in sorted(batch):
                text = self.texts[mutant.file]
                catcher = try_out(mutant, text, suite, self.library)
                if catcher == "":
                    continue
                tried += 1
                line = mutant.describe(text)
                print(f"{tried:4} {line}: {catcher or 'SURVIVED'}", flush=True)
                if catcher is None:
                    survivors.append(line)
        return Tally(self.name, self.lines, tried, survivors)


def shares(count: int, folders: list[Folder]) -> Iterator[tuple[Folder, int]]:
    """How many of the mutants each folder gets, in proportion to its lines."""
    total = sum(folder.lines for folder in folders if folder.mutants)
    lines = given = 0
    for folder in folders:
        if folder.mutants:
            lines += folder.lines
            share = round(count * lines / total) - given
            given += share
            yield folder, share


def is_enough(group: tuple[str, ...], tallies: list[Tally]) -> bool:
    of_group = [tally for tally in tallies if tally.folder in group]
    return (sum(tally.caught for tally in of_group)
            >= NEEDED_SHARE[group] * sum(tally.tried for tally in of_group))


def parse_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--count", type=int, default=200, help="how many mutants (default 200)")
    parser.add_argument("--seed", type=int, default=1, help="which ones (default 1)")
    parser.add_argument("--folders", nargs="+", choices=MODELS + OTHERS, metavar="FOLDER",
                        help="in which folders (default: the models, or those of the files)")
    parser.add_argument("wanted", nargs="*", metavar="FILE",
                        help="only in these files, or at places such as views/hintline.cpp:31:5")
    arguments = parser.parse_args()
    if not arguments.folders:
        arguments.folders = MODELS + OTHERS if arguments.wanted else MODELS
    return arguments


def built_suite(folders: list[str]) -> Suite:
    copy_sources()
    subprocess.run(["cmake", "--preset", "mutation"], cwd=COPY, check=True,
                   stdout=subprocess.DEVNULL)
    tested = [folder for group in NEEDED_SHARE if not set(group).isdisjoint(folders)
              for folder in group]
    if not build([f"tests/{folder}/all" for folder in tested]):
        sys.exit("The tests do not build even without a mutant.")
    suite = Suite(tests_of(tested))
    if failing := suite.failing_before():
        sys.exit(f"These tests fail even without a mutant: {' '.join(failing)}")
    return suite


def main() -> int:
    arguments = parse_arguments()
    suite = built_suite(arguments.folders)
    os.environ["CCACHE_DISABLE"] = "1"  # no mutant is built twice, so the cache would only fill up

    folders = [Folder(name, arguments.wanted, arguments.seed, suite) for name in arguments.folders]
    if not any(folder.mutants for folder in folders):
        sys.exit("There is nothing to change.")
    for folder in folders:
        for file in folder.without_test:
            print(f"no test here links {file}")
    tallies = [folder.try_out(count, suite) for folder, count in shares(arguments.count, folders)]
    print()
    for tally in tallies:
        print(tally, *tally.survivors, sep="\n    ")
    return 0 if all(is_enough(group, tallies) for group in NEEDED_SHARE) else 1


if __name__ == "__main__":
    sys.exit(main())
