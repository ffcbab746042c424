// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

/// A folder that nobody but the user may enter, and that goes with this object.
class PrivateFolder {
public:
    /// Writes a file of that name, beside others that were written before, also under the same name. Gives its path,
    /// empty where it could not be written.
    QString write(const QString& name, const QByteArray& bytes);

private:
    std::unique_ptr<QTemporaryDir> m_folder; ///< made with the first file
    int m_files = 0;
};
