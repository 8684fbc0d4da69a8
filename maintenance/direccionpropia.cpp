#include "maintenance/direccionpropia.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

namespace nod {

namespace {
std::optional<QString> g_fija;
}

QString DameIP() {
    if (g_fija) return *g_fija;
    QString ip = QStringLiteral("127.0.0.1");
    ifaddrs* lista = nullptr;
    if (::getifaddrs(&lista) != 0) return ip;
    for (const ifaddrs* i = lista; i; i = i->ifa_next) {
        if (!i->ifa_addr || i->ifa_addr->sa_family != AF_INET || !(i->ifa_flags & IFF_UP) ||
            (i->ifa_flags & IFF_LOOPBACK))
            continue;
        char t[INET_ADDRSTRLEN] = {};
        ::inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in*>(i->ifa_addr)->sin_addr, t, sizeof t);
        ip = QString::fromLatin1(t);
        break;
    }
    ::freeifaddrs(lista);
    return ip;
}

void FijaDameIP(std::optional<QString> direccion) {
    g_fija = std::move(direccion);
}

} // namespace nod
