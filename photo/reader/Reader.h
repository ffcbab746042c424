// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Reads one photo for the window at the other end of `channel`: waits for the file and the limits, decodes, answers
/// and returns the status to exit with. Before anything of the file is decoded, this process gives up files, network
/// and whatever else decoding does not need. It ends with the window.
int runReader(int channel);
