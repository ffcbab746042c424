#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Steps are taken, taken back and taken again by keys; the photo on the screen is compared by its pixels."""

import os
import sys

from desk import key, wait_for
from lumora import Lumora

build, photo = sys.argv[1:3]

with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.wait_for_breadcrumb("Original")
    shown = [wait_for("the photo", lambda: lumora.seen())]
    for step, name in (("2", "Helga"), ("ctrl+r", "Rotate right"), ("ctrl+e", "Re-expose"),
                       ("ctrl+shift+f", "Flatten"), ("7", "Mono")):
        key(step)
        wait_for(f"the screen to change by {name}", lambda: lumora.seen() != shown[-1])
        lumora.wait_for_breadcrumb({"Flatten": "Original", "Mono": "Mono"}.get(name, "Helga"))
        shown.append(lumora.seen())
    for before in reversed(shown[:-1]):
        key("ctrl+z")
        wait_for("the picture of before", lambda: lumora.seen() == before)
    lumora.wait_for_breadcrumb("Original")
    for after in shown[1:]:
        key("ctrl+shift+z")
        wait_for("the picture of after", lambda: lumora.seen() == after)
    lumora.wait_for_breadcrumb("Mono")
    lumora.quit()
