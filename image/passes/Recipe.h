// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "image/numbers/Plane.h"

#include <tuple>
#include <type_traits>

namespace lumora {

// What a look does to one pixel is a function of its colour, or of its colour and a weight that the pass knows (a tone,
// how far out it stands). A longer recipe is several of them, one after the other. One that gives a neutral colour may
// be a single function that gives one channel.

/// A recipe in steps. Each is worked on a whole block before the next: the processor sees further ahead in short loops
/// than in a long one.
template <class... Step> struct Steps {
    std::tuple<Step...> steps;

    explicit Steps(Step... step)
        : steps(step...)
    {
    }
    template <class Function> void forEach(Function function) const
    {
        std::apply([&](const auto&... step) { (function(step), ...); }, steps);
    }
};

template <class Function> Steps<Function> stepsOf(Function function)
{
    return Steps<Function>(function);
}
template <class... Step> Steps<Step...> stepsOf(Steps<Step...> steps)
{
    return steps;
}

/// `step(c, weights[i])`, or `step(c)` for a step without weights.
template <class Step, class Channel, class Weights>
inline auto applied(const Step& step, Colour<Channel> c, const Weights& weights, int i)
{
    if constexpr (std::is_invocable_v<const Step&, Colour<Channel>, decltype(weights[i])>)
        return step(c, weights[i]);
    else
        return step(c);
}

/// What a step gives, in three channels.
template <class Channel> inline Colour<Channel> asColour(Colour<Channel> c)
{
    return c;
}
template <class Channel> inline Colour<Channel> asColour(Channel neutral)
{
    return grey(neutral);
}

/// The whole recipe on one colour.
template <class Channel, class Weights, class... Step>
inline Colour<Channel> applied(const Steps<Step...>& steps, Colour<Channel> c, const Weights& weights, int i)
{
    steps.forEach([&](const auto& step) { c = asColour(applied(step, c, weights, i)); });
    return c;
}

/// Whether a recipe is written for this kind of channel, and weights of that kind.
template <class Channel, class Recipe> inline constexpr bool isMadeFor = false;
template <class Channel, class... Step>
inline constexpr bool isMadeFor<Channel, Steps<Step...>> = ((
    std::is_invocable_v<const Step&,
        Colour<Channel>> || std::is_invocable_v<const Step&, Colour<Channel>, Channel>)&&...);

/// Whether a recipe gives a neutral colour as one channel: its only step does.
template <class Recipe> inline constexpr bool isNeutral = false;
template <class Step>
inline constexpr bool isNeutral<Steps<Step>> =
    std::is_same_v<decltype(applied(std::declval<const Step&>(), Rgb{}, std::declval<const float*>(), 0)), float>;

/// What a recipe has made of a pixel: a colour, or a float for a neutral one.
template <class Recipe, int pixels> inline auto resultOf(const PlanesOf<pixels>& planes, int i)
{
    if constexpr (isNeutral<Recipe>)
        return planes.r.at[i];
    else
        return planes.colour(i);
}

} // namespace lumora
