// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/PrivateFolder.h"

#include <QDir>
#include <QFile>

QString PrivateFolder::write(const QString& name, const QByteArray& bytes)
{
    for (const QString& place : {qEnvironmentVariable("XDG_RUNTIME_DIR"), QDir::tempPath()})
        if (!m_folder && QFileInfo(place).isDir()) {
            m_folder = std::make_unique<QTemporaryDir>(place + QStringLiteral("/lumora-XXXXXX"));
            if (!m_folder->isValid())
                m_folder.reset();
        }
    if (!m_folder)
        return {};
    // Each in a folder of its own: a program that was given one may read it later.
    const QDir folder(m_folder->filePath(QString::number(++m_files)));
    QFile file(folder.filePath(name));
    const bool written = folder.mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly)
        && file.write(bytes) == bytes.size() && file.flush();
    if (!written)
        file.remove();
    return written ? file.fileName() : QString();
}
