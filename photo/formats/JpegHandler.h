// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/formats/PhotoHandler.h"

#include <memory>

/// Reads JPEG files by libjpeg itself, which tells where a picture breaks off, and gives inks as they are. Works on the
/// caller's thread.
class JpegHandler : public PhotoHandler {
public:
    JpegHandler();
    ~JpegHandler() override;

    /// True when the device stands at the beginning of such a file.
    static bool canRead(QIODevice& device);

    bool canRead() const override;
    /// Format_Grayscale8 or Format_RGBX8888, with its profile where it is not of inks. What the file has lost is grey,
    /// or holds the colours that were next to it.
    bool read(QImage* image) override;
    /// Knows Size and ImageFormat.
    QVariant option(ImageOption option) const override;
    bool supportsOption(ImageOption option) const override { return option == Size || option == ImageFormat; }
    bool hasRows() const override;
    bool readRows(PhotoRows& rows) override;
    bool restIsMissing() const override;

private:
    class Decoder;

    /// Reads the header, once; null where it is none that can be decoded.
    Decoder* open() const;

    mutable std::unique_ptr<Decoder> m_decoder;
};
