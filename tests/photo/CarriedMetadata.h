// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <exiv2/exiv2.hpp>
#include <memory>
#include <utility>

/// A copy of the file, with what it carries beside its picture, in the words of the library's versions up to 0.27 and
/// from 0.28 on.
inline auto openedImage(const QByteArray& file)
{
    const auto* const bytes = reinterpret_cast<const Exiv2::byte*>(file.constData());
#if EXIV2_TEST_VERSION(0, 28, 0)
    auto copy = std::make_unique<Exiv2::MemIo>();
    copy->write(bytes, std::size_t(file.size()));
    auto image = Exiv2::ImageFactory::open(std::move(copy));
#else
    Exiv2::BasicIo::AutoPtr copy(new Exiv2::MemIo);
    copy->write(bytes, long(file.size()));
    auto image = Exiv2::ImageFactory::open(copy);
#endif
    image->readMetadata();
    return image;
}
