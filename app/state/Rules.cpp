// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state/Rules.h"

#include "image/CharImage.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>

using namespace lumora;

std::vector<int> furtherLooks()
{
    std::vector<int> looks;
    const GrowArray<int> all = CharImage::getLooks();
    for (int i = 0; i < all.numThings; i++)
        if (std::ranges::count(buttonFilters, all.theArray[i]) == 0)
            looks.push_back(all.theArray[i]);
    return looks;
}

int displayResAtLoad(int frameSide)
{
    int res = 800;
    while (res < frameSide)
        res += 20;
    return res;
}

int displayResAfterResize(int displayRes, int frameSide)
{
    while (displayRes < frameSide)
        displayRes = int(displayRes * 1.2);
    return displayRes;
}

QSizeF displaySize(const QSize& photo, int displayRes)
{
    const qreal width = photo.width(), height = photo.height();
    if (height > width && height > displayRes)
        return {width / height * displayRes, qreal(displayRes)};
    if (height < width && width > displayRes)
        return {qreal(displayRes), height / width * displayRes};
    return photo;
}

QSizeF thumbnailSize(const QSize& photo)
{
    const qreal width = photo.width(), height = photo.height();
    if (width > height)
        return {width / height * 100, 100};
    return {100, height / width * 100};
}

int thumbnailSide(int buttonWidth, int windowHeight)
{
    constexpr int smallest = 72, largest = 120, frame = 8, shareOfHeight = 9;
    return std::clamp(std::min(buttonWidth - frame, windowHeight / shareOfHeight), smallest, largest);
}

QString breadcrumb(const GrowArray<int>& filterIDs, bool multi)
{
    QString text;
    if (multi || filterIDs.numThings == 0)
        text += QString::fromUtf8(CharImage::getFilterName(Filter::original));
    for (int i = 0; i < filterIDs.numThings; i++) {
        if (!text.isEmpty())
            text += QStringLiteral(" > ");
        text += QString::fromUtf8(CharImage::getFilterName(filterIDs.theArray[i]));
    }
    return text;
}

QString shownNumber(qint64 number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

QString shownLength(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, bytes < 1'000'000 ? 0 : 1, QLocale::DataSizeSIFormat);
}

QString savedLine(const QByteArray& fileName, const QSize& picture, qint64 bytes)
{
    return QCoreApplication::translate("MainWindowController", "Saved %1, %2 x %3, %4")
        .arg(shownName(fileName), shownNumber(picture.width()), shownNumber(picture.height()), shownLength(bytes));
}

QString withJpegEnding(const QString& path)
{
    for (const char* ending : {".jpg", ".jpeg", ".gif", ".png", ".psd", ".tga"})
        if (path.endsWith(QLatin1String(ending), Qt::CaseInsensitive))
            return path;
    return path + QStringLiteral(".jpg");
}

QByteArray fileNameOf(const QByteArray& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

QString shownName(const QByteArray& fileName)
{
    QString name = QString::fromUtf8(fileName);
    for (QChar& c : name)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    return name;
}
