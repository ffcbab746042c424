// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/formats/PhotoHandler.h"

/// Reads the merged picture of PSD and PSB files, raw or run-length encoded: bitmap, grey, indexed, RGB, CMYK, duotone
/// (as grey) and Lab, of 1, 8, 16 and 32 bits. Nothing is allocated for a picture that the rest of the file cannot
/// hold.
class PsdHandler : public PhotoHandler {
public:
    /// True when the device stands at the header of such a file, whatever is in it.
    static bool canRead(QIODevice& device);

    bool canRead() const override;
    /// 16 bits a channel for deep RGB and grey pictures, 8 for all others; an RGB picture carries its profile.
    bool read(QImage* image) override;
    /// Knows Size and ImageFormat.
    QVariant option(ImageOption option) const override;
    bool supportsOption(ImageOption option) const override { return option == Size || option == ImageFormat; }
    PhotoMetadata metadata() const override { return m_metadata; }

private:
    PhotoMetadata m_metadata;
};
