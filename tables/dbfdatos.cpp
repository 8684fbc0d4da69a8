#include "tables/dbfdatos.h"

#include "companion/registro.h"
#include "tables/dbfbloqueo.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QThread>
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nod {

namespace {

quint16 le16(const char* p) {
    return quint16(quint8(p[0]) | quint8(p[1]) << 8);
}
quint32 le32(const char* p) {
    return quint32(quint8(p[0])) | quint32(quint8(p[1])) << 8 | quint32(quint8(p[2])) << 16 |
           quint32(quint8(p[3])) << 24;
}

bool esBlanco(char c) {
    return c == ' ' || c == '\0';
}

// dBase language driver ids (header byte 29) of the pages the office meets.
CodePage paginaDeLdid(quint8 ldid) {
    switch (ldid) {
    case 0x01:
        return CodePage::Cp437;
    case 0x02:
        return CodePage::Cp850;
    default:
        return CodePage::Windows1252; // 0x03, 0x57 and "none"
    }
}

// A ".cpg" file names the page as "1252", "ANSI 1252", "850", "OEM 850" ...
std::optional<CodePage> paginaDeCpg(const QByteArray& cpg) {
    const QByteArray t = cpg.trimmed().toUpper();
    if (t.isEmpty()) return std::nullopt;
    if (t.endsWith("1252")) return CodePage::Windows1252;
    if (t.endsWith("850")) return CodePage::Cp850;
    if (t.endsWith("437")) return CodePage::Cp437;
    return std::nullopt;
}

bool anchoValido(char tipo, int longitud) {
    switch (tipo) {
    case 'C':
        return longitud >= 1 && longitud <= 254;
    case 'N':
    case 'F':
        return longitud >= 1 && longitud <= 20;
    case 'L':
        return longitud == 1;
    case 'D':
        return longitud == 8;
    case 'M':
        return longitud == 10 || longitud == 4;
    default:
        return false;
    }
}

struct Cache {
    std::mutex mutex;
    struct Entrada {
        IdentidadFichero identidad;
        std::shared_ptr<const DatosDbf> datos; // null: the file read as damaged, for `error`
        QString error;
    };
    QHash<QString, Entrada> entradas;
};

Cache& cache() {
    static Cache c;
    return c;
}

constexpr qsizetype kMaxTablasEnCache = 64;

IdentidadFichero identidadDe(const struct stat& st) {
    return {quint64(st.st_dev), quint64(st.st_ino), qint64(st.st_size),
            qint64(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec,
            qint64(st.st_ctim.tv_sec) * 1000000000 + st.st_ctim.tv_nsec};
}

// A file changed within the last few ticks of the clock that stamps it may change again without its
// times moving (file systems stamp with a coarse clock): its image is not kept for the next open, which
// reads the file again. The change time is the one no tool can set back (or ahead).
bool cambioReciente(const struct stat& st) {
    constexpr qint64 kMargenNs = 50'000'000;
    timespec ahora{};
    clock_gettime(CLOCK_REALTIME, &ahora);
    return qint64(st.st_ctim.tv_sec - ahora.tv_sec) * 1000000000 + (st.st_ctim.tv_nsec - ahora.tv_nsec) >
           -kMargenNs;
}

// Reads up to `n` bytes at `desde`; fewer only at the end of the file.
qint64 leeEn(int fd, char* destino, qint64 n, qint64 desde, const QString& ruta) {
    qint64 leidos = 0;
    while (leidos < n) {
        const ssize_t r = ::pread(fd, destino + leidos, size_t(n - leidos), desde + leidos);
        if (r < 0 && errno == EINTR) continue;
        if (r < 0)
            throw ErrorTabla(QStringLiteral("Error de lectura en la tabla %1: %2")
                                 .arg(ruta, QString::fromLocal8Bit(std::strerror(errno))));
        if (r == 0) break;
        leidos += r;
    }
    return leidos;
}

// The bytes of a table that its header accounts for: header, records and the end mark. When the size of
// the file says the header lies, only the header is read (it is enough to say what is wrong), however
// large the file.
QByteArray leeTabla(int fd, qint64 tamano, const QString& ruta) {
    char h[32];
    qint64 aLeer = leeEn(fd, h, qMin<qint64>(tamano, 32), 0, ruta);
    if (aLeer == 32) {
        const qint64 cabecera = le16(h + 8);
        const qint64 declarado = cabecera + qint64(le32(h + 4)) * le16(h + 10);
        aLeer = tamano == declarado || tamano == declarado + 1 ? tamano
                                                               : qMin(tamano, qMax<qint64>(cabecera, 33));
    }
    QByteArray b(aLeer, Qt::Uninitialized);
    b.truncate(leeEn(fd, b.data(), aLeer, 0, ruta));
    return b;
}

// A file beside a table (memo, code page) read whole; empty when it is not a plain file: a FIFO in its
// place is not waited for.
QByteArray leeOpcional(const QString& ruta) {
    const int fd = ::open(QFile::encodeName(ruta).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return {};
    QByteArray b;
    struct stat st {};
    if (::fstat(fd, &st) == 0 && S_ISREG(st.st_mode)) {
        try {
            b.resize(st.st_size);
            b.truncate(leeEn(fd, b.data(), st.st_size, 0, ruta));
        } catch (const ErrorTabla&) {
            b.clear();
        }
    }
    ::close(fd);
    return b;
}

// The file beside `ruta` with another extension, matched without regard to case (".dbt", ".cpg").
QString compañero(const QString& ruta, const char* extension) {
    const QFileInfo fi(ruta);
    const QString base = fi.completeBaseName();
    for (const QString& ext :
         {QString::fromLatin1(extension).toLower(), QString::fromLatin1(extension).toUpper()}) {
        const QString r = fi.dir().filePath(base + ext);
        if (QFileInfo::exists(r)) return r;
    }
    return {};
}

} // namespace

bool LeeNumeroDbf(QByteArrayView texto, double& valor) {
    const char* p = texto.data();
    const char* fin = p + texto.size();
    while (p < fin && esBlanco(*p))
        ++p;
    while (fin > p && esBlanco(fin[-1]))
        --fin;
    if (p == fin) {
        valor = 0;
        return true;
    }
    // Whole numbers, by far the most common, without the general parser.
    const char* q = p;
    const bool negativo = *q == '-';
    if (negativo || *q == '+') ++q;
    if (q < fin && fin - q <= 15 && std::all_of(q, fin, [](char c) { return c >= '0' && c <= '9'; })) {
        qint64 v = 0;
        for (; q < fin; ++q)
            v = v * 10 + (*q - '0');
        valor = double(negativo ? -v : v);
        return true;
    }
    if (*p == '+') ++p;
    // from_chars also reads "inf" and "nan", which no dBase writer puts in a numeric field and which
    // would break the ordering of an index.
    const auto r = std::from_chars(p, fin, valor, std::chars_format::general);
    return r.ec == std::errc() && r.ptr == fin && std::isfinite(valor);
}

std::shared_ptr<DatosDbf> DatosDbf::DesdeBytes(const QString& ruta, QByteArray bytes, QByteArray memo,
                                               const QByteArray& cpg, qint64 tamanoFichero) {
    auto d = std::make_shared<DatosDbf>();
    d->m_ruta = ruta;
    d->m_bytes = std::move(bytes);
    d->m_memo = std::move(memo);
    d->analizaCabecera(cpg, tamanoFichero < 0 ? d->m_bytes.size() : tamanoFichero, false);
    return d;
}

void DatosDbf::SoloCabecera(const QString& ruta, const QByteArray& cabecera, qint64 tamanoFichero) {
    DatosDbf d;
    d.m_ruta = ruta;
    d.m_bytes = cabecera;
    d.analizaCabecera({}, tamanoFichero, true);
}

void DatosDbf::analizaCabecera(const QByteArray& cpg, qint64 tamanoFichero, bool soloCabecera) {
    const auto error = [this](const QString& motivo) {
        return ErrorTabla(QStringLiteral("La tabla %1 está dañada: %2").arg(m_ruta, motivo));
    };
    const qint64 tamano = tamanoFichero;
    if (tamano < 33 || m_bytes.size() < 33)
        throw error(QStringLiteral("el fichero tiene %1 bytes, menos que una cabecera").arg(tamano));
    const char* h = m_bytes.constData();
    m_version = quint8(h[0]);
    if (m_version != 0x03 && m_version != 0x83 && m_version != 0x8B)
        throw error(QStringLiteral("versión desconocida 0x%1").arg(m_version, 2, 16, QLatin1Char('0')));
    const quint32 registros = le32(h + 4);
    m_longitudCabecera = le16(h + 8);
    m_longitudRegistro = le16(h + 10);
    if (m_longitudCabecera < 33 || m_longitudCabecera > tamano || m_longitudCabecera > m_bytes.size())
        throw error(QStringLiteral("longitud de cabecera %1 imposible").arg(m_longitudCabecera));

    // Field descriptors of 32 bytes up to the terminator 0x0D, which must end the header: a header
    // length that does not end on it would shift every field. dBase III+ may write one NUL after it.
    int desplazamiento = 1; // byte 0 of a record is its deletion mark
    int pos = 32;
    for (; pos < m_longitudCabecera && h[pos] != '\r'; pos += 32) {
        if (pos + 32 > m_longitudCabecera)
            throw error(QStringLiteral("no hay terminador 0x0D tras los campos de la cabecera"));
        const char* c = h + pos;
        TCampoDbf campo;
        campo.nombre = QString::fromLatin1(c, int(qstrnlen(c, 11))).toUpper();
        campo.tipo = c[11];
        campo.longitud = quint8(c[16]);
        campo.decimales = quint8(c[17]);
        if (campo.nombre.isEmpty() || !anchoValido(campo.tipo, campo.longitud))
            throw error(QStringLiteral("el campo %1 (%2) tiene tipo '%3' o longitud %4 no válidos")
                            .arg(m_campos.size() + 1)
                            .arg(campo.nombre, QString(QLatin1Char(campo.tipo)))
                            .arg(campo.longitud));
        m_campos.append(campo);
        m_desplazamientos.push_back(desplazamiento);
        m_longitudes.push_back(campo.longitud);
        desplazamiento += campo.longitud;
    }
    if (pos >= m_longitudCabecera)
        throw error(QStringLiteral("no hay terminador 0x0D tras los campos de la cabecera"));
    if (m_longitudCabecera != pos + 1 && !(m_longitudCabecera == pos + 2 && h[pos + 1] == '\0'))
        throw error(QStringLiteral("el terminador 0x0D de los campos está en el byte %1 y la cabecera dice "
                                   "tener %2")
                        .arg(pos + 1)
                        .arg(m_longitudCabecera));
    if (m_campos.isEmpty()) throw error(QStringLiteral("no tiene campos"));
    if (desplazamiento != m_longitudRegistro)
        throw error(QStringLiteral("la cabecera dice registros de %1 bytes y sus campos suman %2")
                        .arg(m_longitudRegistro)
                        .arg(desplazamiento));
    // The file holds exactly the header and the records, and may end with the end mark 0x1A: a count
    // lower than the records held would hide some, and a longer file is no table either.
    const qint64 necesario = qint64(m_longitudCabecera) + qint64(registros) * m_longitudRegistro;
    if (tamano != necesario && tamano != necesario + 1)
        throw error(QStringLiteral("la cabecera dice %1 registros de %2 bytes tras %3 de cabecera (%4 bytes) "
                                   "y el fichero tiene %5 bytes")
                        .arg(registros)
                        .arg(m_longitudRegistro)
                        .arg(m_longitudCabecera)
                        .arg(necesario)
                        .arg(tamano));
    if (registros > quint32(std::numeric_limits<int>::max()))
        throw error(QStringLiteral("demasiados registros"));
    m_numRegistros = int(registros);
    if (!soloCabecera) {
        if (m_bytes.size() < tamano)
            throw error(QStringLiteral("el fichero ha cambiado mientras se leía (%1 de %2 bytes)")
                            .arg(m_bytes.size())
                            .arg(tamano));
        if (tamano == necesario + 1 && m_bytes[necesario] != '\x1a')
            throw error(QStringLiteral("el último byte es 0x%1 y no la marca de fin 0x1A")
                            .arg(quint8(m_bytes[necesario]), 2, 16, QLatin1Char('0')));
    }

    m_cp = paginaDeCpg(cpg).value_or(paginaDeLdid(quint8(h[29])));
    if (m_version == 0x8B && m_memo.size() >= 22 && le16(m_memo.constData() + 20) >= 32)
        m_bloqueMemo = le16(m_memo.constData() + 20);
}

std::shared_ptr<const DatosDbf> DatosDbf::Carga(const QString& ruta, const BloqueoFichero* bloqueoPropio) {
    if (auto datos = cargaSiExiste(ruta, QFile::encodeName(ruta), bloqueoPropio)) return datos;
    throw ErrorTabla(QStringLiteral("No existe la tabla %1").arg(ruta));
}

std::shared_ptr<const DatosDbf> DatosDbf::CargaSiExiste(const QString& ruta, const QByteArray& nativa) {
    return cargaSiExiste(ruta, nativa, nullptr);
}

std::shared_ptr<const DatosDbf> DatosDbf::cargaSiExiste(const QString& ruta, const QByteArray& nativa,
                                                        const BloqueoFichero* bloqueoPropio) {
    struct stat st {};
    if (::stat(nativa.constData(), &st) != 0) {
        if (errno == ENOENT || errno == ENOTDIR) return nullptr;
        throw ErrorTabla(QStringLiteral("No se puede leer la tabla %1: %2")
                             .arg(ruta, QString::fromLocal8Bit(std::strerror(errno))));
    }
    {
        Cache& c = cache();
        std::lock_guard lock(c.mutex);
        const auto it = c.entradas.constFind(ruta);
        if (it != c.entradas.cend() && it->identidad == identidadDe(st)) {
            if (!it->datos) throw ErrorTabla(it->error);
            return it->datos;
        }
    }
    return lee(ruta, bloqueoPropio);
}

std::shared_ptr<const DatosDbf> DatosDbf::lee(const QString& ruta, const BloqueoFichero* bloqueoPropio) {
    // The bytes are read under a shared lock, so that no write of the suite is half done meanwhile. A
    // program that writes without locking (truncate, then write, as cp does) may still be caught half
    // way: a table that reads as damaged is read again until the lock wait runs out, and only then
    // reported, and remembered as damaged while the file stays as it is.
    const int espera = EsperaBloqueoConfigurada();
    QElapsedTimer reloj;
    reloj.start();
    for (int pausaMs = 1;; pausaMs = qMin(2 * pausaMs, 50)) {
        BloqueoFichero bloqueo;
        if (!bloqueoPropio || !bloqueoPropio->activo())
            bloqueo = BloqueoFichero::Toma(ruta, false, int(qMax<qint64>(0, espera - reloj.elapsed())));
        const int fd = bloqueo.activo() ? bloqueo.descriptor() : bloqueoPropio->descriptor();
        struct stat st {};
        if (::fstat(fd, &st) != 0) throw ErrorTabla(QStringLiteral("No se puede leer la tabla %1").arg(ruta));
        std::shared_ptr<const DatosDbf> datos;
        QString error;
        try {
            QByteArray bytes = leeTabla(fd, st.st_size, ruta);
            const QString rutaMemo = compañero(ruta, ".dbt");
            const QString rutaCpg = compañero(ruta, ".cpg");
            datos =
                DesdeBytes(ruta, std::move(bytes), rutaMemo.isEmpty() ? QByteArray() : leeOpcional(rutaMemo),
                           rutaCpg.isEmpty() ? QByteArray() : leeOpcional(rutaCpg), st.st_size);
        } catch (const ErrorTabla& e) {
            if (reloj.elapsed() + pausaMs <= espera) {
                bloqueo.suelta();
                QThread::msleep(ulong(pausaMs));
                continue;
            }
            error = e.mensaje();
        }
        Cache& c = cache();
        std::lock_guard lock(c.mutex);
        if (cambioReciente(st)) {
            c.entradas.remove(ruta);
        } else {
            if (c.entradas.size() >= kMaxTablasEnCache && !c.entradas.contains(ruta))
                c.entradas.erase(c.entradas.begin());
            c.entradas.insert(ruta, {identidadDe(st), datos, error});
        }
        if (!datos) throw ErrorTabla(error);
        return datos;
    }
}

void DatosDbf::Olvida(const QString& ruta) {
    std::lock_guard lock(cache().mutex);
    cache().entradas.remove(ruta);
}

void DatosDbf::OlvidaTodo() {
    std::lock_guard lock(cache().mutex);
    cache().entradas.clear();
}

int DatosDbf::indiceCampo(const QString& nombre) const {
    // Routines write field names as the header has them (upper case): an exact match is tried first.
    for (int i = 0; i < m_campos.size(); ++i)
        if (m_campos[i].nombre == nombre) return i;
    for (int i = 0; i < m_campos.size(); ++i)
        if (m_campos[i].nombre.compare(nombre, Qt::CaseInsensitive) == 0) return i;
    return -1;
}

void DatosDbf::falla(int fila, int campo, const QString& motivo) const {
    throw ErrorTabla(QStringLiteral("La tabla %1, registro %2, campo %3: %4")
                         .arg(m_ruta)
                         .arg(fila + 1)
                         .arg(campo >= 0 && campo < m_campos.size() ? m_campos[campo].nombre : QString())
                         .arg(motivo));
}

bool DatosDbf::blanco(int fila, int campo) const {
    const QByteArrayView v = crudo(fila, campo);
    return std::all_of(v.begin(), v.end(), esBlanco);
}

QString DatosDbf::texto(int fila, int campo) const {
    switch (m_campos[campo].tipo) {
    case 'M':
        return memo(fila, campo);
    case 'N':
    case 'F':
        return QString::fromLatin1(crudo(fila, campo)).trimmed();
    default:
        return Decodifica(crudo(fila, campo), m_cp);
    }
}

double DatosDbf::numero(int fila, int campo) const {
    const char tipo = m_campos[campo].tipo;
    if (tipo == 'D') return fecha(fila, campo);
    if (tipo == 'L') return logico(fila, campo) ? 1 : 0;
    double v = 0;
    if (!LeeNumeroDbf(crudo(fila, campo), v))
        falla(fila, campo,
              QStringLiteral("\"%1\" no es un número").arg(QString::fromLatin1(crudo(fila, campo))));
    return v;
}

qint64 DatosDbf::entero(int fila, int campo) const {
    const double v = numero(fila, campo);
    if (!(v > -9.2e18 && v < 9.2e18)) falla(fila, campo, QStringLiteral("número fuera de rango"));
    return qint64(v);
}

bool DatosDbf::logico(int fila, int campo) const {
    if (m_campos[campo].tipo != 'L') {
        const QString t = texto(fila, campo).trimmed().toUpper();
        return t == QLatin1String("T") || t == QLatin1String("S") || t == QLatin1String("Y") ||
               (m_campos[campo].tipo == 'N' && numero(fila, campo) != 0);
    }
    switch (registro(fila)[m_desplazamientos[size_t(campo)]]) {
    case 'T':
    case 't':
    case 'Y':
    case 'y':
    case 'S':
    case 's':
        return true;
    case 'F':
    case 'f':
    case 'N':
    case 'n':
    case '?':
    case ' ':
    case '\0':
        return false;
    default:
        falla(fila, campo, QStringLiteral("no es un valor lógico"));
    }
}

TDateTime DatosDbf::fecha(int fila, int campo) const {
    if (m_campos[campo].tipo != 'D') return numero(fila, campo);
    const QByteArrayView v = crudo(fila, campo);
    if (v.isEmpty() || blanco(fila, campo)) return 0;
    int a = 0, m = 0, d = 0;
    const auto lee = [&v](int desde, int n, int& x) {
        const auto r = std::from_chars(v.data() + desde, v.data() + desde + n, x);
        return r.ec == std::errc() && r.ptr == v.data() + desde + n;
    };
    if (v.size() != 8 || !lee(0, 4, a) || !lee(4, 2, m) || !lee(6, 2, d) || !QDate(a, m, d).isValid())
        falla(fila, campo, QStringLiteral("\"%1\" no es una fecha").arg(QString::fromLatin1(v)));
    return EncodeDate(a, m, d);
}

QString DatosDbf::memo(int fila, int campo) const {
    const QByteArrayView v = crudo(fila, campo);
    if (v.isEmpty() || blanco(fila, campo)) return {};
    double bloque = 0;
    if (!LeeNumeroDbf(v, bloque) || bloque < 0)
        falla(fila, campo, QStringLiteral("referencia de memo no válida"));
    if (bloque == 0) return {};
    const qint64 inicio = qint64(bloque) * m_bloqueMemo;
    if (inicio >= m_memo.size())
        falla(fila, campo, QStringLiteral("el memo %1 no está en el fichero .dbt").arg(qint64(bloque)));
    const char* p = m_memo.constData() + inicio;
    qint64 disponible = m_memo.size() - inicio;
    // dBase IV blocks start with FF FF 08 00 and the length of the memo including those 8 bytes.
    if (disponible >= 8 && quint8(p[0]) == 0xFF && quint8(p[1]) == 0xFF && p[2] == 0x08 && p[3] == 0x00) {
        const qint64 n = qint64(le32(p + 4)) - 8;
        if (n < 0 || n > disponible - 8) falla(fila, campo, QStringLiteral("longitud de memo imposible"));
        return Decodifica(QByteArrayView(p + 8, n), m_cp);
    }
    // dBase III memos end at the first 0x1A.
    const void* fin = std::memchr(p, 0x1A, size_t(disponible));
    const qint64 n = fin ? static_cast<const char*>(fin) - p : disponible;
    return Decodifica(QByteArrayView(p, n), m_cp);
}

} // namespace nod
