// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/DraggedPhoto.h"

#include <QUrl>
#include <utility>

namespace {

const QString files = QStringLiteral("text/uri-list"), picture = QStringLiteral("application/x-qt-image");

} // namespace

DraggedPhoto::DraggedPhoto(std::function<QString()> file, std::function<QImage()> render)
    : m_makeFile(std::move(file))
    , m_makePicture(std::move(render))
{
}

QStringList DraggedPhoto::formats() const
{
    return {files, picture};
}

QVariant DraggedPhoto::retrieveData(const QString& format, QMetaType) const
{
    if (format == picture) {
        const QImage render = m_makePicture();
        return render.isNull() ? QVariant() : QVariant(render);
    }
    if (format != files)
        return {};
    if (m_file.isEmpty())
        m_file = m_makeFile();
    return m_file.isEmpty() ? QVariant() : QVariant(QVariantList{QUrl::fromLocalFile(m_file)});
}
