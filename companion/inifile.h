#pragma once
// The office's INI files, read as the Windows programs of the suite wrote them: Windows-1252 bytes,
// "[SECTION]" headers, "key=value" lines, ";" comments, section and key names without regard to case.

#include "nod_core_export.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace nod NOD_CORE_EXPORT {

class IniFile {
public:
    /// Reads the file; a missing or unreadable file leaves it empty with one warning.
    /// Lines that are neither a section, a "key=value" pair, a comment nor blank are skipped with a warning
    /// naming the file and line (at most `kMaxAvisos` per file; the rest are counted in one last warning).
    bool carga(const QString& ruta);

    /// Parses text already decoded; `nombre` names it in warnings.
    void cargaTexto(const QString& texto, const QString& nombre);

    bool contiene(const QString& seccion, const QString& clave) const;
    QString valor(const QString& seccion, const QString& clave, const QString& defecto = {}) const;
    /// The keys of a section in file order (as written, not upper-cased).
    QStringList claves(const QString& seccion) const;

    const QStringList& avisos() const { return m_avisos; }

    static constexpr int kMaxAvisos = 10;

private:
    struct Seccion {
        QStringList claves;
        QHash<QString, QString> valores; // key upper-cased
    };
    QHash<QString, Seccion> m_secciones; // section upper-cased
    QStringList m_avisos;
};

} // namespace nod
