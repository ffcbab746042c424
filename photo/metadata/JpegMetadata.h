// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/PhotoMetadata.h"

#include <QSize>

/// The JPEG data with as much of its source's metadata as is to be kept, made to fit a picture of `size` pixels. A
/// block that is broken or too large for a JPEG file is left out.
QByteArray withMetadata(const QByteArray& jpeg, const PhotoMetadata& metadata, QSize size, Kept kept);
