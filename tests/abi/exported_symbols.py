#!/usr/bin/env python3
"""Compares what a library exports with what is recorded: exported_symbols.py LIBRARY RECORD

Prints "+" and what the library exports more, and "-" and what it does no longer export. With
--update as a third argument, it writes the record instead.
"""

import subprocess
import sys
from pathlib import Path


def exported_symbols(library):
    """Returns the names as the compiler knows them, without the versions of the interface."""
    options = ["--dynamic", "--defined-only", "--demangle", "--without-symbol-versions"]
    run = subprocess.run(["nm", *options, library], capture_output=True, text=True, check=True)
    # "address type name", of which absolute ones (A) name the versions.
    symbols = (line.split(maxsplit=2) for line in run.stdout.splitlines())
    return {name for _, kind, name in symbols if kind != "A"}


def main(library, record, *options):
    exported = exported_symbols(library)
    if "--update" in options:
        Path(record).write_text("".join(f"{name}\n" for name in sorted(exported)))
        return 0
    recorded = set(Path(record).read_text().splitlines())
    for name in sorted(exported ^ recorded):
        print("+" if name in exported else "-", name)
    return 1 if exported != recorded else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
