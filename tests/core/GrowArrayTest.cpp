// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/GrowArray.h"

#include <gtest/gtest.h>
#include <initializer_list>

using namespace lumora;

namespace {

void fill(GrowArray<int>& array, std::initializer_list<int> values)
{
    for (int v : values)
        array.add(v);
}

} // namespace

TEST(GrowArray, AllocatesNothingBeforeTheFirstAdd)
{
    GrowArray<int> array;
    EXPECT_EQ(array.theArray, nullptr);
    EXPECT_EQ(array.numThings, 0);
    EXPECT_EQ(array.maxThings, 0);
}

TEST(GrowArray, AddsOnceOnly)
{
    GrowArray<int> array;
    array.addOnce(5);
    EXPECT_EQ(array.numThings, 1);
    EXPECT_EQ(array.maxThings, 2);
    EXPECT_EQ(array.theArray[0], 5);
    array.addOnce(5);
    EXPECT_EQ(array.numThings, 1);
    EXPECT_EQ(array.maxThings, 2);
    array.addOnce(7);
    array.addOnce(6);
    array.addOnce(7);
    EXPECT_EQ(array.numThings, 3);
    EXPECT_EQ(array.maxThings, 4);
    EXPECT_EQ(array.theArray[1], 7);
    EXPECT_EQ(array.theArray[2], 6);
}

TEST(GrowArray, DoublesItsCapacity)
{
    GrowArray<int> array;
    fill(array, {1, 2, 3});
    EXPECT_EQ(array.maxThings, 4);
    fill(array, {4, 5});
    EXPECT_EQ(array.maxThings, 8);
    for (int i = 0; i < 5; i++)
        EXPECT_EQ(array.theArray[i], i + 1);
}

TEST(GrowArray, FindsTheFirstMatch)
{
    GrowArray<int> array;
    EXPECT_EQ(array.find(3), -1);
    fill(array, {7, 3, 9, 3});
    EXPECT_EQ(array.find(3), 1);
    EXPECT_EQ(array.find(4), -1);
}

TEST(GrowArray, RemovesWithoutShrinking)
{
    GrowArray<int> array;
    fill(array, {3, 7, 9});
    const int* block = array.theArray;
    array.removeAt(0);
    EXPECT_EQ(array.numThings, 2);
    EXPECT_EQ(array.maxThings, 4);
    EXPECT_EQ(array.theArray, block);
    EXPECT_EQ(array.theArray[0], 7);
    EXPECT_EQ(array.theArray[1], 9);
    array.removeAt(1);
    EXPECT_EQ(array.numThings, 1);
    EXPECT_EQ(array.theArray[0], 7);
    array.removeAt(0);
    EXPECT_EQ(array.numThings, 0);
    EXPECT_EQ(array.maxThings, 4);
    EXPECT_EQ(array.find(7), -1); // what lies beyond the count is not there
    array.add(8);
    EXPECT_EQ(array.theArray, block);
    EXPECT_EQ(array.theArray[0], 8);
}

TEST(GrowArray, StartsAfreshAfterAClear)
{
    GrowArray<int> array;
    fill(array, {1, 2, 3, 4, 5});
    array.clear();
    EXPECT_EQ(array.theArray, nullptr);
    EXPECT_EQ(array.numThings, 0);
    EXPECT_EQ(array.maxThings, 0);
    array.add(6);
    EXPECT_EQ(array.maxThings, 2);
    EXPECT_EQ(array.theArray[0], 6);
}

TEST(GrowArray, CopiesExactlyWhatIsThere)
{
    GrowArray<int> array;
    fill(array, {1, 2, 3});
    ASSERT_EQ(array.maxThings, 4);
    GrowArray<int> copy(array);
    EXPECT_EQ(copy.maxThings, 3);
    EXPECT_EQ(copy.numThings, 3);
    EXPECT_NE(copy.theArray, array.theArray);
    for (int i = 0; i < 3; i++)
        EXPECT_EQ(copy.theArray[i], i + 1);
    copy.add(4);
    EXPECT_EQ(copy.maxThings, 6);
    EXPECT_EQ(array.numThings, 3);
    const GrowArray<int> none((GrowArray<int>()));
    EXPECT_EQ(none.theArray, nullptr);
    EXPECT_EQ(none.maxThings, 0);
}

TEST(GrowArray, HoldsOtherPlainValues)
{
    GrowArray<char> characters;
    for (char c : {'a', '\0', 'b'})
        characters.add(c);
    EXPECT_EQ(characters.find('\0'), 1);
    EXPECT_EQ(characters.maxThings, 4);
    int one = 1, two = 2;
    GrowArray<int*> pointers;
    pointers.add(&one);
    pointers.add(&two);
    pointers.add(nullptr);
    EXPECT_EQ(pointers.find(&two), 1);
    EXPECT_EQ(pointers.find(nullptr), 2);
}
