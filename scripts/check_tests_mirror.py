#!/usr/bin/env python3
"""Fails for each source without a window that has no test at its own path: what is
src/<folder>/<source>.cpp is tested in tests/<folder>/<source>_test.cpp. Sources that are built
on Windows alone are not asked for."""

import pathlib
import sys

root = pathlib.Path(__file__).resolve().parent.parent


def test_of(source):
    path = source.relative_to(root / "src")
    return root / "tests" / path.with_name(path.stem + "_test.cpp")


sources = [source for source in sorted((root / "src").rglob("*.cpp"))
           if "desktop" not in source.parts and not source.name.startswith("windows_")]
missing = [test for test in map(test_of, sources) if not test.is_file()]
for test in missing:
    print("missing:", test.relative_to(root), file=sys.stderr)
sys.exit(bool(missing) or not sources)
