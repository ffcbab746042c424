// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Api.h"
#include "core/GrowArray.h"

namespace lumora {

/// A byte string that keeps exactly one terminating zero byte: a string of n characters has `numThings` = n + 1. Bytes
/// have no encoding. Operations on indexes outside the string change nothing.
class LUMORA_API GrowString : public GrowArray<char> {
public:
    GrowString();
    GrowString(char const* text);
    /// A copy has every byte of a terminated string, also of one that begins with a zero byte, and equals it.
    GrowString(const GrowString& other);
    /// Null leaves the string unchanged.
    GrowString& operator=(char const* text);
    GrowString& operator=(const GrowString& other);
    /// The number in the shortest form that reads back to it.
    GrowString& operator=(float number);

    /// The bytes, zero-terminated; never null. Valid until the string changes.
    char const* cString() const;
    /// Cuts at the first zero byte that stands at an index of 1 or more and appends the terminator. A zero at index 0
    /// does not cut, on purpose.
    void ensureTermination();
    /// Empty, without a block; reads as the empty string.
    void clear();

    int length() const;
    /// The byte at `i`, 0 outside the string.
    char charAt(int i) const;
    /// The index of the first or last `c`, or -1.
    int findFirst(char c) const;
    int findLast(char c) const;

    bool operator==(const GrowString& other) const;
    bool compareNoCase(char const* text) const; ///< true when equal but for the case of a to z
    bool beginsWith(char const* prefix) const;

    double toNumber() const; ///< the leading number, with a point in every locale; 0 without one
    /// True, and the number, when the whole string is one number; false for an empty string and for a null `out`.
    bool toNumber(double* out) const;

    GrowString& operator+=(char c);
    GrowString& operator+=(char const* text);
    GrowString& operator+=(int number);
    GrowString& operator+=(const GrowString& other);
    GrowString operator+(char c) const;
    GrowString operator+(char const* text) const;
    GrowString operator+(int number) const;
    GrowString operator+(const GrowString& other) const;

    void swap(int i, int j);
    void insert(int i, char c); ///< before index `i`, 0 .. length()
    void replace(int i, char c);
    void removeChars(int start, int count);

    GrowString subString(int start, int count) const; ///< what there is of it
    GrowString lastChars(int count) const;
    GrowString stringBefore(char separator) const; ///< before the first one; the whole string without one
    GrowString stringAfter(char separator) const; ///< after the first one; empty without one
    /// A copy with every occurrence of `from` replaced by `to`, left to right. An empty `from` replaces nothing.
    GrowString swapOccurrencesConst(GrowString from, GrowString to) const;

    /// Removes the trailing run of digits and gives its value, 0 without one.
    int takeTrailingInteger();
    /// Removes the next word and the spaces, tabs and line ends around it, and gives it. A word in double quotes keeps
    /// its spaces and loses its quotes.
    GrowString takeWordRespectingQuotes();
    GrowString peekWordRespectingQuotes() const;

    // ---- Paths: "/" separates, and backslashes count as "/" ----
    static bool fileExists(const GrowString& path);
    /// The first of `directory`/`name` and `name` that exists, else the empty string.
    static GrowString findExistingFile(const GrowString& name, const GrowString& directory);
    GrowString getFileExtension() const; ///< without the dot; empty without one
    GrowString withoutExtension() const;
    GrowString getFileName() const; ///< the last component
    GrowString getFileDirectory() const; ///< up to and with the last "/"; empty without one
    GrowString getInnerDirectory() const; ///< the name of the folder that holds the file
    /// The path below `base`; empty when it does not lie below it.
    GrowString getRelativePath(char const* base) const;
    /// The path below `base`; the path itself when it does not lie below it.
    GrowString getRelativePathIfPossible(char const* base) const;
    /// At most `most` characters (4 at least): the middle of a longer path becomes "...".
    GrowString getShortFile(int most) const;

    /// What an unterminated empty string reads as.
    static char const staticEmptyString[1];

private:
    void append(char const* text, int count);
};

/// The path of one of the desktop's own folders by its four-character code: 'cusr' home, 'desk' desktop, 'docs'
/// documents, 'pdoc' pictures, 'pref' preferences, 'temp' temporary files. Empty for every other code.
LUMORA_API GrowString getMacDirectory(unsigned long code);

} // namespace lumora
