// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/Reader.h"

#include "photo/EscapedText.h"
#include "photo/JpegMarkers.h"
#include "photo/PhotoDecoder.h"
#include "photo/metadata/MetadataReader.h"
#include "photo/reader/Channel.h"
#include "photo/reader/Confinement.h"
#include "photo/reader/SharedPhoto.h"

#include <QBuffer>
#include <QFile>
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

/// Loads the platform's decoders and has the libraries find their files, which is not possible any more when the photo
/// is there: each decoder is asked about a file that none takes, and the metadata's library about a damaged one.
void loadDecoders()
{
    QByteArray nothing(64, '\0'), damaged = "\x89PNG\r\n\x1a\n" + nothing;
    QBuffer unknownFile(&nothing), damagedFile(&damaged);
    unknownFile.open(QIODevice::ReadOnly);
    damagedFile.open(QIODevice::ReadOnly);
    decodePhoto(unknownFile, 1 << 24);
    readMetadata(damagedFile, {});
    tzset(); // colour profiles are dated
}

} // namespace

int runReader(int channel)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    mallopt(M_ARENA_MAX, 1); // each further one would take addresses, which are limited
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    loadDecoders();
    qInstallMessageHandler(printMessage);

    const Packet request = receivePacket(channel);
    const auto limits = unpackedLimits(request.bytes);
    if (!limits || !request.file)
        return 0; // the window needs no reader any more
    if (!limit(*limits) || !confine())
        return 1;
    QFile file;
    if (!file.open(request.file.number(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return 1;
    const SharedPhoto shared = sharedPhoto(file, limits->memory);
    return sendPacket(channel, packed(shared.answer), shared.memory.number()) ? 0 : 1;
}
