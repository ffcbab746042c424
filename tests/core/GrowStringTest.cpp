#include "core/GrowString.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

std::string text(const GrowString& s)
{
    EXPECT_EQ(s.cString()[s.length()], 0);
    return s.cString();
}

} // namespace

TEST(GrowString, TerminatesTheEmptyString)
{
    const GrowString none;
    EXPECT_EQ(none.numThings, 1);
    EXPECT_EQ(none.maxThings, 2);
    const GrowString empty("");
    EXPECT_EQ(empty.numThings, 1);
    EXPECT_EQ(empty.length(), 0);
}

TEST(GrowString, LeavesRoomForTwo)
{
    const GrowString s("abc");
    EXPECT_EQ(s.maxThings, 5);
    EXPECT_EQ(s.numThings, 4);
}

TEST(GrowString, IgnoresNull)
{
    GrowString s("abc");
    s = static_cast<const char*>(nullptr);
    EXPECT_EQ(text(s), "abc");
}

TEST(GrowString, ReadsAsEmptyWhenCleared)
{
    GrowString s("abc");
    s.clear();
    EXPECT_EQ(s.numThings, 0);
    EXPECT_EQ(s.theArray, nullptr);
    EXPECT_STREQ(s.cString(), "");
    EXPECT_EQ(s.length(), 0);
}

TEST(GrowString, CutsAtAnInnerZero)
{
    GrowString s;
    s.clear();
    for (char c : {'a', 'b', '\0', 'c', 'd'})
        s.add(c);
    s.ensureTermination();
    EXPECT_EQ(s.numThings, 3);
    EXPECT_EQ(text(s), "ab");
}

TEST(GrowString, DoesNotCutAtALeadingZero)
{
    GrowString s;
    s.clear();
    for (char c : {'\0', 'a'})
        s.add(c);
    s.ensureTermination();
    EXPECT_EQ(s.numThings, 3);
    EXPECT_EQ(s.length(), 0);
}

TEST(GrowString, ReadsCharacters)
{
    const GrowString s("a/b/c");
    EXPECT_EQ(s.charAt(2), 'b');
    EXPECT_EQ(s.charAt(-1), 0);
    EXPECT_EQ(s.charAt(99), 0);
    EXPECT_EQ(s.findFirst('/'), 1);
    EXPECT_EQ(s.findLast('/'), 3);
    EXPECT_EQ(s.findFirst('x'), -1);
}

TEST(GrowString, Compares)
{
    EXPECT_TRUE(GrowString("abc") == GrowString("abc"));
    EXPECT_TRUE(GrowString("abc") != GrowString("abd"));
    EXPECT_TRUE(GrowString("aBc").compareNoCase("AbC"));
    EXPECT_FALSE(GrowString("abc").compareNoCase("abcd"));
    EXPECT_TRUE(GrowString("abc").beginsWith("ab"));
    EXPECT_FALSE(GrowString("abc").beginsWith("abcd"));
}

TEST(GrowString, ReadsNumbers)
{
    EXPECT_EQ(GrowString("12.5 mm").toNumber(), 12.5);
    double number = 0;
    EXPECT_TRUE(GrowString("-3e2").toNumber(&number));
    EXPECT_EQ(number, -300);
    EXPECT_FALSE(GrowString("12.5 mm").toNumber(&number));
    EXPECT_FALSE(GrowString("").toNumber(&number));
    EXPECT_FALSE(GrowString("\n5").toNumber(&number));
    EXPECT_FALSE(GrowString("5").toNumber(nullptr));
    GrowString s;
    s = 0.25f;
    EXPECT_EQ(text(s), "0.25");
}

TEST(GrowString, Concatenates)
{
    GrowString s("a");
    s += 'b';
    s += "cd";
    s += -17;
    s += GrowString("!");
    EXPECT_EQ(text(s), "abcd-17!");
    s += s;
    EXPECT_EQ(text(s), "abcd-17!abcd-17!");
    EXPECT_EQ(text(GrowString("x") + 'y' + "z" + 1 + GrowString("w")), "xyz1w");
}

TEST(GrowString, Edits)
{
    GrowString s("abc");
    s.swap(0, 2);
    EXPECT_EQ(text(s), "cba");
    s.swap(0, 9);
    EXPECT_EQ(text(s), "cba");
    s.insert(1, 'X');
    EXPECT_EQ(text(s), "cXba");
    s.insert(4, 'Y');
    EXPECT_EQ(text(s), "cXbaY");
    s.replace(0, 'Z');
    EXPECT_EQ(text(s), "ZXbaY");
    s.removeChars(1, 2);
    EXPECT_EQ(text(s), "ZaY");
    s.removeChars(1, 99);
    EXPECT_EQ(text(s), "Z");
    s.swap(0, 1); // the terminator moves to the front and the string is terminated anew
    EXPECT_EQ(s.length(), 0);
}

TEST(GrowString, GivesParts)
{
    const GrowString s("key=value");
    EXPECT_EQ(text(s.subString(4, 3)), "val");
    EXPECT_EQ(text(s.subString(4, 99)), "value");
    EXPECT_EQ(text(s.subString(-1, 3)), "");
    EXPECT_EQ(text(s.lastChars(2)), "ue");
    EXPECT_EQ(text(s.stringBefore('=')), "key");
    EXPECT_EQ(text(s.stringAfter('=')), "value");
    EXPECT_EQ(text(s.stringBefore('#')), "key=value");
    EXPECT_EQ(text(s.stringAfter('#')), "");
    EXPECT_EQ(text(GrowString("a--b--").swapOccurrencesConst("--", "+")), "a+b+");
    EXPECT_EQ(text(GrowString("ab").swapOccurrencesConst("", "+")), "ab");
}

TEST(GrowString, TakesTrailingIntegersAndWords)
{
    GrowString s("photo012");
    EXPECT_EQ(s.takeTrailingInteger(), 12);
    EXPECT_EQ(text(s), "photo");
    EXPECT_EQ(s.takeTrailingInteger(), 0);
    GrowString words("  one \"two three\" four");
    EXPECT_EQ(text(words.peekWordRespectingQuotes()), "one");
    EXPECT_EQ(text(words.takeWordRespectingQuotes()), "one");
    EXPECT_EQ(text(words.takeWordRespectingQuotes()), "two three");
    EXPECT_EQ(text(words.takeWordRespectingQuotes()), "four");
    EXPECT_EQ(text(words.takeWordRespectingQuotes()), "");
}

TEST(GrowString, TakesPathsApart)
{
    const GrowString path("/home/a.b/pictures/sea.tar.jpg");
    EXPECT_EQ(text(path.getFileExtension()), "jpg");
    EXPECT_EQ(text(path.withoutExtension()), "/home/a.b/pictures/sea.tar");
    EXPECT_EQ(text(path.getFileName()), "sea.tar.jpg");
    EXPECT_EQ(text(path.getFileDirectory()), "/home/a.b/pictures/");
    EXPECT_EQ(text(path.getInnerDirectory()), "pictures");
    EXPECT_EQ(text(GrowString("c:\\x\\y.png").getFileName()), "y.png");
    EXPECT_EQ(text(GrowString("/a.b/c").getFileExtension()), "");
    EXPECT_EQ(text(GrowString("/a/.hidden").getFileExtension()), "");
    EXPECT_EQ(text(path.getRelativePath("/home/a.b")), "pictures/sea.tar.jpg");
    EXPECT_EQ(text(path.getRelativePath("/home/a")), "");
    EXPECT_EQ(text(path.getRelativePathIfPossible("/usr")), path.cString());
    EXPECT_EQ(text(GrowString("abcdefghijkl").getShortFile(9)), "abc...jkl");
    EXPECT_EQ(text(GrowString("abc").getShortFile(9)), "abc");
}

TEST(GrowString, FindsFiles)
{
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "lumora-growstring";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "there.txt") << "x";
    const GrowString directory(folder.c_str());
    EXPECT_TRUE(GrowString::fileExists(directory + "/there.txt"));
    EXPECT_FALSE(GrowString::fileExists(directory + "/nowhere.txt"));
    EXPECT_EQ(text(GrowString::findExistingFile("there.txt", directory)), (folder / "there.txt").string());
    EXPECT_EQ(text(GrowString::findExistingFile("nowhere.txt", directory)), "");
    std::filesystem::remove_all(folder);
}

TEST(GrowString, KnowsTheDesktopsFolders)
{
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "lumora-folders";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "user-dirs.dirs") << "# comment\nXDG_PICTURES_DIR=\"$HOME/Bilder\"\n";
    setenv("HOME", "/home/someone", 1);
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    setenv("TMPDIR", "/var/tmp", 1);
    EXPECT_EQ(text(getMacDirectory(0x63757372)), "/home/someone"); // cusr
    EXPECT_EQ(text(getMacDirectory(0x70646f63)), "/home/someone/Bilder"); // pdoc
    EXPECT_EQ(text(getMacDirectory(0x6465736b)), "/home/someone/Desktop"); // desk
    EXPECT_EQ(text(getMacDirectory(0x646f6373)), "/home/someone/Documents"); // docs
    EXPECT_EQ(text(getMacDirectory(0x70726566)), folder.string()); // pref
    EXPECT_EQ(text(getMacDirectory(0x74656d70)), "/var/tmp"); // temp
    EXPECT_EQ(text(getMacDirectory(0x66756e74)), "");
    unsetenv("TMPDIR");
    std::filesystem::remove_all(folder);
}
