# SPDX-License-Identifier: GPL-3.0-or-later
"""Lumora as a person meets it: a window with named controls, found through the accessibility bus."""

import os
import subprocess
import tempfile

import pyatspi

from desk import (application, click, deadline, extents, find, has_state, is_showing, key, say, take_screenshot,
                  take_screenshot_of_box, wait_for, wait_for_window_manager, walk, write)

BUTTONS = (pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON)
FIELDS = (pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY)
DIALOGS = (pyatspi.ROLE_DIALOG, pyatspi.ROLE_FILE_CHOOSER, pyatspi.ROLE_ALERT)
LOOK_BUTTONS = ["Original", "Helga", "Lolo", "Cinema", "1962", "1974", "Mono", "Colorcross", "Instant", "Magazine"]
MENU_LOOKS = ["Infrared", "Fisheye", "Lightleak", "Delicious", "Arctic", "Blowout"]


class Lumora:
    """A running program. Use it in a `with` block: it never outlives the block."""

    def __init__(self, build, *arguments, program=None):
        wait_for_window_manager()
        self.tools = os.path.join(build, "bin")
        self.log_read = 0
        log, self.log_path = tempfile.mkstemp(suffix=".log")
        self.process = subprocess.Popen([program or os.path.join(self.tools, "lumora"), *arguments], stderr=log)
        os.close(log)
        self.application = wait_for("the program on the accessibility bus", self._reachable)

    def __enter__(self):
        return self

    def __exit__(self, failure, *ignored):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        if failure is not None:
            say("The program's log:", self.logged())
        os.remove(self.log_path)

    def _reachable(self):
        assert self.process.poll() is None, f"the program ended with {self.process.returncode}"
        found = application(self.process.pid)
        return found if found is not None and find(found, role=(pyatspi.ROLE_FRAME,)) else None

    # ---- What the window shows ----

    def control(self, name, role=BUTTONS):
        return wait_for(f'the control "{name}"', lambda: find(self.application, name, role))

    def logged(self):
        with open(self.log_path, errors="surrogateescape") as log:
            return log.read()

    def wait_for_log(self, words):
        """Waits for words that the program has not logged yet."""
        wait_for(f'"{words}" in the log', lambda: words in self.logged()[self.log_read:])
        self.log_read = len(self.logged())

    def wait_for_title(self, title):
        wait_for(f'the title "{title}"', lambda: find(self.application, title, (pyatspi.ROLE_FRAME,)))

    def wait_for_breadcrumb(self, text):
        wait_for(f'the line "{text}" above the photo', lambda: self._idle() and self.breadcrumb() == text)

    def breadcrumb(self):
        """The line above the photo."""
        for node in walk(self.application):
            if node.getRole() == pyatspi.ROLE_LABEL and node.description == "Applied looks":
                return node.name
        raise AssertionError("there is no line with the applied looks")

    def _idle(self):
        return find(self.application, role=(pyatspi.ROLE_PROGRESS_BAR,)) is None

    def frame(self):
        return wait_for("the window", lambda: find(self.application, role=(pyatspi.ROLE_FRAME,)))

    def preview(self):
        return wait_for("the preview", lambda: find(self.application, "Photo"))

    def seen(self):
        """What the screen shows of the photo."""
        picture = os.path.join(os.environ["HOME"], "seen.png")
        take_screenshot(self.tools, picture, self.preview())
        with open(picture, "rb") as file:
            return file.read()

    def seen_of(self, name):
        """What the screen shows of a control."""
        picture = os.path.join(os.environ["HOME"], "control.png")
        take_screenshot(self.tools, picture, self.control(name))
        with open(picture, "rb") as file:
            return file.read()

    def seen_beside_label(self):
        """What the screen shows of the right half of the photo, where no label stands while it is compared."""
        x, y, width, height = extents(self.preview())
        picture = os.path.join(os.environ["HOME"], "half.png")
        take_screenshot_of_box(self.tools, picture, x + width // 2, y, width // 2, height)
        with open(picture, "rb") as file:
            return file.read()

    def shows_middle_of(self, saved):
        """Whether the middle of the preview shows the middle of a saved file, pixel by pixel."""
        self.seen()
        compare = [os.path.join(self.tools, "journey_compare"), "--shown",
                   os.path.join(os.environ["HOME"], "seen.png"), saved]
        return subprocess.run(compare, check=False).returncode == 0

    def is_enabled(self, name):
        return has_state(self.control(name), pyatspi.STATE_ENABLED)

    def pop_up(self, label):
        """A pop-up, found by the label that stands at it; its own name is the entry that it shows."""
        def labelled():
            for node in walk(self.application):
                if node.getRole() == pyatspi.ROLE_COMBO_BOX:
                    for relation in node.getRelationSet():
                        if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY \
                                and relation.getTarget(0).name == label:
                            return node
            return None
        return wait_for(f'the pop-up "{label}"', labelled)

    def chosen(self, label):
        """The entry that a pop-up shows."""
        return self.pop_up(label).name

    # ---- What a person does ----

    def press(self, name):
        click(self.control(name))

    def choose(self, label, entry):
        click(self.pop_up(label))
        entries = wait_for("the entries to unfold", lambda: find(self.application, role=(pyatspi.ROLE_LIST,)))
        click(wait_for(f'the entry "{entry}"', lambda: find(entries, entry, (pyatspi.ROLE_LIST_ITEM,))))
        wait_for(f'"{label}" to show "{entry}"', lambda: self.chosen(label) == entry)

    def dialog(self):
        return find(self.application, role=DIALOGS)

    def name_field(self):
        """That of the file panel that is coming up or is up, ready to take keys."""
        panel = wait_for("a file panel", self.dialog)
        field = wait_for("the panel's name field", lambda: find(panel, role=FIELDS))
        wait_for("the name field to take keys", lambda: has_state(field, pyatspi.STATE_FOCUSED)
                 or (click(field), field.clear_cache()) is None)
        return field

    def type_file_name(self, path):
        """Types a path into the file panel and presses Return."""
        field = self.name_field()
        key("ctrl+a")
        write(path)
        wait_for("the path in the panel", lambda: field.queryText().getText(0, -1) == path)
        key("Return")

    def fill_file_dialog(self, path):
        """Types a path into the file panel that is coming up and confirms it."""
        self.type_file_name(path)
        wait_for("the panel to close", lambda: self.dialog() is None)

    def wait_for_keys(self):
        """Waits until the window takes keys: after a panel the desktop gives them back in its own time."""
        wait_for("the window to take keys", lambda: has_state(self.frame(), pyatspi.STATE_ACTIVE))

    def wait_for_words(self, begin):
        """Waits for a line on the screen, in the window or a panel, that begins so."""
        def line():
            for node in walk(self.application):
                if node.getRole() == pyatspi.ROLE_LABEL and node.name.startswith(begin) and is_showing(node):
                    return node.name
            return None
        return wait_for(f'the words "{begin}"', line)

    def save_as(self, path):
        self.press("Save…")
        self.fill_file_dialog(path)
        wait_for(f"the file {path}", lambda: os.path.exists(path))

    def read_sheet(self, text):
        """Reads the sheet that says so, and presses its OK."""
        sheet = wait_for("a sheet", self.dialog)
        wait_for(f'"{text}" on the sheet', lambda: find(sheet, text, (pyatspi.ROLE_LABEL,)))
        click(wait_for("its OK", lambda: find(sheet, "OK", BUTTONS)))
        wait_for("the sheet to go", lambda: self.dialog() is None)

    def wait_for_no_sheet(self):
        wait_for("no sheet", lambda: self.dialog() is None)

    def quit(self):
        key("ctrl+q")
        self.process.wait(deadline)
        assert self.process.returncode == 0, f"the program ended with {self.process.returncode}"

    def peak_memory(self):
        """The most memory that the program has held so far, in MiB."""
        with open(f"/proc/{self.process.pid}/status") as status:
            for line in status:
                if line.startswith("VmHWM:"):
                    return int(line.split()[1]) / 1024
        raise AssertionError("the system does not tell the peak memory")

    def size_of(self, path):
        """Width and height of a picture, as words."""
        return subprocess.check_output([os.path.join(self.tools, "journey_compare"), path], text=True).split()

    def assert_file_is_render(self, saved, photo, *options):
        """Holds a saved file to the pipeline's own render of the photo, pixel by pixel."""
        subprocess.run([os.path.join(self.tools, "journey_compare"), saved, photo, *options], check=True)
