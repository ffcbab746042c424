// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/LocalFiles.h"

#include <QMimeData>
#include <QUrl>

QByteArray localFile(const QUrl& address)
{
    return address.isLocalFile() ? QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toLatin1())
                                 : QByteArray();
}

QByteArrayList localFiles(const QMimeData& content)
{
    QByteArrayList paths;
    for (const QUrl& url : content.urls())
        if (url.isLocalFile())
            paths << localFile(url);
    return paths;
}
