// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>
#include <optional>

// What the window and a reader say to each other: one message each, with an open file beside it. The window sends the
// photo's file and the limits; the reader answers with shared memory that holds the picture, or with a reason.

/// How much a reader may take.
struct ReadingLimits {
    qint64 memory; ///< bytes beyond what it has taken when it begins
    qint64 seconds; ///< of the processor
};

/// A reader's answer. The shared memory holds the picture's rows from the top, four bytes a pixel and nothing between
/// the rows, and then the blocks, one after another.
struct ReaderAnswer {
    QString reason; ///< why there is no photo; empty where there is one
    QSize size; ///< of the photo in pixels
    QImage::Format format = QImage::Format_Invalid; ///< Format_RGBX8888 or Format_RGB32
    bool restIsMissing = false; ///< the photo is not whole
    QList<qint64> blocks; ///< the sizes of what else the photo carries, in bytes

    qint64 pictureBytes() const { return qint64(size.width()) * size.height() * 4; }
};

inline constexpr qsizetype maxReasonBytes = 2000; ///< in UTF-8; a longer one is cut
inline constexpr qsizetype maxBlocks = 16;
inline constexpr qint64 maxBlockBytes = qint64(64) << 20; ///< of all blocks together
inline constexpr qsizetype maxMessageBytes = 4096;

QByteArray packed(const ReadingLimits& limits);
QByteArray packed(const ReaderAnswer& answer);

/// What such a message says; none where a single byte of it is not as it must be. The reader of a hostile file may
/// send anything: `sharedBytes` is the size of the memory that came with its message, 0 for none, and must be what the
/// answer needs to the byte.
std::optional<ReadingLimits> unpackedLimits(const QByteArray& message);
std::optional<ReaderAnswer> unpackedAnswer(const QByteArray& message, qint64 sharedBytes);
