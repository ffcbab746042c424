#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The photo at actual size by keys, mouse and wheel, held to the saved file; the photo alone on the screen."""

import os
import subprocess
import sys

import pyatspi

from desk import extents, find, held, key, middle, point_at, wait_for, xdotool
from lumora import Lumora

build = sys.argv[1]
home = os.environ["HOME"]
photo, saved, screenshot = (os.path.join(home, name) for name in ("photo.jpg", "saved.jpg", "seen.png"))
subprocess.run([os.path.join(build, "bin", "journey_photo"), "3000", "2000", photo], check=True)


def is_shown(lumora):
    """Whether the middle of the screen shows the middle of the saved file, pixel by pixel."""
    lumora.seen()
    compare = [os.path.join(lumora.tools, "journey_compare"), "--shown", screenshot, saved]
    return subprocess.run(compare, check=False).returncode == 0


with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - photo.jpg")
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    point_at(2, 2)
    fitted = lumora.seen()

    def zoomed(percent):
        """What is seen of the photo at so many per cent; 0: fitted."""
        words = f"at {percent} %" if percent else "Hold the mouse"
        wait_for(f"the photo {words}", lambda: words in lumora.preview().description)
        return wait_for("another picture", lambda: (lumora.seen() == fitted) == (percent == 0) and lumora.seen())

    # By key: what is seen is what is saved.
    key("z")
    shown = zoomed(100)
    lumora.save_as(saved)
    lumora.wait_for_keys()
    point_at(2, 2)
    assert max(map(int, lumora.size_of(saved))) > 2500, lumora.size_of(saved)
    assert is_shown(lumora)
    key("Escape")
    zoomed(0)
    assert not is_shown(lumora), "fitted, it is not"
    key("z")
    wait_for("the same part", lambda: lumora.seen() == shown)

    # A drag moves it, and so do the arrows; the space bar compares.
    x, y = middle(lumora.preview())
    point_at(x, y)
    xdotool("mousedown", 1, "mousemove", "--sync", x - 60, y - 30, "mousemove", "--sync", x - 100, y - 50, "mouseup", 1)
    moved = wait_for("another part", lambda: lumora.seen() != shown and lumora.seen())
    xdotool("mousedown", 1, "mousemove", "--sync", x - 40, y, "mousemove", "--sync", x, y, "mouseup", 1)
    wait_for("the part of before", lambda: lumora.seen() == shown)
    key("Right")
    wait_for("a part on the right", lambda: lumora.seen() not in (shown, moved))
    key("Left")
    wait_for("the part of before", lambda: lumora.seen() == shown)
    with held("space"):
        wait_for("the photo without its look", lambda: lumora.seen() != shown)
    wait_for("its look", lambda: lumora.seen() == shown)
    key("3", "2")
    lumora.wait_for_breadcrumb("Helga")
    wait_for("the same look", lambda: lumora.seen() == shown)

    # By the wheel and the keys of plus and minus.
    with held("ctrl"):
        xdotool("click", 4)
        zoomed(200)
        xdotool("click", 5)
    wait_for("the part of before", lambda: lumora.seen() == shown)
    key("plus")
    zoomed(200)
    key("minus", "z")
    zoomed(0)
    xdotool("click", "--repeat", 2, "--delay", 50, 1)
    zoomed(100)
    xdotool("click", "--repeat", 2, "--delay", 50, 1)
    zoomed(0)

    # Alone on the screen, with its keys, and back.
    frame = extents(lumora.frame())
    screen = tuple(int(side) for side in xdotool("getdisplaygeometry").split())
    key("F11")
    wait_for("the photo on all of the screen", lambda: extents(lumora.preview()) == (0, 0, *screen))
    assert find(lumora.application, role=(pyatspi.ROLE_MENU_BAR,)) is None
    alone = lumora.seen()
    key("7")
    wait_for("another look", lambda: lumora.seen() != alone)
    key("ctrl+z", "z")
    wait_for("actual size", lambda: "at 100 %" in lumora.preview().description)
    key("Escape")
    wait_for("the whole photo", lambda: "Hold the mouse" in lumora.preview().description)
    key("Escape")
    wait_for("the window as it was", lambda: extents(lumora.frame()) == frame)
    lumora.wait_for_breadcrumb("Helga")
    lumora.quit()
