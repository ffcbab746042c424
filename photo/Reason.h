// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

/// Why something could not be done, in a whole sentence for people, as Reason::tr("The disk is full."). It is in the
/// language of the process that gives it. Only the window has one; the others give their reasons in English.
struct Reason {
    Q_DECLARE_TR_FUNCTIONS(Reason)

public:
    /// A reason that came in English from another process, in the language of this one; anything else as it is.
    static QString translated(const QString& english);
};
