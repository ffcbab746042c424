#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""From a file on disk to a file on disk: open by argument, Mono by the mouse, save through the panel."""

import os
import sys

from lumora import Lumora

build, photo = sys.argv[1:3]
saved = os.path.join(os.environ["HOME"], "walked.jpg")

with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.press("Mono")
    lumora.wait_for_breadcrumb("Mono")
    lumora.save_as(saved)
    lumora.assert_file_is_render(saved, photo, "5", "5", "5")
    lumora.quit()
