#include "tables/dbfbloqueo.h"

#include "companion/config.h"
#include "companion/errores.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nod {

namespace {

bool intentaBloqueo(int fd, short tipo) {
    struct flock fl {};
    fl.l_type = tipo;
    fl.l_whence = SEEK_SET;
    fl.l_start = 0;
    fl.l_len = 0; // the whole file, also what is appended later
    return fcntl(fd, F_OFD_SETLK, &fl) == 0;
}

bool mismoFichero(int fd, const QByteArray& ruta) {
    struct stat a {
    }, b{};
    return fstat(fd, &a) == 0 && stat(ruta.constData(), &b) == 0 && a.st_dev == b.st_dev &&
           a.st_ino == b.st_ino;
}

} // namespace

BloqueoFichero::~BloqueoFichero() {
    suelta();
}

BloqueoFichero::BloqueoFichero(BloqueoFichero&& o) noexcept
    : m_fd(o.m_fd) {
    o.m_fd = -1;
}

BloqueoFichero& BloqueoFichero::operator=(BloqueoFichero&& o) noexcept {
    if (this != &o) {
        suelta();
        m_fd = o.m_fd;
        o.m_fd = -1;
    }
    return *this;
}

void BloqueoFichero::suelta() {
    if (m_fd >= 0) ::close(m_fd); // the last descriptor of the open file description: its lock goes with it
    m_fd = -1;
}

BloqueoFichero BloqueoFichero::Toma(const QString& ruta, bool escritura, int esperaMs) {
    const QByteArray nativa = QFile::encodeName(ruta);
    QElapsedTimer reloj;
    reloj.start();
    for (;;) {
        BloqueoFichero b;
        // O_NONBLOCK: opening a FIFO that stands where a table should be must not wait for a writer to
        // come; it is then refused below, as is anything else that is not a plain file.
        b.m_fd = ::open(nativa.constData(), (escritura ? O_RDWR : O_RDONLY) | O_CLOEXEC | O_NONBLOCK);
        if (b.m_fd < 0)
            throw ErrorTabla(QStringLiteral("No se puede abrir la tabla %1: %2")
                                 .arg(ruta, QString::fromLocal8Bit(std::strerror(errno))));
        struct stat st {};
        if (::fstat(b.m_fd, &st) != 0 || !S_ISREG(st.st_mode))
            throw ErrorTabla(QStringLiteral("No se puede leer la tabla %1: no es un fichero").arg(ruta));
        while (!intentaBloqueo(b.m_fd, escritura ? F_WRLCK : F_RDLCK)) {
            if (errno != EAGAIN && errno != EACCES && errno != EINTR)
                throw ErrorTabla(QStringLiteral("No se puede bloquear la tabla %1: %2")
                                     .arg(ruta, QString::fromLocal8Bit(std::strerror(errno))));
            if (reloj.elapsed() >= esperaMs)
                throw ErrorTabla(QStringLiteral("La tabla %1 está bloqueada por otro puesto").arg(ruta));
            QThread::usleep(500);
        }
        if (!escritura || mismoFichero(b.m_fd, nativa)) return b;
        // A pack renamed a new file into place while we waited: lock that one instead.
    }
}

int EsperaBloqueoConfigurada() {
    return qMax(0, Config.GetEsperaBloqueoTablas());
}

} // namespace nod
