#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Photos go in and out by keys, by the menus and by a real drag to another program; quality is remembered."""

import glob
import os
import shutil
import stat
import subprocess
import sys

import pyatspi

from desk import application, extents, find, key, middle, point_at, wait_for, xdotool
from lumora import Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]
folder = os.path.join(home, "my photos")
os.mkdir(folder)
two, ten = os.path.join(folder, "2.jpg"), os.path.join(folder, "10.jpg")
for copy in (two, ten):
    shutil.copy(photo, copy)
with open(os.path.join(folder, "3.jpg"), "w") as notes:
    notes.write("not a photo\n")
private = os.path.join(os.environ["XDG_RUNTIME_DIR"], "lumora-*")
helga = ("1", "1", "1")


def contents(path):
    with open(path, "rb") as file:
        return file.read()


def move_window(title, x, y):
    xdotool("windowmove", wait_for(f"the window {title}", lambda: xdotool("search", "--name", title)), x, y)


def drag(start, end, reached):
    """Drags from one point to another, and lets go there as soon as it is reached."""
    point_at(*start)
    xdotool("mousedown", 1)
    for step in range(1, 25):
        point_at(start[0] + (end[0] - start[0]) * step // 24, start[1] + (end[1] - start[1]) * step // 24)

    def trembles():  # a hand is never quite still, and each move asks the target again
        point_at(end[0] + 2, end[1])
        point_at(*end)
        return reached()
    wait_for("the drag to get there", trembles)
    xdotool("mouseup", 1)


def drag_to_another_program(lumora):
    """Gives what arrives there: the file, its name, and the picture's path."""
    got = os.path.join(home, "got")
    os.mkdir(got)
    heard = os.path.join(home, "heard")
    with open(heard, "w") as log:
        target = subprocess.Popen([os.path.join(build, "bin", "journey_drop_target"), got], stdout=log)

    def words():
        return contents(heard).decode().split()

    try:
        window = wait_for("the window to drop on", lambda: application(target.pid))
        label = wait_for("its place", lambda: find(window, "Drop here", (pyatspi.ROLE_LABEL,)))
        move_window("^Target$", 1250, 840)
        wait_for("it to stand there", lambda: extents(label)[0] >= 1240)
        drag(middle(lumora.preview()), middle(label), lambda: "entered" in words())
        wait_for("the file to be dropped", lambda: "dropped" in words())
        return os.path.join(got, "file"), contents(os.path.join(got, "name")), os.path.join(got, "picture.jpg")
    finally:
        target.kill()
        target.wait()


with Lumora(build, two) as lumora:
    lumora.wait_for_title("Lumora - 2.jpg")
    xdotool("windowsize", xdotool("search", "--name", "^Lumora - "), 1024, 700)
    move_window("^Lumora - ", 0, 0)
    wait_for("the window out of the way", lambda: extents(lumora.frame())[2:] == (1024, 700))

    # From photo to photo; what is no photo is passed over.
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    key("Next")
    lumora.wait_for_title("Lumora - 10.jpg")
    key("Next")
    lumora.wait_for_words("This is the last photo.")
    key("Prior")
    lumora.wait_for_title("Lumora - 2.jpg")
    key("Prior")
    lumora.wait_for_words("This is the first photo.")
    lumora.wait_for_breadcrumb("Helga")
    lumora.wait_for_no_sheet()

    # Out by a drag: the file that is saved.
    assert glob.glob(private) == []
    file, name, picture = drag_to_another_program(lumora)
    assert name == b"2.jpg", name
    lumora.assert_file_is_render(file, photo, *helga)
    lumora.assert_file_is_render(picture, photo, *helga)
    (made,) = glob.glob(private)
    assert stat.S_IMODE(os.stat(made).st_mode) == 0o700, made

    # Dropped on its own window it is where it was.
    shown = lumora.seen()
    x, y = middle(lumora.preview())
    drag((x, y), (x + 100, y + 100), lambda: True)
    wait_for("the photo as it was", lambda: lumora.seen() == shown)
    lumora.wait_for_title("Lumora - 2.jpg")
    lumora.wait_for_no_sheet()
    assert len(glob.glob(os.path.join(made, "*"))) == 1, "a file was made that nobody asked for"

    # By the clipboard, and back by the list of recent photos.
    key("ctrl+c")
    lumora.wait_for_words("Copied, ")
    key("ctrl+v")
    lumora.wait_for_title("Lumora - Pasted picture")
    lumora.wait_for_breadcrumb("Helga")
    key("alt+f", "r", "1")
    lumora.wait_for_title("Lumora - 2.jpg")

    # Finer JPEGs are larger.
    standard, best = os.path.join(home, "standard.jpg"), os.path.join(home, "best.jpg")
    lumora.save_as(standard)
    lumora.wait_for_keys()
    key("alt+f", "j", "b")
    lumora.save_as(best)
    assert os.path.getsize(best) > 2 * os.path.getsize(standard)
    lumora.wait_for_words(f"Saved best.jpg, {' x '.join(lumora.size_of(best))}, ")
    lumora.wait_for_keys()
    lumora.quit()
    assert glob.glob(private) == []

with Lumora(build, ten, photo, two) as lumora:
    lumora.wait_for_title("Lumora - 10.jpg")
    key("Next")
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    again = os.path.join(home, "again.jpg")
    lumora.save_as(again)
    assert contents(again) == contents(best), "the quality is remembered"
    lumora.wait_for_keys()
    key("Next")
    lumora.wait_for_title("Lumora - 2.jpg")
    key("Next")
    lumora.wait_for_words("This is the last photo.")
    lumora.quit()
