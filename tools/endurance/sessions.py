# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""Sessions of the program for the scripts in this folder. Each has a home and a store of its own."""

import argparse
import os
import pathlib
import re
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOBODY = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]


def argument_parser(about):
    """Reads the arguments of a script. The script may add some of its own."""
    parser = argparse.ArgumentParser(description=about,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--qt6", action="store_true", help="build and run everything with Qt 6")
    return parser


def build(qt6):
    """Builds the optimized program, as it is shipped, and the tools, with Qt 5 or 6."""
    qt = "-qt6" if qt6 else ""
    groups = [f"build{qt}", f"run{qt}", f"test{qt}", "endurance"]
    subprocess.run(["tools/packages.sh", *groups], cwd=ROOT, check=True)
    preset = f"endurance{qt}"
    subprocess.run(["cmake", "--preset", preset], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    targets = ["dezimo", "dezimo-session", "dezimo-soak", "dezimo-monkey"]
    subprocess.run(["cmake", "--build", "--preset", preset, "--target", *targets],
                   cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    Home.programs = ROOT / "build" / preset / "bin"


class Home:
    """A fresh home in a temporary folder, or in @p folder."""

    programs = None  # where build() has put them

    def __init__(self, folder=None):
        self.folder = pathlib.Path(folder or tempfile.mkdtemp())
        # The user nobody must reach what is in it.
        self.folder.chmod(0o755)
        self.store = self.folder / "config/Vantrel/Dezimo.conf"
        self.store.parent.mkdir(parents=True)
        self.runtime = tempfile.mkdtemp()

    def environment(self):
        """The environment variables of a session in this home."""
        return dict(os.environ, HOME=str(self.folder), XDG_CONFIG_HOME=str(self.folder / "config"),
                    XDG_RUNTIME_DIR=self.runtime, TMPDIR=self.runtime, QT_QPA_PLATFORM="offscreen")

    def start(self, *arguments, program="dezimo-session", prefix=()):
        """Starts a session and does not wait for it."""
        return subprocess.Popen([*prefix, self.programs / program, *map(str, arguments)],
                                env=self.environment(), stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                text=True)

    def run(self, *arguments, prefix=(), complaint=None):
        """Runs a session to its end, within a minute, and returns what it printed. Raises if its
        status is not 0 or if it complains of anything but, in one line, @p complaint."""
        if prefix:
            os.chown(self.runtime, 65534, 65534)
        process = self.start(*arguments, prefix=prefix)
        out, said = process.communicate(timeout=60)
        said = [line for line in said.splitlines() if "This plugin does not support" not in line]
        if complaint and len(said) == 1 and complaint in said[0]:
            said = []
        elif complaint:
            said.append(f"and not one line with {complaint!r}")
        if process.returncode != 0 or said:
            raise SystemExit(f"{arguments}: status {process.returncode}, said {said}")
        return out


def generation(text):
    """The generation of a stored text and the number of its texts, or None if it is not whole. A whole
    one has six groups, and all its texts are of the same generation."""
    groups = re.findall(r"^\[(\w+Profile)\]$", text, re.MULTILINE)
    texts = re.findall(r"^\w+=generation (\d+)$", text, re.MULTILINE)
    whole = len(groups) == 6 and len(set(texts)) == 1 and text.endswith("\n")
    return (int(texts[0]), len(texts)) if whole else None
