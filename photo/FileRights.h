// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <sys/stat.h>

/// Gives the open file `descriptor`, which until now only its owner may read, the owner, group, permissions, access
/// control list and `user.*` attributes of the file `replaced`, whose status is given. Another user's file becomes
/// one's own. Where something cannot be kept, the rights become narrower, never wider.
void takeRights(int descriptor, const std::string& replaced, const struct stat& status);
