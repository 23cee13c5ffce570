// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// An object to preload: it keeps a server that listens on every address of the machine at home.
// Qt's vnc platform is such a server and has no setting for it.

#include <cstring>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

extern "C" __attribute__((visibility("default"))) int bind(int socket, const sockaddr *address,
                                                           socklen_t length)
{
    using Bind = int (*)(int, const sockaddr *, socklen_t);
    static const auto realBind = reinterpret_cast<Bind>(dlsym(RTLD_NEXT, "bind"));

    if (address && address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local;
        std::memcpy(&local, address, sizeof local);
        local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return realBind(socket, reinterpret_cast<const sockaddr *>(&local), sizeof local);
    }
    if (address && address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        // 127.0.0.1 as an IPv6 socket writes it, for viewers that know IPv4 alone.
        sockaddr_in6 local;
        std::memcpy(&local, address, sizeof local);
        std::memset(&local.sin6_addr, 0, sizeof local.sin6_addr);
        local.sin6_addr.s6_addr[10] = 0xff;
        local.sin6_addr.s6_addr[11] = 0xff;
        local.sin6_addr.s6_addr[12] = 127;
        local.sin6_addr.s6_addr[15] = 1;
        return realBind(socket, reinterpret_cast<const sockaddr *>(&local), sizeof local);
    }
    return realBind(socket, address, length);
}
