#include "frame/ficheros.h"

#include "companion/registro.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <cmath>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace nod {

QString FicheroTemporalNod(const QString& prefijo) {
    const QDir tmp(QDir::tempPath());
    const QString base = prefijo.left(3);
    quint32 numero = QRandomGenerator::global()->bounded(0x10000u);
    for (int intento = 0; intento < 0x10000; ++intento, numero = (numero + 1) & 0xFFFF) {
        const QString nombre =
            tmp.filePath(base + QString::number(numero, 16).toUpper() + QStringLiteral(".tmp"));
        QFile f(nombre);
        if (f.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return QDir::toNativeSeparators(nombre);
        if (!f.exists()) break; // the folder refuses new files: no point trying other names
    }
    qCWarning(lcFrame) << "FicheroTemporalNod: no se puede crear un fichero en" << tmp.path();
    return {};
}

void EliminaTablaTemporal(const QString& ruta) {
    for (const char* ext : {".dbf", ".mdx", ".dbt"}) {
        const QString fichero = ruta + QLatin1String(ext);
        if (!QFileInfo::exists(fichero)) continue;
        // Windows sets the archive attribute on the bare path (without extension); POSIX has no such
        // attribute, so there is nothing to do for it here.
        QFile::remove(fichero);
    }
}

bool FicheroAbierto(const QString& nombre) {
    const QFileInfo info(nombre);
    if (nombre.isEmpty() || !info.exists() || info.isDir()) return false; // a folder is no file
#ifdef Q_OS_UNIX
    const int fd = ::open(QFile::encodeName(nombre).constData(), O_RDWR | O_CLOEXEC);
    if (fd < 0) return true; // the exclusive open failed, as on Windows
    struct flock l {};
    l.l_type = F_WRLCK;
    l.l_whence = SEEK_SET;
    l.l_start = 0;
    l.l_len = 0;
    const bool retenido = ::fcntl(fd, F_OFD_GETLK, &l) == 0 && l.l_type != F_UNLCK;
    ::close(fd);
    return retenido;
#else
    QFile f(nombre);
    if (!f.open(QIODevice::ReadWrite)) return true;
    return false;
#endif
}

QString ExtraePath(const QString& nombre) {
    for (qsizetype i = nombre.size() - 1; i >= 0; --i) {
        const QChar c = nombre[i];
        if (c == QLatin1Char('\\') || c == QLatin1Char('/') || c == QLatin1Char(':'))
            return nombre.left(i + 1);
    }
    return {};
}

int GetDate(TDateTime fecha) {
    constexpr int kDiasHasta1899 = 693594; // 1/1/0001 .. 30/12/1899, the day before counting as day 1
    if (!std::isfinite(fecha) || std::fabs(fecha) > 3.0e6) return 0;
    return int(std::trunc(fecha)) + kDiasHasta1899;
}

} // namespace nod
