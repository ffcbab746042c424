// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/LocalFiles.h"

#include <QMimeData>
#include <QUrl>

QByteArrayList localFiles(const QMimeData& content)
{
    QByteArrayList paths;
    for (const QUrl& url : content.urls())
        if (url.isLocalFile())
            paths << QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return paths;
}
