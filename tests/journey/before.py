#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The photo before its looks, in register: held, and beside the looks in a split that is dragged across."""

import os
import sys

import pyatspi

from desk import extents, find, has_state, held, is_checked, key, middle, point_at, take_screenshot_of_box, wait_for, \
    walk, xdotool
from lumora import Lumora

build, photo = sys.argv[1:3]
picture = os.path.join(os.environ["HOME"], "part.png")


def seen(lumora, beside):
    """A part of the photo so far beside its middle, below the labels."""
    x, y, width, height = extents(lumora.preview())
    take_screenshot_of_box(lumora.tools, picture, x + width // 2 + beside - 20, y + height // 2, 40, height // 3)
    with open(picture, "rb") as file:
        return file.read()


def both(lumora):
    return seen(lumora, -80), seen(lumora, 80)


with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.wait_for_breadcrumb("Original")
    plain = wait_for("the photo", lambda: both(lumora))

    def line():
        return wait_for("the line", lambda: find(lumora.application, "Line between before and after",
                                                 (pyatspi.ROLE_SLIDER,)))

    def entry():
        return next(node for node in walk(lumora.application) if node.name == "Before and after")

    def wait_for_state(begin):
        wait_for(f'the state "{begin}"', lambda: lumora.preview().description.startswith(begin))

    def drag_to(beside):
        """Takes the line by its handle and drags it so far beside the middle of the photo."""
        x, y, width, _ = extents(lumora.preview())
        point_at(*middle(line()))
        xdotool("mousedown", 1)
        for step in (-3, -2, -1, 0):
            point_at(x + width // 2 + beside + 10 * step, middle(line())[1])
        xdotool("mouseup", 1)
        point_at(2, 2)

    # Under Lolo the photo is a square in a white border. Without any strength it is what the look is compared with.
    key("3")
    lumora.wait_for_breadcrumb("Lolo")
    after = wait_for("the look", lambda: both(lumora) if both(lumora) != plain else None)
    key(*["bracketleft"] * 10)
    before = wait_for("the photo in its frame", lambda: both(lumora) if lumora.breadcrumb() == "Lolo" and find(
        lumora.application, "Strength 0 %") else None)
    assert before != plain and before != after
    key(*["bracketright"] * 10)
    wait_for("the look", lambda: both(lumora) == after)
    with held("space"):
        wait_for("the photo in the same frame", lambda: both(lumora) == before)
        wait_for_state("Before:")
    wait_for("the look", lambda: both(lumora) == after)
    wait_for_state("The photo")
    point_at(*middle(lumora.preview()))
    xdotool("mousedown", 1)
    wait_for("the photo in the same frame", lambda: both(lumora) == before)
    xdotool("mouseup", 1)
    wait_for("the look", lambda: both(lumora) == after)
    point_at(2, 2)

    # The split, dragged across.
    key("b")
    wait_for("before beside after", lambda: both(lumora) == (before[0], after[1]))
    wait_for_state("Before on the left")
    assert is_checked(entry())
    drag_to(-140)
    wait_for("after on both sides", lambda: both(lumora) == after)
    drag_to(140)
    wait_for("before on both sides", lambda: both(lumora) == before)
    drag_to(0)
    wait_for("before beside after", lambda: both(lumora) == (before[0], after[1]))

    # By the arrow keys on the photo, and as a screen reader moves sliders.
    place = line().queryValue().currentValue
    key("Left", "Left")
    wait_for("the line to move", lambda: line().queryValue().currentValue < place)
    key("Right", "Right")
    wait_for("the line to move back", lambda: line().queryValue().currentValue == place)
    wait_for("before beside after", lambda: both(lumora) == (before[0], after[1]))
    line().queryValue().currentValue = 0
    wait_for("after on both sides", lambda: both(lumora) == after)
    line().queryValue().currentValue = place

    # Holding compares as ever; another look is another after.
    with held("space"):
        wait_for("before on both sides", lambda: both(lumora) == before)
    wait_for("before beside after", lambda: both(lumora) == (before[0], after[1]))
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    wait_for("another after", lambda: both(lumora)[1] not in (before[1], after[1]))
    assert is_checked(entry())
    key("3")
    wait_for("before beside after", lambda: both(lumora) == (before[0], after[1]))

    # Two ways out, and the entry's way in.
    key("Escape")
    wait_for("the look", lambda: both(lumora) == after)
    assert not is_checked(entry())
    entry().queryAction().doAction(0)
    wait_for("before beside after", lambda: both(lumora) == (before[0], after[1]))
    key("b")
    wait_for("the look", lambda: both(lumora) == after)
    assert not has_state(entry(), pyatspi.STATE_CHECKED)
    lumora.quit()
