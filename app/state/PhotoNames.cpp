// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/PhotoNames.h"

#include <QStringList>
#include <algorithm>
#include <filesystem>

QStringList photoEndings()
{
    return QStringLiteral(
        "jpg jpeg jpe gif png psd psb tga bmp tif tiff webp heic heif hif avif jxl ppm pgm dng 3fr arw "
        "cr2 cr3 crw dcr erf iiq kdc mef mos mrw nef nrw orf pef raf rw2 rwl sr2 srw x3f")
        .split(u' ');
}

std::vector<QByteArray> photosIn(const QByteArray& folder)
{
    const QStringList endings = photoEndings();
    std::vector<QByteArray> photos;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder.toStdString(), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown; // a link that leads nowhere is no file
        const QByteArray path = QByteArray::fromStdString(entry->path().native());
        const qsizetype dot = path.lastIndexOf('.');
        if (entry->is_regular_file(unknown) && endings.contains(QString::fromLatin1(path.mid(dot + 1).toLower())))
            photos.push_back(path);
    }
    std::ranges::sort(photos);
    return photos;
}
