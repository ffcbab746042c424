#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A photo of 24 megapixels opens, takes Mono and is saved within its memory."""

import os
import subprocess
import sys

from desk import say
from lumora import Lumora

most = 600  # MiB

build = sys.argv[1]
home = os.environ["HOME"]
photo, saved = os.path.join(home, "large.jpg"), os.path.join(home, "large mono.jpg")
subprocess.run([os.path.join(build, "bin", "journey_photo"), "6000", "4000", photo], check=True)

with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - large.jpg")
    say(f"opened: {lumora.peak_memory():.0f} MiB")
    lumora.press("Mono")
    lumora.wait_for_breadcrumb("Mono")
    lumora.save_as(saved)
    peak = lumora.peak_memory()
    say(f"saved: {peak:.0f} MiB")
    lumora.assert_file_is_render(saved, photo, "5", "5", "5")
    lumora.quit()
assert peak < most, f"{peak:.0f} MiB, more than {most}"
