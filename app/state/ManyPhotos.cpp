// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/ManyPhotos.h"

#include "image/CharImage.h"
#include "photo/Reason.h"
#include "render/Export.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace lumora;

QStringList renderArguments(const ManyChoices& choices, const QString& folder, int jobs)
{
    QStringList arguments;
    for (int i = 0; i < choices.looks.numThings; i++)
        arguments << "--look" << CharImage::getFilterName(choices.looks.theArray[i]);
    if (choices.variation)
        arguments << "--random" << QString::number(*choices.variation);
    arguments << "--strength" << QString::number(choices.strength) << "--crop" << choices.crop << "--border"
              << choices.border << "--size" << choices.size << "--metadata" << keptNames()[int(choices.kept)]
              << "--quality" << qualityNames()[int(choices.quality)];
    arguments << "--jobs" << QString::number(jobs) << "--output" << folder + u'/';
    return arguments << "--skip-existing"
                     << "--json"
                     << "-0"
                     << "--files-from"
                     << "-";
}

void ManyPhotos::add(const QByteArray& printed)
{
    m_unfinished += printed;
    for (qsizetype end; (end = m_unfinished.indexOf('\n')) >= 0; m_unfinished.remove(0, end + 1))
        addLine(m_unfinished.left(end));
}

void ManyPhotos::addLine(const QByteArray& line)
{
    const QJsonObject told = QJsonDocument::fromJson(line).object();
    const QString reason = told["reason"].toString(), warning = told["warning"].toString();
    if (told["skipped"].toBool()) {
        m_there++;
    } else if (!reason.isEmpty()) {
        m_failed++;
    } else {
        m_saved++;
        m_newest = told["output"].toString();
    }
    for (const QString& words : {reason, warning})
        if (!words.isEmpty())
            m_remarks.append({told["file"].toString(), Reason::translated(words)});
}

qint64 ManyPhotos::timeLeft(qint64 passed) const
{
    const int worked = m_saved + m_failed;
    return worked > 0 ? passed * (m_count - done()) / worked : -1;
}
