/* SPDX-License-Identifier: LGPL-3.0-or-later */
#ifndef LUMORA_H
#define LUMORA_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Photo looks on pixels in memory.
 *
 * A pixel is four bytes, in this order on every machine: red, green, blue, each 0 .. 255 and not multiplied by an
 * opacity, and a spare one, which has no effect and stays as it is. Rows stand top first; `stride` is the count of
 * bytes from one row to the next, at least 4 * width. Bytes between two rows are neither read nor written. A side has 1
 * to 65535 pixels, and a picture at most 268435456 (2^28).
 *
 * Looks, crops and borders are numbers from 0. A later version may have more; those that are here keep their numbers.
 *
 * Functions that can fail give LUMORA_OK or the code of an error, and with an error have changed nothing. Nothing is
 * printed. lumora_apply is not reentrant: a process may be in one call of it at a time, and meanwhile no other thread
 * of it may call rand() or random(). All other functions are reentrant. */

enum {
    LUMORA_OK = 0,
    LUMORA_NULL = 1, /* a null pointer */
    LUMORA_UNKNOWN = 2, /* a look, crop or border that is not there */
    LUMORA_BAD_SIZE = 3, /* a side or a picture that is empty or too large */
    LUMORA_BAD_STRIDE = 4, /* shorter than a row, or the rows reach beyond the memory of the machine */
    LUMORA_BAD_STRENGTH = 5, /* not 0 .. 100 */
    LUMORA_NO_MEMORY = 6
};

/* In place of a crop or a border: none. */
enum { LUMORA_NONE = -1 };

/* In pixels. */
struct lumora_rect {
    int x, y, width, height;
};
struct lumora_margins {
    int left, right, top, bottom;
};

/* Texts are constants in English: "1.0.0"; a sentence for each code, also for one that is none. */
const char* lumora_version(void);
const char* lumora_error_text(int code);

/* How many there are, and their names; null for a number that is not there. */
int lumora_look_count(void);
const char* lumora_look_name(int look);
int lumora_crop_count(void);
const char* lumora_crop_name(int crop);
int lumora_border_count(void);
const char* lumora_border_name(int border);

/* The crop and the border that belong to a look; LUMORA_NONE for a look without one, and for what is no look. */
int lumora_look_crop(int look);
int lumora_look_border(int look);

/* Applies a look. `random` 0 takes the fixed settings of the look, and any other number varies them, the same number in
 * the same way: the same arguments give the same bytes. The sequences of rand() and random() go on afterwards as if
 * nothing had been drawn. */
int lumora_apply(int look, unsigned char* pixels, int width, int height, size_t stride, unsigned random);

/* Takes a look back in part: `strength`, 0 .. 100 per cent, is what stays of it. `before` is the picture without the
 * look, of the same size, and is not changed; it may not overlap `pixels`. */
int lumora_mix(int strength, unsigned char* pixels, int width, int height, size_t stride, const unsigned char* before,
    size_t before_stride);

/* The part of a picture that a crop takes: the largest of its shape, in the middle. */
int lumora_crop(int crop, int width, int height, struct lumora_rect* part);

/* The margins of a border round a picture whose longer side has so many pixels. */
int lumora_border(int border, int longer_side, struct lumora_margins* margins);

/* Draws a border on a canvas, in whose margins for the same `longer_side` it stands; the picture is inside them
 * already. Some borders also round or darken the corners of the picture. */
int lumora_draw_border(int border, int longer_side, unsigned char* pixels, int width, int height, size_t stride);

#ifdef __cplusplus
}
#endif

#endif
