# SPDX-License-Identifier: GPL-3.0-or-later
"""What a person has at a desk: eyes, a pointer and a keyboard. Nothing here knows Lumora."""

import contextlib
import os
import subprocess
import time

import pyatspi

deadline = 60.0  # seconds that anything may take on a slow machine
origin = (0, 0)  # of what programs take for the screen: on Wayland each knows its own window alone


def wait_for(what, condition, seconds=deadline):
    """Gives the first true value of condition(); fails with `what` when there is none in time."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited {seconds:.0f} s in vain for {what}")
        time.sleep(0.02)


def say(*words):
    print(*words, flush=True)


def xdotool(*arguments):
    done = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True)
    return done.stdout.strip() if done.returncode == 0 else ""


def wait_for_window_manager():
    wait_for("the window manager", lambda: xdotool("get_num_desktops"))


# ---- Eyes: what the accessibility bus tells of a window ----


def walk(node):
    """A node and everything below it, as it is now."""
    node.clear_cache()
    yield node
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield from walk(child)


def application(pid):
    """The accessible application of a process, or None while it has none."""
    desktop = pyatspi.Registry.getDesktop(0)
    desktop.clear_cache()
    for index in range(desktop.childCount):
        try:
            child = desktop.getChildAtIndex(index)
            if child is not None and child.get_process_id() == pid:
                return child
        except Exception:  # one that is just coming or going
            continue
    return None


def has_state(node, state):
    node.clear_cache()
    return node.getState().contains(state)


def is_showing(node):
    return has_state(node, pyatspi.STATE_SHOWING)


def is_checked(node):
    return has_state(node, pyatspi.STATE_CHECKED)


def find(root, name=None, role=None):
    """The first node of that accessible name and role that is on the screen, or None."""
    try:
        for node in walk(root):
            if (name is None or node.name == name) and (role is None or node.getRole() in role) and is_showing(node):
                return node
    except Exception:  # the tree changed under the walk
        pass
    return None


def extents(node):
    node.clear_cache()
    box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return origin[0] + box.x, origin[1] + box.y, box.width, box.height


def middle(node):
    x, y, width, height = extents(node)
    return x + width // 2, y + height // 2


def press_by_name(node):
    """Presses a control as a screen reader does."""
    try:
        action = node.queryAction()
        action.doAction(0)
    except Exception as reason:  # a press that opens a dialog is answered when the dialog closes
        if "timeout" not in str(reason).lower() and "did not receive a reply" not in str(reason).lower():
            raise


# ---- Hands ----


def point_at(x, y):
    if not xdotool("getmouselocation").startswith(f"x:{x} y:{y} "):  # a pointer that stays would be waited for
        xdotool("mousemove", "--sync", x, y)


def click(node):
    point_at(*middle(node))
    xdotool("click", 1)


def key(*names):
    xdotool("key", "--clearmodifiers", *names)


@contextlib.contextmanager
def held(name):
    """Holds a key down. After a moment the display repeats it, as it does for a person."""
    xdotool("keydown", name)
    try:
        yield
    finally:
        xdotool("keyup", name)


def hold(name, seconds=1.2):
    """Presses a key as long as a slow hand does."""
    with held(name):
        time.sleep(seconds)


def turn_wheel(node, down=True):
    point_at(*middle(node))
    xdotool("click", 5 if down else 4)


def write(text):
    xdotool("type", "--clearmodifiers", "--delay", 4, "--", text)


def take_screenshot(tools, path, node):
    """Saves what the display shows where a node is."""
    take_screenshot_of_box(tools, path, *extents(node))


def take_screenshot_of_box(tools, path, x, y, width, height):
    subprocess.run([os.path.join(tools, "journey_screenshot"), path, *map(str, (x, y, width, height))], check=True)
