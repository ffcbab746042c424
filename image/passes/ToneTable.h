// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/ErrorBound.h"
#include "image/passes/Block.h"

#include <algorithm>
#include <memory>

namespace lumora {

/// A function of the luminance of a byte pixel, evaluated once for each luminance that there is. Since 100 times the
/// luminance is the whole number 30 R + 59 G + 11 B, there are 25501 of them.
class ToneTable {
public:
    static constexpr int tones = 25501;

    /// `function` gets the luminance, 0 .. 255.
    template <class Function>
    explicit ToneTable(Function function)
        : m_values(std::make_unique<float[]>(tones))
    {
        for (int n = 0; n < tones; n++)
            m_values[n] = function(luminanceOf(n));
    }

    /// The luminance of the pixels with that whole number, exactly as luminance() gives it.
    static float luminanceOf(int n) { return float(n / 100.0); }

    /// From the least value to the greatest.
    ErrorBound range() const
    {
        const auto [lowest, highest] = std::minmax_element(m_values.get(), m_values.get() + tones);
        return {*lowest, *highest};
    }

    /// Looks up the pixels of a block that holds their bytes as floats.
    void fill(const Block& block, Plane& plane) const
    {
        int index[blockPixels];
        for (int i = 0; i < blockPixels; i++)
            index[i] = int(block.r.at[i] * 30.0f + block.g.at[i] * 59.0f + block.b.at[i] * 11.0f);
        lookUp(m_values.get(), index, plane);
    }

private:
    std::unique_ptr<float[]> m_values;
};

} // namespace lumora
