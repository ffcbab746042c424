// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowString.h"

// The user's choices between runs, in the per-user store of the application. Each call opens the store afresh. A key
// that is missing, or whose value is of another kind, reads as the empty string, 0 or false. Text is ASCII.
// A key may be in a group, as "Group/Key"; Preferences.cpp has a list of the groups.

void setPreferenceString(const lumora::GrowString& key, const lumora::GrowString& value);
void setPreferenceInt(const lumora::GrowString& key, int value);
void setPreferenceBool(const lumora::GrowString& key, bool value);

lumora::GrowString getPreferenceString(const lumora::GrowString& key);
int getPreferenceInt(const lumora::GrowString& key);
bool getPreferenceBool(const lumora::GrowString& key);
