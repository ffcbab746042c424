#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What software centres show: metainfo.py APPSTREAMCLI ID METAINFO VERSION

The validator has nothing to say of it, and it is of this program, of this version, and of the one that had another name."""

import os
import subprocess
import sys
import xml.etree.ElementTree

appstreamcli, identity, metainfo, version = sys.argv[1:]
FORMER = "dovrel.lumora.desktop"

# Desktops ask for the capital letter of the program's name, and the validator, at its most pedantic, against it.
EXPECTED = f"P: {identity}:3: cid-contains-uppercase-letter {identity}"
run = subprocess.run([appstreamcli, "validate", "--pedantic", "--no-net", "--no-color", metainfo], capture_output=True, text=True,
                     env=os.environ | {"LC_ALL": "C.UTF-8", "LANGUAGE": ""})
# Newer validators know another way to tell who made it, which older ones do not.
words = [line for line in run.stdout.splitlines()
         if line.strip() and line != EXPECTED and not (line.startswith("I: ") and "developer-" in line)]
print(run.stdout, run.stderr)
assert run.returncode == 0 and len(words) == 1 and "Validation was successful" in words[0], words

component = xml.etree.ElementTree.parse(metainfo).getroot()
assert component.findtext("id") == identity
assert component.findtext("launchable") == f"{identity}.desktop"
assert component.findtext("provides/id") == component.findtext("replaces/id") == FORMER
releases = component.findall("releases/release")
assert releases[0].get("version") == version, "the newest release is this one"
assert all(release.findtext("description/p").strip() for release in releases)
home = component.findtext("url[@type='homepage']")
images = [image.text for image in component.findall("screenshots/screenshot/image")]
assert len(images) == 2 and all(image.startswith(home) for image in images), images
