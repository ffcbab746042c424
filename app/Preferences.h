#pragma once

#include "core/GrowString.h"

// The user's choices between runs, in the per-user store of the application. Each call opens the store afresh. A key
// that is missing, or whose value is of another kind, reads as the empty string, 0 or false. Text is ASCII.

void setPreferenceString(const GrowString& key, const GrowString& value);
void setPreferenceInt(const GrowString& key, int value);
void setPreferenceBool(const GrowString& key, bool value);

GrowString getPreferenceString(const GrowString& key);
int getPreferenceInt(const GrowString& key);
bool getPreferenceBool(const GrowString& key);
