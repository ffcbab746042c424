// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/Reason.h"

#include <QRegularExpression>
#include <QStringList>

QString Reason::translated(const QString& english)
{
    // Where a sentence has a number, the text that it was made from has %1, %2 and so on, in their order.
    static const QRegularExpression digits(QStringLiteral("[0-9]+"));
    QString source;
    QStringList numbers;
    qsizetype end = 0;
    for (const QRegularExpressionMatch& number : digits.globalMatch(english)) {
        numbers << number.captured();
        source += english.mid(end, number.capturedStart() - end) + u'%' + QString::number(numbers.size());
        end = number.capturedEnd();
    }
    source += english.mid(end);
    QString text = tr(source.toUtf8().constData());
    if (text == source)
        return english;
    for (const QString& number : numbers)
        text = text.arg(number);
    return text;
}
