// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/FolderFiles.h"

#include <QLocale>
#include <filesystem>

QByteArrayList filesIn(const QByteArray& folder)
{
    QByteArrayList names;
    std::error_code error;
    const std::filesystem::path place = folder.isEmpty() ? "." : folder.toStdString();
    for (std::filesystem::directory_iterator entry(place, error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        std::error_code unknown; // a link that leads nowhere is no file
        if (name.front() != '.' && entry->is_regular_file(unknown))
            names << QByteArray::fromStdString(name);
    }
    return names;
}

NaturalOrder::NaturalOrder()
    : m_collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale()) // C knows no numbers
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

bool NaturalOrder::operator()(const QByteArray& a, const QByteArray& b) const
{
    const int order = m_collator.compare(QString::fromUtf8(a), QString::fromUtf8(b));
    return order != 0 ? order < 0 : a < b;
}
