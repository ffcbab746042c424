// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

/// An empty folder of the test's own, which no other test that runs at the same time has; removed with what is in it.
class FreshFolder {
public:
    FreshFolder()
    {
        std::string pattern = std::filesystem::temp_directory_path() / "lumora test XXXXXX";
        if (!mkdtemp(pattern.data()))
            throw std::system_error(errno, std::generic_category(), pattern);
        m_path = pattern;
    }
    FreshFolder(const FreshFolder&) = delete;
    FreshFolder& operator=(const FreshFolder&) = delete;
    ~FreshFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};
