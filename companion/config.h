#pragma once
// The suite's configuration object. Every value the library reads is declared once, in the tables under
// companion/config/, with its INI section and key, its type and its default; the getters `GetX` and
// setters `SetX` below are generated from those tables, and so is access by name (used by
// `nodrim batch` to apply "config" overrides for one request).
//
// Values come from "CONFIG/CONFIG.INI" and then "CONFIG/VARIOS.INI" under the office (suite) folder;
// a section "NOTARIO#" in a table means one section per notary ("NOTARIO1", "NOTARIO2" ...), read for
// the notary selected with `SetsNotario`. Setters change the value in memory only.

#include "companion/inifile.h"
#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <span>

namespace nod NOD_CORE_EXPORT {

class TConfig {
public:
    TConfig();

    /// Loads the office at `carpetaOficina` (the suite folder). Missing or malformed files give defaults
    /// and warnings (see `Avisos`); it never fails.
    void Carga(const QString& carpetaOficina);

    /// The suite folder, absolute, without a final separator.
    const QString& CarpetaOficina() const { return m_carpetaOficina; }

    /// Folder of a database alias (section [ALIAS] of CONFIG.INI, relative to the suite folder unless
    /// absolute); empty when the alias is not configured.
    QString CarpetaAlias(const QString& alias) const;

    /// A fixed Windows location such as "C:\PasarelaWeb.ini" or "C:\WORDZEB\IMAGENES\" as a real path
    /// under the configured drive root.
    QString RutaUnidadC(const QString& rutaWindows) const;

    /// A number that changes with every `Carga` and travels with a copy of the object: what is derived
    /// from the office's files alone (the folder of an alias) may be kept while it stays the same.
    quint64 Generacion() const { return m_generacion; }

    /// Warnings met while loading, each naming its file (and line).
    const QStringList& Avisos() const { return m_avisos; }

    // The notary currently selected, as text ("1", "2" ...). Selecting one reloads its own values.
    const QString& GetsNotario() const { return m_sNotario; }
    void SetsNotario(const QString& notario);
    /// Reloads the agreement (per-notary) values of the selected notary from the office's files.
    void ActualizaConvenio();

// clang-format off
#define NOD_VALOR(tipo, nombre, seccion, clave, defecto, doc)                                                \
    const tipo& Get##nombre() const { return m_##nombre; }                                                   \
    void Set##nombre(const tipo& v) { m_##nombre = v; }
// clang-format on
#include "companion/config/valores.def"
#undef NOD_VALOR

    // Access by name (the getter's name without "Get"), for tools and scripts.
    enum class Tipo { Entero, Real, Logico, Texto };
    struct Descriptor {
        const char* nombre;
        Tipo tipo;
        const char* seccion;
        const char* clave;
        const char* doc;
        QVariant (*lee)(const TConfig&);
        void (*escribe)(TConfig&, const QVariant&);
    };
    /// Every value of the tables, plus "sNotario".
    static std::span<const Descriptor> Descriptores();
    static const Descriptor* BuscaDescriptor(QStringView nombre);

private:
    void cargaValores(bool soloPorNotario);
    QString seccionReal(const char* seccion) const;

    QString m_carpetaOficina;
    quint64 m_generacion = 0;
    IniFile m_config;
    IniFile m_varios;
    QStringList m_avisos;
    QString m_sNotario = QStringLiteral("1");

#define NOD_VALOR(tipo, nombre, seccion, clave, defecto, doc) tipo m_##nombre = defecto;
#include "companion/config/valores.def"
#undef NOD_VALOR
};

/// The suite's one configuration object.
extern TConfig Config;

/// The sample office shipped with the library: installed, share/nodrutinas/sample-office beside the
/// library's folder (lib/); run from the build folder, the one of the sources. The folder may be missing
/// (a library installed without it): the path is then the installed one, where it was looked for.
QString CarpetaOficinaDeEjemplo();

/// The office folder to use: `--office` when given, else $NODRIM_DIR, else the sample office shipped
/// with the library (CarpetaOficinaDeEjemplo).
QString CarpetaOficinaPorDefecto(const QString& opcionOffice = {});

} // namespace nod
