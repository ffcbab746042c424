#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Holds the includes to the house: includes.py ROOT

A floor or a room includes only itself and what lies below it, and no file includes itself by way of others. A source and
its header, which share their name, count as one file there. Every file of the engine includes the guard of its
arithmetic. Prints what is wrong and fails if anything is."""

import pathlib
import re
import sys

ROOMS = ["image/numbers", "image/passes", "image/toolkit", "image/looks", "image/framing"]  # from the bottom
ENGINE = ["core", *ROOMS]
RENDER = [*ENGINE, "image", "photo", "render"]
# Of the application: the controller in app/window brings the others together.
APP_ROOMS = ["app/state", "app/controls", "app/preview", "app/panels", "app/desktop"]

# What the files of each place may include beside their own. The longest place that fits a file is its own.
BELOW = {
    "core": [],
    **{room: ENGINE[: ENGINE.index(room)] for room in ROOMS},
    "image": ENGINE,
    "library": [*ENGINE, "image"],
    "photo": ["core"],
    "render": [*ENGINE, "image", "photo"],
    "app/state": RENDER,
    **{room: [*RENDER, "app/state"] for room in APP_ROOMS[1:]},
    "app/window": [*RENDER, *APP_ROOMS],
    "app": [*APP_ROOMS, "app/window"],
    "tools": RENDER,
}
# Of all operations, and of the catalogue's rows: every room may include these.
DECLARATIONS = ["image/CharImage.h", "image/FilterCatalogue.h", "image/FilterNumber.h"]
GUARD = "core/Exact.h"  # of the engine's arithmetic: before any code of the engine

INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)', re.MULTILINE)


def place_of(file):
    """The floor or the room of a file; None for what belongs to neither."""
    folder = file.rpartition("/")[0]
    while folder and folder not in BELOW:
        if folder.startswith(("image/", "app/")):
            return None  # a room that is not listed above
        folder = folder.rpartition("/")[0]
    return folder or None


def wrong_includes(includes):
    for file, included in includes.items():
        place = place_of(file)
        if place is None:
            yield f"{file} stands in no known floor or room"
            continue
        for other in included:
            allowed = [place, *BELOW[place]]
            if place_of(other) not in allowed and not (other in DECLARATIONS and place in ROOMS):
                yield f"{file} includes {other}, but {place} may include only {', '.join(allowed)}"


def unguarded(includes):
    """The files of the engine that do not reach the guard. Where all do, it comes first in whatever order they include
    one another, as includes stand above a file's own code."""
    guarded = {GUARD}
    while more := {file for file, others in includes.items() if file not in guarded and guarded.intersection(others)}:
        guarded |= more
    return [file for file in includes if place_of(file) in [*ENGINE, "image"] and file not in guarded]


def first_circle(includes):
    """The units of a circle of includes, the first one once more at the end; empty if there is none."""
    units = {}
    for file, included in includes.items():
        unit = file.rpartition(".")[0]
        units.setdefault(unit, set()).update(other.rpartition(".")[0] for other in included)
        units[unit].discard(unit)
    done, path = set(), []

    def search(unit):
        if unit in path:
            return [*path[path.index(unit) :], unit]
        if unit in done:
            return []
        path.append(unit)
        for other in sorted(units.get(unit, ())):
            if circle := search(other):
                return circle
        path.pop()
        done.add(unit)
        return []

    return next((circle for unit in sorted(units) if (circle := search(unit))), [])


def main(root):
    files = [
        path
        for floor in sorted({place.split("/")[0] for place in BELOW})
        for path in sorted((root / floor).rglob("*"))
        if path.suffix in (".h", ".cpp")
    ]
    if not any(path.is_relative_to(root / "image") for path in files):
        sys.exit(f"{root} is not the project's root")
    written = {path: INCLUDE.findall(path.read_text("utf-8")) for path in files}
    # What another program makes, as uic does, does not stand in the tree.
    includes = {
        path.relative_to(root).as_posix(): [other for other in others if (root / other).is_file()]
        for path, others in written.items()
    }
    faults = list(wrong_includes(includes))
    for path, others in written.items():
        faults += [
            f"{path.relative_to(root)} includes {other}, which is no path from the root"
            for other in others
            if not (root / other).is_file() and (path.parent / other).is_file()
        ]
    faults += [f"{file} does not include {GUARD}, nor does anything that it includes" for file in unguarded(includes)]
    if circle := first_circle(includes):
        faults.append("a circle of includes: " + " -> ".join(circle))
    print("\n".join([*faults, f"{len(files)} files read, {len(faults)} faults"]))
    sys.exit(1 if faults else 0)


main(pathlib.Path(sys.argv[1]).resolve())
