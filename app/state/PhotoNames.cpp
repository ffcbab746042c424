// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/PhotoNames.h"

#include "app/state/FolderFiles.h"

#include <QStringList>
#include <algorithm>

QStringList photoEndings()
{
    return QStringLiteral(
        "jpg jpeg jpe gif png psd psb tga bmp tif tiff webp heic heif hif avif jxl ppm pgm dng 3fr arw "
        "cr2 cr3 crw dcr erf iiq kdc mef mos mrw nef nrw orf pef raf rw2 rwl sr2 srw x3f")
        .split(u' ');
}

QByteArrayList photosIn(const QByteArray& folder)
{
    const QStringList endings = photoEndings();
    QByteArrayList photos = filesIn(folder);
    photos.removeIf([&](const QByteArray& name) {
        const qsizetype dot = name.lastIndexOf('.');
        return dot < 0 || !endings.contains(QString::fromLatin1(name.mid(dot + 1).toLower()));
    });
    std::sort(photos.begin(), photos.end(), NaturalOrder());
    for (QByteArray& photo : photos)
        photo.prepend(folder + '/');
    return photos;
}
