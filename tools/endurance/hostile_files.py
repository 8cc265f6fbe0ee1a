#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""hostile_files.py [--qt6]: opens damaged and malicious files, as calculation files and as the
application settings, and prints how long each took.

A session must end with status 0, keep its window as it is, and open within a second, or three for files
of 100 MiB. It must print nothing, except one line about a file that cannot be read at all. Run it as
root, because it becomes the user nobody for the unreadable file.
"""

import os
import random
import re
import shutil

from sessions import NOBODY, Home, argument_parser, build

MIB = 1024 * 1024
TYPES = {"QVariantList": 9, "QVariantMap": 8, "QStringList": 11, "QByteArray": 12, "QImage": 70}


def escaped(*numbers):
    """Four bytes each, as INI files write them."""
    data = b"".join(number.to_bytes(4, "big") for number in numbers)
    return "".join(f"\\x{byte:x}" for byte in data)


def every_key(store, value):
    """The text of a store with @p value for each of its keys."""
    return re.sub(r"^(\w+)=.*$", lambda found: f"{found[1]}={value}", store, flags=re.MULTILINE)


def hostile_texts(store):
    """Names and contents; @p store is what the program writes."""
    nested = (escaped(9) + escaped(1)) * 100000
    noise = random.Random(20220531)
    yield "empty", b""
    yield "100 MiB of zeros", bytes(100 * MIB)
    yield "100 MiB of one key", b"[DbConverterProfile]\np1=" + b"5" * 100 * MIB
    yield "100 MiB of commas", b"[DbConverterProfile]\np1=" + b"," * 100 * MIB
    yield "100 MiB of noise", noise.randbytes(100 * MIB)
    yield "a million groups", "".join(f"[g{i}]\np1=5W\n" for i in range(1000000)).encode()
    yield "1 MiB of noise", noise.randbytes(MIB)
    values = {
        "texts": "abc", "integers": "7", "NaN": "nan", "infinity": "-inf", "1e400": "1e400",
        "integers out of range": "99999999999999999999", "points": "@Point(1 2)",
        "huge sizes": "@Size(2147483647 2147483647)", "huge points": "@Point(-2147483648 99999)",
        "lists": "1, 2, 3", "texts of 1 MiB": "5" * MIB, "@ByteArray": "@ByteArray(\\0\\xff)",
        "@Variant, nested 100000 deep": f"@Variant({nested})",
    }
    for name, number in TYPES.items():
        values[f"@Variant, a {name} of huge count"] = f"@Variant({escaped(number)}\\xff\\xff\\xff\\xfe)"
    for name, value in values.items():
        yield f"every key: {name}", every_key(store, value).encode()


def milliseconds(out, what):
    """How long a step took, from what the session printed."""
    return int(re.search(rf"^{what} (\d+) ms", out, re.MULTILINE)[1])


def size(out):
    """The window's size, from what the session printed."""
    return re.search(r"size (.*)$", out, re.MULTILINE)[1]


def sparse(path, size):
    """Makes a file of @p size bytes that takes no room on the disk."""
    path.touch()
    os.truncate(path, size)


def measure(name, length, prepare, prefix=(), complaint=None):
    """Prints a row of the table and returns whether it is good. @p prepare makes the file at a path,
    @p complaint is why it cannot be opened."""
    home = Home()
    file = home.folder / "hostile.dezimo"
    prepare(file)
    opened = home.run("quit", file, prefix=prefix, complaint=complaint)
    home = Home()
    prepare(home.store)
    started = home.run("quit", prefix=prefix)
    times = [milliseconds(opened, "open"), milliseconds(started, "start"), milliseconds(started, "end")]
    limit = 3000 if length >= 100 * MIB else 1000
    good = max(times[:2]) <= limit and size(opened) == "958 x 605"
    print(f"| {name} | {times[0]} | {times[1]} | {times[2]} | {'' if good else 'FAILED'} |", flush=True)
    for place in (home.folder, file.parent):
        shutil.rmtree(place, ignore_errors=True)
    return good


def main():
    build(argument_parser(__doc__).parse_args().qt6)
    home = Home()
    home.run("quit")
    store = home.store.read_text()
    print("| file | opened, ms | start with it as settings, ms | end, ms | |")
    print("|---|---|---|---|---|")
    unreadable = lambda path: (path.write_text(store), path.chmod(0))
    not_regular = "hostile.dezimo: It is not a regular file"
    too_large = "hostile.dezimo: It is larger than 256 MiB"
    good = [
        measure("a folder", 0, os.mkdir, complaint="hostile.dezimo: It is a folder"),
        measure("unreadable", 0, unreadable, NOBODY, "hostile.dezimo: Permission denied"),
        measure("a pipe", 0, os.mkfifo, complaint=not_regular),
        measure("a device without end", 0, lambda path: path.symlink_to("/dev/zero"),
                complaint=not_regular),
        measure("2.5 GiB of zeros", 0, lambda path: sparse(path, 2560 * MIB), complaint=too_large),
        measure("5 GiB of zeros", 0, lambda path: sparse(path, 5120 * MIB), complaint=too_large),
    ]
    for name, text in hostile_texts(store):
        good.append(measure(name, len(text), lambda path: path.write_bytes(text)))
    print(f"{sum(good)} of {len(good)} good")
    return 0 if all(good) else 1


if __name__ == "__main__":
    raise SystemExit(main())
