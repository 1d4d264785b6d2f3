"""A small source tree before scripts/draw_levels.py."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

SCRIPT = pathlib.Path(__file__).parents[2] / "scripts/draw_levels.py"


class Picture(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.write("levels.txt",
                   "ground  what <all> stand on\nhall  what people see\nwindow  glass\n")
        self.write("ground/stone.h", "")
        self.write("hall/door.h", '#include "ground/stone.h"\n')
        self.write("window/pane.h", '#include "ground/stone.h"\n')

    def write(self, name, text):
        path = self.root / "src" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def draw(self, *options):
        return subprocess.run([sys.executable, SCRIPT, "--src", self.root / "src", "--picture",
                               self.root / "levels.svg", *options],
                              capture_output=True, text=True, check=False)

    def shown(self, element):
        self.assertEqual(self.draw().returncode, 0)
        return list(ElementTree.parse(self.root / "levels.svg").iter(
            "{http://www.w3.org/2000/svg}" + element))

    def arrows(self):
        return [path for path in self.shown("path") if path.get("marker-end")]

    def test_the_ground_is_drawn_lowest(self):
        heights = {text.text: int(text.get("y")) for text in self.shown("text")}
        self.assertLess(heights["window"], heights["hall"])
        self.assertLess(heights["hall"], heights["ground"])

    def test_each_folder_is_drawn_with_what_it_holds(self):
        self.assertIn("what <all> stand on", [text.text for text in self.shown("text")])

    def test_each_include_of_another_folder_has_a_dot_and_each_that_is_included_an_arrow(self):
        self.assertEqual((len(self.shown("circle")), len(self.arrows())), (2, 1))
        self.write("window/bar.h", '#include "hall/door.h"\n')
        self.assertEqual((len(self.shown("circle")), len(self.arrows())), (3, 2))

    def test_an_arrow_begins_at_the_line_of_the_highest_folder_that_includes(self):
        dots = [int(dot.get("cy")) for dot in self.shown("circle")]
        start = re.match(r"M\d+ (\d+)V", self.arrows()[0].get("d"))
        self.assertEqual(int(start[1]), min(dots))

    def test_a_kept_picture_is_that_of_its_tree_and_of_no_other(self):
        self.draw()
        self.assertEqual(self.draw("--check").returncode, 0)
        self.write("window/bar.h", '#include "hall/door.h"\n')
        result = self.draw("--check")
        self.assertEqual(result.returncode, 1)
        self.assertIn("shows another tree", result.stderr)

    def test_a_missing_picture_is_found_and_not_drawn_by_the_check(self):
        self.assertIn("shows another tree", self.draw("--check").stderr)
        self.assertFalse((self.root / "levels.svg").exists())


if __name__ == "__main__":
    unittest.main()
