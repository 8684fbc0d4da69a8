#pragma once
// The loaded image of one dBase file: its header checked against the file's real size, its fields with
// their offsets inside a record, and every record's bytes, read in one go. Images are immutable and
// shared: `DatosDbf::Carga` hands out the same image to every handle while the file keeps its identity
// (device, inode), size, modification time and change time, and the index orders built over an image
// live with it.
//
// Field values are decoded straight from the record bytes at their offsets; a numeric, date or logical
// field whose text does not parse raises ErrorTabla naming the file, the record and the field.

#include "companion/codepage.h"
#include "nod_core_export.h"
#include "tables/dbfbloqueo.h"
#include "tables/tablas.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace nod NOD_CORE_EXPORT {

/// Identity of a file on disk: when any of these change, an image of it is stale.
struct IdentidadFichero {
    quint64 dispositivo = 0;
    quint64 inodo = 0;
    qint64 tamano = 0;
    qint64 modificacionNs = 0;
    qint64 cambioNs = 0; // the change time, which no tool can set back as `touch -r` does the other
    bool operator==(const IdentidadFichero&) const = default;
};

/// The order of an index tag: the live (not deleted) records sorted by the tag's key, ties in physical
/// order. For a tag whose first key field is numeric, date or logical, `claves` holds that field's value
/// per position so that searches compare doubles instead of decoding text.
struct OrdenIndice {
    std::vector<int> campos;    // key fields, positions in the field list
    std::vector<quint32> filas; // record numbers from 0, in key order
    std::vector<double> claves; // first key field's value per position (numeric first field only)
};

class FiltroTabla; // a compiled filter expression (tables/tablafiltro.h)

class DatosDbf {
public:
    /// The image of the file at `ruta`, from the cache when the file is unchanged (one stat() then).
    /// Throws ErrorTabla. `bloqueoPropio`: a write lock this handle already holds on the file; the bytes are
    /// read through it (another lock of this process on the same file would wait for it). A file that
    /// reads as damaged is read again within the lock wait (`EsperaBloqueoTablas`) before it is reported.
    static std::shared_ptr<const DatosDbf> Carga(const QString& ruta,
                                                 const BloqueoFichero* bloqueoPropio = nullptr);
    /// The same, but nullptr when there is no file at `ruta` (other errors still throw); `nativa` is the
    /// path as the file system spells it (QFile::encodeName).
    static std::shared_ptr<const DatosDbf> CargaSiExiste(const QString& ruta, const QByteArray& nativa);
    /// Parses an image from the file's bytes (exposed for tests of damaged files). `tamanoFichero`: the
    /// size of the file they come from, when they are not all of it. Throws ErrorTabla.
    static std::shared_ptr<DatosDbf> DesdeBytes(const QString& ruta, QByteArray bytes, QByteArray memo = {},
                                                const QByteArray& cpg = {}, qint64 tamanoFichero = -1);
    /// Checks a header alone against the file's size (before a write). Throws ErrorTabla.
    static void SoloCabecera(const QString& ruta, const QByteArray& cabecera, qint64 tamanoFichero);
    /// Drops the cached image of one file (after this process wrote it) or of all files.
    static void Olvida(const QString& ruta);
    static void OlvidaTodo();

    const QString& ruta() const { return m_ruta; }
    quint8 version() const { return m_version; }
    CodePage paginaCodigos() const { return m_cp; }
    const QList<TCampoDbf>& campos() const { return m_campos; }
    int desplazamiento(int campo) const { return m_desplazamientos[size_t(campo)]; }
    int indiceCampo(const QString& nombre) const;
    int longitudRegistro() const { return m_longitudRegistro; }
    int longitudCabecera() const { return m_longitudCabecera; }
    int numRegistros() const { return m_numRegistros; }
    const char* registro(int fila) const {
        return m_bytes.constData() + m_longitudCabecera + qsizetype(fila) * m_longitudRegistro;
    }
    bool borrado(int fila) const { return registro(fila)[0] == '*'; }
    const QByteArray& bytes() const { return m_bytes; }

    // Decoding of one field of a record (from 0). See the contract of TTabla's getters.
    QString texto(int fila, int campo) const;
    double numero(int fila, int campo) const;
    qint64 entero(int fila, int campo) const;
    bool logico(int fila, int campo) const;
    TDateTime fecha(int fila, int campo) const;
    bool blanco(int fila, int campo) const;
    /// A field's raw bytes without trailing blanks (blank or NUL). Inline: index searches call it for
    /// every key they compare.
    QByteArrayView crudo(int fila, int campo) const {
        const char* p = registro(fila) + m_desplazamientos[size_t(campo)];
        int n = m_longitudes[size_t(campo)];
        while (n > 0 && (p[n - 1] == ' ' || p[n - 1] == '\0'))
            --n;
        return QByteArrayView(p, n);
    }

    /// The order of a tag given by its key fields; built on first use and kept with the image.
    const OrdenIndice& orden(const std::vector<int>& campos) const;
    /// The live records in physical order.
    const OrdenIndice& ordenFisico() const { return orden({}); }
    /// The order of index tag `etiqueta` of this table (tables/catalogoindices.h), remembered by tag
    /// name so that reopening on the same tag costs one lookup. Throws ErrorTabla for a tag the catalog
    /// does not know for this table or whose fields the table lacks.
    const OrdenIndice& ordenDeEtiqueta(const QString& etiqueta) const;
    /// The compiled filter `texto` (tables/tablafiltro.h), remembered by its text. Throws ErrorTabla.
    std::shared_ptr<const FiltroTabla> filtro(const QString& texto) const;

    [[noreturn]] void falla(int fila, int campo, const QString& motivo) const;

private:
    static std::shared_ptr<const DatosDbf> cargaSiExiste(const QString& ruta, const QByteArray& nativa,
                                                         const BloqueoFichero* bloqueoPropio);
    static std::shared_ptr<const DatosDbf> lee(const QString& ruta, const BloqueoFichero* bloqueoPropio);
    void analizaCabecera(const QByteArray& cpg, qint64 tamanoFichero, bool soloCabecera);
    QString memo(int fila, int campo) const;

    QString m_ruta;
    QByteArray m_bytes;
    QByteArray m_memo;
    quint8 m_version = 0;
    CodePage m_cp = CodePage::Windows1252;
    QList<TCampoDbf> m_campos;
    std::vector<int> m_desplazamientos;
    std::vector<int> m_longitudes; // the fields' widths, beside their offsets
    int m_longitudRegistro = 0;
    int m_longitudCabecera = 0;
    int m_numRegistros = 0;
    int m_bloqueMemo = 512;

    mutable std::mutex m_mutexOrdenes;
    mutable std::unordered_map<std::string, std::unique_ptr<OrdenIndice>> m_ordenes;
    mutable QHash<QString, const OrdenIndice*> m_etiquetas;
    mutable QHash<QString, std::shared_ptr<const FiltroTabla>> m_filtros;
};

/// Reads a number written as dBase numeric text (blanks around, optional sign, "." decimals). False when the
/// text is not a number. Blank text gives 0.
bool LeeNumeroDbf(QByteArrayView texto, double& valor);

} // namespace nod
