#!/usr/bin/python3
# SPDX-License-Identifier: LGPL-3.0-or-later
"""One look on every photo of a folder:  folder.py LOOK FROM TO

The new photos are JPEG files of the same names in TO, which is made where it is missing; a file that is there already is
left alone. Photos are read and written by Pillow: colours are taken as they are, and what else a file carries stays
behind."""

import io
import pathlib
import sys

import lumora
import numpy
from PIL import Image, ImageOps


def main(look, source, target):
    failed = False
    target.mkdir(parents=True, exist_ok=True)
    for photo in sorted(path for path in source.iterdir() if path.is_file()):
        is_jpeg = photo.suffix.lower() in (".jpg", ".jpeg")
        new, encoded = target / (photo.name if is_jpeg else photo.name + ".jpg"), io.BytesIO()
        try:
            with Image.open(photo) as picture:
                pixels = numpy.array(ImageOps.exif_transpose(picture).convert("RGBX"))
            lumora.apply(look, pixels)
            Image.fromarray(pixels[..., :3]).save(encoded, "JPEG", quality=90)
            with open(new, "xb") as file:
                file.write(encoded.getvalue())
        except (OSError, ValueError, MemoryError) as reason:
            print(f"{str(photo)!r}: {reason}", file=sys.stderr)
            failed = True
    return failed


if len(sys.argv) != 4:
    sys.exit(__doc__)
sys.exit(main(sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])))
