#include "maintenance/escuchacierre.h"

#include "companion/config.h"
#include "companion/registro.h"

#include <QSocketNotifier>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nod {

namespace {

// The text of an IPv4 or IPv6 address.
QString texto(const sockaddr_storage& d) {
    char t[INET6_ADDRSTRLEN] = {};
    const void* a = d.ss_family == AF_INET6
                        ? static_cast<const void*>(&reinterpret_cast<const sockaddr_in6&>(d).sin6_addr)
                        : static_cast<const void*>(&reinterpret_cast<const sockaddr_in&>(d).sin_addr);
    return QString::fromLatin1(::inet_ntop(d.ss_family, a, t, sizeof t));
}

} // namespace

TEscuchaCierre::TEscuchaCierre(QObject* parent)
    : QObject(parent) {}

TEscuchaCierre::~TEscuchaCierre() {
    Deja();
}

bool TEscuchaCierre::falla(const QString& motivo) {
    m_error = motivo;
    qCWarning(lcComms).noquote() << "update port:" << motivo;
    Deja();
    return false;
}

bool TEscuchaCierre::Escucha(int puerto, const QString& direccion) {
    Deja();
    if (puerto < 0) puerto = Config.GetPuertoActualiz();
    if (puerto > 65535)
        return falla(QStringLiteral("El puerto de actualización %1 no es un puerto TCP").arg(puerto));
    sockaddr_storage d{};
    socklen_t longitud = 0;
    const QByteArray dir = direccion.toLatin1();
    auto& v4 = reinterpret_cast<sockaddr_in&>(d);
    auto& v6 = reinterpret_cast<sockaddr_in6&>(d);
    if (::inet_pton(AF_INET, dir.constData(), &v4.sin_addr) == 1) {
        v4.sin_family = AF_INET;
        v4.sin_port = htons(quint16(puerto));
        longitud = sizeof v4;
    } else if (::inet_pton(AF_INET6, dir.constData(), &v6.sin6_addr) == 1) {
        v6.sin6_family = AF_INET6;
        v6.sin6_port = htons(quint16(puerto));
        longitud = sizeof v6;
    } else {
        return falla(QStringLiteral("La dirección %1 no es una dirección IP").arg(direccion));
    }
    m_fd = ::socket(d.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const int si = 1;
    if (m_fd < 0 || ::setsockopt(m_fd, SOL_SOCKET, SO_REUSEADDR, &si, sizeof si) != 0 ||
        ::bind(m_fd, reinterpret_cast<const sockaddr*>(&d), longitud) != 0 || ::listen(m_fd, 16) != 0)
        return falla(QStringLiteral("No se puede escuchar en %1, puerto %2: %3")
                         .arg(direccion)
                         .arg(puerto)
                         .arg(QString::fromLocal8Bit(std::strerror(errno))));
    m_aviso = new QSocketNotifier(qintptr(m_fd), QSocketNotifier::Read, this);
    connect(m_aviso, &QSocketNotifier::activated, this, &TEscuchaCierre::atiende);
    m_error.clear();
    return true;
}

void TEscuchaCierre::Deja() {
    delete m_aviso;
    m_aviso = nullptr;
    if (m_fd >= 0) ::close(m_fd);
    m_fd = -1;
}

quint16 TEscuchaCierre::Puerto() const {
    sockaddr_storage d{};
    socklen_t n = sizeof d;
    if (m_fd < 0 || ::getsockname(m_fd, reinterpret_cast<sockaddr*>(&d), &n) != 0) return 0;
    return ntohs(d.ss_family == AF_INET6 ? reinterpret_cast<const sockaddr_in6&>(d).sin6_port
                                         : reinterpret_cast<const sockaddr_in&>(d).sin_port);
}

void TEscuchaCierre::atiende() {
    for (;;) {
        sockaddr_storage d{};
        socklen_t n = sizeof d;
        const int c = ::accept4(m_fd, reinterpret_cast<sockaddr*>(&d), &n, SOCK_CLOEXEC);
        if (c < 0) return; // no more waiting (EAGAIN), or one that went away before it was taken
        ::close(c);
        emit CierrePedido(texto(d));
    }
}

} // namespace nod
