#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The photo in the colours of the screen: a profile that X11 has is followed while the program runs; files stay sRGB."""

import ctypes
import os
import sys

from PIL import Image, ImageChops, ImageCms

from desk import say, wait_for
from lumora import Lumora

build, photo = sys.argv[1:3]
home = os.environ["HOME"]

# A screen whose red and blue are exchanged: the profile of sRGB with two names exchanged.
exchanging = ImageCms.ImageCmsProfile(ImageCms.createProfile("sRGB")).tobytes()
exchanging = exchanging.replace(b"rXYZ", b"----").replace(b"bXYZ", b"rXYZ").replace(b"----", b"bXYZ")

x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = display_t = ctypes.c_void_p
x11.XDefaultRootWindow.argtypes, x11.XDefaultRootWindow.restype = [display_t], ctypes.c_ulong
x11.XInternAtom.argtypes, x11.XInternAtom.restype = [display_t, ctypes.c_char_p, ctypes.c_int], ctypes.c_ulong
x11.XChangeProperty.argtypes = [display_t, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_int, ctypes.c_int,
                                ctypes.c_char_p, ctypes.c_int]
x11.XDeleteProperty.argtypes = [display_t, ctypes.c_ulong, ctypes.c_ulong]
x11.XSync.argtypes = [display_t, ctypes.c_int]
display = x11.XOpenDisplay(None)
root, name = x11.XDefaultRootWindow(display), x11.XInternAtom(display, b"_ICC_PROFILE", 0)


def set_profile(icc):
    """The property that a desktop sets for its first screen; None: it takes it away."""
    if icc is None:
        x11.XDeleteProperty(display, root, name)
    else:
        x11.XChangeProperty(display, root, name, 6, 8, 0, icc, len(icc))  # of kind CARDINAL, in bytes, replacing
    x11.XSync(display, 0)


def picture(lumora):
    with open(os.path.join(home, "now.png"), "wb") as file:
        file.write(lumora.seen())
    return Image.open(os.path.join(home, "now.png")).convert("RGB")


def is_exchanged(one, other):
    red, green, blue = other.split()
    apart = ImageChops.difference(one, Image.merge("RGB", (blue, green, red)))
    return max(high for low, high in apart.getextrema()) <= 2


def is_same(one, other):
    return ImageChops.difference(one, other).getbbox() is None


with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.wait_for_breadcrumb("Original")
    plain = picture(lumora)
    assert not is_exchanged(plain, plain)

    set_profile(exchanging)
    wait_for("the photo in the colours of the screen", lambda: is_exchanged(picture(lumora), plain))
    lumora.save_as(os.path.join(home, "saved.jpg"))
    lumora.assert_file_is_render(os.path.join(home, "saved.jpg"), photo, "none", "14", "14")
    if folder := os.environ.get("SCREENSHOTS"):
        picture(lumora).save(os.path.join(folder, "screen-colors.png"))

    set_profile(b"no profile" * 400)
    wait_for("the photo as it is under a broken profile", lambda: is_same(picture(lumora), plain))
    set_profile(exchanging)
    wait_for("the colours of the screen again", lambda: is_exchanged(picture(lumora), plain))
    set_profile(None)
    wait_for("the photo as it is", lambda: is_same(picture(lumora), plain))

    set_profile(exchanging)
    wait_for("the colours of the screen again", lambda: is_exchanged(picture(lumora), plain))
    lumora.quit()

with Lumora(build, photo) as lumora:  # and from the start
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    lumora.wait_for_breadcrumb("Original")
    wait_for("the colours of the screen from the start", lambda: is_exchanged(picture(lumora), plain))
    lumora.quit()
say("the photo is seen through the screen's profile, and is saved as it is")
