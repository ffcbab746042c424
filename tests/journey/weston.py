# SPDX-License-Identifier: GPL-3.0-or-later
"""A Wayland desktop in a window of the virtual display, so that the display's pointer and keyboard are its own too."""

import contextlib
import os
import re
import subprocess

from PIL import Image

import desk
from desk import point_at, take_screenshot_of_box, wait_for, xdotool

WIDTH, HEIGHT = 1440, 1000
GROUND = 0x20, 0x30, 0x40  # as the settings have it
SETTINGS = """[core]
shell=desktop-shell.so
idle-time=0
[shell]
panel-position=none
background-color=0xff203040
animation=none
startup-animation=none
close-animation=none
locking=false
"""


class Weston:
    """A running compositor. Use it in a `with` block. It outlives neither that nor this program, however that ends."""

    def __init__(self, tools):
        self.tools = tools
        self.home = os.environ["HOME"]
        settings = os.path.join(self.home, "weston.ini")
        with open(settings, "w") as file:
            file.write(SETTINGS)
        self.log = os.path.join(self.home, "weston.log")
        self.settings = settings
        self._start()
        while not self._has_pointer():  # one that comes up while the display is busy may never hear of it
            self._stop()
            self._start()

    def _start(self):
        with open(self.log, "w") as log:
            self.process = subprocess.Popen(
                ["setpriv", "--pdeathsig", "TERM", "weston", "--backend=x11-backend.so", "--use-pixman",
                 "--socket=desk", "--fullscreen", "--debug",
                 f"--width={WIDTH}", f"--height={HEIGHT}", f"--config={self.settings}"], stdout=log, stderr=log)
        # The pointer may stand anywhere, but not in two places.
        wait_for("the Wayland desktop", lambda: [GROUND] * 2 == [
            self.screen().getpixel(place) for place in ((100, 100), (WIDTH - 100, HEIGHT - 100))])

    def _stop(self):
        self.process.terminate()
        self.process.wait()

    def _has_pointer(self):
        point_at(300, 300)
        try:
            wait_for("the pointer", lambda: self.screen().crop((298, 298, 330, 330)).getcolors() !=
                     [(32 * 32, GROUND)], 5)
        except AssertionError:
            return False
        point_at(WIDTH - 1, HEIGHT - 1)
        return True

    def __enter__(self):
        return self

    def __exit__(self, failure, *ignored):
        self._stop()
        if failure is not None:
            with open(self.log) as log:
                desk.say("The compositor's log:", log.read())

    def screen(self):
        picture = os.path.join(self.home, "screen.png")
        take_screenshot_of_box(self.tools, picture, 0, 0, WIDTH, HEIGHT)
        with Image.open(picture) as image:
            return image.convert("RGB")

    def scene(self):
        """What the compositor tells of the windows."""
        return subprocess.run(["weston-debug", "scene-graph"], env={**os.environ, "WAYLAND_DISPLAY": "desk"},
                              capture_output=True, text=True, timeout=desk.deadline).stdout

    @contextlib.contextmanager
    def environment(self, frames):
        """Programs that are started here come up on this desktop, and draw frames round their windows if so wished."""
        before = dict(os.environ)
        # On a busy machine the compositor is late with its frames; Qt 6.4 would take the window for unseen.
        os.environ.update(WAYLAND_DISPLAY="desk", QT_QPA_PLATFORM="wayland", QT_WAYLAND_FRAME_CALLBACK_TIMEOUT="0")
        if not frames:
            os.environ["QT_WAYLAND_DISABLE_WINDOWDECORATION"] = "1"
        try:
            yield
        finally:
            os.environ.clear()
            os.environ.update(before)

    def box(self, title):
        """Where the window of that title stands: left, top, right, bottom; None while it does not."""
        found = re.search(rf"window '{re.escape(title)}' of .*\n\s*position: \((.*), (.*)\) -> \((.*), (.*)\)", self.scene())
        return found and tuple(map(int, found.groups()))

    def move(self, title, x, y):
        """Moves a window by its frame, so that its upper left corner stands there. Gives its middle."""
        def moved():
            left, top, right, bottom = wait_for(f"the window {title}", lambda: self.box(title))
            if (left, top) == (x, y):
                return (left + right) // 2, (top + bottom) // 2
            start = left + 40, top + 12
            point_at(*start)
            xdotool("mousedown", 1)
            for step in range(1, 9):
                point_at(start[0] + (x - left) * step // 8, start[1] + (y - top) * step // 8)
            xdotool("mouseup", 1)
            return None
        return wait_for(f"the window {title} in its place", moved)
