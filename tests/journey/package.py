#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Debian package: made, unpacked into an empty folder, and run from there with its help and its icons."""

import configparser
import glob
import os
import platform
import re
import subprocess
import sys

from desk import key, wait_for, xdotool
from lumora import Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]
made, root = os.path.join(home, "made"), os.path.join(home, "root")

subprocess.run(["cpack", "--config", os.path.join(build, "CPackConfig.cmake"), "-B", made], check=True,
               stdout=subprocess.DEVNULL)
(package,) = glob.glob(os.path.join(made, "lumora_*.deb"))
subprocess.run(["dpkg-deb", "--extract", package, root], check=True)

depends = subprocess.check_output(["dpkg-deb", "--field", package, "Depends"], text=True)
with open(os.path.join(build, "CMakeCache.txt")) as cache:
    settings = cache.read()
confined = "LUMORA_READER_PROCESS:BOOL=ON" in settings
for library in ("libqt6widgets6", "libqt6gui6", "libexiv2", "libc6") + (("libseccomp2",) if confined else ()):
    assert library in depends, (library, depends)

share = os.path.join(root, "usr", "share")
help_document = os.path.join(share, "lumora", "help.pdf")
for path in ("applications/com.dovrel.Lumora.desktop", "metainfo/com.dovrel.Lumora.metainfo.xml", "lumora/help.pdf",
             "icons/hicolor/scalable/apps/com.dovrel.Lumora.svg", "icons/hicolor/48x48/apps/com.dovrel.Lumora.png",
             "man/man1/lumora.1.gz", "man/man1/lumora-render.1.gz", "man/ja/man1/lumora-render.1.gz",
             "bash-completion/completions/lumora-render",
             "icons/hicolor/128x128/apps/com.dovrel.Lumora.png", "icons/hicolor/256x256/apps/com.dovrel.Lumora.png"):
    assert os.path.getsize(os.path.join(share, path)) > 0, path

# What the desktop's menu entry starts and shows is in the package.
entry = configparser.ConfigParser(interpolation=None)
entry.read(os.path.join(share, "applications", "com.dovrel.Lumora.desktop"))
program, *arguments = entry["Desktop Entry"]["Exec"].split()
assert os.access(os.path.join(root, "usr", "bin", program), os.X_OK), program
assert arguments == ["%F"], arguments
icon = entry["Desktop Entry"]["Icon"]
assert glob.glob(os.path.join(share, "icons", "hicolor", "*", "apps", icon + ".*")), icon
with open(help_document, "rb") as document:
    content = document.read()
assert content.startswith(b"%PDF-")
assert re.findall(rb"/Count (\d+)", content) == [b"3"], "help has three pages"

# The program for terminals, from where it was unpacked, with the package's own engine and reader.
rendered = os.path.join(home, "rendered.jpg")
subprocess.run([os.path.join(root, "usr", "bin", "lumora-render"), "--look", "Helga", "--output", rendered, photo], check=True)
assert os.path.getsize(rendered) > 0

# The engine, for each level of x86-64 processors. Elsewhere, and with sanitizers, the program holds it.
sanitised = "LUMORA_SANITIZE:BOOL=ON" in settings
engine = None
if platform.machine() == "x86_64" and not sanitised:
    (engine,) = glob.glob(os.path.join(root, "usr", "lib", "**", "lumora", "liblumora_engine.so"), recursive=True)
    folder = os.path.dirname(engine)
    loader = subprocess.check_output(["/lib64/ld-linux-x86-64.so.2", "--help"], text=True)
    for level in ("x86-64-v3", "x86-64-v4"):
        faster = os.path.join(folder, "glibc-hwcaps", level, "liblumora_engine.so")
        assert os.path.getsize(faster) > 0, faster
        if f"{level} (supported" in loader:
            engine = faster

# A desktop's viewer that only writes down what it was asked to open.
asked = os.path.join(home, "asked")
viewer = os.path.join(home, "bin", "xdg-open")
os.mkdir(os.path.dirname(viewer))
with open(viewer, "w") as script:
    script.write(f'#!/bin/sh\nprintf %s "$1" >"{asked}.new"; mv "{asked}.new" "{asked}"\n')
os.chmod(viewer, 0o755)
os.environ["PATH"] = os.path.dirname(viewer) + ":" + os.environ["PATH"]

with Lumora(build, photo, program=os.path.join(root, "usr", "bin", program)) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    # The desktop finds the window's entry by a name of the window's.
    named = xdotool("search", "--onlyvisible", "--classname", f"^{re.escape(entry['Desktop Entry']['StartupWMClass'])}$")
    assert named and xdotool("getwindowpid", named.split()[0]) == str(lumora.process.pid), named
    with open(f"/proc/{lumora.process.pid}/maps") as maps:
        assert engine is None or os.path.realpath(engine) in maps.read(), engine
    # The photo was read by the package's own reader, and the next one waits.
    if confined:
        reader = os.path.join(root, "usr", "libexec", "lumora", "lumora-reader")
        with open(f"/proc/{lumora.process.pid}/task/{lumora.process.pid}/children") as children:
            programs = [os.path.realpath(f"/proc/{child}/exe") for child in children.read().split()]
        assert os.path.realpath(reader) in programs, programs
    key("F1")
    wait_for("the viewer to be asked", lambda: os.path.exists(asked))
    with open(asked) as answer:
        opened = answer.read()
    assert os.path.realpath(opened.removeprefix("file://")) == os.path.realpath(help_document), opened
    lumora.quit()
