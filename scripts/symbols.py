"""The symbols that the objects of the logic need and give, read from its built libraries."""

import re
import subprocess
from pathlib import Path

# "libx.a[y.cpp.o]: symbol T 0 0"; an undefined symbol has no address behind its type.
LINE = re.compile(r".*\[(?P<member>.+)\.o\]: (?P<symbol>\S+) (?P<type>\S)")

TRAITS = "std::char_traits<char>"
SHORT = {f"std::__cxx11::basic_string<char, {TRAITS}, std::allocator<char> >": "std::string",
         f"std::basic_string_view<char, {TRAITS} >": "std::string_view"}


class Symbols:
    """What the objects need and give. An object is named like its source, below src."""

    def __init__(self, tree, build):
        self.needs, self.gives = {}, {}
        for folder in tree.folders:
            if folder != tree.window and any(map(is_source, tree.files_of(folder))):
                self._read(folder, library_of(folder, build))
        self._givers = {}  # symbol -> its lowest giver
        for object_ in sorted(self.gives, key=lambda one: (tree.level(one), one), reverse=True):
            self._givers.update(dict.fromkeys(self.gives[object_], object_))

    def needed(self):
        """object -> {object that gives -> symbols}. Of several givers the lowest one counts."""
        links = {}
        for object_, symbols in self.needs.items():
            links[object_] = {}
            for symbol in symbols:
                if symbol in self._givers:
                    links[object_].setdefault(self._givers[symbol], set()).add(symbol)
        return links

    def _read(self, folder, library):
        listing = run("nm", "-A", "-P", library)
        for line in filter(None, map(LINE.match, listing.splitlines())):
            object_ = f"{folder}/{line['member']}"
            needs = self.needs.setdefault(object_, set())
            gives = self.gives.setdefault(object_, set())
            if line["type"] in "Uwv":
                needs.add(line["symbol"])
            elif line["type"].isupper() or line["type"] == "u":
                gives.add(line["symbol"])


def is_source(file):
    return file.endswith((".cpp", ".cc"))


def library_of(folder, build):
    name = f"liborvanta_{folder}.a"
    for library in Path(build).rglob(name):
        return library
    raise SystemExit(f"{build} holds no {name}; build it first")


def readable(symbols):
    """The symbols as their sources write them."""
    told = run("c++filt", *symbols)
    for long, short in SHORT.items():
        told = told.replace(long, short)
    return sorted(set(told.splitlines()))


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout
