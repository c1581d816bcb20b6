// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderSocket.h"

#include "reader/ReaderProtocol.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace vellumry::readersocket {

namespace {

bool waitFor(int socket, short events, Clock::time_point deadline) {
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd entry{socket, events, 0};
        const int ready = poll(&entry, 1, static_cast<int>(std::clamp<long>(left, 0, 60'000)));
        if (ready > 0)
            return true;
        if (ready < 0 && errno != EINTR)
            return false;
        if (ready == 0 && left <= 0)
            return false;
    }
}

Descriptor attachedTo(msghdr& header) {
    for (cmsghdr* control = CMSG_FIRSTHDR(&header); control; control = CMSG_NXTHDR(&header, control)) {
        if (control->cmsg_level != SOL_SOCKET || control->cmsg_type != SCM_RIGHTS)
            continue;
        int number = -1;
        std::memcpy(&number, CMSG_DATA(control), sizeof(number));
        return Descriptor(number);
    }
    return Descriptor();
}

/// Fills `bytes`, and `attached` when a descriptor comes with them.
bool receiveAll(int socket, char* bytes, std::size_t size, Descriptor& attached, Clock::time_point deadline) {
    while (size > 0) {
        if (!waitFor(socket, POLLIN, deadline))
            return false;
        alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))];
        iovec part{bytes, size};
        msghdr header{};
        header.msg_iov = &part;
        header.msg_iovlen = 1;
        header.msg_control = control;
        header.msg_controllen = sizeof(control);
        const ssize_t count = recvmsg(socket, &header, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            continue;
        if (count <= 0)
            return false;
        if (Descriptor found = attachedTo(header); found.isValid())
            attached = std::move(found);
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

ssize_t sendPart(int socket, const char* bytes, std::size_t size, int attached) {
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    iovec part{const_cast<char*>(bytes), size};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (attached >= 0) {
        header.msg_control = control;
        header.msg_controllen = sizeof(control);
        cmsghdr* rights = CMSG_FIRSTHDR(&header);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(sizeof(int));
        std::memcpy(CMSG_DATA(rights), &attached, sizeof(attached));
    }
    return sendmsg(socket, &header, MSG_NOSIGNAL | MSG_DONTWAIT);
}

} // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(m_number, other.m_number);
    return *this;
}

Descriptor::~Descriptor() {
    if (m_number >= 0)
        close(m_number);
}

int Descriptor::release() {
    return std::exchange(m_number, -1);
}

bool send(int socket, const QByteArray& bytes, int attached, Clock::time_point deadline) {
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        if (!waitFor(socket, POLLOUT, deadline))
            return false;
        const ssize_t count = sendPart(socket, bytes.constData() + sent, static_cast<std::size_t>(bytes.size() - sent),
                                       sent == 0 ? attached : -1);
        if (count < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        sent += std::max<ssize_t>(count, 0);
    }
    return true;
}

std::optional<Message> receive(int socket, quint32 maxBytes, Clock::time_point deadline) {
    Message message;
    char length[readerprotocol::lengthBytes];
    if (!receiveAll(socket, length, sizeof(length), message.attached, deadline))
        return std::nullopt;
    const quint32 size = readerprotocol::messageLength(length);
    if (size > maxBytes)
        return std::nullopt;
    message.bytes.resize(static_cast<qsizetype>(size));
    if (!receiveAll(socket, message.bytes.data(), size, message.attached, deadline))
        return std::nullopt;
    return message;
}

bool waitForInput(int socket, Clock::time_point deadline) {
    return waitFor(socket, POLLIN, deadline);
}

} // namespace vellumry::readersocket
