#include "frame/ficheros.h"

#include "companion/registro.h"
#include "companion/rnumcad.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace nod {

namespace {

// What a name in the temporary folder may hold: a separator or a drive mark would take it elsewhere,
// and Windows refuses the rest.
bool caracterDeNombre(QChar c) {
    return c.unicode() >= 0x20 && !QStringView(u"/\\:*?\"<>|").contains(c);
}

// The temporary folder, resolved (the system's may be reached through a link).
QString carpetaTemporal() {
    return QFileInfo(QDir::tempPath()).canonicalFilePath();
}

// The names FicheroTemporalNod gives: up to three characters of the prefix, a hexadecimal number and
// ".tmp", which the name of a temporary table may have dropped.
bool nombreTemporal(const QString& nombre) {
    static const QRegularExpression forma(
        QStringLiteral("^[^/\\\\:*?\"<>|\\x00-\\x1F]{0,3}[0-9A-F]{1,4}(\\.[Tt][Mm][Pp])?$"));
    return forma.match(nombre).hasMatch();
}

} // namespace

QString FicheroTemporalNod(const QString& prefijo) {
    const QString base = StrLeft(prefijo, 3);
    if (!std::all_of(base.begin(), base.end(), caracterDeNombre)) {
        qCWarning(lcFrame).noquote()
            << QStringLiteral(
                   "FicheroTemporalNod: el prefijo \"%1\" lleva caracteres que no caben en un nombre "
                   "de la carpeta temporal; no se crea ningún fichero")
                   .arg(TextoVisible(prefijo, 20));
        return {};
    }
    const QDir tmp(QDir::tempPath());
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
    // Only a temporary table is deleted: one in the temporary folder itself, named as FicheroTemporalNod
    // names files. Anything else (an office table above all) is refused.
    const QFileInfo fi(ruta);
    const QString carpeta = ruta.isEmpty() ? QString() : QFileInfo(fi.absolutePath()).canonicalFilePath();
    if (carpeta.isEmpty() || carpeta != carpetaTemporal() || !nombreTemporal(fi.fileName())) {
        qCWarning(lcFrame).noquote()
            << QStringLiteral("EliminaTablaTemporal: \"%1\" no es una tabla temporal (un nombre de "
                              "FicheroTemporalNod en %2); no se borra")
                   .arg(TextoVisible(ruta, 200), QDir::toNativeSeparators(QDir::tempPath()));
        return;
    }
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
