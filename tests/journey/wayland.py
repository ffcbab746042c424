#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A whole walk on Wayland: open, press, compare, copy, save, drags in and out, on a compositor with a real pointer."""

import glob
import os
import shutil
import subprocess
import sys

import desk
from desk import extents, key, middle, point_at, wait_for, xdotool
from lumora import Lumora
from weston import HEIGHT, WIDTH, Weston

build, photo = sys.argv[1:3]
home, tools = os.environ["HOME"], os.path.join(build, "bin")
desktop_files = os.path.join(os.path.dirname(__file__), "../../resources/desktop/*.desktop")
(identity,) = (os.path.basename(name).removesuffix(".desktop") for name in glob.glob(desktop_files))
with open(os.path.join(home, "notes.txt"), "w") as notes:
    notes.write("not a photo\n")
first, second = os.path.join(home, "first.jpg"), os.path.join(home, "second.jpg")
for copy in (first, second):
    shutil.copy(photo, copy)
HELGA = ("1", "1", "1")


class Program:
    """A window beside Lumora's, whose words on standard output are heard."""

    def __init__(self, weston, name, title, *arguments):
        self.heard = os.path.join(home, "heard")
        with weston.environment(frames=True), open(self.heard, "w") as log:
            self.process = subprocess.Popen([os.path.join(tools, name), *arguments], stdout=log)
        self.middle = weston.move(title, WIDTH - 160, HEIGHT - 120)  # which Lumora's window leaves free

    def words(self):
        with open(self.heard) as log:
            return log.read().split()

    def __enter__(self):
        return self

    def __exit__(self, *ignored):
        self.process.kill()
        self.process.wait()


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


with Weston(tools) as weston:
    with weston.environment(frames=False):
        lumora = Lumora(build, first)
    with lumora:
        lumora.wait_for_title("Lumora - first.jpg")
        wait_for("the name that the desktop files have", lambda: f"'Lumora - first.jpg' of {identity}," in weston.scene())

        # A program does not know where its window stands.
        desk.origin = weston.box("Lumora - first.jpg")[:2]

        # A look is pressed, and compared with the photo, by a real pointer.
        plain, button = lumora.seen_beside_label(), lumora.seen_of("Helga")
        point_at(*middle(lumora.control("Helga")))
        wait_for("the pointer on the button", lambda: lumora.seen_of("Helga") != button)
        xdotool("click", 1)
        lumora.wait_for_breadcrumb("Helga")
        helga = wait_for("the look on the screen",
                         lambda: lumora.seen_beside_label() != plain and lumora.seen_beside_label())
        x, y, width, height = extents(lumora.preview())
        point_at(x + width // 4, y + height // 2)  # the pointer is seen, too
        xdotool("mousedown", 1)
        wait_for("the photo before", lambda: lumora.seen_beside_label() not in (plain, helga))
        xdotool("mouseup", 1)
        wait_for("the photo after", lambda: lumora.seen_beside_label() == helga)

        saved = os.path.join(home, "saved.jpg")
        lumora.save_as(saved)
        lumora.assert_file_is_render(saved, photo, *HELGA)
        lumora.wait_for_keys()

        # Out by a drag to another program, and in from one.
        got = os.path.join(home, "got")
        os.mkdir(got)
        with Program(weston, "journey_drop_target", "Target", got) as target:
            drag(middle(lumora.preview()), target.middle, lambda: "entered" in target.words())
            wait_for("the file to be dropped", lambda: "dropped" in target.words())
        lumora.assert_file_is_render(os.path.join(got, "file"), photo, *HELGA)
        assert lumora.size_of(os.path.join(got, "picture.jpg")) == lumora.size_of(saved)  # the target took a JPEG
        with Program(weston, "journey_drag_source", "Files", second) as source:
            drag(source.middle, middle(lumora.preview()), lambda: "copy" in source.words()[-1:])
            lumora.wait_for_title("Lumora - second.jpg")

        # By the clipboard and back, and by the panel.
        key("ctrl+c")
        lumora.wait_for_words("Copied, ")
        key("ctrl+v")
        lumora.wait_for_title("Lumora - Pasted picture")
        lumora.press("Open…")
        lumora.fill_file_dialog(first)
        lumora.wait_for_title("Lumora - first.jpg")
        lumora.wait_for_keys()
        if folder := os.environ.get("SCREENSHOTS"):
            weston.screen().save(os.path.join(folder, "wayland.png"))
        lumora.quit()
