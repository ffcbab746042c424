// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/EscapedText.h"

#include <QTest>

class EscapedTextTest : public QObject {
    Q_OBJECT

private slots:
    void onlyWhatCanBeSeenStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const char* name, const QByteArray& text, const QByteArray& line) {
            QTest::newRow(name) << text << line;
        };
        row("empty", "", "");
        row("plain", "/home/me/my photo (2).jpg", "/home/me/my photo (2).jpg");
        row("per cent", "100%s%n", "100%s%n");
        row("beyond ASCII", "写真 фото é ☀ 🌞", "写真 фото é ☀ 🌞");
        row("a combined accent", "e\xCC\x81", "e\xCC\x81");
        row("a terminal's title", "\x1B]0;mine\x07.png", R"(\x1b]0;mine\x07.png)");
        row("a line of its own", "a\nError: b\r\t", R"(a\x0aError: b\x0d\x09)");
        row("a zero", QByteArray("a\0b", 3), R"(a\x00b)");
        row("delete", "\x7F", R"(\x7f)");
        row("a control character beyond ASCII", "\xC2\x9B", R"(\xc2\x9b)");
        row("that byte alone", "\x9B", R"(\x9b)");
        row("right to left", "\xE2\x80\xAEgpj.exe", R"(\xe2\x80\xaegpj.exe)");
        row("line separator", "\xE2\x80\xA8", R"(\xe2\x80\xa8)");
        row("not UTF-8", "\xFF\xFE.png", R"(\xff\xfe.png)");
        row("a character cut off", "\xE5\x86", R"(\xe5\x86)");
        row("a character cut off before another", "\xE5\x86é", R"(\xe5\x86é)");
        row("longer than it must be", "\xC0\xAF", R"(\xc0\xaf)");
        row("half of a pair", "\xED\xA0\x80", R"(\xed\xa0\x80)");
        row("no character", "\xF4\x90\x80\x80", R"(\xf4\x90\x80\x80)");
        row("a backslash, so that no two names look the same", R"(\x1b)", R"(\\x1b)");
    }
    void onlyWhatCanBeSeenStaysAsItIs()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, line);
        QCOMPARE(escaped(text), line);
    }
};

QTEST_GUILESS_MAIN(EscapedTextTest)
#include "EscapedTextTest.moc"
