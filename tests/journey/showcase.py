#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The journey of scripts/run where there is no display: showcase.py BUILD PHOTO FOLDER

Opens the photo, presses Mono, saves, and leaves the window's picture and the saved JPEG in the folder."""

import os
import sys

from desk import say, take_screenshot
from lumora import Lumora

build, photo, folder = (os.path.abspath(path) for path in sys.argv[1:4])
picture, saved = os.path.join(folder, "window.png"), os.path.join(folder, "saved.jpg")
for path in (picture, saved):
    if os.path.exists(path):
        os.remove(path)

with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.press("Mono")
    lumora.wait_for_breadcrumb("Mono")
    take_screenshot(lumora.tools, picture, lumora.frame())
    lumora.save_as(saved)
    lumora.quit()
say("The window:    ", picture)
say("The saved JPEG:", saved)
