// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// Text of any bytes for a log or a terminal: what is valid UTF-8 and can be seen stands as it is, a backslash twice,
/// and every other byte as \xNN. One line comes out, without control characters, and each text differs from every
/// other.
QByteArray escaped(const QByteArray& text);
