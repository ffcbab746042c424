// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/formats/PhotoHandler.h"

#include <memory>

class LibRaw;

/// Develops what a camera's sensor saw: in sRGB, with the white balance of the moment, upright, otherwise as the
/// library does by itself. Works on the caller's thread.
class RawHandler : public PhotoHandler {
public:
    RawHandler();
    ~RawHandler() override;

    bool canRead() const override;
    bool read(QImage* image) override;
    bool supportsOption(ImageOption option) const override { return option == Size || option == ImageFormat; }
    QVariant option(ImageOption option) const override;
    bool isUpright() const override { return true; }
    PhotoMetadata metadata() const override;

private:
    /// The file as the library has it before it decodes anything; null where it is none of its kinds.
    std::unique_ptr<LibRaw> opened() const;

    mutable QByteArray m_bytes; ///< the file, read once
};
