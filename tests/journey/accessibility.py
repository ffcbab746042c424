#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Everything by screen reader: each control has a name; Open, every look and Save answer to a press by name."""

import os
import sys

import pyatspi

from desk import key, press_by_name, say, wait_for, walk
from lumora import LOOK_BUTTONS, MENU_LOOKS, Lumora

controls = (pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON,
            pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM,
            pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY, pyatspi.ROLE_IMAGE, pyatspi.ROLE_PROGRESS_BAR)

build, photo = sys.argv[1:3]


def menu_item(lumora, name):
    def found():
        for node in walk(lumora.application):
            if node.name == name and node.getRole() in (pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM):
                return node
        return None
    return wait_for(f'the menu entry "{name}"', found)


with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))

    seen = 0
    for node in walk(lumora.application):
        if node.getRole() in controls:
            seen += 1
            assert node.name, f"a control without a name: {node.getRoleName()} in {node.parent.name}"
    say(f"{seen} controls, each with a name")
    assert seen >= 16 + 9 + 3 + 2, "sixteen looks, nine buttons and menus, three pop-ups, two boxes at least"

    for look in LOOK_BUTTONS[1:] + ["Original"]:
        press_by_name(lumora.control(look))
        lumora.wait_for_breadcrumb(look)
    for look in MENU_LOOKS + ["Original"]:
        press_by_name(menu_item(lumora, look))
        lumora.wait_for_breadcrumb(look)

    for panel in ("Open…", "Save…"):
        press_by_name(lumora.control(panel))
        wait_for(f"the panel of {panel}", lumora.dialog)
        key("Escape")
        wait_for("the panel to close", lambda: lumora.dialog() is None)
    lumora.quit()
