#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Everything by screen reader: each control has a name; Open, every look and Save answer to a press by name."""

import os
import sys

import pyatspi

from desk import find, has_state, is_checked, key, press_by_name, say, wait_for, walk
from lumora import LOOK_BUTTONS, MENU_LOOKS, Lumora

controls = (pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON,
            pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM,
            pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY, pyatspi.ROLE_IMAGE, pyatspi.ROLE_PROGRESS_BAR)

menu_roles = (pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_RADIO_MENU_ITEM)

build, photo = sys.argv[1:3]


def menu_item(lumora, name):
    def found():
        for node in walk(lumora.application):
            if node.name == name and node.getRole() in menu_roles:
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

    # What is seen of the photo: each entry by its role, its state and its effect.
    press_by_name(lumora.control("Helga"))
    lumora.wait_for_breadcrumb("Helga")
    slider = find(lumora.application, "Strength", (pyatspi.ROLE_SLIDER,))
    assert slider.queryValue().currentValue == 100 and has_state(slider, pyatspi.STATE_ENABLED)
    press_by_name(menu_item(lumora, "Weaker"))
    wait_for("90 %", lambda: slider.queryValue().currentValue == 90)
    press_by_name(menu_item(lumora, "Stronger"))
    wait_for("100 %", lambda: slider.queryValue().currentValue == 100)
    slider.queryValue().currentValue = 30
    wait_for("the words for it", lambda: find(lumora.application, "Strength 30 %", (pyatspi.ROLE_LABEL,)))

    def wait_for_preview(words):
        wait_for(f'the photo "{words}"', lambda: words in lumora.preview().description)

    for entry, words in (("Before and after", "Before on the left"), ("Actual size", "at 100 %")):
        node = menu_item(lumora, entry)
        assert not is_checked(node), entry
        press_by_name(node)
        wait_for_preview(words)
        assert is_checked(node), entry
        if entry == "Before and after":
            line = find(lumora.application, "Line between before and after", (pyatspi.ROLE_SLIDER,))
            line.queryValue().currentValue = 2500
            wait_for("the line to be there", lambda: line.queryValue().currentValue == 2500)
            press_by_name(node)
            wait_for_preview("under the applied looks")
            assert not is_checked(node), entry
    press_by_name(menu_item(lumora, "Zoom in"))
    wait_for_preview("at 200 %")
    press_by_name(menu_item(lumora, "Zoom out"))
    wait_for_preview("at 100 %")
    press_by_name(menu_item(lumora, "Actual size"))
    wait_for_preview("under the applied looks")
    whole = menu_item(lumora, "Whole screen")
    assert not is_checked(whole)
    press_by_name(whole)
    wait_for("the photo alone", lambda: find(lumora.application, role=(pyatspi.ROLE_MENU_BAR,)) is None)
    assert is_checked(whole)
    press_by_name(whole)
    wait_for("the window", lambda: find(lumora.application, role=(pyatspi.ROLE_MENU_BAR,)))
    lumora.wait_for_keys()

    # In and out, quality.
    press_by_name(menu_item(lumora, "Copy"))
    lumora.wait_for_words("Copied, ")
    press_by_name(menu_item(lumora, "Paste"))
    lumora.wait_for_title("Lumora - Pasted picture")
    for entry in ("Best", "High", "Standard"):
        press_by_name(menu_item(lumora, entry))
        chosen = [name for name in ("Standard", "High", "Best") if is_checked(menu_item(lumora, name))]
        assert chosen == [entry], chosen

    for panel in ("Open…", "Save…"):
        press_by_name(lumora.control(panel))
        wait_for(f"the panel of {panel}", lumora.dialog)
        key("Escape")
        wait_for("the panel to close", lambda: lumora.dialog() is None)
    lumora.quit()
