// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/GifEnd.h"

#include <QIODevice>

namespace {

/// A byte; -1 at the end of the file.
int next(QIODevice& file)
{
    char byte = 0;
    return file.getChar(&byte) ? static_cast<unsigned char>(byte) : -1;
}

/// Skips the colours that the flags of a header tell of.
void skipPalette(QIODevice& file, int flags)
{
    constexpr int hasPalette = 0x80;
    if (flags >= 0 && flags & hasPalette)
        file.skip(3 * (2 << (flags & 7)));
}

/// Skips blocks up to the empty one; false where there is none.
bool skipBlocks(QIODevice& file)
{
    int size = next(file);
    for (; size > 0; size = next(file))
        file.skip(size);
    return size == 0;
}

} // namespace

bool gifBreaksOff(QIODevice& file)
{
    constexpr int extension = 0x21, picture = 0x2C;
    file.seek(10);
    const int flags = next(file);
    file.skip(2);
    skipPalette(file, flags);
    for (;;) {
        const int kind = next(file);
        if (kind == extension) {
            file.skip(1);
            if (!skipBlocks(file))
                return true;
        } else if (kind == picture) {
            file.skip(8); // where it stands
            skipPalette(file, next(file));
            file.skip(1); // how its data begin
            return !skipBlocks(file);
        } else {
            return kind < 0;
        }
    }
}
