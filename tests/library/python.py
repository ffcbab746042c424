#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Python module and its example, held to the C program:  python.py LIBRARIES LOOK EXAMPLES

LIBRARIES is the folder of the libraries, LOOK the program, EXAMPLES the folder of the module."""

import os
import pathlib
import subprocess
import sys
import tempfile

libraries, look_program, examples = sys.argv[1:4]
if os.environ.get("LD_LIBRARY_PATH") != libraries:
    # The loader reads it when a program starts.
    os.environ["LD_LIBRARY_PATH"] = libraries
    os.execv(sys.executable, [sys.executable, *sys.argv])
sys.path.insert(0, examples)

import lumora
import numpy
from PIL import Image


def by_the_program(look, colours, random=0):
    height, width = colours.shape[:2]
    made = subprocess.run([look_program, look, str(random)], input=b"P6\n%d %d\n255\n" % (width, height) +
                          colours.tobytes(), stdout=subprocess.PIPE, check=True).stdout
    head = b"P6\n%d %d\n255\n" % (width, height)
    assert made.startswith(head), made[:20]
    return numpy.frombuffer(made[len(head):], numpy.uint8).reshape(colours.shape)


def refused(error, *arguments, **named):
    try:
        lumora.apply(*arguments, **named)
    except error as reason:
        return str(reason)
    raise AssertionError(f"{arguments} {named} did not fail")


names = subprocess.run([look_program], stdout=subprocess.PIPE, check=True, text=True).stdout.split()
assert len(names) >= 15 and lumora.looks() == names, names

whole = numpy.random.default_rng(1).integers(0, 256, (90, 140, 4), numpy.uint8)
for look in names:
    for random in (0, 7, 2**32 - 1):
        pixels = whole.copy()
        lumora.apply(look, pixels, random)
        assert (pixels[..., :3] == by_the_program(look, whole[..., :3].copy(), random)).all(), (look, random)
        assert (pixels[..., 3] == whole[..., 3]).all(), look
        # A part of a larger array, whose rows lie apart.
        pixels = whole.copy()
        part = pixels[20:70, 30:111]
        lumora.apply(look, part, random)
        expected = whole.copy()
        expected[20:70, 30:111, :3] = by_the_program(look, whole[20:70, 30:111, :3].copy(), random)
        assert (pixels == expected).all(), (look, random)

pixels = whole.copy()
assert "no look" in refused(ValueError, "mono", pixels)
for random in (-1, 2**32):
    assert "random" in refused(ValueError, "Mono", pixels, random=random)
for wrong in (pixels[..., :3], pixels.astype(numpy.float32), pixels[0], pixels.tobytes(), None):
    assert "shape" in refused(ValueError, "Mono", wrong)
for wrong in (pixels[:, ::2], pixels[::-1], pixels[..., ::-1], pixels.transpose(1, 0, 2)):
    assert "after the other" in refused(ValueError, "Mono", wrong)
for wrong in (pixels[:0], pixels[:, :0]):
    assert "empty" in refused(ValueError, "Mono", wrong)
assert "65535" in refused(ValueError, "Mono", numpy.zeros((65536, 1, 4), numpy.uint8))
pixels.flags.writeable = False
assert "read-only" in refused(ValueError, "Mono", pixels)
assert (pixels == whole).all()

# The example: a folder of photos, of which one is none, and one stands there already.
with tempfile.TemporaryDirectory() as folder:
    source, target = pathlib.Path(folder, "photos"), pathlib.Path(folder, "new")
    source.mkdir()
    photo = Image.fromarray(whole[..., :3])
    photo.save(source / "one.png")
    photo.save(source / "two.jpg", quality=95)
    (source / "text.jpg").write_text("no photo")
    command = [sys.executable, os.path.join(examples, "folder.py"), "Mono", source, target]
    first = subprocess.run(command, stderr=subprocess.PIPE, text=True)
    assert first.returncode == 1 and "text.jpg" in first.stderr and "one" not in first.stderr, first
    made = {path.name: path.read_bytes() for path in target.iterdir()}
    assert sorted(made) == ["one.png.jpg", "two.jpg"], made.keys()
    expected = whole.copy()
    lumora.apply("Mono", expected)
    difference = numpy.asarray(Image.open(target / "one.png.jpg")).astype(int) - expected[..., :3]
    assert difference.shape == (90, 140, 3) and abs(difference).mean() < 12, abs(difference).mean()
    again = subprocess.run(command, stderr=subprocess.PIPE, text=True)
    assert again.returncode == 1 and "exists" in again.stderr, again
    assert {path.name: path.read_bytes() for path in target.iterdir()} == made
    assert subprocess.run(command[:2], stderr=subprocess.DEVNULL).returncode == 1
print(f"{len(names)} looks are the same")
