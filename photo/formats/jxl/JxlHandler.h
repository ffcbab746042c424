// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/formats/PhotoHandler.h"

/// Reads the first frame of JPEG XL files, upright and with its colour profile. Works on the caller's thread.
class JxlHandler : public PhotoHandler {
public:
    bool canRead() const override;
    bool read(QImage* image) override;
    bool supportsOption(ImageOption option) const override { return option == Size || option == ImageFormat; }
    QVariant option(ImageOption option) const override;
    bool isUpright() const override { return true; }
    PhotoMetadata metadata() const override;

private:
    QByteArray bytes() const;

    mutable QByteArray m_bytes; ///< the file, read once
};
