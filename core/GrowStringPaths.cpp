// SPDX-License-Identifier: LGPL-3.0-or-later
#include "core/GrowString.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace lumora {

namespace {

GrowString withSlashes(const GrowString& path)
{
    return path.swapOccurrencesConst("\\", "/");
}

/// The length of the extension with its dot, 0 without one; a dot that begins the file's name begins no extension.
int extensionLength(const GrowString& path)
{
    return int(std::filesystem::path(withSlashes(path).cString()).extension().native().size());
}

} // namespace

bool GrowString::fileExists(const GrowString& path)
{
    struct stat status;
    return stat(path.cString(), &status) == 0;
}

GrowString GrowString::findExistingFile(const GrowString& name, const GrowString& directory)
{
    GrowString inside = directory;
    if (inside.length() > 0 && inside.charAt(inside.length() - 1) != '/')
        inside += '/';
    inside += name;
    return fileExists(inside) ? inside : fileExists(name) ? name : GrowString();
}

GrowString GrowString::getFileExtension() const
{
    return lastChars(extensionLength(*this) - 1);
}

GrowString GrowString::withoutExtension() const
{
    return subString(0, length() - extensionLength(*this));
}

GrowString GrowString::getFileName() const
{
    const GrowString path = withSlashes(*this);
    return path.lastChars(path.length() - path.findLast('/') - 1);
}

GrowString GrowString::getFileDirectory() const
{
    const GrowString path = withSlashes(*this);
    return path.subString(0, path.findLast('/') + 1);
}

GrowString GrowString::getInnerDirectory() const
{
    const GrowString directory = getFileDirectory();
    return directory.subString(0, directory.length() - 1).getFileName();
}

GrowString GrowString::getRelativePath(char const* base) const
{
    const GrowString path = withSlashes(*this);
    GrowString folder = withSlashes(base);
    if (folder.length() > 0 && folder.charAt(folder.length() - 1) != '/')
        folder += '/';
    return path.beginsWith(folder.cString()) ? path.lastChars(path.length() - folder.length()) : GrowString();
}

GrowString GrowString::getRelativePathIfPossible(char const* base) const
{
    const GrowString relative = getRelativePath(base);
    return relative.length() > 0 ? relative : *this;
}

GrowString GrowString::getShortFile(int most) const
{
    const int room = std::max(most, 4);
    if (length() <= room)
        return *this;
    const int front = (room - 3) / 2;
    return subString(0, front) + "..." + lastChars(room - 3 - front);
}

} // namespace lumora
