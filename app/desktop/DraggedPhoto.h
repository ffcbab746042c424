// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QMimeData>
#include <functional>

/// What a drag of the photo carries: its JPEG as a file, and its picture. Neither is made before a target asks for it,
/// and the file is made once.
class DraggedPhoto : public QMimeData {
    Q_OBJECT

public:
    /// `file` gives the path of the JPEG, empty where there is none; `render` the picture, null where there is none.
    DraggedPhoto(std::function<QString()> file, std::function<QImage()> render);

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString& format, QMetaType type) const override;

private:
    std::function<QString()> m_makeFile;
    std::function<QImage()> m_makePicture;
    mutable QString m_file; ///< once it was asked for
};
