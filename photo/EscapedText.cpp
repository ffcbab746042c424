// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/EscapedText.h"

#include <QList>
#include <QString>

namespace {

/// The bytes of the character that a text begins with: 1 for a byte that is not UTF-8.
qsizetype firstLength(const QByteArray& text)
{
    const auto first = static_cast<unsigned char>(text[0]);
    const qsizetype length = first < 0xC2 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 1;
    return QString::fromUtf8(text.left(length)).toUtf8() == text.left(length) ? length : 1;
}

bool canBeSeen(const QByteArray& character)
{
    const QList<uint> points = QString::fromUtf8(character).toUcs4();
    if (points.size() != 1 || points[0] == QChar::ReplacementCharacter)
        return false;
    const QChar::Category category = QChar::category(points[0]);
    return QChar::isPrint(points[0]) && category != QChar::Separator_Line && category != QChar::Separator_Paragraph;
}

} // namespace

QByteArray escaped(const QByteArray& text)
{
    QByteArray line;
    for (qsizetype at = 0; at < text.size();) {
        const QByteArray rest = text.mid(at, 4);
        const QByteArray character = rest.left(firstLength(rest));
        at += character.size();
        if (character == "\\")
            line += "\\\\";
        else if (canBeSeen(character))
            line += character;
        else
            for (const char byte : character)
                line += "\\x" + QByteArray(1, byte).toHex();
    }
    return line;
}
