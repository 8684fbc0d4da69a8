#include "companion/config.h"

#include "companion/registro.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#if defined(Q_OS_UNIX)
#include <dlfcn.h>
#endif

namespace nod {

TConfig Config;

namespace {

template <typename T> struct TipoDe;
template <> struct TipoDe<int> { static constexpr TConfig::Tipo valor = TConfig::Tipo::Entero; };
template <> struct TipoDe<double> { static constexpr TConfig::Tipo valor = TConfig::Tipo::Real; };
template <> struct TipoDe<bool> { static constexpr TConfig::Tipo valor = TConfig::Tipo::Logico; };
template <> struct TipoDe<QString> { static constexpr TConfig::Tipo valor = TConfig::Tipo::Texto; };

// Texts of the INI files to typed values. A text that does not parse keeps the default, with a warning.
// Qt's number parsing stops at a NUL, which would make "3<NUL>tres" read as 3: such a text is no number.
[[maybe_unused]] bool interpreta(const QString& texto, int& v) {
    if (texto.contains(QChar(0))) return false;
    bool ok = false;
    const int n = texto.toInt(&ok);
    if (ok) v = n;
    return ok;
}

[[maybe_unused]] bool interpreta(const QString& texto, double& v) {
    if (texto.contains(QChar(0))) return false;
    QString t = texto;
    if (!t.contains(QLatin1Char('.'))) t.replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const double d = t.toDouble(&ok); // QString::toDouble is locale-independent
    if (ok) v = d;
    return ok;
}

[[maybe_unused]] bool interpreta(const QString& texto, bool& v) {
    const QString t = texto.toUpper();
    if (t == QLatin1String("1") || t == QLatin1String("S") || t == QLatin1String("SI") ||
        t == QLatin1String("TRUE")) {
        v = true;
        return true;
    }
    if (t == QLatin1String("0") || t == QLatin1String("N") || t == QLatin1String("NO") ||
        t == QLatin1String("FALSE")) {
        v = false;
        return true;
    }
    return false;
}

[[maybe_unused]] bool interpreta(const QString& texto, QString& v) {
    v = texto;
    return true;
}

constexpr char kSeccionPorNotario[] = "NOTARIO#";

} // namespace

const TConfig::Descriptor* TConfig::BuscaDescriptor(QStringView nombre) {
    for (const Descriptor& d : Descriptores())
        if (nombre == QLatin1String(d.nombre)) return &d;
    return nullptr;
}

std::span<const TConfig::Descriptor> TConfig::Descriptores() {
    static const auto tabla = std::to_array<Descriptor>({
        {"sNotario", Tipo::Texto, "GENERAL", "Notario", "The notary currently selected, as text",
         [](const TConfig& c) { return QVariant(c.GetsNotario()); },
         [](TConfig& c, const QVariant& v) { c.SetsNotario(v.toString()); }},
#define NOD_VALOR(tipo, nombre, seccion, clave, defecto, doc)                                                \
    {#nombre,                                                                                                \
     TipoDe<tipo>::valor,                                                                                    \
     seccion,                                                                                                \
     clave,                                                                                                  \
     doc,                                                                                                    \
     [](const TConfig& c) { return QVariant::fromValue(c.Get##nombre()); },                                  \
     [](TConfig& c, const QVariant& v) { c.Set##nombre(v.value<tipo>()); }},
#include "companion/config/valores.def"
#undef NOD_VALOR
    });
    return tabla;
}

TConfig::TConfig() = default;

QString TConfig::seccionReal(const char* seccion) const {
    if (qstrcmp(seccion, kSeccionPorNotario) == 0) return QStringLiteral("NOTARIO") + m_sNotario;
    return QLatin1String(seccion);
}

void TConfig::cargaValores(bool soloPorNotario) {
    auto lee = [this, soloPorNotario](auto& miembro, auto defecto, const char* seccion, const char* clave) {
        const bool porNotario = qstrcmp(seccion, kSeccionPorNotario) == 0;
        if (soloPorNotario && !porNotario) return;
        miembro = defecto;
        const QString sec = seccionReal(seccion);
        const QString cla = QLatin1String(clave);
        const IniFile* ini = m_config.contiene(sec, cla)   ? &m_config
                             : m_varios.contiene(sec, cla) ? &m_varios
                                                           : nullptr;
        if (!ini) return;
        const QString texto = ini->valor(sec, cla);
        if (!interpreta(texto, miembro)) {
            m_avisos << QStringLiteral("[%1] %2=%3: valor no válido, se usa el valor por defecto")
                            .arg(sec, cla, TextoVisible(texto, 200));
            qCWarning(lcConfig).noquote() << m_avisos.last();
        }
    };
#define NOD_VALOR(tipo, nombre, seccion, clave, defecto, doc) lee(m_##nombre, tipo(defecto), seccion, clave);
#include "companion/config/valores.def"
#undef NOD_VALOR
}

void TConfig::Carga(const QString& carpetaOficina) {
    static std::atomic<quint64> cargas{0};
    *this = TConfig();
    m_generacion = ++cargas;
    m_carpetaOficina = QDir::cleanPath(QFileInfo(carpetaOficina).absoluteFilePath());
    struct stat st {};
    const bool hay = ::stat(QFile::encodeName(m_carpetaOficina).constData(), &st) == 0;
    if (!hay || !S_ISDIR(st.st_mode)) {
        const int error = hay ? ENOTDIR : errno;
        m_avisos << QStringLiteral("La carpeta de la oficina %1 %2; se usan los valores por defecto")
                        .arg(QDir::toNativeSeparators(m_carpetaOficina),
                             error == ENOENT ? QStringLiteral("no existe")
                                             : QStringLiteral("no se puede leer (%1)")
                                                   .arg(QString::fromLocal8Bit(std::strerror(error))));
        qCWarning(lcConfig).noquote() << m_avisos.last();
    }
    const QDir dir(m_carpetaOficina);
    m_config.carga(dir.filePath(QStringLiteral("CONFIG/CONFIG.INI")));
    m_varios.carga(dir.filePath(QStringLiteral("CONFIG/VARIOS.INI")));
    m_avisos << m_config.avisos() << m_varios.avisos();
    m_sNotario = m_config.valor(QStringLiteral("GENERAL"), QStringLiteral("Notario"), QStringLiteral("1"));
    cargaValores(false);
}

void TConfig::SetsNotario(const QString& notario) {
    m_sNotario = notario;
    cargaValores(true);
}

void TConfig::ActualizaConvenio() {
    cargaValores(true);
}

QString TConfig::CarpetaAlias(const QString& alias) const {
    const QString carpeta = m_config.valor(QStringLiteral("ALIAS"), alias);
    if (carpeta.isEmpty()) return {};
    return QDir::cleanPath(QDir(m_carpetaOficina).absoluteFilePath(carpeta));
}

QString TConfig::RutaUnidadC(const QString& rutaWindows) const {
    QString resto = rutaWindows;
    if (resto.size() >= 2 && resto[1] == QLatin1Char(':')) resto = resto.mid(2);
    resto.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (resto.startsWith(QLatin1Char('/')))
        resto.remove(0, 1);
    const QString raiz = QDir(m_carpetaOficina).absoluteFilePath(m_UnidadC);
    return resto.isEmpty() ? QDir::cleanPath(raiz) : QDir::cleanPath(raiz + QLatin1Char('/') + resto);
}

QString CarpetaOficinaDeEjemplo() {
    const QString fuentes = QStringLiteral(NOD_SAMPLE_OFFICE);
#if defined(Q_OS_UNIX)
    // The file this function lives in: the shared library, or a program that linked it statically.
    Dl_info info{};
    if (::dladdr(reinterpret_cast<void*>(&CarpetaOficinaDeEjemplo), &info) == 0 || !info.dli_fname)
        return fuentes;
    const QFileInfo fichero(QString::fromLocal8Bit(info.dli_fname));
    const QString instalada = QDir::cleanPath(fichero.absolutePath() + QLatin1Char('/') +
                                              QStringLiteral(NOD_SAMPLE_OFFICE_INSTALADA));
    if (QFileInfo(instalada).isDir()) return instalada;
    // Built and not installed (the build folder, tests): the sources are at hand.
    const QString construccion = QDir(QStringLiteral(NOD_BUILD_DIR)).canonicalPath();
    const QString ruta = fichero.canonicalFilePath();
    if (!construccion.isEmpty() && ruta.startsWith(construccion + QLatin1Char('/'))) return fuentes;
    return instalada;
#else
    return fuentes;
#endif
}

QString CarpetaOficinaPorDefecto(const QString& opcionOffice) {
    if (!opcionOffice.isEmpty()) return opcionOffice;
    const QString entorno = qEnvironmentVariable("NODRIM_DIR");
    if (!entorno.isEmpty()) return entorno;
    return CarpetaOficinaDeEjemplo();
}

} // namespace nod
