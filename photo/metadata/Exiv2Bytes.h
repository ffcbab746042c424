// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <exiv2/exiv2.hpp>

// What the metadata's library is asked, in the words of its versions up to 0.27 and from 0.28 on.

inline QByteArray copied(const Exiv2::DataBuf& data)
{
#if EXIV2_TEST_VERSION(0, 28, 0)
    return QByteArray(reinterpret_cast<const char*>(data.c_data()), qsizetype(data.size()));
#else
    return QByteArray(reinterpret_cast<const char*>(data.pData_), qsizetype(data.size_));
#endif
}

/// The IPTC records among Photoshop's image resources; empty where there are none.
inline QByteArray iptcAmong(const QByteArray& resources)
{
    const auto* const bytes = reinterpret_cast<const Exiv2::byte*>(resources.constData());
    const Exiv2::byte* record = nullptr;
    std::uint32_t heading = 0, size = 0;
#if EXIV2_TEST_VERSION(0, 28, 0)
    const int status = Exiv2::Photoshop::locateIptcIrb(bytes, std::size_t(resources.size()), &record, heading, size);
#else
    const int status = Exiv2::Photoshop::locateIptcIrb(bytes, long(resources.size()), &record, &heading, &size);
#endif
    return status == 0 ? QByteArray(reinterpret_cast<const char*>(record) + heading, qsizetype(size)) : QByteArray();
}

/// From now on also of CR3 files, which older versions leave alone unless they are told.
inline void readBmff()
{
#if !EXIV2_TEST_VERSION(0, 28, 0)
    Exiv2::enableBMFF();
#endif
}
