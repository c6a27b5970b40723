#!/usr/bin/env python3
"""Compares a library's types with what is recorded: recorded_types.py LIBRARY RECORD IGNORED

Prints which functions, classes and virtual tables differ. With --update as a fourth argument, it
writes the record instead. IGNORED tells which types to leave out.
"""

import subprocess
import sys
import tempfile

# Paths and what only repeats itself are left out: the record is to be read in a review.
OPTIONS = (
    "--exported-interfaces-only",
    "--type-id-style hash",
    "--no-show-locs",
    "--no-corpus-path",
    "--no-comp-dir-path",
    "--no-elf-needed",
    "--no-write-default-sizes",
)


def record_types(library, ignored, record):
    options = [word for option in OPTIONS for word in option.split()]
    command = ["abidw", *options, "--suppressions", ignored, "--out-file", record, library]
    subprocess.run(command, check=True)


def main(library, record, ignored, *options):
    if "--update" in options:
        record_types(library, ignored, record)
        return 0
    with tempfile.NamedTemporaryFile(suffix=".abi") as current:
        record_types(library, ignored, current.name)
        return subprocess.run(["abidiff", "--no-show-locs", record, current.name]).returncode


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
