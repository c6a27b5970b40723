#!/usr/bin/env python3
"""Tells which source files and folders have grown too large: check_sizes.py [CHECKOUT]"""

import sys
from pathlib import Path

TREES = ("src", "apps", "plugins", "tools", "tests")
SUFFIXES = (".h", ".cpp", ".def", ".py", ".cmake", ".txt")
MOST_LINES = 400
MOST_PAIRS = 12
# One pair of files for each family of widgets, however many there are.
OPEN_FOLDERS = (Path("src/style/families"),)


def long_files(files):
    for file in files:
        lines = len(file.read_text().splitlines())
        if lines > MOST_LINES:
            yield file, f"has {lines} lines, more than {MOST_LINES}"


def full_folders(files, checkout):
    sources = {file for file in files if file.suffix in (".h", ".cpp")}
    for folder in {file.parent for file in sources}:
        pairs = sum(
            file.suffix == ".h" and file.with_suffix(".cpp") in sources
            for file in sources
            if file.parent == folder
        )
        if pairs > MOST_PAIRS and folder.relative_to(checkout) not in OPEN_FOLDERS:
            yield folder, f"holds {pairs} pairs of files, more than {MOST_PAIRS}"


def check(checkout):
    files = [
        file for tree in TREES for file in (checkout / tree).rglob("*") if file.suffix in SUFFIXES
    ]
    found = [*long_files(files), *full_folders(files, checkout)]
    return [f"{path.relative_to(checkout)}: {problem}" for path, problem in sorted(found)]


def main(arguments):
    here = Path(__file__).resolve().parent
    problems = check(Path(arguments[0]) if arguments else here.parent.parent)
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
