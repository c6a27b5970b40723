#!/usr/bin/env python3
"""Holds the sources' includes to the table of layers: check_layers.py [CHECKOUT [TABLE]]

Prints one line for each include that does not lead down, for each pair of folders that include each
other, for each header that is included by two names, and for each file that stands in no layer.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path, PurePosixPath

TREES = ("src", "apps", "plugins", "tools")
INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)[>"]')


def lies_in(path, place):
    if place.endswith("/**"):
        return str(path).startswith(place[:-2])
    return place in (str(path.parent), str(path.with_suffix("")))


class Layers:
    """The table: which layer a file stands in, and what that layer may include."""

    def __init__(self, table):
        self.places = []  # of (place, layer), the first that fits holds
        self.allowed = {}
        rows = [
            [column.strip() for column in line.split("|")]
            for line in table.read_text().splitlines()
            if line.strip() and not line.startswith("#")
        ]
        # From the ground up, so that what a layer stands on is known.
        for layer, places, grounds in reversed(rows):
            self.allowed[layer] = {layer}
            for ground in filter(None, re.split(r",\s*", grounds)):
                if ground not in self.allowed:
                    sys.exit(f"{table}: {layer} stands on {ground}, which is no later row")
                self.allowed[layer] |= self.allowed[ground]
            self.places[:0] = [(place, layer) for place in places.split()]

    def layer(self, path):
        """Returns the name of the layer that a file stands in; None if it is in none."""
        return next((layer for place, layer in self.places if lies_in(path, place)), None)

    def room(self, path):
        """Returns the folder that a file stands in, or the file if the table places it by name."""
        pair = path.with_suffix("")
        return pair if str(pair) in dict(self.places) else path.parent


class Include:
    """An include of a file of the checkout."""

    def __init__(self, source, line, name, header):
        self.source, self.line, self.name, self.header = source, line, name, header


class Checkout:
    """The source files below a folder, and what they include of each other."""

    def __init__(self, folder):
        self.folder = folder
        self.files = sorted(
            PurePosixPath(file.relative_to(folder))
            for tree in TREES
            for file in (folder / tree).rglob("*")
            if file.suffix in (".h", ".cpp", ".def")
        )
        known = set(self.files)
        # The folders that names begin in: the library's, and each program's own.
        self.roots = sorted({PurePosixPath(*f.parts[: 1 if f.parts[0] == "src" else 2]) for f in known})
        self.includes = [
            Include(source, line, name, header)
            for source in self.files
            for line, quote, name in self.names_in(source)
            if (header := self.resolve(source, quote, name, known))
        ]

    def names_in(self, source):
        lines = (self.folder / source).read_text().splitlines()
        for number, line in enumerate(lines, start=1):
            if match := INCLUDE.match(line):
                yield number, match[1], match[2]

    def resolve(self, source, quote, name, known):
        own = [root for root in self.roots if root in source.parents]
        beside = [source.parent] if quote == '"' else []
        for folder in beside + own + self.roots:
            if (file := folder / name) in known:
                return file
        return None


def wrong_arrows(checkout, layers):
    for include in checkout.includes:
        above, below = layers.layer(include.source), layers.layer(include.header)
        if above and below and below not in layers.allowed[above]:
            yield include, f"{above} must not know {below} ({include.header})"


def mutual_rooms(checkout, layers):
    """Between layers, their order sees to it that only one includes the other."""
    arrows = defaultdict(list)
    for include in checkout.includes:
        if layers.layer(include.source) == layers.layer(include.header):
            rooms = layers.room(include.source), layers.room(include.header)
            arrows[rooms].append(include)
    for (one, other), includes in arrows.items():
        if one != other and (other, one) in arrows:
            for include in includes:
                yield include, f"{one} and {other} include each other ({include.header})"


def second_names(checkout):
    names = defaultdict(set)
    for include in checkout.includes:
        names[include.header].add(include.name)
    for include in checkout.includes:
        others = sorted(names[include.header] - {include.name})
        if others:
            yield include, f"{include.name} is also included as {', '.join(others)}"


def check(checkout, layers):
    found = [(file, 1, "stands in no layer") for file in checkout.files if not layers.layer(file)]
    for include, problem in (
        *wrong_arrows(checkout, layers),
        *mutual_rooms(checkout, layers),
        *second_names(checkout),
    ):
        found.append((include.source, include.line, problem))
    return [f"{file}:{line}: {problem}" for file, line, problem in sorted(found)]


def main(arguments):
    here = Path(__file__).resolve().parent
    folder = Path(arguments[0]) if arguments else here.parent.parent
    table = Path(arguments[1]) if len(arguments) > 1 else here / "layers.txt"
    problems = check(Checkout(folder), Layers(table))
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
