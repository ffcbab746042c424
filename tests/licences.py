#!/usr/bin/env python3
"""Holds each source to its licence: licences.py ROOT

What other programs may use is under the Lesser General Public License; its first lines say so."""

import pathlib
import sys

LESSER = ["core", "image", "library", "examples"]
KINDS = [".c", ".cpp", ".h", ".py"]


def main(root):
    sources = [path for place in LESSER for path in sorted((root / place).rglob("*")) if path.suffix in KINDS]
    if not any(path.is_relative_to(root / "core") for path in sources):
        sys.exit(f"{root} is not the project's root")
    faults = [
        f"{path.relative_to(root)} does not begin with its licence"
        for path in sources
        if "SPDX-License-Identifier: LGPL-3.0-or-later" not in path.read_text().partition("\n\n")[0]
    ]
    print("\n".join([*faults, f"{len(sources)} files read, {len(faults)} faults"]))
    sys.exit(1 if faults else 0)


main(pathlib.Path(sys.argv[1]).resolve())
