// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/formats/PhotoHandler.h"

#include <memory>

struct heif_context;
struct heif_image_handle;

/// Reads the main picture of HEIC, HEIF and AVIF files, which phones write, upright and with its colour profile. Works
/// on the caller's thread.
class HeifHandler : public PhotoHandler {
public:
    /// Has the library find its files, which it does with the first picture otherwise. It gets none of the decoders
    /// that systems keep in files of their own: those of this program stand in for them.
    static void loadLibrary();

    bool canRead() const override;
    bool read(QImage* image) override;
    bool supportsOption(ImageOption option) const override { return option == Size || option == ImageFormat; }
    QVariant option(ImageOption option) const override;
    bool isUpright() const override { return true; }
    PhotoMetadata metadata() const override;

private:
    struct Free {
        void operator()(heif_context* context) const;
        void operator()(heif_image_handle* picture) const;
    };

    /// Reads what the file tells of its picture, once; false where there is none.
    bool open() const;

    mutable QByteArray m_bytes; ///< the file, which the context reads in
    mutable std::unique_ptr<heif_context, Free> m_context;
    mutable std::unique_ptr<heif_image_handle, Free> m_picture;
    mutable bool m_opened = false;
};
