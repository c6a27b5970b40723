#!/usr/bin/env python3
"""Tests of the checks of the architecture, on small checkouts of their own."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent

TABLE = """\
# The table of the checkouts below.
tool  | apps/tool          | face
face  | src/style/Style    | rooms
rooms | src/style/rooms/** | left, right
left  | src/left           |
right | src/right          |
"""


class ChecksTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.checkout = Path(folder.name)

    def write(self, path, *lines):
        file = self.checkout / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text("".join(line + "\n" for line in lines))
        return file

    def run_script(self, name, *arguments):
        command = [sys.executable, HERE / name, self.checkout, *arguments]
        return subprocess.run(command, capture_output=True, text=True)

    def assert_found(self, run, *lines):
        self.assertEqual(run.stdout.splitlines(), list(lines), run.stderr)
        self.assertEqual(run.returncode, 1 if lines else 0)


class LayersTest(ChecksTest):
    def check(self, table=TABLE):
        return self.run_script("check_layers.py", self.write("layers.txt", table))

    def test_arrows_that_lead_down_are_fine(self):
        self.write("src/left/Left.h", "#include <QtCore/QString>")
        self.write("src/style/rooms/one/One.h", '#include "left/Left.h"')
        self.write("src/style/Style.h", "#pragma once", '#include "style/rooms/one/One.h"')
        self.write("apps/tool/main.cpp", "#include <style/Style.h>", "#include <left/Left.h>")
        self.assert_found(self.check())

    def test_an_arrow_that_leads_up_is_found(self):
        self.write("src/style/Style.h")
        self.write("src/style/rooms/Room.cpp", "// A room.", "", '#  include "style/Style.h" // up')
        self.assert_found(
            self.check(),
            "src/style/rooms/Room.cpp:3: rooms must not know face (src/style/Style.h)",
        )

    def test_an_arrow_between_neighbours_is_found(self):
        self.write("src/right/Right.h")
        self.write("src/left/Left.cpp", '#include "right/Right.h"')
        self.assert_found(
            self.check(), "src/left/Left.cpp:1: left must not know right (src/right/Right.h)"
        )

    def test_the_library_must_not_know_programs(self):
        self.write("apps/tool/Tool.h")
        self.write("src/left/Left.cpp", "#include <Tool.h>")
        self.assert_found(
            self.check(), "src/left/Left.cpp:1: left must not know tool (apps/tool/Tool.h)"
        )

    def test_a_new_room_has_to_be_put_into_the_table(self):
        self.write("src/style/Other.h")
        self.write("src/left/below/Below.cpp")
        self.assert_found(
            self.check(),
            "src/left/below/Below.cpp:1: stands in no layer",
            "src/style/Other.h:1: stands in no layer",
        )

    def test_rooms_of_a_layer_that_include_each_other_are_found(self):
        self.write("src/style/rooms/one/One.h", "", '#include "style/rooms/two/Two.h"')
        self.write("src/style/rooms/one/First.h")
        self.write("src/style/rooms/two/Two.h")
        self.write("src/style/rooms/two/Second.cpp", '#include "style/rooms/one/First.h"')
        rooms = "src/style/rooms/{} and src/style/rooms/{} include each other"
        self.assert_found(
            self.check(),
            "src/style/rooms/one/One.h:2: "
            + rooms.format("one", "two")
            + " (src/style/rooms/two/Two.h)",
            "src/style/rooms/two/Second.cpp:1: "
            + rooms.format("two", "one")
            + " (src/style/rooms/one/First.h)",
        )

    def test_a_header_has_one_name(self):
        self.write("src/left/Left.h")
        self.write("src/left/Left.cpp", '#include "Left.h"')
        self.write("apps/tool/main.cpp", "#include <left/Left.h>")
        self.assert_found(
            self.check(),
            "apps/tool/main.cpp:1: left/Left.h is also included as Left.h",
            "src/left/Left.cpp:1: Left.h is also included as left/Left.h",
        )

    def test_programs_may_have_headers_of_the_same_name(self):
        for program in ("tool", "other"):
            self.write(f"apps/{program}/Words.h")
            self.write(f"apps/{program}/main.cpp", '#include "Words.h"')
        self.assert_found(self.check(TABLE + "other | apps/other |\n"))

    def test_a_layer_stands_on_later_rows_only(self):
        run = self.check("left | src/left |\nright | src/right | left\n")
        self.assertNotEqual(run.returncode, 0)
        self.assertIn("right stands on left, which is no later row", run.stderr)


class SizesTest(ChecksTest):
    def check(self):
        return self.run_script("check_sizes.py")

    def test_long_files_are_found(self):
        self.write("src/left/Fits.cpp", *["//"] * 400)
        self.write("src/left/Long.cpp", *["//"] * 401)
        self.write("tests/Long.svg", *["<!-- -->"] * 401)
        self.assert_found(self.check(), "src/left/Long.cpp: has 401 lines, more than 400")

    def test_full_folders_are_found(self):
        for folder, pairs in (("src/left", 12), ("src/right", 13), ("src/style/families", 30)):
            for number in range(pairs):
                self.write(f"{folder}/Pair{number}.h")
                self.write(f"{folder}/Pair{number}.cpp")
            self.write(f"{folder}/Single.h")
        self.assert_found(self.check(), "src/right: holds 13 pairs of files, more than 12")


if __name__ == "__main__":
    unittest.main()
