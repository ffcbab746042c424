// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

/// What the colours of pictures become on one screen, so that they look there as they were meant: a table for all of
/// sRGB, between whose points colours are interpolated. Nearly all are within a level of what the profile says; those
/// at the edge of what the screen can show may be further off.
class ScreenColors {
public:
    static constexpr int largestProfile = 8 << 20; ///< in bytes; those of measured screens have at most two million

    /// By the screen's ICC profile, a stranger's data. Null where it is broken, too large, none of an RGB screen, or
    /// changes nothing.
    static std::shared_ptr<const ScreenColors> of(const QByteArray& icc);

    /// The sRGB picture as the screen must get it, of the same size, as Format_RGB32. Its alpha goes. Null stays null.
    QImage shown(QImage picture) const;

private:
    static constexpr int side = 33; ///< points of the table along each channel
    using Table = std::vector<std::uint64_t>;

    explicit ScreenColors(Table table);

    /// The part of the way through the table that a channel's value makes.
    struct Step {
        std::uint32_t cell; ///< which point lies below it
        std::uint32_t key; ///< how far it is beyond, of 256, in the upper half; the way to the next point in the lower
    };
    Table m_table; ///< of red, then green, then blue; an entry holds three lanes of 21 bits
    std::array<std::array<Step, 256>, 3> m_steps; ///< of red, green and blue
};

/// The picture as it is, where nothing is known of the screen.
QImage onScreen(QImage picture, const std::shared_ptr<const ScreenColors>& colors);
