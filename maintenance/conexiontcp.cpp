#include "maintenance/conexiontcp.h"

#include "companion/registro.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <netdb.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace nod {

namespace {

// An address to try, copied out of getaddrinfo's list.
struct Direccion {
    sockaddr_storage dir{};
    socklen_t longitud = 0;
    int familia = 0;
};

std::vector<Direccion> copia(const addrinfo* lista) {
    std::vector<Direccion> r;
    for (const addrinfo* a = lista; a; a = a->ai_next) {
        Direccion d;
        std::memcpy(&d.dir, a->ai_addr, a->ai_addrlen);
        d.longitud = a->ai_addrlen;
        d.familia = a->ai_family;
        r.push_back(d);
    }
    return r;
}

std::vector<Direccion> busca(const QByteArray& equipo, const QByteArray& puerto, int banderas) {
    addrinfo pista{};
    pista.ai_family = AF_UNSPEC;
    pista.ai_socktype = SOCK_STREAM;
    pista.ai_flags = banderas;
    addrinfo* lista = nullptr;
    if (::getaddrinfo(equipo.constData(), puerto.constData(), &pista, &lista) != 0) return {};
    auto r = copia(lista);
    ::freeaddrinfo(lista);
    return r;
}

// Runs the event loop until `listo` says so or the deadline passes, looking every few milliseconds.
template <typename Listo> void esperaHasta(const QDeadlineTimer& limite, Listo listo) {
    QEventLoop bucle;
    QTimer vistazo;
    QObject::connect(&vistazo, &QTimer::timeout, &bucle, [&] {
        if (listo() || limite.hasExpired()) bucle.quit();
    });
    vistazo.start(5);
    if (!listo() && !limite.hasExpired()) bucle.exec();
}

// The addresses of a name. A numeric address needs no lookup; a name is looked up in a helper thread
// (getaddrinfo cannot be interrupted), and when the wait ends first the thread is left to finish alone.
std::vector<Direccion> resuelve(const QString& equipo, quint16 puerto, const QDeadlineTimer& limite) {
    const QByteArray nombre = equipo.toUtf8(), servicio = QByteArray::number(puerto);
    if (auto r = busca(nombre, servicio, AI_NUMERICHOST | AI_NUMERICSERV); !r.empty()) return r;
    struct Busqueda {
        std::mutex mutex;
        bool lista = false;
        std::vector<Direccion> direcciones;
    };
    auto b = std::make_shared<Busqueda>();
    std::thread([b, nombre, servicio] {
        auto r = busca(nombre, servicio, AI_NUMERICSERV);
        std::lock_guard lock(b->mutex);
        b->direcciones = std::move(r);
        b->lista = true;
    }).detach();
    esperaHasta(limite, [&] {
        std::lock_guard lock(b->mutex);
        return b->lista;
    });
    std::lock_guard lock(b->mutex);
    return b->lista ? std::move(b->direcciones) : std::vector<Direccion>{};
}

// A connection to one address: non-blocking connect, then the socket's writability (or the deadline).
int conectaA(const Direccion& d, const QDeadlineTimer& limite) {
    const int fd = ::socket(d.familia, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd < 0) return -1;
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&d.dir), d.longitud) == 0) return fd;
    if (errno != EINPROGRESS) {
        ::close(fd);
        return -1;
    }
    bool escribible = false;
    {
        QSocketNotifier aviso(qintptr(fd), QSocketNotifier::Write);
        QObject::connect(&aviso, &QSocketNotifier::activated, [&] { escribible = true; });
        esperaHasta(limite, [&] { return escribible; });
    }
    int error = 0;
    socklen_t n = sizeof error;
    if (escribible && ::getsockopt(fd, SOL_SOCKET, SO_ERROR, &error, &n) == 0 && error == 0) return fd;
    ::close(fd);
    return -1;
}

} // namespace

TConexionTcp::~TConexionTcp() {
    Cierra();
}

bool TConexionTcp::Conecta(const QString& equipo, quint16 puerto, int esperaMs) {
    Cierra();
    if (equipo.isEmpty()) return false;
    const QDeadlineTimer limite(std::max(0, esperaMs));
    for (const Direccion& d : resuelve(equipo, puerto, limite)) {
        if (limite.hasExpired()) break;
        m_fd = conectaA(d, limite);
        if (m_fd >= 0) return true;
    }
    qCInfo(lcComms).noquote() << "no connection to" << equipo << "port" << puerto;
    return false;
}

void TConexionTcp::Cierra() {
    if (m_fd >= 0) ::close(m_fd);
    m_fd = -1;
}

} // namespace nod
