#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""lint_database.py: writes build/lint/compile_commands.json, by which clang-tidy and clazy read what
build/asan has compiled, and besides what only the build with Qt 6 in build/dev-qt6 compiles.

GCC's precompiled headers are left out: clang cannot read them, and without them the linters see
whether each source includes what it uses.
"""

import json
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PRECOMPILED = re.compile(r' -Winvalid-pch -include ("[^"]*"|[^ ]+)| -fpch-preprocess')


def run(*command: str) -> None:
    subprocess.run(command, cwd=ROOT, check=True, stdout=sys.stderr)


def commands(preset: str) -> list[dict[str, str]]:
    return json.loads((ROOT / "build" / preset / "compile_commands.json").read_text())


def main() -> None:
    if not (ROOT / "build/asan/compile_commands.json").exists():
        run("cmake", "--preset", "asan", "-DDEZIMO_BENCHMARKS=ON")
        run("cmake", "--build", "--preset", "asan")  # the linters read headers that the build makes
    if not (ROOT / "build/dev-qt6/compile_commands.json").exists():
        run("cmake", "--preset", "dev-qt6")  # what only Qt 6 compiles reads no such headers

    found = commands("asan")
    known = {command["file"] for command in found}
    found += [command for command in commands("dev-qt6") if command["file"] not in known]
    for command in found:
        command["command"] = PRECOMPILED.sub("", command["command"])
    database = ROOT / "build/lint/compile_commands.json"
    database.parent.mkdir(parents=True, exist_ok=True)
    database.write_text(json.dumps(found, indent=2, ensure_ascii=False) + "\n")


if __name__ == "__main__":
    main()
