// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo/reader/Descriptor.h"

#include <QByteArray>

/// A message of at most maxMessageBytes with at most one open file.
struct Packet {
    QByteArray bytes; ///< empty when the other end is gone, or where the packet is not of that kind
    Descriptor file;
};

/// Both ends of a channel on which packets stay whole, closed in programs that this one starts.
struct ChannelEnds {
    Descriptor here, there;
};
ChannelEnds openChannel();

/// Sends the bytes with a file, or with none (-1). False when the other end is gone.
bool sendPacket(int channel, const QByteArray& bytes, int file);
/// Waits for a packet.
Packet receivePacket(int channel);
