// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Desk;

/// The first control of the window that is clipped or that lies outside or on another; empty where all is well.
QString whatIsClipped(Desk& desk);
