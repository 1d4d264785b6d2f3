#!/usr/bin/env python3
"""Packs PNG pictures of one thing in several sizes into an icon as Windows has them.

    pack_icon.py ICON.ico PICTURE.png ...
"""

import pathlib
import struct
import sys

HEAD, ENTRY = struct.Struct("<HHH"), struct.Struct("<BBBBHHII")
SIDE_AT = 16  # of a PNG file: where its head tells the width
COLOURED, IS_ICON, PLANES, BITS = 0, 1, 1, 32

icon, *names = map(pathlib.Path, sys.argv[1:])
pictures = [name.read_bytes() for name in names]
entries, place = [], HEAD.size + ENTRY.size * len(pictures)
for picture in pictures:
    side = struct.unpack_from(">I", picture, SIDE_AT)[0] % 256  # 0 stands for 256
    entries.append(ENTRY.pack(side, side, COLOURED, 0, PLANES, BITS, len(picture), place))
    place += len(picture)
icon.write_bytes(HEAD.pack(0, IS_ICON, len(pictures)) + b"".join(entries + pictures))
