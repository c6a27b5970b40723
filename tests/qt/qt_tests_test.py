#!/usr/bin/env python3
"""Tests of how test programs are run, read and compared."""

import os
import tempfile
import unittest
import unittest.mock
from pathlib import Path

from comparing import compare, read_expectations
from results import Results, Verdict, read_results
from running import Runner, load, save

BEGIN = '<?xml version="1.0" encoding="UTF-8"?><TestCase name="tst_Sample">'
END = "</TestCase>"


def incident(kind, row="", message=""):
    tag = f"<DataTag><![CDATA[{row}]]></DataTag>" if row else ""
    text = f"<Description><![CDATA[{message}]]></Description>"
    return f'<Incident type="{kind}" file="../a/sample.cpp" line="7">{tag}{text}</Incident>'


def function(name, *incidents):
    return f'<TestFunction name="{name}">{"".join(incidents)}</TestFunction>'


def results(**kinds):
    """Makes results of functions without data."""
    return Results({(name, ""): Verdict(kind) for name, kind in kinds.items()})


def kinds(found):
    return {key: verdict.kind for key, verdict in found.verdicts.items()}


class ReadingTest(unittest.TestCase):
    def test_verdicts_are_by_function_and_row(self):
        paint = function("paint", incident("pass", "flat"), incident("fail", "x (y)", "No."))
        found = read_results(BEGIN + function("size", incident("pass")) + paint + END)
        expected = {("size", ""): "pass", ("paint", "flat"): "pass", ("paint", "x (y)"): "fail"}
        self.assertEqual(kinds(found), expected)
        self.assertEqual(found.verdicts["paint", "x (y)"].message, "sample.cpp:7: No.")
        self.assertEqual(found.unfinished, "")

    def test_the_worst_of_a_row_counts(self):
        text = function("size", incident("fail"), incident("xfail"), incident("pass"))
        self.assertEqual(kinds(read_results(BEGIN + text + END)), {("size", ""): "fail"})

    def test_what_breaks_off_is_read_until_there(self):
        begun = '<TestFunction name="paint"><Message type="warn" file="" line="0"><Descr'
        found = read_results(BEGIN + function("size", incident("pass")) + begun)
        self.assertEqual(kinds(found), {("size", ""): "pass"})
        self.assertEqual(found.unfinished, "paint")

    def test_characters_that_xml_does_not_allow_are_no_hindrance(self):
        found = read_results(BEGIN + function("size", incident("fail", "", "a\x01b\ufffe")) + END)
        self.assertEqual(found.verdicts["size", ""].message, "sample.cpp:7: a?b?")

    def test_what_is_no_xml_fails(self):
        found = read_results(BEGIN + function("size", incident("pass")) + "</Other>")
        self.assertEqual(kinds(found)["(output)", ""], "fail")


class BetterResultsTest(unittest.TestCase):
    def test_what_passes_once_passes(self):
        better = results(a="fail", b="pass").better_of(results(a="pass", c="pass"))
        self.assertEqual(kinds(better), {("a", ""): "pass", ("b", ""): "pass", ("c", ""): "pass"})

    def test_what_crashes_once_crashes(self):
        for pair in (("crash", "pass"), ("pass", "crash")):
            better = results(a=pair[0]).better_of(results(a=pair[1]))
            self.assertEqual(kinds(better), {("a", ""): "crash"})


class ComparingTest(unittest.TestCase):
    def compare(self, plain, themed, *lines):
        expectations = read_expectations("".join(f"{line}\n" for line in lines))
        return compare(plain, themed, expectations)

    def test_what_fails_with_the_theme_only_is_unexpected(self):
        found = self.compare(results(a="pass", b="pass"), results(a="pass", b="fail"))
        self.assertEqual(list(found.unexpected), [("b", "")])

    def test_what_fails_anyway_or_is_skipped_is_not_compared(self):
        plain = results(a="fail", b="crash", c="skip", d="bfail", e="xpass")
        themed = results(a="fail", b="crash", c="fail", d="fail", e="hang")
        self.assertEqual(self.compare(plain, themed).unexpected, {})

    def test_a_row_that_is_not_there_without_the_theme_passes_with_its_function(self):
        row = Results({("a", "theme"): Verdict("fail")})
        self.assertEqual(list(self.compare(results(a="pass"), row).unexpected), [("a", "theme")])
        self.assertEqual(self.compare(results(a="fail"), row).unexpected, {})

    def test_what_is_not_run_with_the_theme_is_unexpected(self):
        found = self.compare(results(a="pass", b="fail", c="pass"), results())
        message = "does not run a, c"
        self.assertEqual(found.unexpected, {("(program)", ""): Verdict("fail", message)})

    def test_what_is_listed_is_expected(self):
        found = self.compare(results(a="pass"), results(a="fail"), "sample | a | It is larger.")
        self.assertEqual(list(found.expected), [("a", "")])
        self.assertEqual((found.unexpected, found.needless), ({}, []))

    def test_a_listed_row_is_that_row_only(self):
        plain = Results({("a", row): Verdict("pass") for row in ("x (y)", "z")})
        themed = Results({("a", row): Verdict("fail") for row in ("x (y)", "z")})
        found = self.compare(plain, themed, "sample | a(x (y)) | It is larger.")
        self.assertEqual(list(found.expected), [("a", "x (y)")])
        self.assertEqual(list(found.unexpected), [("a", "z")])

    def test_what_is_listed_and_passes_is_told(self):
        found = self.compare(results(a="pass"), results(a="pass"), "sample | a | It is larger.")
        self.assertEqual([item.function for item in found.needless], ["a"])

    def test_a_crash_is_never_expected(self):
        line = "sample | a | It is larger."
        for plain in ("pass", "fail"):
            found = self.compare(results(a=plain), results(a="crash"), line)
            self.assertEqual(list(found.unexpected), [("a", "")])

    def test_an_expectation_has_a_reason(self):
        for line in ("sample | a", "sample | a |", "sample a It is larger."):
            with self.assertRaises(SystemExit):
                read_expectations(line)
        self.assertEqual(read_expectations("# sample | a |\n\n"), [])

    def test_a_row_may_have_bars(self):
        (found,) = read_expectations("a/sample | paint(x|y) | It is larger.")
        cells = (found.program, found.function, found.row, found.reason)
        self.assertEqual(cells, ("a/sample", "paint", "x|y", "It is larger."))


# A program that has the functions of a test program, and crashes in one of them.
PROGRAM = f"""\
#!/bin/bash
if [ "$1" = -functions ]; then
  printf '%s()\\n' {{before,crashing,after}}
  exit
fi
for argument in "$@"; do
  case $argument in *,xml) output=${{argument%,xml}} ;; esac
done
printf '{BEGIN}' >"$output"
for function in "$@"; do
  case $function in
    -o) break ;;
    crashing) printf '<TestFunction name="crashing">' >>"$output"; kill -SEGV $$ ;;
    before) printf '{function("before", incident("KIND"))}' >>"$output" ;;
    after) printf '{function("after", incident("pass"))}' >>"$output" ;;
  esac
done
printf '{END}' >>"$output"
"""


class RunningTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_program(self, text, tries=1):
        program = self.folder / "tst_sample"
        program.write_text(text)
        program.chmod(0o755)
        return kinds(Runner({"SETTING": "fail"}).run(program, tries, Results.failing))

    def run_sample(self, kind, tries=1):
        """Runs the program above, whose first function ends as the shell makes of the kind."""
        return self.run_program(PROGRAM.replace("KIND", f"'{kind}'"), tries)

    def test_what_follows_a_crash_is_run(self):
        expected = {("before", ""): "pass", ("crashing", ""): "crash", ("after", ""): "pass"}
        self.assertEqual(self.run_sample("pass"), expected)

    def test_what_fails_is_run_alone(self):
        passes_alone = '$([ "$2" = -o ] && echo pass || echo fail)'
        self.assertEqual(self.run_sample(passes_alone)["before", ""], "fail")
        expected = {("before", ""): "pass", ("crashing", ""): "crash", ("after", ""): "pass"}
        self.assertEqual(self.run_sample(passes_alone, tries=2), expected)

    def test_programs_see_the_settings_and_little_else(self):
        self.assertEqual(self.run_sample("$SETTING")["before", ""], "fail")
        with unittest.mock.patch.dict(os.environ, {"QT_STYLE_OVERRIDE": "fail"}):
            self.assertEqual(self.run_sample("${QT_STYLE_OVERRIDE-pass}")["before", ""], "pass")

    def test_a_program_that_does_not_begin_has_crashed(self):
        expected = {("(program)", ""): "crash"}
        self.assertEqual(self.run_program("#!/bin/sh\nexit 1\n"), expected)

    def test_results_are_kept_as_they_are(self):
        found = results(a="pass", b="fail")
        save(found, self.folder / "kept" / "sample.json")
        self.assertEqual(load(self.folder / "kept" / "sample.json"), found)


if __name__ == "__main__":
    unittest.main()
