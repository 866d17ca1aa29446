#!/usr/bin/env python3
"""Compares what a plug-in exports with a checked-in list.

    check_exported_symbols.py LIBRARY LIST [--nm NM] [--update]

LIST holds one readable name a line, sorted. `--update` writes it anew; the difference is then reviewed
like code. Ends with 1 and the difference when the two differ.
"""

import argparse
import difflib
import pathlib
import subprocess
import sys


def exported_names(nm, library):
    output = subprocess.run(
        [nm, "--dynamic", "--defined-only", "--demangle", "--format=posix", library],
        check=True, capture_output=True, text=True).stdout
    # A line is the name, which may hold blanks, then the type, the address and the size.
    names = set()
    for line in output.splitlines():
        fields = line.split(" ")
        while fields and all(digit in "0123456789abcdef" for digit in fields[-1]):
            fields.pop()
        names.add(" ".join(fields[:-1]))
    return sorted(names)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("library")
    parser.add_argument("list", type=pathlib.Path)
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--update", action="store_true")
    arguments = parser.parse_args()
    names = exported_names(arguments.nm, arguments.library)
    if arguments.update:
        arguments.list.write_text("".join(name + "\n" for name in names), encoding="utf-8")
        return 0
    expected = arguments.list.read_text(encoding="utf-8").splitlines()
    difference = list(difflib.unified_diff(expected, names, str(arguments.list), arguments.library, lineterm=""))
    print("\n".join(difference) if difference else f"{len(names)} exported names, as listed")
    return 1 if difference else 0


if __name__ == "__main__":
    sys.exit(main())
