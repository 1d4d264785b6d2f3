#!/usr/bin/env python3
"""What scripts/release.sh makes of a small project, and what it refuses.

release_test.py RELEASE_SCRIPT
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(sys.argv.pop(1)).resolve()

LISTS = "cmake_minimum_required(VERSION 3.25)\nproject(orvanta VERSION 1.2.3 LANGUAGES CXX)\n"
CHANGES = "# Changes\n\n## Unreleased\n\n- It can fly.\n- It lands.\n"


class Release(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="orvanta-test-")
        self.addCleanup(folder.cleanup)
        self.project = pathlib.Path(folder.name)
        (self.project / "scripts").mkdir()
        shutil.copy(SCRIPT, self.project / "scripts" / "release.sh")
        (self.project / "CMakeLists.txt").write_text(LISTS)
        (self.project / "CHANGELOG.md").write_text(CHANGES)
        self.git("init", "-q")
        self.git("config", "user.name", "A tester")
        self.git("config", "user.email", "tester@example.org")
        self.commit()

    def git(self, *arguments):
        return subprocess.run(["git", *arguments], cwd=self.project, check=True,
                              capture_output=True, text=True).stdout

    def commit(self):
        self.git("add", "-A")
        self.git("commit", "-q", "-m", "a step")

    def release(self, *arguments):
        return subprocess.run([self.project / "scripts" / "release.sh", *arguments],
                              capture_output=True, text=True, check=False)

    def assert_refused(self, reason, *arguments):
        before = self.git("rev-parse", "HEAD"), self.git("tag")
        outcome = self.release(*arguments)
        self.assertEqual(outcome.returncode, 1)
        self.assertIn(reason, outcome.stderr)
        self.assertEqual((self.git("rev-parse", "HEAD"), self.git("tag")), before)

    def test_sets_version_changes_and_tag(self):
        outcome = self.release("1.10.0")
        self.assertEqual(outcome.returncode, 0, outcome.stderr)
        self.assertIn("project(orvanta VERSION 1.10.0 LANGUAGES CXX)",
                      (self.project / "CMakeLists.txt").read_text())
        self.assertRegex((self.project / "CHANGELOG.md").read_text(),
                         r"## Unreleased\n\n## 1\.10\.0, \d{4}-\d\d-\d\d\n\n- It can fly\.")
        self.assertEqual(self.git("tag", "--points-at", "HEAD"), "v1.10.0\n")
        self.assertEqual(self.git("status", "--porcelain"), "")

    def test_refuses_what_is_no_version(self):
        for version in [[], ["1.3"], ["1.3.0-rc"], ["v1.3.0"], [""]]:
            self.assert_refused("usage", *version)

    def test_refuses_a_version_that_is_not_above_the_last(self):
        for version in ["1.2.3", "1.2.2", "0.9.9"]:
            self.assert_refused("is not above 1.2.3", version)

    def test_refuses_while_there_are_changes_in_no_commit(self):
        (self.project / "new.txt").write_text("new")
        self.assert_refused("in no commit", "1.3.0")

    def test_refuses_a_release_without_a_change(self):
        self.assertEqual(self.release("1.3.0").returncode, 0)
        self.assert_refused("tells of no change", "1.4.0")

    def test_refuses_a_tag_that_is_there(self):
        self.git("tag", "v1.3.0")
        self.assert_refused("there is a tag", "1.3.0")


if __name__ == "__main__":
    unittest.main()
