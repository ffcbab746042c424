// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// Whether the pictures of a HEIF file that are made of others come to an end: a grid has tiles, a picture has its
/// transparency, and each of them may be a grid again. False where one is made of itself in the end, or of more than
/// any camera writes, which the library would follow for ever.
bool itemsComeToAnEnd(const QByteArray& file);
