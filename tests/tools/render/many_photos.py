#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The first recipe of docs/MANY-PHOTOS.md, killed half way: many_photos.py RENDER MAKE_PHOTO DOCUMENT

Runs the command as the document has it, with the program and the photos in a folder of the test. Kills all of it, and runs
it again: each photo has its output, whole and once, and the broken one is named."""

import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

render, make_photo, document = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
recipe = re.search(r"```sh\n(.*?)```", document.read_text("utf-8"), re.DOTALL).group(1)
assert "parallel" in recipe and "--skip-existing" in recipe, recipe
photo_count, broken = 120, "broken one.jpg"


def begin(folder):
    """The recipe, in a session of its own that can be killed as a whole."""
    environment = os.environ | {"PATH": f"{render.parent}:{os.environ['PATH']}", "HOME": str(folder)}
    return subprocess.Popen(["bash", "-o", "pipefail", "-c", recipe], cwd=folder, env=environment,
                            start_new_session=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def kill_session(leader):
    """Every process of the session: parallel gives each of its jobs a group of its own."""
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            if int((process / "stat").read_text().rpartition(")")[2].split()[3]) == leader:
                os.kill(int(process.name), signal.SIGKILL)
        except (FileNotFoundError, ProcessLookupError):
            pass  # it has ended by itself


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    photos, out = folder / "photos", folder / "out"
    photos.mkdir()
    out.mkdir()
    subprocess.run([make_photo, "400", "300", photos / "photo 0.jpg"], check=True)
    for number in range(1, photo_count):
        os.link(photos / "photo 0.jpg", photos / f"photo {number}.jpg")
    (photos / broken).write_bytes(b"\xff\xd8 is how a JPEG begins")

    killed = begin(folder)
    while len(os.listdir(out)) < photo_count // 4 and killed.poll() is None:
        time.sleep(0.005)
    kill_session(killed.pid)
    killed.communicate()
    done = {output.name: output.read_bytes() for output in out.iterdir()}
    assert photo_count // 4 <= len(done) < photo_count, f"{len(done)} outputs when it was killed"

    second = begin(folder)
    said, _ = second.communicate()
    assert said.count(broken) == 1 and len(said.splitlines()) == 1, said
    expected = {f"photo {number} Helga.jpg" for number in range(photo_count)}
    assert set(os.listdir(out)) == expected, sorted(expected.symmetric_difference(os.listdir(out)))
    contents = {output.read_bytes() for output in out.iterdir()}
    assert len(contents) == 1, "equal photos have equal outputs"
    assert set(done.values()) == contents, "what was there when it was killed is whole"
    print(f"{len(done)} outputs when it was killed, {len(expected)} after the second run")
