/* SPDX-License-Identifier: LGPL-3.0-or-later
 * A look on a photo:  look LOOK [SEED] <PHOTO.ppm >NEW.ppm      Without arguments: the names of the looks. */
#include <lumora.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(int argc, char** argv)
{
    int look = 0, width = 0, height = 0;
    for (; lumora_look_name(look) && (argc < 2 || strcmp(lumora_look_name(look), argv[1]) != 0); look++)
        if (argc < 2)
            puts(lumora_look_name(look));
    if (argc < 2)
        return 0;
    if (scanf("P6 %5d %5d 255", &width, &height) != 2 || width < 1 || height < 1 || getchar() == EOF)
        return fputs("look: this is no photo in the format PPM\n", stderr), 1;
    const size_t stride = (size_t)width * 4;
    unsigned char* const pixels = calloc((size_t)height, stride);
    for (size_t i = 0; pixels && i < stride * (size_t)height; i += 4)
        if (fread(pixels + i, 3, 1, stdin) != 1)
            return fputs("look: the photo breaks off\n", stderr), 1;
    const unsigned random = argc > 2 ? (unsigned)strtoul(argv[2], NULL, 10) : 0;
    const int error = pixels ? lumora_apply(look, pixels, width, height, stride, random) : LUMORA_NO_MEMORY;
    if (error != LUMORA_OK)
        return fprintf(stderr, "look: %s\n", lumora_error_text(error)), 1;
    printf("P6\n%d %d\n255\n", width, height);
    for (size_t i = 0; i < stride * (size_t)height; i += 4)
        fwrite(pixels + i, 3, 1, stdout);
    free(pixels);
    return fflush(stdout) != 0 || ferror(stdout);
}
