#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""idle.py [--qt6]: shows what the program does while nobody uses it.

Starts it, waits until it has settled, and measures twice for 30 s: first the processor time of all its
threads, as the kernel counts it, then with strace every wait for an event. The only timer should be that
of the caret, which blinks twice a second.
"""

import collections
import pathlib
import re
import subprocess
import time

from sessions import Home, argument_parser, build

REST = 5
SECONDS = 30
CARET_MILLISECONDS = 500


def processor_milliseconds(pid):
    """The time of all threads, which the kernel counts in nanoseconds."""
    tasks = pathlib.Path(f"/proc/{pid}/task").glob("*/schedstat")
    return sum(int(task.read_text().split()[0]) for task in tasks) / 1e6


def waits(pid, home):
    """All calls that wait, with their time limits as last argument, and how often each occurred."""
    log = home.folder / "strace.log"
    strace = subprocess.Popen(["strace", "--follow-forks", "--output", log,
                               "--trace=poll,ppoll,select,pselect6,epoll_wait,epoll_pwait,"
                               "nanosleep,clock_nanosleep,timerfd_settime", "--attach", str(pid)],
                              stderr=subprocess.DEVNULL)
    time.sleep(SECONDS)
    strace.terminate()
    strace.wait()
    return collections.Counter(re.findall(r"(\w+\(.*?)(?: <unfinished|\) +=)", log.read_text()))


def main():
    build(argument_parser(__doc__).parse_args().qt6)
    home = Home()
    program = home.start(program="dezimo")
    time.sleep(REST)
    before = processor_milliseconds(program.pid)
    time.sleep(SECONDS)
    used = processor_milliseconds(program.pid) - before
    print(f"processor time in {SECONDS} s: {used:.1f} ms")
    found = waits(program.pid, home)
    limits = collections.Counter()
    for call, count in found.items():
        limits[int(call.rsplit(", ", 1)[1])] += count
    program.kill()
    program.communicate()
    print(f"waits in {SECONDS} s, by their limit in ms (-1: none):", dict(limits.most_common()))
    timed = sum(count for limit, count in limits.items() if limit > 0)
    allowed = SECONDS * 1000 // CARET_MILLISECONDS + 2
    print(f"{timed} with a limit, {allowed} allowed for the caret")
    return 0 if timed <= allowed and used < SECONDS * 10 else 1


if __name__ == "__main__":
    raise SystemExit(main())
