#include "tables/dbfescritura.h"

#include "companion/hoy.h"
#include "tables/dbfdatos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <shapefil.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nod {

namespace {

// shapelib parses numbers with the C library's atof, which follows the locale (a Spanish locale reads
// "1.5" as 1); the layer never asks shapelib for numbers, but its hook is made locale-proof all the same.
double atofC(const char* s) {
    double v = 0;
    while (*s == ' ')
        ++s;
    std::from_chars(s, s + std::strlen(s), v);
    return v;
}

SAHooks ganchos() {
    SAHooks h;
    SASetupDefaultHooks(&h);
    h.Atof = atofC;
    return h;
}

struct Dbf {
    DBFHandle h = nullptr;
    ~Dbf() {
        if (h) DBFClose(h);
    }
};

// Checks the header on disk before shapelib trusts it: shapelib does not compare the header with the
// file's size, and a damaged header must give an error, not a write in the wrong place.
int compruebaCabecera(const QString& ruta, int fd) {
    struct stat st {};
    char cab[32];
    if (fstat(fd, &st) != 0 || pread(fd, cab, 32, 0) != 32)
        throw ErrorTabla(QStringLiteral("La tabla %1 está dañada: no tiene cabecera").arg(ruta));
    const int largo = quint8(cab[8]) | quint8(cab[9]) << 8;
    QByteArray cabecera(qMax(largo, 33), '\0');
    if (largo > st.st_size || pread(fd, cabecera.data(), size_t(largo), 0) != largo)
        throw ErrorTabla(QStringLiteral("La tabla %1 está dañada: cabecera incompleta").arg(ruta));
    DatosDbf::SoloCabecera(ruta, cabecera, st.st_size);
    return quint8(cab[10]) | quint8(cab[11]) << 8;
}

void fechaDeHoy(DBFHandle h) {
    const QDate hoy = TDateTimeToQDate(Date());
    DBFSetLastModifiedDate(h, hoy.year() - 1900, hoy.month(), hoy.day());
}

Dbf abreParaEscribir(const QString& ruta, const char* modo) {
    SAHooks h = ganchos();
    Dbf d;
    d.h = DBFOpenLL(QFile::encodeName(ruta).constData(), modo, &h);
    if (!d.h) throw ErrorTabla(QStringLiteral("No se puede abrir la tabla %1 para escribir").arg(ruta));
    return d;
}

void sincroniza(const QString& ruta) {
    const int fd = ::open(QFile::encodeName(ruta).constData(), O_RDONLY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

template <typename F> void conBloqueo(const QString& ruta, BloqueoFichero* bloqueo, F&& f) {
    BloqueoFichero propio;
    if (!bloqueo || !bloqueo->activo()) {
        propio = BloqueoFichero::Toma(ruta, true, EsperaBloqueoConfigurada());
        bloqueo = &propio;
    }
    f(compruebaCabecera(ruta, bloqueo->descriptor()));
    DatosDbf::Olvida(ruta);
}

} // namespace

int EscribeRegistroDbf(const QString& ruta, int fila, const QByteArray& registro, BloqueoFichero* bloqueo) {
    int escrita = -1;
    conBloqueo(ruta, bloqueo, [&](int longitudRegistro) {
        Dbf d = abreParaEscribir(ruta, "rb+");
        if (longitudRegistro != registro.size())
            throw ErrorTabla(QStringLiteral("La tabla %1 ha cambiado de estructura").arg(ruta));
        const int n = DBFGetRecordCount(d.h);
        escrita = fila < 0 ? n : fila;
        if (escrita > n)
            throw ErrorTabla(QStringLiteral("La tabla %1 no tiene el registro %2").arg(ruta).arg(fila + 1));
        fechaDeHoy(d.h);
        if (!DBFWriteTuple(d.h, escrita, const_cast<char*>(registro.constData())))
            throw ErrorTabla(QStringLiteral("No se puede escribir en la tabla %1").arg(ruta));
    });
    return escrita;
}

void BorraRegistroDbf(const QString& ruta, int fila, BloqueoFichero* bloqueo) {
    conBloqueo(ruta, bloqueo, [&](int) {
        Dbf d = abreParaEscribir(ruta, "rb+");
        if (fila < 0 || fila >= DBFGetRecordCount(d.h))
            throw ErrorTabla(QStringLiteral("La tabla %1 no tiene el registro %2").arg(ruta).arg(fila + 1));
        fechaDeHoy(d.h);
        if (!DBFMarkRecordDeleted(d.h, fila, 1))
            throw ErrorTabla(QStringLiteral("No se puede borrar en la tabla %1").arg(ruta));
    });
}

void EmpaquetaDbf(const QString& ruta, BloqueoFichero* bloqueo) {
    conBloqueo(ruta, bloqueo, [&](int) {
        const QFileInfo fi(ruta);
        // shapelib names the new file after its base name plus ".dbf".
        const QString nueva = fi.dir().filePath(fi.completeBaseName() + QStringLiteral(".empaquetando.dbf"));
        {
            Dbf vieja = abreParaEscribir(ruta, "rb");
            Dbf d;
            d.h = DBFCloneEmpty(vieja.h, QFile::encodeName(nueva).constData());
            if (!d.h) throw ErrorTabla(QStringLiteral("No se puede crear %1").arg(nueva));
            fechaDeHoy(d.h);
            int j = 0;
            for (int i = 0; i < DBFGetRecordCount(vieja.h); ++i) {
                if (DBFIsRecordDeleted(vieja.h, i)) continue;
                const char* tupla = DBFReadTuple(vieja.h, i);
                if (!tupla || !DBFWriteTuple(d.h, j++, const_cast<char*>(tupla))) {
                    QFile::remove(nueva);
                    throw ErrorTabla(QStringLiteral("No se puede empaquetar la tabla %1").arg(ruta));
                }
            }
        }
        // The clone is written as dBase III; keep the original version byte (memo tables say so there).
        QFile original(ruta), copia(nueva);
        if (original.open(QIODevice::ReadOnly) && copia.open(QIODevice::ReadWrite)) {
            const QByteArray version = original.read(1);
            copia.write(version);
        }
        copia.close();
        QFile::remove(fi.dir().filePath(fi.completeBaseName() + QStringLiteral(".empaquetando.cpg")));
        sincroniza(nueva);
        if (::rename(QFile::encodeName(nueva).constData(), QFile::encodeName(ruta).constData()) != 0) {
            QFile::remove(nueva);
            throw ErrorTabla(QStringLiteral("No se puede sustituir la tabla %1").arg(ruta));
        }
        sincroniza(fi.absolutePath());
    });
}

void CreaDbf(const QString& ruta, const QList<TCampoDbf>& campos) {
    if (campos.isEmpty()) throw ErrorTabla(QStringLiteral("La tabla %1 debe tener algún campo").arg(ruta));
    SAHooks h = ganchos();
    Dbf d;
    d.h = DBFCreateLL(QFile::encodeName(ruta).constData(), "LDID/87", &h); // 0x57: Windows-1252
    if (!d.h) throw ErrorTabla(QStringLiteral("No se puede crear la tabla %1").arg(ruta));
    for (const TCampoDbf& c : campos) {
        if (c.tipo == 'M' || c.nombre.size() > 10 ||
            DBFAddNativeFieldType(d.h, c.nombre.toLatin1().constData(), c.tipo, c.longitud, c.decimales) < 0)
            throw ErrorTabla(QStringLiteral("Campo %1 no válido para la tabla %2").arg(c.nombre, ruta));
    }
    fechaDeHoy(d.h);
    DBFClose(d.h);
    d.h = nullptr;
    // shapelib always names what it creates "<base>.dbf"; give the file the name the office uses.
    const QFileInfo fi(ruta);
    const QString creada = fi.dir().filePath(fi.completeBaseName() + QStringLiteral(".dbf"));
    if (creada != ruta &&
        ::rename(QFile::encodeName(creada).constData(), QFile::encodeName(ruta).constData()) != 0)
        throw ErrorTabla(QStringLiteral("No se puede crear la tabla %1").arg(ruta));
}

} // namespace nod
