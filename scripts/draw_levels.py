#!/usr/bin/env python3
"""Draws the levels of src/ and the includes between them into docs/levels.svg.

  scripts/draw_levels.py [--check] [--src DIR] [--picture FILE]

With --check it draws nothing and fails where the kept picture is that of another tree.
"""

import argparse
import sys
from html import escape
from pathlib import Path

from levels import Tree

ROOT = Path(__file__).parents[1]
# The palette of docs/look.md.
DEEP_BLUE, INK, QUIET_INK = "#003399", "#1B253B", "#4F5B75"
OUTLINE, SIDE_GROUND = "#7585AB", "#F3F6FC"
MARGIN, BOX_WIDTH, BOX_HEIGHT, GAP, TRUNK_GAP, CAPTION = 16, 500, 48, 12, 34, 28
ROW = BOX_HEIGHT + GAP
STYLE = f"""
text {{ font: 13px Verdana, 'DejaVu Sans', sans-serif; fill: {INK} }}
.caption {{ fill: {QUIET_INK} }}
.name {{ font-size: 15px; font-weight: bold; fill: {DEEP_BLUE} }}
.box {{ fill: {SIDE_GROUND}; stroke: {OUTLINE} }}
.way {{ fill: none; stroke: {DEEP_BLUE}; stroke-width: 1.5 }}
.dot {{ fill: {DEEP_BLUE} }}
"""


class Picture:
    """Boxes from the ground up. Each folder that includes others has a line to the right, with a
    dot on the trunk of each of them; a trunk runs down and ends with an arrow at its folder. The
    trunk of a lower folder stands further right, so that no trunk crosses an arrow."""

    def __init__(self, tree):
        self.tree = tree
        self.includes = {folder: self._below(folder) for folder in tree.folders}
        included = {other for others in self.includes.values() for other in others}
        self.trunks = [folder for folder in reversed(tree.folders) if folder in included]
        self.width = BOX_WIDTH + len(self.trunks) * TRUNK_GAP + 2 * MARGIN
        self.height = len(tree.folders) * ROW - GAP + CAPTION + 2 * MARGIN

    def svg(self):
        return "\n".join([
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width}" height="{self.height}" '
            f'viewBox="0 0 {self.width} {self.height}" role="img">',
            "<title>The folders of src/: each includes only what stands below it</title>",
            f"<style>{STYLE}</style>",
            '<marker id="tip" markerWidth="9" markerHeight="9" refX="8" refY="4.5" orient="auto">'
            '<path class="dot" d="M0 0 9 4.5 0 9z"/></marker>',
            f'<rect width="{self.width}" height="{self.height}" fill="#FFFFFF"/>',
            *(self._box(folder) for folder in self.tree.folders),
            *(self._line(folder) for folder in self.tree.folders if self.includes[folder]),
            *(self._trunk(folder) for folder in self.trunks),
            f'<text class="caption" x="{MARGIN}" y="{self.height - MARGIN}">'
            "A dot on the line of a folder: it includes the folder that the arrow leads to.</text>",
            "</svg>\n"])

    def _below(self, folder):
        order = self.tree.folders.index
        return [other for other in self.tree.included_by(folder) if order(other) < order(folder)]

    def _top(self, folder):
        return MARGIN + (len(self.tree.folders) - 1 - self.tree.folders.index(folder)) * ROW

    def _trunk_x(self, folder):
        return MARGIN + BOX_WIDTH + (self.trunks.index(folder) + 1) * TRUNK_GAP

    def _out_y(self, folder):
        return self._top(folder) + BOX_HEIGHT * 3 // 4

    def _box(self, folder):
        top = self._top(folder)
        return (f'<rect class="box" x="{MARGIN}" y="{top}" width="{BOX_WIDTH}" '
                f'height="{BOX_HEIGHT}" rx="4"/>\n'
                f'<text class="name" x="{MARGIN + 12}" y="{top + 20}">{escape(folder)}</text>\n'
                f'<text x="{MARGIN + 12}" y="{top + 38}">{escape(self.tree.levels[folder])}</text>')

    def _line(self, folder):
        y = self._out_y(folder)
        ends = [self._trunk_x(other) for other in self.includes[folder]]
        dots = "".join(f'\n<circle class="dot" cx="{x}" cy="{y}" r="4"/>' for x in sorted(ends))
        return f'<path class="way" d="M{MARGIN + BOX_WIDTH} {y}H{max(ends)}"/>{dots}'

    def _trunk(self, folder):
        start = min(self._out_y(other) for other, below in self.includes.items() if folder in below)
        return (f'<path class="way" marker-end="url(#tip)" d="M{self._trunk_x(folder)} {start}'
                f'V{self._top(folder) + BOX_HEIGHT // 4}H{MARGIN + BOX_WIDTH}"/>')


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument("--check", action="store_true", help="draw nothing")
    options.add_argument("--src", type=Path, default=ROOT / "src")
    options.add_argument("--picture", type=Path, default=ROOT / "docs/levels.svg")
    given = options.parse_args()
    drawn = Picture(Tree(given.src)).svg()
    if not given.check:
        given.picture.write_text(drawn, encoding="utf-8")
    elif not given.picture.exists() or given.picture.read_text(encoding="utf-8") != drawn:
        sys.exit(f"{given.picture} shows another tree; scripts/draw_levels.py draws it anew")


if __name__ == "__main__":
    main()
