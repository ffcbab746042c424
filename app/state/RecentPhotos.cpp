// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/RecentPhotos.h"

#include "app/state/Preferences.h"

#include <QDir>
#include <QFile>
#include <algorithm>

namespace {

constexpr char key[] =
    "Recent/Photos"; ///< paths in percent notation, as preferences are ASCII, with spaces between them
constexpr qsizetype most = 8;

void store(const QByteArrayList& paths)
{
    QByteArrayList words;
    for (const QByteArray& path : paths)
        words << path.toPercentEncoding("/");
    setPreferenceString(key, words.join(' ').constData());
}

} // namespace

QByteArrayList recentPhotos()
{
    QByteArrayList paths;
    for (const QByteArray& word : QByteArray(getPreferenceString(key).cString()).split(' '))
        if (!word.isEmpty() && paths.size() < most)
            paths << QByteArray::fromPercentEncoding(word);
    return paths;
}

void addRecentPhoto(const QByteArray& path)
{
    const QByteArray absolute = path.startsWith('/') ? path : QFile::encodeName(QDir::currentPath()) + '/' + path;
    QByteArrayList paths = recentPhotos();
    paths.removeAll(absolute);
    paths.prepend(absolute);
    store(paths.first(std::min(paths.size(), most)));
}

void clearRecentPhotos()
{
    store({});
}
