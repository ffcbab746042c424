#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A whole afternoon with one photo, then quitting and coming back: the choices are kept."""

import os
import sys

from desk import is_checked, wait_for
from lumora import Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]
exact, saved = os.path.join(home, "exact.jpg"), os.path.join(home, "at 800.jpg")
helga_mono, square, instant = "1,5", "21", "4"


def files():
    """Everything in the home folder but what the desktop itself keeps while it runs."""
    return {os.path.join(folder, name) for folder, _, names in os.walk(home) for name in names
            if not folder.startswith(os.environ["XDG_RUNTIME_DIR"])}


there_before = files()
with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.press("Helga")
    lumora.wait_for_breadcrumb("Helga")
    lumora.press("Multiple looks")
    lumora.wait_for_breadcrumb("Original > Helga")
    lumora.press("Mono")
    lumora.wait_for_breadcrumb("Original > Helga > Mono")
    lumora.choose("Crop", "Square")
    lumora.choose("Border", "Instant")
    lumora.save_as(exact)
    lumora.assert_file_is_render(exact, photo, helga_mono, square, instant)

    lumora.choose("Size", "800")
    lumora.press("Re-expose")
    wait_for("randomness to be switched on", lambda: is_checked(lumora.control("Randomness")))
    lumora.press("Rotate right")
    lumora.wait_for_breadcrumb("Original > Helga > Mono")
    lumora.press("Flatten")
    lumora.wait_for_breadcrumb("Original")
    lumora.save_as(saved)
    # The flattened print is 1345 x 1600; cropped to the square and bordered anew it is as large again, then reduced.
    assert lumora.size_of(saved) == ["673", "800"], lumora.size_of(saved)
    lumora.quit()

with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    assert is_checked(lumora.control("Multiple looks"))
    assert not is_checked(lumora.control("Randomness")), "randomness starts switched off"
    for combo, item in (("Crop", "Square"), ("Border", "Instant"), ("Size", "800")):
        assert lumora.chosen(combo) == item, (combo, lumora.chosen(combo))
    lumora.quit()

preferences_file = os.path.join(home, ".config", "Dovrel", "Lumora.conf")
written = files() - there_before
assert written == {preferences_file, exact, saved}, f"written besides what was asked for: {written}"
with open(preferences_file) as preferences:
    kept = preferences.read()
for line in ("PrefsVersion=2", "UseMultiFilter=true", "CroppingStyle=1", "BorderStyle=5", "OutputSize=5"):
    assert line in kept.splitlines(), (line, kept)
