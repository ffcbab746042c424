// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/formats/PhotoHandler.h"

/// Reads Truevision TGA: colour-mapped, true-colour and grey pictures, raw and run-length encoded (types 1, 2, 3, 9, 10
/// and 11), of 8, 15, 16, 24 and 32 bits, from any corner. Their widths and heights are 1 .. 65535. Alpha is kept where
/// the file says that it is one. Nothing is allocated for a picture that the rest of the file cannot hold.
class TgaHandler : public PhotoHandler {
public:
    /// True when the device stands at the header of such a file. TGA has no signature: every field is checked.
    static bool canRead(QIODevice& device);

    bool canRead() const override;
    /// Format_RGBA8888 with alpha, Format_RGBX8888 without.
    bool read(QImage* image) override;
    /// Knows Size and ImageFormat.
    QVariant option(ImageOption option) const override;
    bool supportsOption(ImageOption option) const override { return option == Size || option == ImageFormat; }
};
