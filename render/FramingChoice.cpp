// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/FramingChoice.h"

#include "image/CharImage.h"

#include <QCoreApplication>

using namespace lumora;

QStringList cropChoices()
{
    return {QT_TRANSLATE_NOOP("FramingChoice", "By Filter"), QT_TRANSLATE_NOOP("FramingChoice", "Square"), "Cinema",
        "6x4", "4x3", "7x6", QT_TRANSLATE_NOOP("FramingChoice", "None")};
}

QStringList borderChoices()
{
    return {"By Filter", QT_TRANSLATE_NOOP("FramingChoice", "Thin"), QT_TRANSLATE_NOOP("FramingChoice", "Medium"),
        QT_TRANSLATE_NOOP("FramingChoice", "Thick"), QT_TRANSLATE_NOOP("FramingChoice", "Rounded"), "Instant", "Cinema",
        "None"};
}

QStringList sizeChoices()
{
    return {QT_TRANSLATE_NOOP("FramingChoice", "Original"), "1600", "1400", "1200", "1000", "800", "600", "500", "400",
        "200", "100"};
}

QString shownChoice(const QString& choice)
{
    return QCoreApplication::translate("FramingChoice", choice.toUtf8().constData());
}

int chosenFilter(const QString& choice, const GrowArray<int>& looks)
{
    if (choice == QLatin1String("By Filter") && looks.numThings > 0)
        return looks.theArray[looks.numThings - 1];
    return CharImage::getFilterFromName(choice.toUtf8().constData());
}

int chosenSize(const QString& choice)
{
    return choice == QLatin1String("Original") ? -1 : choice.toInt();
}
