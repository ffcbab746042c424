#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A second start has a window of its own that owes the first one nothing; what both remember is kept."""

import configparser
import os
import shutil
import signal
import sys

from desk import key, wait_for, xdotool
from lumora import Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]
folder = os.path.join(home, "my photos")
os.mkdir(folder)
paths = {name: os.path.join(folder, name) for name in ("a.jpg", "b.jpg", "c.jpg")}
for path in paths.values():
    shutil.copy(photo, path)


def go_to(window):
    """Gives a window the keyboard."""
    number = wait_for("its window", lambda: xdotool("search", "--all", "--onlyvisible", "--pid", window.process.pid, "--name", "^Lumora"))
    xdotool("windowactivate", "--sync", number.split()[0])
    window.wait_for_keys()


def remembered():
    file = configparser.RawConfigParser()
    file.optionxform = str
    file.read(os.path.join(home, ".config", "Dovrel", "Lumora.conf"))
    return file


with Lumora(build, paths["a.jpg"]) as first, Lumora(build, paths["b.jpg"]) as second:
    first.wait_for_title("Lumora - a.jpg")
    second.wait_for_title("Lumora - b.jpg")
    go_to(first)
    key("2")
    first.wait_for_breadcrumb("Helga")
    first.choose("Border", "Thin")
    go_to(second)
    assert (second.breadcrumb(), second.chosen("Border")) == ("Original", "By Filter")
    key("3")
    second.wait_for_breadcrumb("Lolo")
    second.choose("Crop", "Square")
    # Both end, one after the other: what was chosen in either is remembered.
    go_to(first)
    first.quit()
    written = remembered()
    assert (written["General"]["BorderStyle"], written["General"]["CroppingStyle"]) == ("1", "0"), "of the first"
    go_to(second)
    second.quit()
    written = remembered()
    assert (written["General"]["BorderStyle"], written["General"]["CroppingStyle"]) == ("1", "1"), "of both"
    recent = written["Recent"]["Photos"]
    assert "a.jpg" in recent and "b.jpg" in recent, recent

with Lumora(build, paths["a.jpg"]) as first:
    first.wait_for_title("Lumora - a.jpg")
    # The first one hangs, and the second starts and opens its photo all the same. It also goes on when the first dies.
    first.process.send_signal(signal.SIGSTOP)
    with Lumora(build, paths["b.jpg"]) as second:
        second.wait_for_title("Lumora - b.jpg")
        assert first.process.poll() is None, "the second start leaves the first alone"
        first.process.kill()
        first.process.wait()
        go_to(second)
        key("Next")
        second.wait_for_title("Lumora - c.jpg")
        key("2")
        second.wait_for_breadcrumb("Helga")
        second.quit()
