// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Photo.h"

#include "app/state/Rules.h"
#include "render/Export.h"
#include "render/Scaled.h"

#include <algorithm>

namespace {

constexpr int longestStrip = 10; ///< how many times as long as broad a thumbnail copy may be

/// The middle of a long strip, all of any other picture. A thumbnail shows no more than the middle, in a square as
/// large as its copy is long: those of whole strips would take gigabytes.
QImage middleOf(const QImage& image)
{
    const int longest = std::min(image.width(), image.height()) * longestStrip;
    QRect middle(QPoint(), image.size().boundedTo({longest, longest}));
    middle.moveCenter(image.rect().center());
    return middle == image.rect() ? image : image.copy(middle);
}

} // namespace

QByteArray Photo::fileName() const
{
    return filePath.isEmpty() ? name : fileNameOf(filePath);
}

void Photo::setOriginal(const QImage& image, int displayRes, qreal density)
{
    m_original = image;
    m_display = scaledTo(image, bitmapSize(displaySize(image.size(), displayRes)));
    setThumbDensity(density);
}

void Photo::setThumbDensity(qreal density)
{
    m_thumbDensity = density;
    const QImage middle = middleOf(m_original);
    const QSize thumb = bitmapSize(thumbnailSize(middle.size()) * density);
    // The display copy shows the same, and a large photo takes a while to read once more.
    const bool isAmple = middle.size() == m_original.size() && (2 * thumb).boundedTo(m_display.size()) == 2 * thumb;
    m_thumb = scaledTo(isAmple ? m_display : middle, thumb);
}
