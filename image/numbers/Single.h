// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Arithmetic.h"

namespace lumora {

/// A channel or a share while a recipe is tried: every step is made in single precision, also those that the recipe
/// itself makes in double. Vector code does twice as many of them at once. A sum takes a product as it was before it
/// was rounded, where the processor does that in one step: then it is no further off.
class Single {
public:
    float value;

    Single() = default;
    Single(float v)
        : value(v)
        , m_left(v)
        , m_right(1.0f)
        , m_isProduct(false)
    {
    }
    Single(double v)
        : Single(float(v))
    {
    }

    friend Single operator+(Single a, Single b)
    {
        if (a.m_isProduct)
            return productPlus(a.m_left, a.m_right, b.value);
        return b.m_isProduct ? productPlus(b.m_left, b.m_right, a.value) : a.value + b.value;
    }
    friend Single operator-(Single a, Single b)
    {
        if (a.m_isProduct)
            return productPlus(a.m_left, a.m_right, -b.value);
        return b.m_isProduct ? productPlus(-b.m_left, b.m_right, a.value) : a.value - b.value;
    }
    friend Single operator*(Single a, Single b)
    {
        Single product(a.value * b.value);
        product.m_left = a.value;
        product.m_right = b.value;
        product.m_isProduct = true;
        return product;
    }
    friend bool operator<(Single a, Single b) { return a.value < b.value; }

private:
    static float productPlus(float a, float b, float c)
    {
#ifdef FP_FAST_FMAF
        return std::fma(a, b, c);
#else
        return a * b + c;
#endif
    }

    float m_left, m_right;
    bool m_isProduct;
};

/// The weights of a block's pixels as such.
struct SingleWeights {
    const float* at;
    Single operator[](int i) const { return at[i]; }
};

inline Single rounded(Single v)
{
    return v;
}

inline Single select(bool condition, Single yes, Single no)
{
    return condition ? yes.value : no.value;
}

inline Single byteLuminance(Colour<Single> c)
{
    return byteLuminance(Rgb{c.r.value, c.g.value, c.b.value});
}

// The forms that cost least; ErrorBound.h knows them.

template <class Gain> inline Single withShareTimes(Single v, Single share, Gain gain)
{
    return v * (1.0f + share * (Single(gain) - 1.0f));
}

template <class Gain> inline Single withContrast(Single v, Gain gain)
{
    return v * gain + (128.0f - 128.0f * Single(gain));
}

inline Single sesquiPower(Single v)
{
    return v.value * std::sqrt(v.value);
}

} // namespace lumora
