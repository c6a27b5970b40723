"""Runs a test program to its end, however often it crashes on the way there."""

import json
import os
import signal
import subprocess
import tempfile
from dataclasses import astuple

from results import Results, Verdict, read_results

# What of the caller's environment is handed on.
KEPT = ("PATH", "LD_LIBRARY_PATH")
# After how long the toolkit ends a function, and we a program.
MOST_SECONDS_OF_FUNCTION = 120
MOST_SECONDS = 900


class Runner:
    """Runs programs in an environment of their own, with the settings as variables of it."""

    def __init__(self, settings):
        self.settings = settings

    def run(self, program, tries, doubtful):
        """Runs the program, and while there are tries each function alone that a verdict of is
        doubtful (the results' verdicts by function and row): what fails since another failed before
        it passes there."""
        results = self.run_all(program)
        for _ in range(tries - 1):
            for function in sorted({function for function, _ in doubtful(results)}):
                results = results.better_of(self.run_functions(program, [function]))
        return results

    def run_all(self, program):
        """Runs all functions of the program; after a crash, it begins again with the next one."""
        remaining = self.functions(program)
        if not remaining:
            return Results({("(program)", ""): Verdict("crash", "does not list its functions")})
        results = Results()
        while remaining:
            part = self.run_functions(program, remaining)
            results.verdicts.update(part.verdicts)
            if part.unfinished not in remaining:
                break
            remaining = remaining[remaining.index(part.unfinished) + 1 :]
        return results

    def functions(self, program):
        run = self.start(program, ["-functions"], MOST_SECONDS_OF_FUNCTION)
        return [line.removesuffix("()") for line in run.stdout.splitlines() if line.endswith("()")]

    def run_functions(self, program, functions):
        with tempfile.NamedTemporaryFile("r", errors="replace") as output:
            to_file = ["-o", f"{output.name},xml", "-nocrashhandler", "-maxwarnings", "0"]
            try:
                code = self.start(program, [*functions, *to_file], MOST_SECONDS).returncode
            except subprocess.TimeoutExpired:
                code = None
            results = read_results(output.read())
        place = results.unfinished or "(end of the program)"
        if code is None or code < 0 and results.timed_out:
            results.add(place, "", "hang", "takes too long")
        elif code < 0:
            results.add(place, "", "crash", signal.Signals(-code).name)
        return results

    def start(self, program, arguments, seconds):
        with tempfile.TemporaryDirectory() as home:
            return subprocess.run(
                [program, *arguments],
                cwd=program.parent,
                env=self.environment(home),
                timeout=seconds,
                stdin=subprocess.DEVNULL,
                capture_output=True,
                text=True,
                errors="replace",
            )

    def environment(self, home):
        return {
            **{name: os.environ[name] for name in KEPT if name in os.environ},
            "HOME": home,
            "XDG_RUNTIME_DIR": home,
            "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen",
            "QTEST_FUNCTION_TIMEOUT": str(MOST_SECONDS_OF_FUNCTION * 1000),
            **self.settings,
        }


def save(results, path):
    path.parent.mkdir(parents=True, exist_ok=True)
    rows = [[*key, *astuple(verdict)] for key, verdict in results.verdicts.items()]
    path.write_text(json.dumps(rows, indent=0))


def load(path):
    rows = json.loads(path.read_text())
    return Results({(function, row): Verdict(*verdict) for function, row, *verdict in rows})
