// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once
#include "core/Exact.h"

#include <charconv>
#include <string>

namespace lumora {

/// A number with six places behind the point, as printf's "%f" writes it in the locale "C": the lines that are printed
/// are the same in every country.
inline std::string sixPlaces(double number)
{
    char text[400]; // the largest double has 309 places before the point
    return {text, std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, 6).ptr};
}

} // namespace lumora
