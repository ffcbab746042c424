// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/PhotoWalk.h"

#include "app/state/FolderFiles.h"
#include "app/state/Rules.h"

#include <algorithm>

void PhotoWalk::setFiles(const QByteArrayList& files)
{
    m_files.clear();
    for (const QByteArray& file : files)
        if (!m_files.contains(file))
            m_files << file;
    if (m_files.size() == 1)
        m_files.clear();
}

QByteArrayList PhotoWalk::from(const QByteArray& path, Direction direction) const
{
    QByteArrayList before = m_files, after;
    if (const qsizetype at = m_files.indexOf(path); at >= 0) {
        after = before.sliced(at + 1);
        before.resize(at);
    } else {
        const QByteArray name = fileNameOf(path), folder = path.chopped(name.size());
        const NaturalOrder inOrder;
        before.clear();
        for (const QByteArray& other : path.isEmpty() ? QByteArrayList() : filesIn(folder))
            if (other != name)
                (inOrder(other, name) ? before : after) << other;
        for (QByteArrayList* names : {&before, &after}) {
            std::sort(names->begin(), names->end(), inOrder);
            for (QByteArray& other : *names)
                other.prepend(folder);
        }
    }
    std::reverse(before.begin(), before.end());
    return direction == On ? after : before;
}
