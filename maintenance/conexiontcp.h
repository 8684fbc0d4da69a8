#pragma once
// A TCP client connection made while the program's event loop keeps running: the name lookup and the
// connection together end within a given wait, whatever the network does (a name that does not resolve,
// a workstation that drops the connection requests). The closing procedure tells each workstation's
// program to close with such a connection; nothing is sent over it.
//
// Written on the system's sockets (POSIX) rather than Qt Network, so that the programs that link the
// maintenance routines without using the network (nodrim) do not load Qt Network and its libraries at
// start-up.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

class TConexionTcp {
public:
    TConexionTcp() = default;
    ~TConexionTcp();
    TConexionTcp(const TConexionTcp&) = delete;
    TConexionTcp& operator=(const TConexionTcp&) = delete;

    /// Connects to `equipo` (an IPv4 or IPv6 address, or a host name) on `puerto`, trying each address the
    /// name has, for at most `esperaMs` milliseconds in all. Names are looked up in a helper thread; a
    /// lookup still running at the end of the wait is abandoned (its answer is dropped). Closes any earlier
    /// connection first. True when connected.
    bool Conecta(const QString& equipo, quint16 puerto, int esperaMs);
    /// True between a successful `Conecta` and `Cierra`.
    bool Conectada() const { return m_fd >= 0; }
    void Cierra();

private:
    int m_fd = -1;
};

} // namespace nod
