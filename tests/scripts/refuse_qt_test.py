"""Compiles small sources the way this build does, which must refuse whatever reads Qt.

    refuse_qt_test.py COMPILER...      with all that this build puts before its compiler

Qt itself need not be here: a few headers of its names stand in for it.
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

COMPILER = sys.argv[1:]


class RefuseQt(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.write("qt6/QtCore/qstring.h", "struct QString {};\n")
        self.write("qt6/QtCore/QString", '#include "qstring.h"\n')

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def compile(self, source, *options, lists=("-MD", "-MF", "source.d")):
        self.write("source.cpp", source)
        return subprocess.run([*COMPILER, *options, *lists, "-c", "source.cpp", "-o", "source.o"],
                              cwd=self.folder, capture_output=True, text=True, check=False)

    def expect_refused(self, result, message):
        self.assertNotEqual(result.returncode, 0)
        self.assertIn(message, result.stderr)
        self.assertFalse((self.folder / "source.o").exists())

    def test_a_header_of_qt_does_not_compile(self):
        result = self.compile("#include <QtCore/QString>\n", "-isystem", "qt6")
        self.expect_refused(result, "QtCore/QString")

    def test_the_short_name_of_a_header_does_not_compile(self):
        result = self.compile("#include <QString>\n", "-isystem", str(self.folder / "qt6/QtCore"))
        self.expect_refused(result, "QtCore/QString")

    def test_a_header_of_small_letters_does_not_compile(self):
        self.expect_refused(self.compile("#include <qstring.h>\n", "-Iqt6/QtCore"),
                            "QtCore/qstring.h")

    def test_a_header_that_includes_qt_does_not_compile(self):
        self.write("harmless.h", "#include <QtCore/QString>\n")
        self.expect_refused(self.compile('#include "harmless.h"\n', "-Iqt6"), "QtCore/QString")

    def test_what_the_cache_of_the_compiler_holds_does_not_compile_either(self):
        for _ in range(2):
            self.expect_refused(self.compile("#include <QtCore/QString>\n", "-Iqt6"),
                                "QtCore/QString")

    def test_nothing_compiles_that_does_not_tell_what_it_reads(self):
        for lists in ((), ("-MD",), ("-MMD", "-MF", "source.d")):
            self.expect_refused(self.compile("int main() {}\n", lists=lists), "-MD and -MF")

    def test_a_header_that_only_looks_like_one_of_qt_compiles(self):
        self.write("QtProjects/questions/question_banks.h", "#include <string>\n")
        self.write("NotQtCore/queue.h", "")
        result = self.compile('#include "questions/question_banks.h"\n#include "queue.h"\n',
                              "-IQtProjects", "-INotQtCore")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertTrue((self.folder / "source.o").exists())

    def test_the_faults_that_the_compiler_finds_stay_its_own(self):
        self.expect_refused(self.compile("int twice() { return 2 * half; }\n"), "half")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
