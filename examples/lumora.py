# SPDX-License-Identifier: LGPL-3.0-or-later
"""Photo looks on NumPy arrays, by way of liblumora.so.1.

    import lumora
    lumora.looks()                           # ["Colorcross", "Helga", ...]
    lumora.apply("Helga", pixels)            # in place
    lumora.apply("Helga", pixels, random=7)  # varied, each time in the same way

`pixels` is an array of bytes (uint8) of the shape (height, width, 4): red, green, blue and a spare byte, which stays as
it is. Its rows may lie apart, as those of a part of a larger array do. One call at a time in a process.
"""

import ctypes

import numpy

_library = ctypes.CDLL("liblumora.so.1")
_library.lumora_look_name.restype = ctypes.c_char_p
_library.lumora_error_text.restype = ctypes.c_char_p
_library.lumora_apply.argtypes = [ctypes.c_int, ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_size_t,
                                  ctypes.c_uint]


def looks():
    """The names of the looks."""
    return [_library.lumora_look_name(look).decode() for look in range(_library.lumora_look_count())]


def apply(look, pixels, random=0):
    """Applies the look of that name. `random` 0 takes its fixed settings; 1 to 2^32 - 1 vary them. With an exception
    nothing has changed: ValueError for a name or an array that does not do, MemoryError."""
    if look not in looks():
        raise ValueError(f"There is no look {look!r}.")
    if not 0 <= random < 2**32:
        raise ValueError("random is 0 to 2^32 - 1.")
    if not isinstance(pixels, numpy.ndarray) or pixels.dtype != numpy.uint8 or pixels.ndim != 3 or pixels.shape[2] != 4:
        raise ValueError("The pixels are an array of uint8 of the shape (height, width, 4).")
    height, width = pixels.shape[:2]
    if not pixels.flags.writeable:
        raise ValueError("The array is read-only.")
    if min(height, width) > 0 and (pixels.strides[1:] != (4, 1) or pixels.strides[0] < 4 * width):
        raise ValueError("The four bytes of a pixel, and the pixels of a row, stand one after the other.")
    if max(height, width) > 65535:
        raise ValueError("A side has 65535 pixels at most.")
    error = _library.lumora_apply(looks().index(look), pixels.ctypes.data, width, height, pixels.strides[0], random)
    if error != 0:
        text = _library.lumora_error_text(error).decode()
        raise MemoryError(text) if error == 6 else ValueError(text)
