#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How much of the looks is seen: by the slider, by its keys and by a screen reader, held to the saved file."""

import os
import subprocess
import sys

import pyatspi

from desk import extents, find, has_state, key, point_at, wait_for, xdotool
from lumora import Lumora

build = sys.argv[1]
home = os.environ["HOME"]
photo = os.path.join(home, "photo.jpg")
subprocess.run([os.path.join(build, "bin", "journey_photo"), "2400", "1600", photo], check=True)

with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - photo.jpg")
    lumora.wait_for_breadcrumb("Original")

    def slider():
        return wait_for("the slider", lambda: find(lumora.application, "Strength", (pyatspi.ROLE_SLIDER,)))

    def wait_for_strength(percent):
        wait_for(f"a strength of {percent} %", lambda: slider().queryValue().currentValue == percent
                 and find(lumora.application, f"Strength {percent} %", (pyatspi.ROLE_LABEL,)))

    def drag(steps, let_go=True):
        """Takes the handle where the whole strength is, and drags it to the left."""
        x, y, width, height = extents(slider())
        point_at(x + width - 6, y + height // 2)
        xdotool("mousedown", 1)
        for step in range(1, steps + 1):
            point_at(x + width - 6 - 4 * step, y + height // 2)
        if let_go:
            xdotool("mouseup", 1)

    def value():
        return int(slider().queryValue().currentValue)

    def assert_saved(name, percent):
        saved = os.path.join(home, name)
        lumora.save_as(saved)
        lumora.assert_file_is_render(saved, photo, "1", "1", "1", str(percent))
        lumora.wait_for_keys()
        point_at(2, 2)

    assert not has_state(slider(), pyatspi.STATE_ENABLED), "without a look there is nothing to weaken"
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    assert has_state(slider(), pyatspi.STATE_ENABLED)
    wait_for_strength(100)
    whole = lumora.seen()

    # A drag is one step.
    drag(8)
    point_at(2, 2)
    weak = wait_for("a weaker look", lambda: value() < 100 and lumora.seen() != whole and lumora.seen())
    dragged = value()
    assert_saved("dragged.jpg", dragged)
    key("ctrl+z")
    wait_for_strength(100)
    wait_for("the whole look", lambda: lumora.seen() == whole)
    key("ctrl+shift+z")
    wait_for_strength(dragged)
    wait_for("the weaker look", lambda: lumora.seen() == weak)
    key("ctrl+z")

    # By keys, and as a screen reader moves sliders.
    key("bracketleft", "bracketleft")
    wait_for_strength(80)
    key("bracketright")
    wait_for_strength(90)
    slider().queryValue().currentValue = 40
    wait_for_strength(40)
    assert_saved("told.jpg", 40)

    # At actual size what is shown is what is saved, also after a drag there.
    def assert_shown_is_saved(name):
        saved = os.path.join(home, name)
        lumora.save_as(saved)
        lumora.wait_for_keys()
        assert lumora.shows_middle_of(saved)

    key("alt+f", "j", "b")  # so that the file has what is seen
    key("z")
    wait_for("actual size", lambda: "at 100 %" in lumora.preview().description)
    point_at(2, 2)
    assert_shown_is_saved("close.jpg")
    slider().queryValue().currentValue = 100
    wait_for_strength(100)
    close = lumora.seen()
    drag(12, let_go=False)
    wait_for("a weaker look under the drag", lambda: value() < 100 and lumora.seen() != close)
    xdotool("mouseup", 1)
    point_at(2, 2)
    assert_shown_is_saved("dragged close.jpg")
    lumora.quit()
