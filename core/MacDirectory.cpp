// SPDX-License-Identifier: LGPL-3.0-or-later
#include "core/GrowString.h"

#include <cstdlib>
#include <fstream>
#include <string>

namespace lumora {

namespace {

constexpr unsigned long fourCharacters(const char (&code)[5])
{
    unsigned long value = 0;
    for (int i = 0; i < 4; i++)
        value = value << 8 | static_cast<unsigned char>(code[i]);
    return value;
}

/// The absolute path in an environment variable; `otherwise` when there is none.
std::string environment(const char* name, const std::string& otherwise)
{
    const char* value = std::getenv(name);
    return value && *value == '/' ? value : otherwise;
}

/// A folder below home; empty without a home.
std::string belowHome(const std::string& name)
{
    const std::string home = environment("HOME", "");
    return home.empty() ? home : home + name;
}

std::string preferences()
{
    return environment("XDG_CONFIG_HOME", belowHome("/.config"));
}

/// A folder of the desktop's user-dirs.dirs, whose lines read XDG_DESKTOP_DIR="$HOME/Desktop" with a backslash before
/// odd characters; else `otherwise` below home.
std::string userDirectory(const std::string& key, const std::string& otherwise)
{
    std::ifstream lines(preferences() + "/user-dirs.dirs");
    const std::string start = key + "=\"";
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(start, 0) != 0)
            continue;
        std::string path;
        for (std::size_t i = start.size(); i < line.size() && line[i] != '"'; i++)
            path += line[i] == '\\' && i + 1 < line.size() ? line[++i] : line[i];
        if (path.rfind("$HOME/", 0) == 0)
            path = belowHome(path.substr(5));
        if (!path.empty() && path[0] == '/')
            return path;
    }
    return belowHome(otherwise);
}

std::string directoryOf(unsigned long code)
{
    switch (code) {
    case fourCharacters("cusr"):
        return belowHome("");
    case fourCharacters("desk"):
        return userDirectory("XDG_DESKTOP_DIR", "/Desktop");
    case fourCharacters("docs"):
        return userDirectory("XDG_DOCUMENTS_DIR", "/Documents");
    case fourCharacters("pdoc"):
        return userDirectory("XDG_PICTURES_DIR", "/Pictures");
    case fourCharacters("pref"):
        return preferences();
    case fourCharacters("temp"):
        return environment("TMPDIR", "/tmp");
    default:
        return {};
    }
}

} // namespace

GrowString getMacDirectory(unsigned long code)
{
    return directoryOf(code).c_str();
}

} // namespace lumora
