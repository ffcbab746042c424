// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lumora-render/Report.h"

#include "photo/EscapedText.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>
#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace {

/// A name for JSON, which has no bytes: one that is no UTF-8 is escaped.
QString nameText(const QByteArray& name)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(name);
    return decoder.hasError() ? QString::fromLatin1(escaped(name)) : text;
}

QJsonObject lineOf(std::size_t number, const Task& task)
{
    return {{"number", qint64(number) + 1}, {"file", nameText(task.source)}, {"output", nameText(task.output)}};
}

/// Whole, or the program ends: whoever asked for the lines has gone.
void print(int stream, const QJsonObject& line)
{
    if (stream < 0)
        return;
    const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    for (qsizetype at = 0; at < text.size();) {
        const ssize_t count = write(stream, text.constData() + at, std::size_t(text.size() - at));
        if (count < 0 && errno != EINTR)
            _exit(1);
        at += count > 0 ? count : 0;
    }
}

} // namespace

void Report::addSkipped(std::size_t number, const Task& task)
{
    QJsonObject line = lineOf(number, task);
    line["skipped"] = true;
    print(m_lines, line);
}

void Report::addResult(std::size_t number, const Task& task, const Result& result)
{
    const Outcome& outcome = result.outcome;
    QJsonObject line = lineOf(number, task);
    line["milliseconds"] = result.milliseconds;
    if (outcome.reason.isEmpty()) {
        line["width"] = outcome.width;
        line["height"] = outcome.height;
        line["size"] = outcome.bytes;
    } else {
        line["reason"] = outcome.reason;
        m_hasFailures = true;
    }
    if (!outcome.warning.isEmpty())
        line["warning"] = outcome.warning;
    for (const QString& words : {outcome.reason, outcome.warning})
        if (!words.isEmpty())
            complain(escaped(task.source) + ": " + words.toUtf8());
    print(m_lines, line);
}

void complain(const QByteArray& line)
{
    std::fprintf(stderr, "lumora-render: %s\n", line.constData());
}
