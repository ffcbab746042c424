#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the Flatpak is to be made of, as flatpak-builder reads it: flatpak.py FLATPAK-BUILDER ID MANIFEST"""

import json
import pathlib
import subprocess
import sys
import tempfile

flatpak_builder, identity, manifest = sys.argv[1:]
manifest = pathlib.Path(manifest).resolve()
with tempfile.TemporaryDirectory() as folder:  # it leaves a folder behind where it runs
    run = subprocess.run([flatpak_builder, "--show-manifest", manifest], cwd=folder, check=True, capture_output=True,
                         text=True)
assert not run.stderr, run.stderr  # it tells of every word that it does not know
shown = json.loads(run.stdout)
assert manifest.stem == shown["id"] == identity
assert shown["command"] == "lumora"
allowed = set(shown["finish-args"])
assert {"--socket=wayland", "--socket=fallback-x11"} <= allowed, allowed
assert not any(word in argument for argument in allowed for word in ("network", "host", "home", "devel", "session-bus")), allowed

lumora = shown["modules"][-1]
assert "-DLUMORA_READER_PROCESS=ON" in lumora["config-opts"]
(source,) = lumora["sources"]
assert (manifest.parent / source["path"] / "resources" / "flatpak").is_dir(), source
