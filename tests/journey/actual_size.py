#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The photo at actual size by keys, mouse and wheel, held to the saved file; the photo alone on the screen."""

import os
import subprocess
import sys

import pyatspi

from desk import extents, find, held, key, middle, point_at, take_screenshot_of_box, wait_for, xdotool
from lumora import Lumora

build = sys.argv[1]
home = os.environ["HOME"]
photo, saved = (os.path.join(home, name) for name in ("photo.jpg", "saved.jpg"))
subprocess.run([os.path.join(build, "bin", "journey_photo"), "3000", "2000", photo], check=True)


def part(lumora):
    """What the screen shows on the right of the middle, between the words."""
    x, y, width, height = extents(lumora.preview())
    picture = os.path.join(home, "part.png")
    take_screenshot_of_box(lumora.tools, picture, x + width // 2 + 20, y + height // 3, width // 4, height // 3)
    with open(picture, "rb") as file:
        return file.read()


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
    assert lumora.shows_middle_of(saved)
    key("Escape")
    zoomed(0)
    assert not lumora.shows_middle_of(saved), "fitted, it is not"
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

    # Its menu, by its key and by the one that stands for it; the split, there too.
    for keys in ("Menu", "shift+F10"):
        key(keys, "a")
        zoomed(100)
        key(keys, "a")
        zoomed(0)
    key("Menu", "a")
    zoomed(100)
    after = part(lumora)
    key("b")
    line = wait_for("the line of the split", lambda: find(lumora.application, "Line between before and after"))
    x, y = middle(lumora.preview())
    point_at(*middle(line))
    xdotool("mousedown", 1, "mousemove", "--sync", x - 60, y, "mousemove", "--sync", x - 150, y, "mouseup", 1)
    point_at(2, 2)
    wait_for("the line on the left", lambda: extents(line)[0] < x - 100)
    wait_for("after on its right", lambda: part(lumora) == after)
    with held("space"):
        before = wait_for("before", lambda: part(lumora) != after and part(lumora))
    wait_for("after on its right", lambda: part(lumora) == after)
    key("Tab", *["Right"] * 40)
    wait_for("before on its left", lambda: part(lumora) == before)
    key("Escape")
    wait_for("no line", lambda: find(lumora.application, "Line between before and after") is None)
    zoomed(100)
    key("Escape")
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
