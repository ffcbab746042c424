// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Single.h"
#include "image/passes/Inputs.h"
#include "image/passes/Recipe.h"

#include <algorithm>
#include <limits>

namespace lumora {

/// The results of a trial are compared with whole numbers in such parts of 1.
inline constexpr int partBits = 14, partsOfOne = 1 << partBits;
inline constexpr double largestResult = 2147483647.0 / partsOfOne;

/// Errors up to which a trial saves time.
inline constexpr double tolerableError = 0.05;

/// How far the trial of a recipe may be off in a channel; infinite where it is not worth while.
template <class... Step> double errorOf(const Steps<Step...>& steps, const Inputs& inputs)
{
    double error = 0.0;
    for (const ErrorBound r : inputs.red.at)
        for (const ErrorBound g : inputs.green.at)
            for (const ErrorBound b : inputs.blue.at) {
                const Colour<ErrorBound> c = applied(steps, Colour{r, g, b}, &inputs.weight, 0);
                for (const ErrorBound v : {c.r, c.g, c.b}) {
                    if (!(v.magnitude() < largestResult && v.error < tolerableError))
                        return std::numeric_limits<double>::infinity();
                    error = std::max(error, v.error);
                }
            }
    return error;
}

/// How far a trial of the recipe may be off; infinite for one that is not written for any kind of channel.
template <class Recipe> double errorOfTrial(const Recipe& recipe, const Inputs& inputs)
{
    if constexpr (isMadeFor<Single, Recipe>)
        return errorOf(recipe, inputs);
    else
        return std::numeric_limits<double>::infinity();
}

} // namespace lumora
