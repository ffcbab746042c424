// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <functional>
#include <memory>
#include <utility>

/// What the colours of pictures become on one screen, so that they look there as they were meant.
class ScreenColors {
public:
    static constexpr int largestProfile = 8 << 20; ///< in bytes; those of measured screens have at most two million

    /// By the screen's ICC profile, a stranger's data. Null where it is broken, too large, none of an RGB screen, or
    /// changes nothing.
    static std::shared_ptr<const ScreenColors> of(const QByteArray& icc);

    /// The sRGB picture as the screen must get it, of the same size, as Format_RGB32. Its alpha goes. Null stays null.
    QImage shown(QImage picture) const;

private:
    explicit ScreenColors(std::function<void(QRgb* pixels, int count)> convert)
        : m_convert(std::move(convert))
    {
    }
    bool changeAnything() const;

    std::function<void(QRgb* pixels, int count)> m_convert; ///< opaque ones, in place
};

/// The picture as it is, where nothing is known of the screen.
QImage onScreen(QImage picture, const std::shared_ptr<const ScreenColors>& colors);
