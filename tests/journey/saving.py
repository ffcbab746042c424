#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The photo that was opened is not saved over by mistake; what was saved is told; the window comes back as it was."""

import os
import shutil
import sys

import pyatspi

from desk import click, extents, find, has_state, key, point_at, wait_for, xdotool
from lumora import BUTTONS, Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]
folder = os.path.join(home, "my photos")
os.mkdir(folder)
own = os.path.join(folder, "over.jpg")
shutil.copy(photo, own)
helga = ("1", "1", "1")
need_a_photo = ("Rotate left", "Rotate right", "Flatten", "Save…")


def contents(path):
    with open(path, "rb") as file:
        return file.read()


def button_of_question(lumora, name):
    """A button of the question about the photo's own file."""
    lumora.wait_for_words("This is the photo that you opened. Replacing it cannot be undone.")
    return wait_for(name, lambda: find(lumora.application, name, BUTTONS))


with Lumora(build, own) as lumora:
    lumora.wait_for_title("Lumora - over.jpg")
    key("2")
    lumora.wait_for_breadcrumb("Helga")

    # Return on what is proposed, and Return again: both are kept.
    lumora.press("Save…")
    assert lumora.name_field().queryText().getText(0, -1) == "over.jpg"
    lumora.wait_for_words("JPEG, whatever the ending")
    key("Return")
    keep_both = button_of_question(lumora, "Keep both")
    wait_for("it to be what Return presses", lambda: has_state(keep_both, pyatspi.STATE_FOCUSED))
    key("Return")
    line = lumora.wait_for_words("Saved over Helga.jpg, ")
    kept = os.path.join(folder, "over Helga.jpg")
    lumora.assert_file_is_render(kept, photo, *helga)
    size = " x ".join(lumora.size_of(kept)) + f", {round(os.path.getsize(kept) / 1000)} kB"
    assert line == "Saved over Helga.jpg, " + size, (line, size)
    assert contents(own) == contents(photo)
    lumora.wait_for_keys()
    key("3")
    lumora.wait_for_breadcrumb("Lolo")
    assert find(lumora.application, line) is None, "it is told until the next change"
    key("2")
    lumora.wait_for_breadcrumb("Helga")

    # The panel stays where nothing can be written, and adds the ending that is missing.
    lumora.press("Save…")
    lumora.type_file_name(os.path.join(home, "gone", "out.jpg"))
    lumora.wait_for_words("“out.jpg” cannot be saved there. The folder does not exist.")
    lumora.fill_file_dialog(os.path.join(folder, "holiday.webp"))
    lumora.wait_for_words("Saved holiday.webp.jpg, ")
    assert contents(os.path.join(folder, "holiday.webp.jpg")) == contents(kept)

    lumora.press("Save…")
    lumora.type_file_name(own)
    click(button_of_question(lumora, "Replace"))
    lumora.wait_for_words("Saved over.jpg, ")
    assert contents(own) == contents(kept)

    frame = lumora.frame()
    xdotool("windowsize", xdotool("search", "--name", "^Lumora - over.jpg$"), 1100, 720)
    wait_for("the window of another size", lambda: extents(frame)[2:] == (1100, 720))
    lumora.quit()

with Lumora(build) as lumora:
    frame = lumora.frame()
    wait_for("the window of that size", lambda: extents(frame)[2:] == (1100, 720))
    for button in need_a_photo:
        assert not lumora.is_enabled(button), f"{button} without a photo"
    empty = lumora.seen()
    key("ctrl+s", "ctrl+r", "ctrl+shift+f", "2")
    lumora.press("Open…")
    lumora.fill_file_dialog("over.jpg")  # in the folder where the panel was left
    lumora.wait_for_title("Lumora - over.jpg")
    wait_for("the photo", lambda: lumora.seen() != empty)
    for button in need_a_photo:
        assert lumora.is_enabled(button), f"{button} with a photo"

    # By its title bar.
    x, y = extents(frame)[:2]
    point_at(x + 200, y - 8)
    xdotool("click", "--repeat", 2, "--delay", 50, 1)
    maximised = wait_for("the maximised window", lambda: extents(frame)[2] > 1100 and extents(frame))
    lumora.quit()

with Lumora(build) as lumora:
    wait_for("a maximised window", lambda: extents(lumora.frame()) == maximised)
    lumora.quit()
