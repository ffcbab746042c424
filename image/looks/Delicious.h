#pragma once

/// Softly quantises a brightness (0 .. 255) into one of seven bands: near a band's centre it snaps to it, near a border
/// it nearly stays, so that the bands meet without hard steps.
unsigned char bandedTone(unsigned char tone);
