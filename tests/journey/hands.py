#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What keys, clicks and the wheel mean does not depend on the control used last, and what is held acts once."""

import os
import sys

from desk import click, held, hold, key, point_at, take_screenshot, turn_wheel, wait_for
from lumora import Lumora

build, photo = sys.argv[1:3]
picture = os.path.join(os.environ["HOME"], "button.png")


def looks_of(lumora, name):
    """What the screen shows of a button while the pointer is elsewhere."""
    point_at(2, 2)
    take_screenshot(lumora.tools, picture, lumora.control(name))
    with open(picture, "rb") as file:
        return file.read()


def compare(lumora, as_it_came):
    """Holds the space bar: the photo without its looks is seen for that long, and nothing else happens."""
    shown, line = lumora.seen_beside_label(), lumora.breadcrumb()
    assert shown != as_it_came
    with held("space"):
        wait_for("the photo as it came", lambda: lumora.seen_beside_label() == as_it_came)
    wait_for("the photo under its look", lambda: lumora.seen_beside_label() == shown)
    hold("space")
    wait_for("the photo under its look", lambda: lumora.seen_beside_label() == shown)
    assert lumora.breadcrumb() == line, lumora.breadcrumb()


with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.wait_for_breadcrumb("Original")
    for label in ("Crop", "Border"):
        lumora.choose(label, "None")  # so that a look changes nothing but colours
    came = wait_for("the photo", lumora.seen_beside_label)
    unpressed = looks_of(lumora, "Helga")

    # After a click on a look, and after one on a turn.
    lumora.press("Helga")
    lumora.wait_for_breadcrumb("Helga")
    compare(lumora, came)
    under_helga = lumora.seen_beside_label()
    lumora.press("Rotate right")
    wait_for("the photo to turn", lambda: lumora.seen_beside_label() != under_helga)
    with held("space"):
        wait_for("the photo as it came", lambda: lumora.seen_beside_label() not in (under_helga, came))
        turned = lumora.seen_beside_label()
    compare(lumora, turned)
    key("1")
    wait_for("the turned photo", lambda: lumora.seen_beside_label() == turned)
    key("ctrl+z", "ctrl+z")  # one look, one turn
    wait_for("the photo before the turn", lambda: lumora.seen_beside_label() == under_helga)

    # A look that is taken off again is as it was, without a frame.
    lumora.press("Helga")
    lumora.wait_for_breadcrumb("Original")
    wait_for("an unpressed button", lambda: looks_of(lumora, "Helga") == unpressed)

    # A pop-up that was used keeps no key and no wheel.
    lumora.choose("Size", "800")
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    for label in ("Size", "Crop", "Border"):
        for down in (True, False):
            before = lumora.chosen(label)
            turn_wheel(lumora.pop_up(label), down)
            key("3" if down else "2")
            lumora.wait_for_breadcrumb("Lolo" if down else "Helga")
            assert lumora.chosen(label) == before, (label, lumora.chosen(label))
    assert lumora.chosen("Size") == "800"
    compare(lumora, came)

    # What is held acts once: one step takes it back.
    hold("5")
    lumora.wait_for_breadcrumb("1962")
    key("ctrl+z")
    lumora.wait_for_breadcrumb("Helga")
    with held("ctrl"):
        hold("r")
    wait_for("the photo to turn", lambda: lumora.seen_beside_label() != under_helga)
    key("ctrl+z")
    wait_for("the photo before the turn", lambda: lumora.seen_beside_label() == under_helga)
    with held("ctrl"), held("shift"):
        hold("f")
    lumora.wait_for_breadcrumb("Original")
    key("ctrl+z")
    lumora.wait_for_breadcrumb("Helga")
    wait_for("the photo before it was flattened", lambda: lumora.seen_beside_label() == under_helga)
    lumora.quit()
