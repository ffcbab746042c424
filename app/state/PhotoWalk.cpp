// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/PhotoWalk.h"

#include "app/state/Rules.h"

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <filesystem>

namespace {

/// Of the names of files as people read them; names that read the same are told apart by their bytes.
class NaturalOrder {
public:
    NaturalOrder()
        : m_collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale()) // C knows no numbers
    {
        m_collator.setNumericMode(true);
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    bool operator()(const QByteArray& a, const QByteArray& b) const
    {
        const int order = m_collator.compare(QString::fromUtf8(a), QString::fromUtf8(b));
        return order != 0 ? order < 0 : a < b;
    }

private:
    QCollator m_collator;
};

/// The names of the regular files in a folder, which is empty or ends with a slash.
QByteArrayList namesIn(const QByteArray& folder)
{
    QByteArrayList names;
    std::error_code error;
    const std::filesystem::path place = folder.isEmpty() ? "." : folder.toStdString();
    for (std::filesystem::directory_iterator entry(place, error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        std::error_code unknown;
        if (name.front() != '.' && entry->is_regular_file(unknown))
            names << QByteArray::fromStdString(name);
    }
    return names;
}

} // namespace

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
        for (const QByteArray& other : path.isEmpty() ? QByteArrayList() : namesIn(folder))
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
