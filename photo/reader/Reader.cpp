// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/Reader.h"

#include "photo/EscapedText.h"
#include "photo/JpegMarkers.h"
#include "photo/PhotoDecoder.h"
#include "photo/metadata/MetadataReader.h"
#include "photo/reader/Channel.h"
#include "photo/reader/Confinement.h"
#include "photo/reader/Sharing.h"
#ifdef LUMORA_HEIF
#include "photo/formats/heif/HeifHandler.h"
#endif

#include <QBuffer>
#include <QFile>
#include <QLoggingCategory>
#include <array>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

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
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QByteArray nothing(64, '\0'), damaged = "\x89PNG\r\n\x1a\n" + nothing;
    QBuffer unknownFile(&nothing), damagedFile(&damaged);
    unknownFile.open(QIODevice::ReadOnly);
    damagedFile.open(QIODevice::ReadOnly);
    decodePhoto(unknownFile, 1 << 24);
    readMetadata(damagedFile, {});
#ifdef LUMORA_HEIF
    HeifHandler::loadLibrary();
#endif
}

/// Has the libraries that every photo needs find their files, too.
void haveFilesRead()
{
    tzset(); // colour profiles are dated
    const QLoggingCategory rules("photo"); // which say what Qt tells of a broken profile
}

/// Whether the request is there already, so that somebody waits while the decoders are loaded.
bool isRequested(int channel)
{
    pollfd request = {channel, POLLIN, 0};
    return poll(&request, 1, 0) > 0;
}

/// Whether the file is one that is read without the platform's decoders.
bool isJpeg(int file)
{
    std::array<unsigned char, 2> start = {};
    return pread(file, start.data(), start.size(), 0) == 2 && start[0] == 0xFF && start[1] == 0xD8;
}

} // namespace

int runReader(int channel)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    mallopt(M_ARENA_MAX, 1); // each further one would take addresses, which are limited
    const bool isHurried = isRequested(channel);
    if (!isHurried)
        loadDecoders();
    const Packet request = receivePacket(channel);
    const auto limits = unpackedLimits(request.bytes);
    if (!limits || !request.file)
        return 0; // the window needs no reader any more
    if (isHurried && !isJpeg(request.file.number()))
        loadDecoders();
    qInstallMessageHandler(printMessage);
    haveFilesRead();
    if (!limit(*limits) || !confine())
        return 1;
    QFile file;
    if (!file.open(request.file.number(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return 1;
    const SharedPhoto shared = sharedPhoto(file, limits->memory);
    return sendPacket(channel, packed(shared.answer), shared.memory.number()) ? 0 : 1;
}
