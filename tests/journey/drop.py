#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A real drag between two windows: the first of the files opens; one that is no photo changes nothing."""

import os
import shutil
import subprocess
import sys

import pyatspi

from desk import application, find, middle, point_at, wait_for, xdotool
from lumora import Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]


def tremble_at(x, y):
    """A hand is never quite still."""
    point_at(x + 2, y)
    point_at(x, y)


def drag(lumora, *files):
    """Drags files out of a window of their own, lets go over the preview and waits until the program has the first."""
    heard = os.path.join(home, "heard")
    with open(heard, "w") as log:
        source = subprocess.Popen([os.path.join(build, "bin", "journey_drag_source"), *files], stdout=log)

    def words():
        with open(heard) as log:
            return log.read().split()

    try:
        window = wait_for("the window to drag from", lambda: application(source.pid))
        label = wait_for("its handle", lambda: find(window, "Drag me", (pyatspi.ROLE_LABEL,)))

        def reached():  # not before the window manager has put the window where it stays
            tremble_at(*middle(label))
            return "entered" in words()
        wait_for("the pointer on the handle", reached)
        start, end, before = middle(label), middle(lumora.preview()), lumora.seen()
        xdotool("mousedown", 1)
        for step in range(1, 25):
            point_at(start[0] + (end[0] - start[0]) * step // 24, start[1] + (end[1] - start[1]) * step // 24)

        def accepted():  # each move asks the target again
            tremble_at(*end)
            return "copy" in words()[-1:]
        wait_for("the preview to accept the drag", accepted)
        wait_for("the sign that it may be dropped", lambda: lumora.seen() != before)
        xdotool("mouseup", 1)
        wait_for("the drag to end", lambda: "over" in words())
        lumora.wait_for_log(files[0])
    finally:
        source.kill()
        source.wait()


first, second = os.path.join(home, "100% first.jpg"), os.path.join(home, "second.jpg")
shutil.copy(photo, first)
shutil.copy(photo, second)
no_photo = os.path.join(home, "notes.txt")
with open(no_photo, "w") as notes:
    notes.write("not a photo\n")

with Lumora(build) as lumora:
    lumora.wait_for_title("Lumora by Dovrel")
    drag(lumora, no_photo)
    lumora.read_sheet("“notes.txt” cannot be opened.")
    lumora.wait_for_title("Lumora by Dovrel")
    drag(lumora, first, second)
    lumora.wait_for_title("Lumora - 100% first.jpg")
    lumora.press("Helga")
    lumora.wait_for_breadcrumb("Helga")
    drag(lumora, no_photo, second)
    lumora.wait_for_title("Lumora - 100% first.jpg")
    drag(lumora, second)  # while the sheet is up, which it closes
    lumora.wait_for_title("Lumora - second.jpg")
    lumora.wait_for_no_sheet()
    lumora.wait_for_breadcrumb("Helga")
    lumora.quit()
