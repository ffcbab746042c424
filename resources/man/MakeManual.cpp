// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a manual page for each language: make_manual PAGE FOLDER LANGUAGE.qm...
//
// Its summary, which is all that lists of pages show, stands in the language; the rest stays English. The page of a
// language stands in FOLDER/LANGUAGE/man1.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const QString& reason)
{
    std::fprintf(stderr, "make_manual: %s\n", qPrintable(reason));
    std::exit(1);
}

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) || file.write(text) != text.size()
        || !file.flush())
        fail(path + ": " + file.errorString());
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        fail(QStringLiteral("a page and a folder are wanted"));
    QFile file(arguments[1]);
    if (!file.open(QIODevice::ReadOnly))
        fail(file.fileName() + ": " + file.errorString());
    const QByteArray page = file.readAll(), dash = " \\- ";
    const qsizetype begin = page.indexOf(dash, page.indexOf("\n.SH NAME\n")) + dash.size();
    const QByteArray summary = page.mid(begin, page.indexOf('\n', begin) - begin);
    for (const QString& texts : arguments.mid(3)) {
        QTranslator language;
        const QString words = language.load(texts) ? language.translate("Desktop", summary.constData()) : QString();
        if (words.isEmpty())
            fail(texts + " has no " + summary);
        write(QStringLiteral("%1/%2/man1/%3")
                  .arg(arguments[2], QFileInfo(texts).baseName(), QFileInfo(arguments[1]).fileName()),
            QByteArray(page).replace(begin, summary.size(), words.toUtf8()));
    }
}
