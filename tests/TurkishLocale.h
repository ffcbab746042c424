// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

/// While it lives the program runs in a Turkish locale, which has a decimal comma and whose small letter of I is not i.
/// The locale is made with the tests, in the folder TEST_LOCALES.
class TurkishLocale {
public:
    TurkishLocale()
        : m_before(std::setlocale(LC_ALL, nullptr))
    {
        setenv("LOCPATH", TEST_LOCALES, 1);
        std::setlocale(LC_ALL, "tr_TR.UTF-8");
    }
    ~TurkishLocale() { std::setlocale(LC_ALL, m_before.c_str()); }
    TurkishLocale(const TurkishLocale&) = delete;
    TurkishLocale& operator=(const TurkishLocale&) = delete;

    /// False where the locale could not be set: the test must fail then.
    bool isSet() const
    {
        char text[8];
        std::snprintf(text, sizeof text, "%.1f", 0.5);
        return std::string(text) == "0,5";
    }

private:
    std::string m_before;
};
