// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// One dark grey look for every window of the application, so that nothing outshines the photo.
void useDarkAppearance();
