#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Holds each source to its licence: licences.py ROOT

What other programs may use is under the Lesser General Public License, the rest under the General Public License; the
first lines of each file say so."""

import pathlib
import sys

LESSER = ["core", "image", "library", "examples"]
KINDS = [".c", ".cpp", ".h", ".py", ".ui", ".cmake", ".map"]


def is_source(path):
    if not path.is_file() or path.suffix in [".pyc", ".md"]:
        return False
    return path.suffix in KINDS or path.name == "CMakeLists.txt" or path.open("rb").read(2) == b"#!"


def main(root):
    places = [place for place in sorted(root.iterdir()) if place.name != "build" and not place.name.startswith(".")]
    sources = [path for place in places for path in [place, *sorted(place.rglob("*"))] if is_source(path)]
    if not any(path.is_relative_to(root / "core") for path in sources):
        sys.exit(f"{root} is not the project's root")
    faults = []
    for path in sources:
        name = path.relative_to(root)
        licence = "LGPL-3.0-or-later" if name.parts[0] in LESSER else "GPL-3.0-or-later"
        if f"SPDX-License-Identifier: {licence}" not in "\n".join(path.read_text().split("\n")[:4]):
            faults.append(f"{name} does not begin with its licence, {licence}")
    print("\n".join([*faults, f"{len(sources)} files read, {len(faults)} faults"]))
    sys.exit(1 if faults else 0)


main(pathlib.Path(sys.argv[1]).resolve())
