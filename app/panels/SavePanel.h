// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowArray.h"

#include <QByteArray>
#include <QFileDialog>

class QLabel;

/// Asks where a photo goes, which is a JPEG whatever the ending of its name. The panel is Qt's own: it says so in a
/// line of its own, stays open where a name will not do, and asks one question at most for a choice.
class SavePanel : public QFileDialog {
    Q_OBJECT

public:
    /// For a file of `bytes` bytes. `openPhoto` is the path of the photo that is worked on, of any bytes; `looks` are
    /// those that it is saved with.
    SavePanel(QWidget* parent, qint64 bytes, const QByteArray& openPhoto, const lumora::GrowArray<int>& looks);

    /// The path that was chosen, absolute, with one of the six endings; once the panel was confirmed.
    const QString& path() const { return m_path; }

    void accept() override;

private:
    bool isOpenPhoto(const QString& path) const;
    QString pathBeside(const QString& path) const;
    /// The path to write where it is certain or people say so; empty where they do not.
    QString askAbout(const QString& path);

    qint64 m_bytes;
    QByteArray m_openPhoto;
    const lumora::GrowArray<int>& m_looks;
    QString m_path;
    QLabel* m_trouble; ///< owned by the panel; says why a name will not do
};
