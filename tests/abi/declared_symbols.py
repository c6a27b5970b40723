#!/usr/bin/env python3
"""Tells which recorded symbols no public header declares: declared_symbols.py RECORD HEADER..."""

import re
import sys
from pathlib import Path

EXPORTED_CLASS = re.compile(r"\b(?:class|struct)\s+MOX_\w+_EXPORT\s+(\w+)")
EXPORTED_FUNCTION = re.compile(r"^\s*MOX_\w+_EXPORT\s[^;{(]*?(\w+)\(", re.MULTILINE)


def exported_names(headers):
    """Returns the names of the classes and of the functions that the headers export."""
    text = "\n".join(Path(header).read_text() for header in headers)
    return {*EXPORTED_CLASS.findall(text), *EXPORTED_FUNCTION.findall(text)}


def parts_of(symbol):
    """Returns what stands between colons: the names of namespaces, classes and the function."""
    name = symbol.split("(")[0].split("<")[0].split(" ")[-1]
    return set(name.split("::"))


def main(record, *headers):
    known = exported_names(headers)
    unknown = [line for line in Path(record).read_text().splitlines() if not parts_of(line) & known]
    for symbol in unknown:
        print(f"No public header declares {symbol}")
    return 1 if unknown else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
