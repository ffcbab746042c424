// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QCollator>

/// The names of the regular files in a folder, in no order; hidden ones and those of folders in it are left out. The
/// folder, which may be empty for the one where the program runs, and the names are any bytes.
QByteArrayList filesIn(const QByteArray& folder);

/// The natural order of the names of files as people read them, "2" before "10"; names that read the same are told
/// apart by their bytes.
class NaturalOrder {
public:
    NaturalOrder();

    bool operator()(const QByteArray& a, const QByteArray& b) const;

private:
    QCollator m_collator;
};
