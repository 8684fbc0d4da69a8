#include "maintenance/direccionpropia.h"

#include <QNetworkInterface>

namespace nod {

namespace {
std::optional<QString> g_fija;
}

QString DameIP() {
    if (g_fija) return *g_fija;
    for (const QNetworkInterface& i : QNetworkInterface::allInterfaces()) {
        const auto estado = i.flags();
        if (!estado.testFlag(QNetworkInterface::IsUp) || estado.testFlag(QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry& e : i.addressEntries())
            if (e.ip().protocol() == QAbstractSocket::IPv4Protocol && !e.ip().isLoopback())
                return e.ip().toString();
    }
    return QStringLiteral("127.0.0.1");
}

void FijaDameIP(std::optional<QString> direccion) {
    g_fija = std::move(direccion);
}

} // namespace nod
