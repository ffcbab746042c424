// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/reference/Picture.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// A picture as other programs hold it: rows that may be apart, with bytes between them that are nobody's business.
struct Block {
    int width, height;
    std::size_t stride;
    std::vector<unsigned char> bytes;

    explicit Block(const Picture& picture, std::size_t apart = 0)
        : width(picture.width)
        , height(picture.height)
        , stride(std::size_t(picture.width) * 4 + apart)
        , bytes(stride * std::size_t(picture.height), between)
    {
        for (int y = 0; y < height; y++)
            std::copy_n(picture.at(0, y), rowBytes(), row(y));
    }

    std::size_t rowBytes() const { return std::size_t(width) * 4; }
    unsigned char* data() { return bytes.data(); }
    unsigned char* row(int y) { return bytes.data() + stride * std::size_t(y); }

    /// Fails the running test where a row differs from the picture's, or a byte between rows was written.
    void expectHolds(const Picture& picture, const std::string& what)
    {
        for (int y = 0; y < height; y++) {
            ASSERT_TRUE(std::equal(row(y), row(y) + rowBytes(), picture.at(0, y))) << what << ", row " << y;
            ASSERT_TRUE(std::all_of(row(y) + rowBytes(), row(y) + stride, [](auto byte) { return byte == between; }))
                << what << ", after row " << y;
        }
    }

private:
    static constexpr unsigned char between = 0xa5;
};
