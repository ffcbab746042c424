#pragma once

/// One dark grey look for every window of the application, so that nothing outshines the photo.
void useDarkAppearance();
