#!/usr/bin/env python3
"""Runs the toolkit's own tests under fusion and with a theme, and tells what the theme breaks.

Exits with 1 when a function fails with the theme that passes under fusion and that is not listed
in expected.txt, or when one is listed that passes.
"""

import argparse
import os
import resource
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from building import Builder, NotBuilt
from comparing import compare, is_row, named, read_expectations
from results import PASSING, Results
from running import Runner, load, save

HERE = Path(__file__).resolve().parent
# The application property that each mode sets.
MODES = {"complete": "appCompleteTheming", "switch": "appLiveThemeSwitch", "default": ""}
# What the expectations are about.
LISTED = ("Dark", "complete")

COLUMNS = ("pass", "fail", "crash", "pass", "fail", "crash", "new")


def parse(arguments):
    parser = argparse.ArgumentParser(prog="scripts/qt-tests", description=__doc__.split("\n\n")[0])
    for place in ("--sources", "--work", "--preload", "--themes"):
        parser.add_argument(place, type=Path, required=True, help=argparse.SUPPRESS)
    add = parser.add_argument
    add("--theme", default=LISTED[0], help="which of our themes (%(default)s)")
    add("--mode", choices=MODES, default=LISTED[1], help="how it is applied (%(default)s)")
    add("--tries", type=int, default=3, help="how often what fails is run (%(default)s)")
    add("--jobs", type=int, default=os.cpu_count(), help="how many run at a time (%(default)s)")
    add("--fusion-again", action="store_true", help="use no kept results")
    add("programs", nargs="*", metavar="PROGRAM", help="such as qmenu (all)")
    options = parser.parse_args(arguments)
    if not (options.themes / options.theme).is_dir():
        parser.error(f"there is no theme {options.theme}")
    return options


def listed_programs():
    return [line for line in (HERE / "programs.txt").read_text().splitlines() if is_row(line)]


def chosen_programs(words):
    listed = listed_programs()
    for word in words:
        if not any(is_meant(program, [word]) for program in listed):
            raise SystemExit(f"programs.txt does not list {word}")
    return [program for program in listed if not words or is_meant(program, words)]


def is_meant(program, words):
    return program in words or program.rpartition("/")[2] in words


def listed_expectations():
    expectations = read_expectations((HERE / "expected.txt").read_text())
    for program in {item.program for item in expectations} - set(listed_programs()):
        raise SystemExit(f"expected.txt names {program}, which programs.txt does not list")
    return expectations


class Bench:
    """Where programs are built and run."""

    def __init__(self, options):
        self.options = options
        self.builder = Builder(options.sources, options.work)
        self.expectations = listed_expectations()
        self.fusion = Runner({})
        self.themed = Runner(
            {
                "LD_PRELOAD": str(options.preload),
                "MOX_QT_TESTS_THEME": str(options.themes / options.theme),
                "MOX_QT_TESTS_PROPERTY": MODES[options.mode],
            }
        )

    def examine(self, name):
        """Returns the results under fusion and with the theme, how they compare, and how many names
        the program lacks."""
        program, missing = self.builder.build(name)
        plain = self.under_fusion(name, program)
        expectations = [item for item in self.expectations if item.program == name]

        def surprises(results):
            return compare(plain, results, expectations).unexpected

        themed = self.themed.run(program, self.options.tries, surprises)
        return plain, themed, compare(plain, themed, expectations), missing

    def under_fusion(self, name, program):
        kept = self.options.work / "fusion" / f"{name}.json"
        if self.options.fusion_again or not kept.exists():
            save(self.fusion.run(program, self.options.tries, Results.failing), kept)
        return load(kept)


class Report:
    """Prints what was found. Expectations that nothing needs matter where they are about this."""

    def __init__(self, is_listed):
        self.is_listed = is_listed
        self.sums = [0] * len(COLUMNS)
        self.is_good = True
        print(f"{'':36}{'fusion':^21}{'themed':^21}")
        self.row("", COLUMNS)

    def row(self, name, cells):
        print(f"{name:36}" + "".join(f"{cell:>7}" for cell in cells), flush=True)

    def program(self, name, plain, themed, comparison, missing):
        cells = [*counts(plain), *counts(themed), len(comparison.unexpected)]
        self.sums = [sum(pair) for pair in zip(self.sums, cells)]
        self.row(name, cells)
        if missing:
            print(f"    lacks {missing} names that the toolkit keeps to itself")
        for key, verdict in comparison.unexpected.items():
            print(f"    {verdict.kind}: {named(*key)}: {shortened(verdict.message)}")
            self.is_good = False
        for expectation in comparison.needless if self.is_listed else ():
            print(f"    listed, but passes: {expectation}")
            self.is_good = False

    def left_out(self, name, reason):
        print(f"{name:36} not built: {reason}", flush=True)

    def end(self):
        self.row("all", self.sums)


def counts(results):
    """Returns how many pass, fail and crash."""
    crashes = results.count("crash")
    return results.count(*PASSING), len(results.failing()) - crashes, crashes


def shortened(message):
    return " ".join(message.split())[:160]


def leave_no_cores():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def main(arguments):
    options = parse(arguments)
    leave_no_cores()
    names = chosen_programs(options.programs)
    bench = Bench(options)
    report = Report((options.theme, options.mode) == LISTED)
    with ThreadPoolExecutor(options.jobs) as pool:
        for name, run in [(name, pool.submit(bench.examine, name)) for name in names]:
            try:
                report.program(name, *run.result())
            except NotBuilt as problem:
                report.left_out(name, problem)
    report.end()
    return 0 if report.is_good else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
