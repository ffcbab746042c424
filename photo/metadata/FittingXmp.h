// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

/// The XMP packet `xmp` for a picture of `size` pixels, upright and from this program, without pictures in it; empty
/// where it is broken. Without the place, too, where that is not to be kept.
QByteArray fittingXmp(const QByteArray& xmp, QSize size, bool withPlace);

/// The IPTC records as they are, or without the place; empty where they are broken.
QByteArray fittingIptc(const QByteArray& iptc, bool withPlace);
