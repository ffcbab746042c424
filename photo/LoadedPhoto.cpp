// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/LoadedPhoto.h"

#include "photo/Reason.h"

LoadedPhoto refusedPhoto(const QString& reason)
{
    LoadedPhoto refused;
    refused.reason = reason;
    return refused;
}

QString noMemoryForPhoto()
{
    return Reason::tr("There is not enough free memory for the picture.");
}
