// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ReadyNotice.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace vellumry {

void sendReadyNotice() {
    const char* path = std::getenv("NOTIFY_SOCKET");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (!path || (path[0] != '/' && path[0] != '@') || std::strlen(path) >= sizeof(address.sun_path))
        return;
    const std::size_t length = std::strlen(path);
    std::memcpy(address.sun_path, path, length);
    if (path[0] == '@')
        address.sun_path[0] = '\0'; // an abstract socket
    const int descriptor = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return;
    constexpr std::string_view notice = "READY=1";
    (void)sendto(descriptor, notice.data(), notice.size(), MSG_NOSIGNAL, reinterpret_cast<const sockaddr*>(&address),
                 static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length));
    close(descriptor);
}

} // namespace vellumry
