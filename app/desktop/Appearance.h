// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// One dark grey look for every window of the application, so that nothing outshines the photo. With high contrast
/// words are white, and controls have white frames.
void useDarkAppearance(bool highContrast = false);
