// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/formats/PhotoHandler.h"

#include <QString>
#include <memory>

class QIODevice;

/// What this project does with a file of a format that it reads by itself.
struct OwnFormat {
    std::unique_ptr<PhotoHandler> handler; ///< which reads the file, without a device yet; null where none does
    QString
        reason; ///< why the file cannot be read, where it is of a format whose library this program was built without
};

/// Tells the format by the content of the device, which is left at its beginning. Neither of the two: the format is the
/// platform's, or none.
OwnFormat ownFormat(QIODevice& file);
