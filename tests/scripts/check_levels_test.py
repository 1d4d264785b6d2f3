"""Small source trees, most with one fault each, before scripts/check_levels.py.

    check_levels_test.py COMPILER
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

COMPILER = sys.argv[1:]
SCRIPT = pathlib.Path(__file__).parents[2] / "scripts/check_levels.py"
LEVELS = """# From the ground up.
ground  what all stand on
hall    what people see
window  the glass
"""


class Levels(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.write("levels.txt", LEVELS)

    def write(self, name, text):
        path = self.root / "src" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def check(self, *options):
        return subprocess.run([sys.executable, SCRIPT, "--src", self.root / "src", *options],
                              capture_output=True, text=True, check=False)

    def expect_clean(self, result):
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def expect_fault(self, result, *texts):
        """One fault, which names all this."""
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertEqual(result.stderr.count("FAILED: "), 1, result.stderr)
        for text in texts:
            self.assertIn(text, result.stderr)


class Includes(Levels):
    def test_what_includes_downwards_and_beside_itself_is_clean(self):
        self.write("ground/stone.h", "#include <vector>\n")
        self.write("ground/stone.cpp", '#include "ground/stone.h"\n#include <sys/stat.h>\n')
        self.write("hall/door.cpp", '#include "ground/stone.h"\n')
        self.write("window/pane.h", '#include "hall/door.cpp"\n#include <QtCore/QString>\n')
        self.expect_clean(self.check())

    def test_the_levels_are_told_with_their_files_and_what_they_include(self):
        self.write("ground/stone.h", "")
        self.write("window/pane.h", '#include "ground/stone.h"\n')
        self.write("window/pane.cpp", '#include "window/pane.h"\n')
        rows = [line.split() for line in self.check().stdout.splitlines()]
        self.assertEqual(rows[1:], [["2", "window", "2", "ground"], ["1", "hall", "0", "-"],
                                    ["0", "ground", "1", "-"]])

    def test_an_include_that_points_up_is_found(self):
        self.write("hall/door.h", "")
        self.write("ground/stone.cpp", '\n#include "hall/door.h"\n')
        self.expect_fault(self.check(), "ground/stone.cpp:2: hall/door.h stands higher")

    def test_no_way_of_writing_hides_an_include_that_points_up(self):
        self.write("hall/door.h", "")
        for written in ('"../hall/door.h"', "<hall/door.h>", '"hall/door.h"  // why',
                        '"hall/../hall/door.h"'):
            self.write("ground/stone.cpp", f"  #  include {written}\n")
            self.expect_fault(self.check(), "ground/stone.cpp:1:", "stands higher")

    def test_an_include_of_a_folder_that_is_not_told_is_found(self):
        self.write("shed/spade.h", "")
        self.write("hall/door.cpp", '#include "shed/spade.h"\n')
        result = self.check()
        self.assertIn("FAILED: shed/spade.h: levels.txt does not tell the folder", result.stderr)
        self.assertIn("FAILED: hall/door.cpp:1: shed/spade.h lies in a folder that levels.txt does "
                      "not tell", result.stderr)

    def test_a_folder_that_is_not_told_is_found_though_nobody_includes_it(self):
        self.write("shed/spade.cpp", "")
        self.expect_fault(self.check(), "shed/spade.cpp: levels.txt does not tell the folder")

    def test_a_file_beside_the_folders_is_found(self):
        self.write("spade.cpp", "")
        self.expect_fault(self.check(), "spade.cpp: levels.txt does not tell the folder")

    def test_an_include_that_leads_out_of_the_source_is_found(self):
        (self.root / "tests").mkdir()
        (self.root / "tests/bench.h").touch()
        self.write("hall/door.cpp", '#include "../../tests/bench.h"\n')
        self.expect_fault(self.check(),
                          "hall/door.cpp:1: ../../tests/bench.h is no file of the source")

    def test_an_include_that_is_named_by_a_macro_is_found(self):
        self.write("hall/door.cpp", '#define LOCK "hall/lock.h"\n#include LOCK\n')
        self.expect_fault(self.check(), "hall/door.cpp:2: LOCK is no file of the source")

    def test_a_cycle_of_includes_is_found(self):
        self.write("hall/door.h", '#include "hall/frame.h"\n')
        self.write("hall/frame.h", '#include "hinge.h"\n')
        self.write("hall/hinge.h", '#include "hall/door.h"\n')
        self.write("hall/door.cpp", '#include "hall/door.h"\n')
        self.expect_fault(
            self.check(),
            "include cycle: hall/door.h -> hall/frame.h -> hall/hinge.h -> hall/door.h\n")

    def test_a_file_that_includes_itself_is_found(self):
        self.write("hall/door.h", '#include "hall/door.h"\n')
        self.expect_fault(self.check(), "include cycle: hall/door.h -> hall/door.h")

    def test_qt_is_found_below_the_window_however_it_is_written(self):
        for header in ("<QString>", "<QtCore/QString>", "<QtCore/private/qobject_p.h>",
                       "<qstring.h>", '"QtCore"', "<Qt>"):
            self.write("hall/door.h", f"#include {header}\n")
            self.expect_fault(self.check(), "hall/door.h:1:", "is Qt's, which window alone knows")

    def test_a_folder_in_the_window_is_a_part_of_it(self):
        self.write("window/curtain/cloth.h", '#include <QString>\n#include "window/pane.h"\n')
        self.write("window/pane.h", "")
        self.expect_clean(self.check())
        self.write("hall/door.cpp", '#include "window/curtain/cloth.h"\n')
        self.expect_fault(self.check(), "window/curtain/cloth.h stands higher")


class Objects(Levels):
    def build(self, **sources):
        """A library for each folder, of the sources that are given by name: ground_stone="..."."""
        build = self.root / "build"
        build.mkdir()
        for name, text in sources.items():
            folder, _, source = name.partition("_")
            self.write(f"{folder}/{source}.cpp", text)
            subprocess.run([*COMPILER, "-std=c++20", "-c", self.root / f"src/{folder}/{source}.cpp",
                            "-o", build / f"{source}.cpp.o"], check=True)
            subprocess.run(["ar", "qc", build / f"liborvanta_{folder}.a",
                            build / f"{source}.cpp.o"], check=True)
        return "--objects", str(build)

    def test_objects_that_need_only_what_is_below_are_clean(self):
        built = self.build(ground_stone="int weight() { return 9; }",
                           ground_sand="int weight(); int heap() { return 9 * weight(); }",
                           hall_door="int heap(); int weight();\n"
                                     "int push() { return heap() + weight(); }")
        self.expect_clean(self.check(*built))

    def test_a_symbol_that_points_up_is_found(self):
        built = self.build(ground_stone="int push(int); int weight() { return push(2); }",
                           hall_door="int push(int times) { return times; }")
        self.expect_fault(self.check(*built),
                          "ground/stone.cpp needs what only hall/door.cpp gives", "push(int)")

    def test_data_that_point_up_are_found(self):
        built = self.build(ground_stone="extern int height; int weight() { return height; }",
                           hall_door="int height = 2;")
        self.expect_fault(self.check(*built),
                          "ground/stone.cpp needs what only hall/door.cpp gives", "height")

    def test_texts_are_named_as_the_source_writes_them(self):
        built = self.build(ground_stone="#include <string>\nvoid cut(const std::string&);\n"
                                        "void mark() { cut({}); }",
                           hall_door="#include <string>\nvoid cut(const std::string&) {}")
        self.expect_fault(self.check(*built), "cut(std::string const&)")

    def test_a_weak_need_that_points_up_is_found(self):
        built = self.build(
            ground_stone="[[gnu::weak]] int push(); int weight() { return push ? push() : 0; }",
            hall_door="int push() { return 2; }")
        self.expect_fault(self.check(*built),
                          "ground/stone.cpp needs what only hall/door.cpp gives", "push()")

    def test_a_cycle_of_objects_in_one_folder_is_named_with_its_symbols(self):
        built = self.build(hall_door="int hang(); int push() { return hang(); }",
                           hall_frame="int turn(); int hang() { return turn(); }",
                           hall_hinge="int push(); int turn() { return push(); }",
                           hall_bell="int push(); int ring() { return push(); }")
        self.expect_fault(self.check(*built),
                          "3 objects hang in it: hall/door.cpp hall/frame.cpp hall/hinge.cpp",
                          "hall/door.cpp needs of hall/frame.cpp:\n    hang()",
                          "hall/frame.cpp needs of hall/hinge.cpp:\n    turn()",
                          "hall/hinge.cpp needs of hall/door.cpp:\n    push()")

    def test_the_shortest_of_the_cycles_is_told(self):
        built = self.build(hall_door="int hang(); int turn();\n"
                                     "int push() { return hang() + turn(); }",
                           hall_frame="int turn(); int hang() { return turn(); }",
                           hall_hinge="int push(); int turn() { return push(); }")
        result = self.check(*built)
        self.expect_fault(result, "3 objects", "hall/door.cpp needs of hall/hinge.cpp:")
        self.assertNotIn("needs of hall/frame.cpp", result.stderr)

    def test_what_each_object_brings_along_itself_is_no_need(self):
        inline = "template <class T> T twice(T value) { return 2 * value; }\n"
        built = self.build(ground_stone=inline + "int weight() { return twice(2); }",
                           hall_door=inline + "int push() { return twice(3); }")
        self.expect_clean(self.check(*built))

    def test_what_a_lower_folder_gives_too_may_be_needed(self):
        given = ("template <class T> T twice(T value) { return 2 * value; }\n"
                 "template int twice(int);\n")
        built = self.build(ground_stone=given, hall_door=given,
                           ground_sand="template <class T> T twice(T);\n"
                                       "int heap() { return twice(2); }")
        self.expect_clean(self.check(*built))

    def test_a_source_that_was_not_built_is_found(self):
        built = self.build(hall_door="int push() { return 2; }")
        self.write("hall/bell.cpp", "int ring() { return 1; }")
        self.expect_fault(self.check(*built), "hall/bell.cpp: the build has no object of it")

    def test_a_source_for_windows_alone_need_not_be_built(self):
        built = self.build(hall_door="int push() { return 2; }")
        self.write("hall/windows_bell.cpp", "int ring() { return 1; }")
        self.expect_clean(self.check(*built))

    def test_a_folder_that_was_not_built_is_found(self):
        built = self.build(hall_door="int push() { return 2; }")
        self.write("ground/stone.cpp", "int weight() { return 9; }")
        result = self.check(*built)
        self.assertEqual(result.returncode, 1)
        self.assertIn("holds no liborvanta_ground.a", result.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
