#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The desktop entry and the icons go by the program's one name: identity.py RESOURCES ID"""

import configparser
import pathlib
import sys

resources, identity = pathlib.Path(sys.argv[1]), sys.argv[2]

assert identity.count(".") == 2, identity
entries = sorted((resources / "desktop").glob("*.desktop"))
assert [entry.name for entry in entries] == [f"{identity}.desktop"], entries
entry = configparser.ConfigParser(interpolation=None)
entry.optionxform = str
entry.read(entries[0])
for key in ("Icon", "StartupWMClass"):
    assert entry["Desktop Entry"][key] == identity, key
icons = {icon.name for icon in (resources / "icons").iterdir()}
assert icons == {f"{identity}.svg", *(f"{identity}-{size}.png" for size in (48, 128, 256))}, icons
