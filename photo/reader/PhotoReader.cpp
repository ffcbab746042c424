// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoReader.h"

#include "photo/FreeMemory.h"
#include "photo/PhotoFile.h"
#include "photo/Reason.h"
#include "photo/reader/Channel.h"
#include "photo/reader/ReaderProcess.h"
#include "photo/reader/SharedPhoto.h"

#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <optional>
#include <poll.h>
#include <utility>

namespace {

constexpr int glance = 100; ///< milliseconds between two looks at the time that a process has taken
constexpr qint64 patience = 8; ///< times the processor's time that may pass, as others want the processor too

QString reasonOf(PhotoReader::End end)
{
    using End = PhotoReader::End;
    switch (end) {
    case End::Answered:
        return {};
    case End::BrokeDown:
        return Reason::tr("Reading it failed: the file is damaged, or made to do harm.");
    case End::TookTooLong:
        return Reason::tr("Reading it takes too long: the file is damaged, or made to do harm.");
    case End::TookTooMuchMemory:
        return noMemoryForPhoto();
    case End::TriedFiles:
        return Reason::tr("Reading it was stopped: the file led to other files, which no picture needs.");
    case End::TriedNetwork:
        return Reason::tr("Reading it was stopped: the file led to the network, which no picture needs.");
    case End::Cancelled:
        return Reason::tr("Reading it was cancelled.");
    case End::NotStarted:
        return Reason::tr("The program that reads photos cannot be started. Lumora is not completely installed.");
    }
    return {};
}

} // namespace

class PhotoReader::Private {
public:
    explicit Private(Reads r)
        : reads(r)
    {
        getReady();
    }

    const Reads reads;
    std::unique_ptr<ReaderProcess> waiting;
    std::unique_ptr<ReaderProcess> reading; ///< null when nothing is read
    QElapsedTimer clock;
    qint64 allowed = 0; ///< milliseconds of the processor
    QByteArray path;
    LoadedPhoto photo;
    End end = End::Answered;

    /// Has a process wait for the next photo.
    void getReady()
    {
        if (!waiting && reads == Reads::Many)
            waiting = std::make_unique<ReaderProcess>(readerProgram());
    }

    /// Hands the file to the process that waits, or to a new one where that has gone meanwhile.
    bool handOver(int file, const ReadingLimits& limits)
    {
        for (int attempt = 0; attempt < 2; attempt++) {
            if (attempt > 0 || !waiting)
                waiting = std::make_unique<ReaderProcess>(readerProgram());
            if (waiting->isRunning() && sendPacket(waiting->channel(), packed(limits), file)) {
                reading = std::move(waiting);
                return true;
            }
        }
        return false;
    }

    void finish(End how, const LoadedPhoto& what)
    {
        reading.reset();
        end = how;
        photo = what;
    }

    void finish(End how) { finish(how, refusedPhoto(reasonOf(how))); }

    void receive()
    {
        Packet packet = receivePacket(reading->channel());
        if (packet.bytes.isEmpty())
            return finish(reading->end());
        const auto answer = unpackedAnswer(packet.bytes, sealedBytes(packet.file));
        if (!answer)
            return finish(End::BrokeDown);
        finish(End::Answered, receivedPhoto({*answer, std::move(packet.file)}));
    }

    bool isOutOfTime() const { return reading->milliseconds() > allowed || clock.elapsed() > allowed * patience; }
};

PhotoReader::PhotoReader(Reads reads)
    : m(std::make_unique<Private>(reads))
{
}

PhotoReader::~PhotoReader() = default;

void PhotoReader::begin(const QByteArray& path)
{
    m->finish(End::Answered, {});
    m->path = path;
    QFile file;
    const QString reason = openPhotoFile(path, file);
    if (!reason.isEmpty())
        return m->finish(End::Answered, refusedPhoto(reason));
    m->allowed = readingTime(file.size());
    m->clock.start();
    // The reader's own limit is for one whom nobody watches any more.
    if (!m->handOver(file.handle(), {freeMemory(), m->allowed / 1000 + 2}))
        m->finish(End::NotStarted);
}

const QByteArray& PhotoReader::path() const
{
    return m->path;
}

bool PhotoReader::isDone(int milliseconds)
{
    QElapsedTimer waited;
    waited.start();
    while (m->reading) {
        const qint64 left = std::max<qint64>(milliseconds - waited.elapsed(), 0);
        pollfd answer = {m->reading->channel(), POLLIN, 0};
        if (poll(&answer, 1, int(std::min<qint64>(left, glance))) > 0)
            m->receive();
        else if (m->isOutOfTime())
            m->finish(End::TookTooLong);
        else if (left == 0)
            return false;
    }
    return true;
}

int PhotoReader::descriptor() const
{
    return m->reading ? m->reading->channel() : -1;
}

void PhotoReader::cancel()
{
    if (m->reading)
        m->finish(End::Cancelled);
}

LoadedPhoto PhotoReader::take()
{
    while (!isDone(glance))
        ;
    m->getReady();
    m->path.clear();
    return std::exchange(m->photo, {});
}

PhotoReader::End PhotoReader::end() const
{
    return m->end;
}
