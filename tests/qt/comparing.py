"""Compares how a test program ends with a theme and without one, and with what is expected."""

from dataclasses import dataclass, field

from results import FAILING, PASSING, Verdict


@dataclass(frozen=True)
class Expectation:
    """That a function of a program fails with a theme: for one row, or for any without a row."""

    program: str
    function: str
    row: str
    reason: str

    def covers(self, function, row):
        return self.function == function and self.row in ("", row)

    def __str__(self):
        return named(self.function, self.row)


def named(function, row):
    return f"{function}({row})" if row else function


def read_expectations(text):
    """Reads lines of "program | function(row) | reason"; those that begin with "#" say nothing."""
    lines = enumerate(text.splitlines(), start=1)
    return [read_expectation(number, line) for number, line in lines if is_row(line)]


def is_row(line):
    return line.strip() and not line.startswith("#")


def read_expectation(number, line):
    program, _, place_and_reason = line.partition("|")
    place, _, reason = place_and_reason.rpartition("|")
    program, place, reason = program.strip(), place.strip(), reason.strip()
    if not (program and place and reason):
        raise SystemExit(f"line {number} is not of the form program | function(row) | reason")
    function, _, row = place.partition("(")
    return Expectation(program, function, row.removesuffix(")"), reason)


@dataclass
class Comparison:
    """What of a program fails with the theme only: by function and row, the verdicts of what no
    expectation covers and of what one does, and the expectations that cover nothing."""

    unexpected: dict = field(default_factory=dict)
    expected: dict = field(default_factory=dict)
    needless: list = field(default_factory=list)


def compare(plain, themed, expectations):
    """Compares the results without and with a theme, as to a program's expectations."""
    comparison = Comparison()
    used = set()
    for (function, row), verdict in worse(plain, themed).items():
        covering = [item for item in expectations if item.covers(function, row)]
        used.update(covering)
        # Nothing excuses a crash.
        excused = covering and verdict.kind != "crash"
        (comparison.expected if excused else comparison.unexpected)[function, row] = verdict
    comparison.needless = [item for item in expectations if item not in used]
    return comparison


def worse(plain, themed):
    """Returns the verdicts of what fails with the theme and does not without."""
    found = themed.failing()
    not_run = sorted(plain.functions() - themed.functions())
    missing = [function for function in not_run if passes(plain, (function, ""))]
    if missing:
        found.setdefault(("(program)", ""), Verdict("fail", f"does not run {', '.join(missing)}"))
    return {key: verdict for key, verdict in found.items() if is_worse(plain, key, verdict)}


def is_worse(plain, key, verdict):
    crashes = verdict.kind == "crash" and not has_crashed(plain, key[0])
    return crashes or passes(plain, key)


def passes(results, key):
    """Whether a row passes; one that there is not, as rows may depend on the style, or as a whole
    function crashed, passes with its function."""
    if key in results.verdicts:
        return results.verdicts[key].kind in PASSING
    kinds = [verdict.kind for verdict in verdicts_of(results, key[0])]
    return not any(kind in FAILING for kind in kinds)


def has_crashed(results, function):
    return any(verdict.kind == "crash" for verdict in verdicts_of(results, function))


def verdicts_of(results, function):
    return [verdict for (name, _), verdict in results.verdicts.items() if name == function]
