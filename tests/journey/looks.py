#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The strip of all looks in a narrow window, by real keys, clicks and the wheel."""

import os
import sys

import pyatspi

from desk import click, find, has_state, is_checked, key, middle, point_at, wait_for, xdotool
from lumora import BUTTONS, LOOK_BUTTONS, MENU_LOOKS, Lumora

build, photo = sys.argv[1:3]
all_looks = LOOK_BUTTONS + MENU_LOOKS


def extents(node):
    node.clear_cache()
    return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.wait_for_breadcrumb("Original")
    window = xdotool("getactivewindow")
    xdotool("windowsize", window, 900, 480)
    wait_for("the narrow window", lambda: extents(lumora.frame()).width == 900)

    def look(name):
        return wait_for(f"the look {name}", lambda: find(lumora.application, name, BUTTONS))

    def in_sight(name):
        box, frame = extents(look(name)), extents(lumora.frame())
        return frame.x <= box.x and box.x + box.width <= frame.x + frame.width

    def focus_on(name):
        wait_for(f"the focus on {name}", lambda: has_state(look(name), pyatspi.STATE_FOCUSED))

    assert in_sight("Original") and not in_sight("Blowout")

    # By keys: Tab brings the focus to the strip, arrows move it along, a tap on the space bar and Return press.
    key("Tab")
    focus_on("Original")
    for name in all_looks[1:]:
        key("Right")
        focus_on(name)
        assert in_sight(name), name
    shown = [lumora.seen_beside_label()]
    key("space")
    lumora.wait_for_breadcrumb("Blowout")
    wait_for("Blowout to be shown as pressed", lambda: is_checked(look("Blowout")))
    wait_for("the screen to change", lambda: lumora.seen_beside_label() != shown[-1])
    shown.append(lumora.seen_beside_label())
    xdotool("keydown", "space")  # held, it compares
    wait_for("the photo before its look", lambda: lumora.seen_beside_label() == shown[0])
    xdotool("sleep", 0.5, "keyup", "space")  # so long that it is no tap
    wait_for("the look again", lambda: lumora.seen_beside_label() == shown[1])
    lumora.wait_for_breadcrumb("Blowout")
    key("Left")
    focus_on("Arctic")
    key("Return")
    lumora.wait_for_breadcrumb("Arctic")
    key("ctrl+z")
    lumora.wait_for_breadcrumb("Blowout")
    wait_for("the picture of before", lambda: lumora.seen_beside_label() == shown[1])
    key("2")  # digits mean the ten first
    lumora.wait_for_breadcrumb("Helga")
    wait_for("the strip to scroll to Helga", lambda: in_sight("Helga"))

    # By the wheel and clicks, several looks.
    click(look("Multiple looks"))
    lumora.wait_for_breadcrumb("Original > Helga")
    point_at(*middle(look("Helga")))
    for _ in range(30):
        xdotool("click", 5)
    wait_for("the strip to scroll", lambda: in_sight("Blowout"))
    click(look("Delicious"))
    lumora.wait_for_breadcrumb("Original > Helga > Delicious")
    click(look("Infrared"))
    lumora.wait_for_breadcrumb("Original > Helga > Delicious > Infrared")
    for place, name in enumerate(("Helga", "Delicious", "Infrared"), 1):
        wait_for(f"{name} to say its place", lambda: look(name).description == f"Applied as number {place}")
    click(look("Delicious"))
    lumora.wait_for_breadcrumb("Original > Helga > Infrared")
    key("ctrl+z")
    lumora.wait_for_breadcrumb("Original > Helga > Delicious > Infrared")
    lumora.quit()
