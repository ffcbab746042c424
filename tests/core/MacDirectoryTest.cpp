// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/FreshFolder.h"
#include "tests/core/TextOf.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

using namespace lumora;

namespace {

constexpr unsigned long home = 0x63757372, desktop = 0x6465736b, documents = 0x646f6373, pictures = 0x70646f63,
                        preferences = 0x70726566, temporary = 0x74656d70;

/// Sets variables of the environment and puts back what was there.
class MacDirectory : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char* name : names) {
            const char* value = std::getenv(name);
            kept.push_back(value ? std::optional<std::string>(value) : std::nullopt);
            unsetenv(name);
        }
        setenv("HOME", "/home/someone", 1);
    }

    void TearDown() override
    {
        for (std::size_t i = 0; i < kept.size(); i++)
            kept[i] ? setenv(names[i], kept[i]->c_str(), 1) : unsetenv(names[i]);
    }

    void writeUserDirs(const std::string& lines)
    {
        setenv("XDG_CONFIG_HOME", config.c_str(), 1);
        std::ofstream(config / "user-dirs.dirs") << lines;
    }

    const char* const names[3] = {"HOME", "XDG_CONFIG_HOME", "TMPDIR"};
    const FreshFolder folder;
    const std::filesystem::path& config = folder.path();

private:
    std::vector<std::optional<std::string>> kept;
};

} // namespace

TEST_F(MacDirectory, KnowsTheUsualFolders)
{
    EXPECT_EQ(textOf(getMacDirectory(home)), "/home/someone");
    EXPECT_EQ(textOf(getMacDirectory(desktop)), "/home/someone/Desktop");
    EXPECT_EQ(textOf(getMacDirectory(documents)), "/home/someone/Documents");
    EXPECT_EQ(textOf(getMacDirectory(pictures)), "/home/someone/Pictures");
    EXPECT_EQ(textOf(getMacDirectory(preferences)), "/home/someone/.config");
    EXPECT_EQ(textOf(getMacDirectory(temporary)), "/tmp");
}

TEST_F(MacDirectory, FollowsTheDesktopsOwnFolders)
{
    setenv("TMPDIR", "/var/tmp", 1);
    writeUserDirs("# XDG_PICTURES_DIR=\"/comment\"\n"
                  "XDG_PICTURES_DIR=\"$HOME/Bilder\"\n"
                  "XDG_DOCUMENTS_DIR=\"/data/my \\\"papers\\\"\"\n"
                  "XDG_DESKTOP_DIR=\"somewhere\"\n");
    EXPECT_EQ(textOf(getMacDirectory(pictures)), "/home/someone/Bilder");
    EXPECT_EQ(textOf(getMacDirectory(documents)), "/data/my \"papers\"");
    EXPECT_EQ(textOf(getMacDirectory(desktop)), "/home/someone/Desktop"); // a relative path does not count
    EXPECT_EQ(textOf(getMacDirectory(preferences)), config.string());
    EXPECT_EQ(textOf(getMacDirectory(temporary)), "/var/tmp");
}

TEST_F(MacDirectory, SurvivesABrokenList)
{
    writeUserDirs("XDG_PICTURES_DIR=\"\nXDG_DESKTOP_DIR=\"/data\\\nXDG_DOCUMENTS_DIR=\"\\");
    EXPECT_EQ(textOf(getMacDirectory(pictures)), "/home/someone/Pictures");
    EXPECT_EQ(textOf(getMacDirectory(documents)), "/home/someone/Documents");
    EXPECT_EQ(textOf(getMacDirectory(desktop)), "/data\\");
}

TEST_F(MacDirectory, IsEmptyForOtherCodesAndWithoutAHome)
{
    EXPECT_EQ(textOf(getMacDirectory(0x66756e74)), "");
    EXPECT_EQ(textOf(getMacDirectory(0)), "");
    unsetenv("HOME");
    for (unsigned long code : {home, desktop, documents, pictures, preferences})
        EXPECT_EQ(textOf(getMacDirectory(code)), "");
}

TEST_F(MacDirectory, PassesOverPathsThatDependOnTheWorkingFolder)
{
    setenv("XDG_CONFIG_HOME", "config", 1);
    EXPECT_EQ(textOf(getMacDirectory(preferences)), "/home/someone/.config");
    setenv("HOME", "someone", 1);
    EXPECT_EQ(textOf(getMacDirectory(home)), "");
}
