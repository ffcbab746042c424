// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/lumora.h"
#include "tests/library/Block.h"
#include "tests/library/ScarceAllocations.h"

#include <climits>
#include <cstdint>
#include <cstring>
#include <functional>
#include <set>

namespace {

constexpr int width = 41, height = 30;

/// Each operation on pixels, for a size and a stride.
using Operation = std::function<int(unsigned char* pixels, int width, int height, std::size_t stride)>;

struct NamedOperation {
    const char* name;
    Operation run;
};

std::vector<NamedOperation> operations()
{
    static Block former(randomPicture(width, height, 8));
    return {{"apply", [](unsigned char* p, int w, int h, std::size_t s) { return lumora_apply(0, p, w, h, s, 0); }},
        {"mix",
            [](unsigned char* p, int w, int h, std::size_t s) { return lumora_mix(50, p, w, h, s, former.data(), s); }},
        {"former of mix",
            [](unsigned char* p, int w, int h, std::size_t s) {
                Block after(randomPicture(width, height, 9));
                return lumora_mix(50, after.data(), w, h, after.stride, p, s);
            }},
        {"draw", [](unsigned char* p, int w, int h, std::size_t s) { return lumora_draw_border(0, 40, p, w, h, s); }}};
}

} // namespace

TEST(LibraryErrors, HaveATextEach)
{
    std::set<std::string> texts;
    for (int code = LUMORA_OK; code <= LUMORA_NO_MEMORY + 1; code++)
        texts.insert(lumora_error_text(code));
    EXPECT_EQ(texts.size(), std::size_t(LUMORA_NO_MEMORY + 2));
    for (const int none : {-1, INT_MIN, INT_MAX})
        EXPECT_STREQ(lumora_error_text(none), lumora_error_text(LUMORA_NO_MEMORY + 1));
    EXPECT_STREQ(lumora_version(), VERSION);
}

TEST(LibraryErrors, RefuseBlocksAndChangeNothing)
{
    const Picture picture = randomPicture(width, height, 7);
    const std::size_t row = width * 4, far = std::size_t(PTRDIFF_MAX) / (height - 1);
    for (const NamedOperation& operation : operations()) {
        Block block(picture);
        const auto expect = [&](int code, int w, int h, std::size_t stride) {
            EXPECT_EQ(operation.run(block.data(), w, h, stride), code)
                << operation.name << ' ' << w << " x " << h << ", " << stride;
        };
        EXPECT_EQ(operation.run(nullptr, width, height, row), LUMORA_NULL) << operation.name;
        for (const int side : {0, -1, INT_MIN, 65536, INT_MAX}) {
            expect(LUMORA_BAD_SIZE, side, height, SIZE_MAX);
            expect(LUMORA_BAD_SIZE, width, side, row);
        }
        expect(LUMORA_BAD_SIZE, 16384, 16385, 65536);
        expect(LUMORA_BAD_SIZE, 65535, 65535, 4 * 65535);
        for (const std::size_t stride : {std::size_t(0), std::size_t(1), row - 1, far, far + 1, SIZE_MAX})
            expect(LUMORA_BAD_STRIDE, width, height, stride);
        block.expectHolds(picture, operation.name);
    }
}

TEST(LibraryErrors, RefuseOtherArgumentsAndChangeNothing)
{
    const Picture picture = randomPicture(width, height, 7);
    Block block(picture), former(picture);
    for (const int look : {-1, lumora_look_count(), INT_MIN, INT_MAX})
        EXPECT_EQ(lumora_apply(look, block.data(), width, height, block.stride, 0), LUMORA_UNKNOWN) << look;
    for (const int strength : {-1, 101, INT_MIN, INT_MAX})
        EXPECT_EQ(lumora_mix(strength, block.data(), width, height, block.stride, former.data(), former.stride),
            LUMORA_BAD_STRENGTH);

    lumora_rect part = {1, 2, 3, 4};
    for (const int crop : {-2, lumora_crop_count(), INT_MIN, INT_MAX})
        EXPECT_EQ(lumora_crop(crop, 4, 4, &part), LUMORA_UNKNOWN) << crop;
    for (const auto& [w, h] : {std::pair(0, 4), {4, 0}, {-1, 4}, {65536, 1}, {1, INT_MAX}, {20000, 20000}})
        EXPECT_EQ(lumora_crop(0, w, h, &part), LUMORA_BAD_SIZE) << w << " x " << h;
    EXPECT_EQ(lumora_crop(0, 4, 4, nullptr), LUMORA_NULL);
    EXPECT_TRUE(part.x == 1 && part.y == 2 && part.width == 3 && part.height == 4);

    lumora_margins margins = {1, 2, 3, 4};
    for (const int border : {-2, lumora_border_count(), INT_MIN, INT_MAX}) {
        EXPECT_EQ(lumora_border(border, 4, &margins), LUMORA_UNKNOWN) << border;
        EXPECT_EQ(lumora_draw_border(border, 4, block.data(), width, height, block.stride), LUMORA_UNKNOWN) << border;
    }
    for (const int side : {0, -1, 65536, INT_MIN, INT_MAX}) {
        EXPECT_EQ(lumora_border(0, side, &margins), LUMORA_BAD_SIZE) << side;
        EXPECT_EQ(lumora_draw_border(0, side, block.data(), width, height, block.stride), LUMORA_BAD_SIZE) << side;
    }
    EXPECT_EQ(lumora_border(0, 4, nullptr), LUMORA_NULL);
    EXPECT_TRUE(margins.left == 1 && margins.right == 2 && margins.top == 3 && margins.bottom == 4);
    block.expectHolds(picture, "after all");
}

TEST(LibraryErrors, OneRowNeedsNoRoomForItsStride)
{
    Block block(randomPicture(width, 1, 7));
    for (const auto& [name, run] : operations())
        EXPECT_EQ(run(block.data(), width, 1, SIZE_MAX), LUMORA_OK) << name;
}

TEST(LibraryErrors, WithoutMemoryNothingChanges)
{
    const Picture picture = randomPicture(width, height, 7);
    std::vector<NamedOperation> all = {{"discs", [](unsigned char* p, int w, int h, std::size_t s) {
                                            return lumora_draw_border(lumora_border_count() - 1, 40, p, w, h, s);
                                        }}};
    for (int look = 0; look < lumora_look_count(); look++)
        all.push_back({lumora_look_name(look),
            [look](unsigned char* p, int w, int h, std::size_t s) { return lumora_apply(look, p, w, h, s, 1); }});
    for (const auto& [name, run] : all) {
        int result = LUMORA_NO_MEMORY, allowed = 0;
        for (; result == LUMORA_NO_MEMORY && allowed < 1000; allowed++) {
            Block block(picture);
            {
                const ScarceAllocations scarce(allowed);
                result = run(block.data(), width, height, block.stride);
            }
            if (result == LUMORA_NO_MEMORY)
                block.expectHolds(picture, name);
        }
        EXPECT_EQ(result, LUMORA_OK) << name;
        EXPECT_GT(allowed, 1) << name << " takes no memory that can fail";
    }
}
