// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/GrowString.h"

#include "tests/core/TextOf.h"

#include <climits>
#include <limits>

using namespace lumora;

namespace {

/// Makes these bytes the string's, terminated or not.
void fill(GrowString& s, std::initializer_list<char> bytes)
{
    s.clear();
    for (char c : bytes)
        s.add(c);
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
    EXPECT_EQ(textOf(s), "abc");
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
    fill(s, {'a', 'b', '\0', 'c', 'd'});
    s.ensureTermination();
    EXPECT_EQ(s.numThings, 3);
    EXPECT_EQ(textOf(s), "ab");
}

TEST(GrowString, DoesNotCutAtALeadingZero)
{
    GrowString s;
    fill(s, {'\0', 'a'});
    s.ensureTermination();
    EXPECT_EQ(s.numThings, 3);
    EXPECT_EQ(s.length(), 0);
}

TEST(GrowString, KeepsALeadingZeroInCopies)
{
    const std::initializer_list<char> samples[] = {{'\0'}, {'\0', '\0'}, {'\0', 'a', '\0'}, {'\0', 'a', '\0', '\0'}};
    for (const auto& bytes : samples) {
        GrowString s;
        fill(s, bytes);
        const GrowString copy(s);
        EXPECT_EQ(copy.numThings, int(bytes.size()));
        EXPECT_TRUE(copy == s);
        GrowString assigned("before");
        assigned = s;
        EXPECT_EQ(assigned.numThings, int(bytes.size()));
        EXPECT_TRUE(assigned == s);
    }
}

TEST(GrowString, TerminatesCopiesOfWhatIsNot)
{
    GrowString s;
    fill(s, {'a', 'b'});
    EXPECT_EQ(textOf(GrowString(s)), "ab");
    GrowString assigned;
    assigned = s;
    EXPECT_EQ(textOf(assigned), "ab");
    s.clear();
    assigned = s;
    EXPECT_EQ(textOf(assigned), "");
}

TEST(GrowString, CountsAndReadsBytesWithoutATerminator)
{
    GrowString s;
    fill(s, {'a', 'b', 'c'});
    ASSERT_EQ(s.maxThings, 4);
    s.theArray[3] = 'x'; // in the block, but not in use
    EXPECT_EQ(s.length(), 3);
    EXPECT_EQ(s.charAt(2), 'c');
    EXPECT_EQ(s.charAt(3), 0);
    fill(s, {'a', '\0', 'c'});
    EXPECT_EQ(s.length(), 1);
    EXPECT_EQ(s.charAt(1), 0);
    EXPECT_EQ(s.charAt(2), 'c');
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
    EXPECT_EQ(s.findLast('x'), -1);
    EXPECT_EQ(s.findFirst('a'), 0);
    EXPECT_EQ(s.findLast('c'), 4);
    EXPECT_EQ(s.charAt(4), 'c');
    EXPECT_EQ(s.charAt(5), 0);
}

TEST(GrowString, CopiesAndAssigns)
{
    GrowString s("abc");
    const GrowString copy(s);
    s.replace(0, 'X');
    EXPECT_EQ(textOf(copy), "abc");
    GrowString other("a longer one");
    other = s;
    EXPECT_EQ(textOf(other), "Xbc");
    EXPECT_NE(other.theArray, s.theArray);
    const GrowString& self = s;
    s = self;
    EXPECT_EQ(textOf(s), "Xbc");
    s = s.cString() + 1; // text of the string's own block
    EXPECT_EQ(textOf(s), "bc");
    s = "";
    EXPECT_EQ(textOf(s), "");
    EXPECT_EQ(s.maxThings, 2);
    EXPECT_EQ(textOf(GrowString(static_cast<const char*>(nullptr))), "");
}

TEST(GrowString, Compares)
{
    EXPECT_TRUE(GrowString("abc") == GrowString("abc"));
    EXPECT_TRUE(GrowString("abc") != GrowString("abd"));
    EXPECT_TRUE(GrowString("aBc").compareNoCase("AbC"));
    EXPECT_FALSE(GrowString("abc").compareNoCase("abcd"));
    EXPECT_TRUE(GrowString("abc") != GrowString("abcd"));
    EXPECT_TRUE(GrowString("").compareNoCase(""));
    EXPECT_TRUE(GrowString("abc").beginsWith("ab"));
    EXPECT_TRUE(GrowString("abc").beginsWith(""));
    EXPECT_FALSE(GrowString("abc").beginsWith("abcd"));
    EXPECT_FALSE(GrowString("abc").beginsWith("B"));
}

TEST(GrowString, ComparesAsEmptyWhenCleared)
{
    GrowString cleared("abc");
    cleared.clear();
    EXPECT_TRUE(cleared == GrowString());
    EXPECT_TRUE(GrowString() == cleared);
    EXPECT_TRUE(cleared == cleared);
    EXPECT_TRUE(cleared != GrowString("abc"));
}

TEST(GrowString, WorksOnWhenCleared)
{
    GrowString s("abc");
    s.clear();
    s.ensureTermination();
    EXPECT_EQ(s.numThings, 1);
    EXPECT_EQ(s.maxThings, 2);
    s.clear();
    EXPECT_EQ(s.charAt(0), 0);
    EXPECT_EQ(s.findFirst('a'), -1);
    EXPECT_EQ(s.findLast('a'), -1);
    EXPECT_EQ(textOf(GrowString(s)), "");
    EXPECT_EQ(textOf(s.subString(0, 3)), "");
    EXPECT_EQ(textOf(s.lastChars(3)), "");
    EXPECT_EQ(s.toNumber(), 0);
    s.insert(0, 'x');
    EXPECT_EQ(textOf(s), "x");
    s.clear();
    s += "y";
    EXPECT_EQ(textOf(s), "y");
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
    EXPECT_FALSE(GrowString("five").toNumber(&number));
    EXPECT_FALSE(GrowString("5 ").toNumber(&number));
    EXPECT_EQ(number, -300); // a failure leaves it
    EXPECT_TRUE(GrowString("0").toNumber(&number));
    EXPECT_EQ(number, 0);
    EXPECT_EQ(GrowString("five").toNumber(), 0);
}

TEST(GrowString, TakesTheFormOfANumber)
{
    GrowString s("before");
    for (const auto& [number, form] : {std::pair(0.25f, "0.25"), {-3.0f, "-3"}, {0.1f, "0.1"}, {1e30f, "1e+30"}}) {
        s = number;
        EXPECT_EQ(textOf(s), form);
    }
    s = std::numeric_limits<float>::max();
    double number = 0;
    EXPECT_TRUE(s.toNumber(&number));
    EXPECT_EQ(float(number), std::numeric_limits<float>::max());
}

TEST(GrowString, Concatenates)
{
    GrowString s("a");
    s += 'b';
    s += "cd";
    s += -17;
    s += GrowString("!");
    EXPECT_EQ(textOf(s), "abcd-17!");
    s += s;
    EXPECT_EQ(textOf(s), "abcd-17!abcd-17!");
    EXPECT_EQ(textOf(GrowString("x") + 'y' + "z" + 1 + GrowString("w")), "xyz1w");
    EXPECT_EQ(textOf(GrowString() + INT_MIN), "-2147483648");
    GrowString tail("abc");
    tail += tail.cString() + 1; // text of the string's own block
    EXPECT_EQ(textOf(tail), "abcbc");
    tail += "";
    tail += '\0';
    EXPECT_EQ(textOf(tail), "abcbc");
}

TEST(GrowString, Edits)
{
    GrowString s("abc");
    s.swap(0, 2);
    EXPECT_EQ(textOf(s), "cba");
    s.swap(0, 9);
    EXPECT_EQ(textOf(s), "cba");
    s.insert(1, 'X');
    EXPECT_EQ(textOf(s), "cXba");
    s.insert(4, 'Y');
    EXPECT_EQ(textOf(s), "cXbaY");
    s.replace(0, 'Z');
    EXPECT_EQ(textOf(s), "ZXbaY");
    s.removeChars(1, 2);
    EXPECT_EQ(textOf(s), "ZaY");
    s.removeChars(1, 99);
    EXPECT_EQ(textOf(s), "Z");
    s.swap(0, 1); // the terminator moves to the front and the string is terminated anew
    EXPECT_EQ(s.length(), 0);
}

TEST(GrowString, CutsAtAWrittenZero)
{
    GrowString s("abcd");
    s.replace(2, '\0');
    EXPECT_EQ(textOf(s), "ab");
    s = "abcd";
    s.insert(3, '\0');
    EXPECT_EQ(textOf(s), "abc");
    s = "abcd";
    s.swap(1, 4);
    EXPECT_EQ(textOf(s), "a");
}

TEST(GrowString, IgnoresIndexesOutside)
{
    GrowString s("abc");
    s.swap(-1, 0);
    s.insert(-1, 'X');
    s.insert(4, 'X');
    s.replace(-1, 'X');
    s.replace(3, 'X');
    s.removeChars(-1, 2);
    s.removeChars(3, 1);
    s.removeChars(0, 0);
    s.removeChars(0, -2);
    EXPECT_EQ(textOf(s), "abc");
    s.removeChars(1, INT_MAX);
    EXPECT_EQ(textOf(s), "a");
    s.removeChars(0, 1);
    EXPECT_EQ(textOf(s), "");
}

TEST(GrowString, GivesParts)
{
    const GrowString s("key=value");
    EXPECT_EQ(textOf(s.subString(4, 3)), "val");
    EXPECT_EQ(textOf(s.subString(4, 99)), "value");
    EXPECT_EQ(textOf(s.subString(-1, 3)), "");
    EXPECT_EQ(textOf(s.subString(0, INT_MAX)), "key=value");
    EXPECT_EQ(textOf(s.subString(9, 1)), "");
    EXPECT_EQ(textOf(s.subString(2, -1)), "");
    EXPECT_EQ(textOf(s.lastChars(2)), "ue");
    EXPECT_EQ(textOf(s.lastChars(99)), "key=value");
    EXPECT_EQ(textOf(s.lastChars(0)), "");
    EXPECT_EQ(textOf(s.lastChars(INT_MIN)), "");
    EXPECT_EQ(textOf(s.stringBefore('=')), "key");
    EXPECT_EQ(textOf(s.stringAfter('=')), "value");
    EXPECT_EQ(textOf(s.stringBefore('#')), "key=value");
    EXPECT_EQ(textOf(s.stringAfter('#')), "");
    EXPECT_EQ(textOf(GrowString("a=b=c").stringBefore('=')), "a");
    EXPECT_EQ(textOf(GrowString("a=b=c").stringAfter('=')), "b=c");
    EXPECT_EQ(textOf(GrowString("a--b--").swapOccurrencesConst("--", "+")), "a+b+");
    EXPECT_EQ(textOf(GrowString("a\\b").swapOccurrencesConst("\\", "/")), "a/b");
    EXPECT_EQ(textOf(GrowString("aaa").swapOccurrencesConst("a", "aa")), "aaaaaa");
    EXPECT_EQ(textOf(GrowString("aaa").swapOccurrencesConst("aa", "")), "a");
    EXPECT_EQ(textOf(GrowString("ab").swapOccurrencesConst("", "+")), "ab");
}

TEST(GrowString, TakesTrailingIntegers)
{
    GrowString s("photo012");
    EXPECT_EQ(s.takeTrailingInteger(), 12);
    EXPECT_EQ(textOf(s), "photo");
    EXPECT_EQ(s.takeTrailingInteger(), 0);
    EXPECT_EQ(textOf(s), "photo");
    s = "7-42";
    EXPECT_EQ(s.takeTrailingInteger(), 42); // a sign is no digit
    EXPECT_EQ(textOf(s), "7-");
    s = "2147483647";
    EXPECT_EQ(s.takeTrailingInteger(), INT_MAX);
    EXPECT_EQ(textOf(s), "");
    s = "x99999999999999999999999";
    s.takeTrailingInteger();
    EXPECT_EQ(textOf(s), "x");
}

TEST(GrowString, TakesWords)
{
    GrowString words("  one \"two three\"\tfour\n");
    EXPECT_EQ(textOf(words.peekWordRespectingQuotes()), "one");
    EXPECT_EQ(textOf(words), "  one \"two three\"\tfour\n");
    EXPECT_EQ(textOf(words.takeWordRespectingQuotes()), "one");
    EXPECT_EQ(textOf(words), "\"two three\"\tfour\n");
    EXPECT_EQ(textOf(words.takeWordRespectingQuotes()), "two three");
    EXPECT_EQ(textOf(words.takeWordRespectingQuotes()), "four");
    EXPECT_EQ(textOf(words), "");
    EXPECT_EQ(textOf(words.takeWordRespectingQuotes()), "");
    words = "\"never closed here";
    EXPECT_EQ(textOf(words.takeWordRespectingQuotes()), "never closed here");
}
