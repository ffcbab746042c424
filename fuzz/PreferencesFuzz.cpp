// SPDX-License-Identifier: GPL-3.0-or-later
// The preference reader on a store of any bytes:
// build/asan/fuzz/PreferencesFuzz -max_total_time=600 FOLDER build/asan/fuzz/seeds/PreferencesFuzz

#include "app/state/Preferences.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>

using namespace lumora;

namespace {

QString storeFile()
{
    static const QTemporaryDir folder;
    static const bool once = qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()))
        && QDir(folder.path()).mkpath(QStringLiteral("Dovrel"));
    return once ? folder.filePath(QStringLiteral("Dovrel/Lumora.conf")) : QString();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QFile::remove(storeFile());
    QFile file(storeFile());
    if (!file.open(QIODevice::WriteOnly)
        || file.write(reinterpret_cast<const char*>(data), qint64(size)) != qint64(size))
        std::abort();
    file.close();
    for (const char* key : {"PrefsVersion", "UseMultiFilter", "BorderStyle", "CroppingStyle", "OutputSize", "Name"}) {
        getPreferenceInt(key);
        getPreferenceBool(key);
        const GrowString text = getPreferenceString(key);
        for (const char* c = text.cString(); *c; c++)
            if (static_cast<signed char>(*c) < 0)
                __builtin_trap();
    }
    setPreferenceInt("PrefsVersion", 2);
    return 0;
}
