// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/Message.h"

#include "photo/PhotoDecoder.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>

// Both ends are of one build and on one machine: the bytes are those of plain structures.

namespace {

constexpr quint32 limitsMark = 0x6C726571, photoMark = 0x6C72706A, refusalMark = 0x6C727265;

struct LimitsMessage {
    quint32 mark = limitsMark, unused = 0;
    qint64 memory = 0, seconds = 0;
};

enum class Order : quint32 { Rgbx = 1, Rgb32 = 2 };

struct PhotoMessage {
    quint32 mark = photoMark;
    quint32 order = 0;
    qint32 width = 0, height = 0;
    quint32 blockCount = 0, restIsMissing = 0;
    std::array<qint64, maxBlocks> blocks = {}; // those beyond the count are 0
};

template <class Message> QByteArray bytesOf(const Message& message)
{
    static_assert(std::has_unique_object_representations_v<Message>, "padding would carry bytes of the memory");
    static_assert(sizeof(Message) <= maxMessageBytes);
    return QByteArray(reinterpret_cast<const char*>(&message), sizeof message);
}

template <class Message> std::optional<Message> messageOf(const QByteArray& bytes)
{
    Message message;
    if (bytes.size() != sizeof message)
        return {};
    std::memcpy(&message, bytes.constData(), sizeof message);
    return message.mark == Message().mark ? std::optional(message) : std::nullopt;
}

quint32 markOf(const QByteArray& bytes)
{
    quint32 mark = 0;
    if (bytes.size() >= qsizetype(sizeof mark))
        std::memcpy(&mark, bytes.constData(), sizeof mark);
    return mark;
}

std::optional<ReaderAnswer> unpackedRefusal(const QByteArray& message)
{
    const QByteArray text = message.mid(sizeof refusalMark);
    ReaderAnswer answer;
    answer.reason = QString::fromUtf8(text);
    if (text.isEmpty() || text.size() > maxReasonBytes || answer.reason.toUtf8() != text)
        return {};
    return answer;
}

std::optional<ReaderAnswer> unpackedPhoto(const PhotoMessage& message, qint64 sharedBytes)
{
    ReaderAnswer answer;
    if (message.order == quint32(Order::Rgbx))
        answer.format = QImage::Format_RGBX8888;
    else if (message.order == quint32(Order::Rgb32))
        answer.format = QImage::Format_RGB32;
    else
        return {};
    answer.size = QSize(message.width, message.height);
    if (message.width < 1 || message.height < 1 || qint64(message.width) * message.height > maxPhotoPixels)
        return {};
    if (message.blockCount > maxBlocks || message.restIsMissing > 1)
        return {};
    answer.restIsMissing = message.restIsMissing == 1;
    qint64 bytes = 0;
    for (std::size_t i = 0; i < message.blocks.size(); i++) {
        const qint64 block = message.blocks[i];
        if (block < 0 || block > maxBlockBytes || (i >= message.blockCount && block != 0))
            return {};
        bytes += block;
        if (i < message.blockCount)
            answer.blocks << block;
    }
    if (bytes > maxBlockBytes || answer.pictureBytes() + bytes != sharedBytes)
        return {};
    return answer;
}

} // namespace

QByteArray packed(const ReadingLimits& limits)
{
    LimitsMessage message;
    message.memory = limits.memory;
    message.seconds = limits.seconds;
    return bytesOf(message);
}

QByteArray packed(const ReaderAnswer& answer)
{
    if (!answer.reason.isEmpty()) {
        QString reason = answer.reason;
        while (reason.toUtf8().size() > maxReasonBytes)
            reason.chop(1);
        return QByteArray(reinterpret_cast<const char*>(&refusalMark), sizeof refusalMark) + reason.toUtf8();
    }
    PhotoMessage message;
    message.order = quint32(answer.format == QImage::Format_RGB32 ? Order::Rgb32 : Order::Rgbx);
    message.width = answer.size.width();
    message.height = answer.size.height();
    message.blockCount = quint32(answer.blocks.size());
    message.restIsMissing = answer.restIsMissing;
    std::copy(answer.blocks.begin(), answer.blocks.end(), message.blocks.begin());
    return bytesOf(message);
}

std::optional<ReadingLimits> unpackedLimits(const QByteArray& message)
{
    const auto limits = messageOf<LimitsMessage>(message);
    if (!limits || limits->unused != 0 || limits->memory < 0 || limits->seconds < 1)
        return {};
    return ReadingLimits{limits->memory, limits->seconds};
}

std::optional<ReaderAnswer> unpackedAnswer(const QByteArray& message, qint64 sharedBytes)
{
    if (markOf(message) == refusalMark && sharedBytes == 0)
        return unpackedRefusal(message);
    const auto photo = messageOf<PhotoMessage>(message);
    return photo ? unpackedPhoto(*photo, sharedBytes) : std::nullopt;
}
