#pragma once

#include <QtGlobal>

/// The bytes that this process can still take without swapping or running into its own limit; the highest number where
/// the system does not tell.
qint64 freeMemory();
