#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A photo of 24 megapixels within its memory: opened, saved, flattened and seen at actual size."""

import os
import subprocess
import sys

import pyatspi
from gi.repository import Atspi

from desk import extents, find, key, point_at, say, wait_for, xdotool
from lumora import Lumora

most = 600  # MiB
Atspi.set_timeout(60_000, 60_000)  # so large a photo keeps the program busy

build = sys.argv[1]
home = os.environ["HOME"]
photo, saved = os.path.join(home, "large.jpg"), os.path.join(home, "large mono.jpg")
subprocess.run([os.path.join(build, "bin", "journey_photo"), "6000", "4000", photo], check=True)

with Lumora(build, photo) as lumora:
    def check_memory(after):
        peak = lumora.peak_memory()
        say(f"{after}: {peak:.0f} MiB")
        assert peak < most, f"{peak:.0f} MiB, more than {most}"

    def wait_for_preview(words):
        wait_for(f'the photo "{words}"', lambda: words in lumora.preview().description)

    lumora.wait_for_title("Lumora - large.jpg")
    lumora.wait_for_breadcrumb("Original")
    check_memory("opened")
    lumora.press("Mono")
    lumora.wait_for_breadcrumb("Mono")
    lumora.save_as(saved)
    check_memory("saved")
    lumora.assert_file_is_render(saved, photo, "5", "5", "5")
    lumora.wait_for_keys()

    # At actual size, with the flattened photo kept to be taken back. Helga is a square as broad as the photo is long.
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    key("z")
    wait_for_preview("at 100 %")
    key("ctrl+shift+f")
    lumora.wait_for_breadcrumb("Original")
    key("ctrl+z")
    lumora.wait_for_breadcrumb("Helga")
    check_memory("actual size, one flatten undone")
    slider = find(lumora.application, "Strength", (pyatspi.ROLE_SLIDER,))
    x, y, width, height = extents(slider)
    point_at(x + width - 6, y + height // 2)
    xdotool("mousedown", 1)
    for step in range(1, 9):
        point_at(x + width - 6 - 4 * step, y + height // 2)
    wait_for("a weaker look", lambda: slider.queryValue().currentValue < 90)
    lumora.preview()
    check_memory("strength dragged")
    xdotool("mouseup", 1)
    lumora.preview()
    check_memory("and let go")
    key("b")
    wait_for("the split", lambda: find(lumora.application, "Line between before and after"))
    key("bracketleft")
    lumora.preview()
    check_memory("in a split, weakened once more")
    lumora.quit()
