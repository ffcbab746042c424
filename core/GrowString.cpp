// SPDX-License-Identifier: LGPL-3.0-or-later
#include "core/GrowString.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <string>
#include <strings.h>

namespace lumora {

namespace {

/// The locale "C": numbers have a point and I is the capital of i, whatever the desktop's language is.
locale_t plainLocale()
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return plain;
}

} // namespace

char const GrowString::staticEmptyString[1] = {0};

GrowString::GrowString()
{
    ensureTermination();
}

GrowString::GrowString(char const* text)
{
    *this = text;
    ensureTermination();
}

GrowString::GrowString(const GrowString& other)
    : GrowArray<char>(other)
{
    if (numThings < 1 || theArray[numThings - 1] != 0)
        ensureTermination();
}

GrowString& GrowString::operator=(char const* text)
{
    if (!text)
        return *this;
    const int count = int(std::strlen(text));
    char* block = new char[count + 2]; // before the old block goes: `text` may lie in it
    std::memcpy(block, text, count);
    delete[] theArray;
    theArray = block;
    numThings = count;
    maxThings = count + 2;
    ensureTermination();
    return *this;
}

GrowString& GrowString::operator=(const GrowString& other)
{
    GrowString copy(other);
    std::swap(theArray, copy.theArray);
    std::swap(numThings, copy.numThings);
    std::swap(maxThings, copy.maxThings);
    return *this;
}

GrowString& GrowString::operator=(float number)
{
    char text[64];
    *std::to_chars(text, text + sizeof text - 1, number).ptr = 0;
    return *this = text;
}

char const* GrowString::cString() const
{
    return numThings < 1 ? staticEmptyString : theArray;
}

void GrowString::ensureTermination()
{
    const int zero = find(0);
    if (zero >= 0 && zero == numThings - 1)
        return;
    if (zero >= 1)
        numThings = zero;
    add(0);
}

void GrowString::clear()
{
    GrowArray<char>::clear();
}

int GrowString::length() const
{
    const int zero = find(0);
    return zero < 0 ? numThings : zero;
}

char GrowString::charAt(int i) const
{
    return i >= 0 && i < numThings ? theArray[i] : 0;
}

int GrowString::findFirst(char c) const
{
    const int end = length();
    for (int i = 0; i < end; i++)
        if (theArray[i] == c)
            return i;
    return -1;
}

int GrowString::findLast(char c) const
{
    for (int i = length() - 1; i >= 0; i--)
        if (theArray[i] == c)
            return i;
    return -1;
}

bool GrowString::operator==(const GrowString& other) const
{
    const int count = std::max(numThings, 1); // a cleared string reads as the empty one
    return count == std::max(other.numThings, 1) && std::memcmp(cString(), other.cString(), count) == 0;
}

bool GrowString::compareNoCase(char const* text) const
{
    return strcasecmp_l(cString(), text, plainLocale()) == 0;
}

bool GrowString::beginsWith(char const* prefix) const
{
    return std::strncmp(cString(), prefix, std::strlen(prefix)) == 0;
}

double GrowString::toNumber() const
{
    return strtod_l(cString(), nullptr, plainLocale());
}

bool GrowString::toNumber(double* out) const
{
    const char* text = cString();
    if (!out || numThings < 1 || text[0] == 0 || text[0] == '\n')
        return false;
    char* end;
    const double number = strtod_l(text, &end, plainLocale());
    if (end == text || *end != 0)
        return false;
    *out = number;
    return true;
}

void GrowString::append(char const* text, int count)
{
    const std::string added(text, count); // `text` may lie in the block that the growth frees
    numThings = length();
    for (char c : added)
        add(c);
    ensureTermination();
}

GrowString& GrowString::operator+=(char c)
{
    append(&c, 1);
    return *this;
}

GrowString& GrowString::operator+=(char const* text)
{
    append(text, int(std::strlen(text)));
    return *this;
}

GrowString& GrowString::operator+=(int number)
{
    char text[16];
    append(text, int(std::to_chars(text, text + sizeof text, number).ptr - text));
    return *this;
}

GrowString& GrowString::operator+=(const GrowString& other)
{
    append(other.cString(), other.length());
    return *this;
}

GrowString GrowString::operator+(char c) const
{
    GrowString result(*this);
    return result += c;
}

GrowString GrowString::operator+(char const* text) const
{
    GrowString result(*this);
    return result += text;
}

GrowString GrowString::operator+(int number) const
{
    GrowString result(*this);
    return result += number;
}

GrowString GrowString::operator+(const GrowString& other) const
{
    GrowString result(*this);
    return result += other;
}

void GrowString::swap(int i, int j)
{
    if (i < 0 || j < 0 || i >= numThings || j >= numThings)
        return;
    const char c = theArray[i];
    theArray[i] = theArray[j];
    theArray[j] = c;
    ensureTermination();
}

void GrowString::insert(int i, char c)
{
    if (i < 0 || i > length())
        return;
    ensureTermination();
    add(0);
    std::copy_backward(theArray + i, theArray + numThings - 1, theArray + numThings);
    theArray[i] = c;
    ensureTermination();
}

void GrowString::replace(int i, char c)
{
    if (i < 0 || i >= length())
        return;
    theArray[i] = c;
    ensureTermination();
}

void GrowString::removeChars(int start, int count)
{
    const int end = length();
    if (start < 0 || start >= end || count < 1)
        return;
    const int removed = std::min(count, end - start);
    std::copy(theArray + start + removed, theArray + numThings, theArray + start);
    numThings -= removed;
    ensureTermination();
}

GrowString GrowString::subString(int start, int count) const
{
    GrowString part;
    const int end = length();
    if (start >= 0 && start < end && count > 0)
        part.append(theArray + start, std::min(count, end - start));
    return part;
}

GrowString GrowString::lastChars(int count) const
{
    const int shown = std::clamp(count, 0, length());
    return subString(length() - shown, shown);
}

GrowString GrowString::stringBefore(char separator) const
{
    const int place = findFirst(separator);
    return place < 0 ? *this : subString(0, place);
}

GrowString GrowString::stringAfter(char separator) const
{
    const int place = findFirst(separator);
    return place < 0 ? GrowString() : lastChars(length() - place - 1);
}

GrowString GrowString::swapOccurrencesConst(GrowString from, GrowString to) const
{
    GrowString result;
    const char* rest = cString();
    for (const char* hit; from.length() > 0 && (hit = std::strstr(rest, from.cString())); rest = hit + from.length()) {
        result.append(rest, int(hit - rest));
        result += to;
    }
    return result += rest;
}

int GrowString::takeTrailingInteger()
{
    int start = length();
    while (start > 0 && charAt(start - 1) >= '0' && charAt(start - 1) <= '9')
        start--;
    const int value = int(std::strtol(cString() + start, nullptr, 10)); // atoi, but defined for any number of digits
    removeChars(start, length());
    return value;
}

GrowString GrowString::takeWordRespectingQuotes()
{
    const auto separates = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    int i = 0;
    while (separates(charAt(i)))
        i++;
    GrowString word;
    bool quoted = false;
    for (; charAt(i) != 0 && (quoted || !separates(charAt(i))); i++) {
        if (charAt(i) == '"')
            quoted = !quoted;
        else
            word += charAt(i);
    }
    while (separates(charAt(i)))
        i++;
    removeChars(0, i);
    return word;
}

GrowString GrowString::peekWordRespectingQuotes() const
{
    GrowString copy(*this);
    return copy.takeWordRespectingQuotes();
}

} // namespace lumora
