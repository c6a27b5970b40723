"""What a test program found out, read from what it wrote in the form "xml"."""

import re
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass, field

PASSING = ("pass", "xfail")
FAILING = ("fail", "xpass", "hang", "crash")
# From the best to the worst; what begins with "b" the toolkit itself calls unreliable.
ORDER = ("pass", "xfail", "bpass", "bxfail", "bxpass", "bfail", "skip", *FAILING)

# What is not allowed in XML and yet written by tests that compare such characters.
UNSOUND = re.compile("[\x00-\x08\x0b\x0c\x0e-\x1f\ufffe\uffff]")
TIMED_OUT = "Test function timed out"


@dataclass
class Verdict:
    """How a test function ended for one row of its data, and what it said when it failed."""

    kind: str
    message: str = ""


@dataclass
class Results:
    """Verdicts by function and row; what has no data, or crashed, has the row ""."""

    verdicts: dict = field(default_factory=dict)
    # The function that was begun and not ended.
    unfinished: str = ""
    timed_out: bool = False

    def add(self, function, row, kind, message=""):
        """Keeps the worst of what is told of the same row."""
        known = self.verdicts.get((function, row))
        if known is None or ORDER.index(kind) > ORDER.index(known.kind):
            self.verdicts[function, row] = Verdict(kind, message)

    def functions(self):
        return {function for function, _ in self.verdicts}

    def failing(self):
        """Returns the verdicts of what fails."""
        return {key: verdict for key, verdict in self.verdicts.items() if verdict.kind in FAILING}

    def count(self, *kinds):
        return sum(verdict.kind in kinds for verdict in self.verdicts.values())

    def better_of(self, other):
        """Returns the better verdict of each row; but what crashes once, crashes."""
        better = {**self.verdicts, **other.verdicts}
        for key in self.verdicts.keys() & other.verdicts.keys():
            better[key] = min(self.verdicts[key], other.verdicts[key], key=preference)
        return Results(better)


def preference(verdict):
    return -1 if verdict.kind == "crash" else ORDER.index(verdict.kind)


def read_results(text):
    """Reads what a program wrote, to the point where it broke off."""
    results = Results()
    parser = ElementTree.XMLPullParser(("start", "end"))
    try:
        parser.feed(UNSOUND.sub("?", text))
        for event, element in parser.read_events():
            read_element(results, event, element)
    except ElementTree.ParseError as error:
        results.add("(output)", "", "fail", f"cannot be read: {error}")
    return results


def read_element(results, event, element):
    if element.tag == "TestFunction":
        results.unfinished = element.get("name") if event == "start" else ""
    elif event == "end" and element.tag == "Incident":
        message = element.findtext("Description", "")
        place = f"{element.get('file').rpartition('/')[2]}:{element.get('line')}"
        row = element.findtext("DataTag", "")
        results.add(results.unfinished, row, element.get("type"), f"{place}: {message}")
    elif event == "end" and element.tag == "Message":
        results.timed_out |= TIMED_OUT in element.findtext("Description", "")
