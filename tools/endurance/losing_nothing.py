#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""losing_nothing.py [--qt6] [KILLS]: checks that what is stored survives.

Kills sessions at random moments while they write the settings and a calculation file (200 times each
by default), lets two sessions write at once, and lets sessions write to a full disk and into a folder
that is read-only for them. Each time the stored file must be the whole old one or the whole new one. Run
it as root, because it mounts a small disk and becomes the user nobody.
"""

import os
import pathlib
import random
import subprocess
import tempfile
import time

from sessions import NOBODY, Home, argument_parser, build, generation

FOREVER = 1000000  # writes of one session, each of a new generation


def check(condition, what):
    """Ends the run at the first loss."""
    if not condition:
        raise SystemExit(f"LOST: {what}")


def whole(path, fields):
    """The generation of the file. The file must be whole and have as many texts as the first one."""
    found = generation(path.read_text())
    check(found and found[1] == fields, f"{path} is not whole:\n{path.read_text()}")
    return found[0]


def kill(name, kills, home, path, command, *arguments):
    """Kills a session that writes @p path over and over, each time at another moment. Every other
    time it waits until there is an unfinished file beside @p path."""
    home.run(command, 1, 1, *arguments)
    fields = generation(path.read_text())[1]
    new = unfinished = 0
    for number in range(kills):
        known = set(os.listdir(path.parent))
        first = (number + 1) * FOREVER
        session = home.start(command, first, FOREVER, *arguments)
        while number % 2 and set(os.listdir(path.parent)) <= known:
            pass
        time.sleep(random.uniform(0, 0.002 if number % 2 else 1.0))
        session.kill()
        session.communicate()
        new += whole(path, fields) >= first
        left = set(os.listdir(path.parent)) - known
        unfinished += len(left) > 0
        for rest in left:
            os.unlink(path.parent / rest)
    folders = len(list(pathlib.Path(home.runtime).glob("Dezimo-*")))
    print(f"{name}: after {kills} kills the file was whole each time, {kills - new} times the old one and "
          f"{new} times the new one; {unfinished} kills left an unfinished file, {folders} a temporary "
          "folder", flush=True)


def two_at_once(rounds):
    """Lets pairs of sessions write the same settings at once and end by themselves."""
    home = Home()
    home.run("exit", 1, 1)
    fields = generation(home.store.read_text())[1]
    for _ in range(rounds):
        pair = [home.start("exit", 1, 5) for _ in range(2)]
        for session in pair:
            session.communicate(timeout=60)
            check(session.returncode == 0, f"status {session.returncode}")
        whole(home.store, fields)
    print(f"two at once: {rounds} pairs, 5 writes each, the settings whole after each pair")


def cannot_write(name, home, file, prefix=()):
    """Checks that neither the settings nor the calculation file change and nothing is printed."""
    old = {path: path.read_bytes() for path in (home.store, file)}
    home.run("exit", 2, 2, prefix=prefix)
    home.run("save", 2, 2, file, prefix=prefix)
    for path, text in old.items():
        check(path.read_bytes() == text, f"{name}: {path}")
    names = sorted(f.name for f in file.parent.iterdir())
    print(f"{name}: settings and file as they were, status 0, nothing printed; in the folder are {names}")


def full_disk():
    """Writes to a disk of 256 KiB without a free byte."""
    disk = pathlib.Path(tempfile.mkdtemp())
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=256k", "tmpfs", disk], check=True)
    try:
        home = Home(disk)
        file = home.store.parent / "a.dezimo"
        home.run("exit", 1, 1)
        home.run("save", 1, 1, file)
        with open(disk / "filling", "wb", buffering=0) as filling:
            try:
                while filling.write(b"x" * 512):
                    pass
            except OSError:
                pass
        cannot_write("full disk", home, file)
    finally:
        subprocess.run(["umount", disk], check=True)


def read_only_folder():
    """Writes into a folder of another user."""
    home = Home()
    file = home.store.parent / "a.dezimo"
    home.run("exit", 1, 1)
    home.run("save", 1, 1, file)
    for path in (home.store, file):
        path.chmod(0o666)
    cannot_write("read-only folder", home, file, prefix=NOBODY)


def main():
    parser = argument_parser(__doc__)
    parser.add_argument("kills", nargs="?", type=int, default=200, help="200 if not given")
    arguments = parser.parse_args()
    build(arguments.qt6)
    random.seed(20220531)
    kills = arguments.kills
    home = Home()
    kill("killed during exit", kills, home, home.store, "exit")
    home = Home()
    file = home.folder / "a.dezimo"
    kill("killed during Save...", kills, home, file, "save", file)
    two_at_once(max(1, kills // 10))
    full_disk()
    read_only_folder()


if __name__ == "__main__":
    main()
