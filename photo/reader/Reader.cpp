#include "photo/reader/Reader.h"

#include "photo/EscapedText.h"
#include "photo/PhotoDecoder.h"
#include "photo/reader/Channel.h"
#include "photo/reader/Confinement.h"
#include "photo/reader/SharedPhoto.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <sys/prctl.h>

namespace {

/// Decoders tell of damage in words that may stand in the file.
void printMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    std::fprintf(stderr, "%s\n", escaped(message.toUtf8()).constData());
}

/// Loads the platform's decoders, which is not possible any more when the file is there: each is asked about a file
/// that none takes.
void loadDecoders()
{
    QByteArray nothing(64, '\0');
    QBuffer buffer(&nothing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.canRead();
    tzset(); // colour profiles are dated
}

LoadedPhoto decode(int descriptor, qint64 memory)
{
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return refusedPhoto(QStringLiteral("The file cannot be read."));
    return decodePhoto(file, memory);
}

} // namespace

int runReader(int channel)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    mallopt(M_ARENA_MAX, 1); // each further one would take addresses, which are limited
    qInstallMessageHandler(printMessage);
    loadDecoders();

    const Packet request = receivePacket(channel);
    const auto limits = unpackedLimits(request.bytes);
    if (!limits || !request.file)
        return 0; // the window needs no reader any more
    if (!limit(*limits) || !confine())
        return 1;
    const SharedPhoto shared = share(decode(request.file.number(), limits->memory));
    return sendPacket(channel, packed(shared.answer), shared.memory.number()) ? 0 : 1;
}
