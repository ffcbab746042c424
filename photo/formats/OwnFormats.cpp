// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/formats/OwnFormats.h"

#include "photo/Reason.h"
#include "photo/formats/JpegHandler.h"
#include "photo/formats/PsdHandler.h"
#include "photo/formats/Signatures.h"
#include "photo/formats/TgaHandler.h"

#ifdef LUMORA_HEIF
#include "photo/formats/heif/HeifHandler.h"
#endif
#ifdef LUMORA_JXL
#include "photo/formats/jxl/JxlHandler.h"
#endif
#ifdef LUMORA_RAW
#include "photo/formats/raw/RawHandler.h"
#endif

#include <QIODevice>

namespace {

OwnFormat heif()
{
#ifdef LUMORA_HEIF
    return {std::make_unique<HeifHandler>(), {}};
#else
    return {
        nullptr, Reason::tr("It is a HEIC or AVIF photo. This Lumora was built without libheif, which reads them.")};
#endif
}

OwnFormat jxl()
{
#ifdef LUMORA_JXL
    return {std::make_unique<JxlHandler>(), {}};
#else
    return {nullptr, Reason::tr("It is a JPEG XL photo. This Lumora was built without libjxl, which reads them.")};
#endif
}

OwnFormat raw()
{
#ifdef LUMORA_RAW
    return {std::make_unique<RawHandler>(), {}};
#else
    return {nullptr, Reason::tr("It is a camera's raw photo. This Lumora was built without LibRaw, which reads them.")};
#endif
}

} // namespace

OwnFormat ownFormat(QIODevice& file)
{
    const Signature signature = signatureOf(file);
    file.seek(0);
    switch (signature) {
    case Signature::Heif:
        return heif();
    case Signature::Jxl:
        return jxl();
    case Signature::Raw:
        return raw();
    case Signature::Other:
        break;
    }
    if (JpegHandler::canRead(file))
        return {std::make_unique<JpegHandler>(), {}};
    if (PsdHandler::canRead(file))
        return {std::make_unique<PsdHandler>(), {}};
    if (TgaHandler::canRead(file))
        return {std::make_unique<TgaHandler>(), {}};
    return {};
}
