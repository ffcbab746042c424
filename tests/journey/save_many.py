#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Many photos, by keys alone: a folder is chosen, saved into another one, and what failed is told."""

import os
import shutil
import sys

import pyatspi

from desk import find, has_state, key, take_screenshot, wait_for, walk, write
from lumora import FIELDS, Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]
photos, saved = os.path.join(home, "photos"), os.path.join(home, "saved")
os.mkdir(photos)
os.mkdir(saved)
for name in ("one.jpg", "two.jpg", "three.jpg"):
    shutil.copy(photo, os.path.join(photos, name))
with open(os.path.join(photos, "broken.jpg"), "wb") as broken:
    broken.write(b"\xff\xd8\xff nothing more")
helga = ("1", "1", "1")


def answer(lumora, path):
    """Types a path into the file panel that has the keys."""
    def focused_field():
        field = find(lumora.application, role=FIELDS)
        return field if field is not None and has_state(field, pyatspi.STATE_FOCUSED) else None
    field = wait_for("the panel's name field", focused_field)
    key("ctrl+a")
    write(path)
    wait_for("the path in the panel", lambda: field.queryText().getText(0, -1) == path)
    key("Return")
    wait_for("the panel to close", lambda: find(lumora.application, role=FIELDS) is None)
    wait_for("the keys to come back", lambda: has_state(lumora.control("Save Into…"), pyatspi.STATE_SHOWING)
             and has_state(find(lumora.application, "Save Many"), pyatspi.STATE_ACTIVE))


def picture(lumora, name):
    """For people: set LUMORA_PICTURES to a folder."""
    if "LUMORA_PICTURES" in os.environ:
        take_screenshot(lumora.tools, os.path.join(os.environ["LUMORA_PICTURES"], name), lumora.frame())


with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    key("2")
    lumora.wait_for_breadcrumb("Helga")
    key("ctrl+shift+s")
    lumora.wait_for_words("No photos chosen")
    assert not lumora.is_enabled("Save Them")
    picture(lumora, "many-begin.png")
    key("alt+f")
    answer(lumora, photos)
    lumora.wait_for_words("broken.jpg and others: 4 photos")
    key("alt+i")
    answer(lumora, saved)
    lumora.wait_for_words(saved)
    key("alt+s")
    lumora.wait_for_words("Saved: 3")
    lumora.wait_for_words("Saved: 3\nNot saved: 1")
    picture(lumora, "many-end.png")
    assert sorted(os.listdir(saved)) == ["one Helga.jpg", "three Helga.jpg", "two Helga.jpg"], os.listdir(saved)
    for name in os.listdir(saved):
        lumora.assert_file_is_render(os.path.join(saved, name), photo, *helga)
    wait_for("the one that failed", lambda: [node for node in walk(lumora.application)
             if node.getRole() == pyatspi.ROLE_LIST_ITEM and node.name.startswith("broken.jpg: ")])

    # Again: nothing is replaced.
    times = {name: os.stat(os.path.join(saved, name)).st_mtime_ns for name in os.listdir(saved)}
    key("alt+s")
    lumora.wait_for_words("Saved: 0\nAlready there: 3\nNot saved: 1")
    assert times == {name: os.stat(os.path.join(saved, name)).st_mtime_ns for name in os.listdir(saved)}
    key("Escape")
    wait_for("the panel to go", lambda: find(lumora.application, "Save Many") is None)
    lumora.wait_for_keys()
    key("1")
    lumora.wait_for_breadcrumb("Original")
    lumora.quit()
