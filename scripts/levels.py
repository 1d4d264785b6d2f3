"""The folders of a source tree from the ground up, and what their files include."""

import re
from pathlib import Path, PurePosixPath

INCLUDE = re.compile(r"\s*#\s*include\b\s*(.*)")
NAME = re.compile(r'(["<])([^">]+)[">]')
QT_HEADER = re.compile(r"(?:.*/)?(?:Q[A-Za-z]\w*|q[a-z0-9_]+\.h)")
SUFFIXES = {".cpp", ".cc", ".h", ".hpp", ".inc"}


class Include:
    """A line that includes something: where it stands, and what it finds."""

    def __init__(self, line, text, angled, file):
        self.line = line
        self.text = text  # as written, without its quotes
        self.file = file  # path below src, None if there is no such file
        self.is_qt = file is None and bool(QT_HEADER.fullmatch(text))
        self.is_system = file is None and angled and not self.is_qt


class Tree:
    """A source tree with the file levels.txt at its root. Paths are those below the root."""

    def __init__(self, src):
        self.src = Path(src)
        self.levels = dict(self._levels())  # folder -> words, from the ground up
        self.includes = {file: list(self._includes(file)) for file in self._files()}

    @property
    def folders(self):
        return list(self.levels)

    @property
    def window(self):
        """The topmost folder, the only one that may know Qt."""
        return self.folders[-1]

    def level(self, file):
        """The level of a file's folder, from 0; None if the folder is not told."""
        folder = folder_of(file)
        return self.folders.index(folder) if folder in self.levels else None

    def files_of(self, folder):
        return [file for file in self.includes if folder_of(file) == folder]

    def included_by(self, folder):
        """The other folders that a folder includes, from the ground up."""
        found = {folder_of(include.file) for file in self.files_of(folder)
                 for include in self.includes[file] if include.file}
        return [other for other in self.folders if other in found - {folder}]

    def _levels(self):
        for line in (self.src / "levels.txt").read_text(encoding="utf-8").splitlines():
            if line.strip() and not line.startswith("#"):
                folder, _, words = line.partition(" ")
                yield folder, words.strip()

    def _files(self):
        return sorted(path.relative_to(self.src).as_posix() for path in self.src.rglob("*")
                      if path.suffix in SUFFIXES)

    def _includes(self, file):
        lines = (self.src / file).read_text(encoding="utf-8").splitlines()
        for number, line in enumerate(lines, 1):
            if directive := INCLUDE.match(line):
                name = NAME.match(directive[1])
                text = name[2] if name else directive[1]
                yield Include(number, text, bool(name) and name[1] == "<", self._find(file, text))

    def _find(self, file, text):
        for start in ((self.src / file).parent, self.src):
            path = (start / text).resolve()
            if path.is_file() and path.is_relative_to(self.src.resolve()):
                return path.relative_to(self.src.resolve()).as_posix()
        return None


def folder_of(file):
    """The folder of src/ that a file lies in, however deep."""
    return PurePosixPath(file).parts[0]
