// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Api.h"

namespace lumora {

/// A growable sequence of plain values (numbers, characters, pointers that it does not own).
///
/// The three fields are public and are read directly; `0 <= numThings <= maxThings` always holds, and `theArray` is
/// null exactly when `maxThings` is 0. The array owns its block and nothing else. Nothing is allocated before the first
/// add; the capacity then runs 2, 4, 8 and so on and never shrinks but by `clear()`. A failed allocation throws
/// `std::bad_alloc`. Indexes are not checked.
template <class T> class GrowArray {
public:
    T* theArray = nullptr; ///< the elements, array-new
    int numThings = 0; ///< elements in use
    int maxThings = 0; ///< elements that the block can hold

    GrowArray() = default;

    /// The copy's capacity is exactly the source's count; an empty source gives an array without a block.
    GrowArray(const GrowArray& other)
    {
        if (other.numThings < 1)
            return;
        theArray = new T[other.numThings];
        maxThings = other.numThings;
        for (int i = 0; i < other.numThings; i++)
            theArray[i] = other.theArray[i];
        numThings = other.numThings;
    }

    GrowArray& operator=(const GrowArray&) = delete;

    ~GrowArray()
    {
        delete[] theArray;
        numThings = 0;
        maxThings = 0;
    }

    /// Appends `x`, growing first when full.
    void add(T x)
    {
        if (numThings > maxThings - 1)
            grow();
        theArray[numThings++] = x;
    }

    /// The index of the first element equal to `x`, or -1.
    int find(T x) const
    {
        for (int i = 0; i < numThings; i++)
            if (theArray[i] == x)
                return i;
        return -1;
    }

    /// Appends `x` unless it is present: keeps a set of distinct values in the order of their arrival. Of arrays of int
    /// only.
    void addOnce(T x);

    /// Removes element `i` (0 .. numThings - 1); the later ones move down. Block and capacity stay.
    void removeAt(int i)
    {
        for (int j = i; j <= numThings - 2; j++)
            theArray[j] = theArray[j + 1];
        numThings--;
    }

    /// Frees the block; the next add starts again from a capacity of 2.
    void clear()
    {
        numThings = 0;
        delete[] theArray;
        maxThings = 0;
        theArray = nullptr;
    }

private:
    void grow()
    {
        if (!theArray) {
            numThings = 0;
            theArray = new T[2];
            maxThings = 2;
            return;
        }
        T* bigger = new T[2u * unsigned(maxThings)];
        for (int i = 0; i < maxThings; i++)
            bigger[i] = theArray[i];
        delete[] theArray;
        theArray = bigger;
        maxThings *= 2;
    }
};

template <> LUMORA_API void GrowArray<int>::addOnce(int x);

} // namespace lumora
