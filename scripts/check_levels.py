#!/usr/bin/env python3
"""Prints the levels of src/ and fails on what points up or round in a circle.

  scripts/check_levels.py [--src DIR] [--objects BUILDDIR]

Of the sources: an include that points up, of a folder that levels.txt does not tell, of Qt below
the window, and a cycle of includes. With the folder of a build also of the objects of the logic: a
symbol that only a higher folder gives, and objects that need each other in a circle.
"""

import argparse
import sys
from pathlib import Path

from graph import cycles
from levels import Tree, folder_of
from symbols import Symbols, is_source, readable


def table(tree):
    yield "level  folder        files  includes"
    for level, folder in reversed(list(enumerate(tree.folders))):
        below = " ".join(tree.included_by(folder)) or "-"
        yield f"{level:5}  {folder:12}  {len(tree.files_of(folder)):5}  {below}"


def untold_folders(tree):
    for file in tree.includes:
        if tree.level(file) is None:
            yield f"{file}: levels.txt does not tell the folder"


def wrong_includes(tree):
    for file, includes in tree.includes.items():
        for include in includes:
            if fault := fault_of(tree, file, include):
                yield f"{file}:{include.line}: {include.text} {fault}"


def fault_of(tree, file, include):
    if include.is_qt:
        at_home = folder_of(file) == tree.window
        return None if at_home else f"is Qt's, which {tree.window} alone knows"
    if include.file is None:
        return None if include.is_system else "is no file of the source"
    if tree.level(include.file) is None:
        return "lies in a folder that levels.txt does not tell"
    if tree.level(file) is not None and tree.level(include.file) > tree.level(file):
        return "stands higher"
    return None


def include_cycles(tree):
    graph = {file: {include.file for include in includes if include.file}
             for file, includes in tree.includes.items()}
    for cycle, _ in cycles(graph):
        yield "include cycle: " + " -> ".join(cycle)


def symbols_upwards(tree, links):
    for object_, givers in links.items():
        for giver, symbols in givers.items():
            if tree.level(giver) > tree.level(object_):
                yield (f"{object_} needs what only {giver} gives, which stands higher:"
                       + listed(symbols))


def object_cycles(links):
    for cycle, group in cycles(links):
        yield f"object cycle, {len(group)} objects hang in it: {' '.join(sorted(group))}" + "".join(
            f"\n  {object_} needs of {giver}:" + listed(links[object_][giver], "\n    ")
            for object_, giver in zip(cycle, cycle[1:]))


def listed(symbols, indent="\n  "):
    return "".join(indent + symbol for symbol in readable(symbols))


def unbuilt_sources(tree, links):
    """What the build left out; only what is for Windows alone may be."""
    for file in filter(is_source, tree.includes):
        if folder_of(file) != tree.window and file not in links and "/windows_" not in file:
            yield f"{file}: the build has no object of it"


def faults(tree, build):
    yield from untold_folders(tree)
    yield from wrong_includes(tree)
    yield from include_cycles(tree)
    if build:
        links = Symbols(tree, build).needed()
        yield from unbuilt_sources(tree, links)
        yield from symbols_upwards(tree, links)
        yield from object_cycles(links)


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument("--src", default=Path(__file__).parents[1] / "src")
    options.add_argument("--objects", metavar="BUILDDIR", help="look at its libraries too")
    given = options.parse_args()
    tree = Tree(given.src)
    print(*table(tree), sep="\n")
    found = 0
    for found, fault in enumerate(faults(tree, given.objects), 1):
        print(f"FAILED: {fault}", file=sys.stderr)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
