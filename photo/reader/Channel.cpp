// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/reader/Channel.h"

#include "photo/reader/Message.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>

namespace {

/// Room for the number of one file, or of some more, which are then closed: a packet may bring up to `most`.
union FileNumbers {
    static constexpr int most = 8;
    cmsghdr header;
    char bytes[CMSG_SPACE(most * sizeof(int))];
};

} // namespace

ChannelEnds openChannel()
{
    int ends[2] = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return {};
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

bool sendPacket(int channel, const QByteArray& bytes, int file)
{
    iovec data = {const_cast<char*>(bytes.constData()), std::size_t(bytes.size())};
    FileNumbers numbers = {};
    msghdr message = {};
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    if (file >= 0) {
        message.msg_control = &numbers;
        message.msg_controllen = CMSG_SPACE(sizeof file);
        cmsghdr* header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof file);
        std::memcpy(CMSG_DATA(header), &file, sizeof file);
    }
    ssize_t sent;
    do
        sent = sendmsg(channel, &message, MSG_NOSIGNAL);
    while (sent < 0 && errno == EINTR);
    return sent == bytes.size();
}

Packet receivePacket(int channel)
{
    Packet packet;
    QByteArray bytes(maxMessageBytes, '\0');
    iovec data = {bytes.data(), std::size_t(bytes.size())};
    FileNumbers numbers = {};
    msghdr message = {};
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = &numbers;
    message.msg_controllen = sizeof numbers;
    ssize_t length;
    do
        length = recvmsg(channel, &message, MSG_CMSG_CLOEXEC);
    while (length < 0 && errno == EINTR);
    if (length <= 0)
        return packet;
    int files = 0;
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS)
            continue;
        const std::size_t count = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < count; i++, files++) {
            int number;
            std::memcpy(&number, CMSG_DATA(header) + i * sizeof number, sizeof number);
            packet.file = Descriptor(number);
        }
    }
    if ((message.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0 || files > 1)
        return {};
    bytes.truncate(length);
    packet.bytes = bytes;
    return packet;
}
