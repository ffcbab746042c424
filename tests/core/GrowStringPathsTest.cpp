// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/FreshFolder.h"
#include "tests/core/TextOf.h"

#include <filesystem>
#include <fstream>

using namespace lumora;

TEST(GrowStringPaths, TakesAPathApart)
{
    const GrowString path("/home/a.b/pictures/sea.tar.jpg");
    EXPECT_EQ(textOf(path.getFileExtension()), "jpg");
    EXPECT_EQ(textOf(path.withoutExtension()), "/home/a.b/pictures/sea.tar");
    EXPECT_EQ(textOf(path.getFileName()), "sea.tar.jpg");
    EXPECT_EQ(textOf(path.getFileDirectory()), "/home/a.b/pictures/");
    EXPECT_EQ(textOf(path.getInnerDirectory()), "pictures");
}

TEST(GrowStringPaths, KnowsNamesWithoutExtension)
{
    for (const char* name : {"", "c", "/a.b/c", "/a/.hidden", ".hidden", "..", "/a/.."}) {
        EXPECT_EQ(textOf(GrowString(name).getFileExtension()), "") << name;
        EXPECT_EQ(textOf(GrowString(name).withoutExtension()), name);
    }
    EXPECT_EQ(textOf(GrowString("a.").getFileExtension()), "");
    EXPECT_EQ(textOf(GrowString("a.").withoutExtension()), "a");
    EXPECT_EQ(textOf(GrowString("/a/.hidden.txt").getFileExtension()), "txt");
}

TEST(GrowStringPaths, KnowsPathsWithoutFolder)
{
    EXPECT_EQ(textOf(GrowString("sea.jpg").getFileName()), "sea.jpg");
    EXPECT_EQ(textOf(GrowString("sea.jpg").getFileDirectory()), "");
    EXPECT_EQ(textOf(GrowString("sea.jpg").getInnerDirectory()), "");
    EXPECT_EQ(textOf(GrowString("/sea.jpg").getFileDirectory()), "/");
    EXPECT_EQ(textOf(GrowString("/sea.jpg").getInnerDirectory()), "");
    EXPECT_EQ(textOf(GrowString("a/").getFileName()), "");
    EXPECT_EQ(textOf(GrowString("a/").getInnerDirectory()), "a");
}

TEST(GrowStringPaths, TakesBackslashesAsSlashes)
{
    const GrowString path("c:\\some.folder\\y.png");
    EXPECT_EQ(textOf(path.getFileName()), "y.png");
    EXPECT_EQ(textOf(path.getFileDirectory()), "c:/some.folder/");
    EXPECT_EQ(textOf(path.getInnerDirectory()), "some.folder");
    EXPECT_EQ(textOf(path.getFileExtension()), "png");
    EXPECT_EQ(textOf(path.withoutExtension()), "c:\\some.folder\\y");
    EXPECT_EQ(textOf(GrowString("c:\\some.folder\\y").getFileExtension()), "");
    EXPECT_EQ(textOf(path.getRelativePath("c:\\some.folder")), "y.png");
}

TEST(GrowStringPaths, FindsTheWayFromAFolder)
{
    const GrowString path("/home/a.b/sea.jpg");
    for (const char* base : {"/home", "/home/"}) {
        EXPECT_EQ(textOf(path.getRelativePath(base)), "a.b/sea.jpg");
        EXPECT_EQ(textOf(path.getRelativePathIfPossible(base)), "a.b/sea.jpg");
    }
    for (const char* elsewhere : {"/home/a", "/usr", "/home/a.b/sea.jpg/deeper"}) {
        EXPECT_EQ(textOf(path.getRelativePath(elsewhere)), "");
        EXPECT_EQ(textOf(path.getRelativePathIfPossible(elsewhere)), "/home/a.b/sea.jpg");
    }
}

TEST(GrowStringPaths, ShortensForDisplay)
{
    EXPECT_EQ(textOf(GrowString("abcdefghijkl").getShortFile(9)), "abc...jkl");
    EXPECT_EQ(textOf(GrowString("abcdefghijkl").getShortFile(8)), "ab...jkl");
    EXPECT_EQ(textOf(GrowString("abcdefghijkl").getShortFile(12)), "abcdefghijkl");
    EXPECT_EQ(textOf(GrowString("abcdefghijkl").getShortFile(11)), "abcd...ijkl");
    EXPECT_EQ(textOf(GrowString("abcdefghijkl").getShortFile(-5)), "...l");
}

TEST(GrowStringPaths, FindsFiles)
{
    const FreshFolder folder;
    const std::string there = folder.path() / "there.txt";
    std::ofstream(there) << "x";
    const GrowString directory(folder.path().c_str());
    EXPECT_TRUE(GrowString::fileExists(directory));
    EXPECT_TRUE(GrowString::fileExists(there.c_str()));
    EXPECT_FALSE(GrowString::fileExists(directory + "/nowhere.txt"));
    EXPECT_FALSE(GrowString::fileExists(""));
    EXPECT_EQ(textOf(GrowString::findExistingFile("there.txt", directory)), there);
    EXPECT_EQ(textOf(GrowString::findExistingFile("there.txt", directory + '/')), there);
    EXPECT_EQ(textOf(GrowString::findExistingFile(there.c_str(), "")), there);
    EXPECT_EQ(textOf(GrowString::findExistingFile(there.c_str(), "/nowhere")), there); // found by itself
    EXPECT_EQ(textOf(GrowString::findExistingFile(".", directory)), textOf(directory + "/.")); // not the one here
    EXPECT_EQ(textOf(GrowString::findExistingFile("nowhere.txt", directory)), "");
}
