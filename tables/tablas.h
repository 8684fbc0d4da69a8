#pragma once
// The office's dBase tables, as the routines use them: opened by database alias and file name on an index
// tag, positioned by key, restricted by a range or a filter, walked with a cursor, and closed by dropping the
// handle before the routine returns.
//
//     auto tb = CreaTabla(Config.GetAliasNodrim(), "PROVIN.DBF", "CODIGO");
//     if (TBBusca(*tb, {{"CODIGO", 28}}))
//         nombre = tb->AsString("PROVINCIA").trimmed();       // "MADRID"
//
// Files are real dBase III/IV tables (.dbf, with a .dbt beside it for memo fields) in the code page their
// header names (Windows-1252 when it names none; a ".cpg" file beside the table overrides the header).
// Index tags are not .mdx files: every tag is a key expression over the table's fields, kept in one catalog
// (tables/catalogoindices.h). The order of a tag is built in memory the first time it is used and
// reused, shared by every handle of the process, while the file keeps the same identity, size,
// modification and change time; opening a table per call therefore costs one stat() of the file and
// well under a microsecond of work besides once it is warm, and still sees another workstation's change
// on the next call.
//
// Concurrency: several workstations may share a folder. Every write (Post, TBDelete, TBPackDbf) takes a
// whole-file write lock (Linux open-file-description lock, F_OFD_SETLK with F_WRLCK) for its duration,
// re-reading the header under the lock so that appends from several processes never overwrite one
// another. A lock held elsewhere is waited for `EsperaBloqueoTablas` milliseconds (configuration) and
// then reported as `ErrorTabla`. Reading takes a shared lock only while the file is loaded.
//
// Errors: a table that cannot be opened or read (missing, not a plain file, truncated, a header that lies
// about its record count or length or disagrees with the file's size, an unknown version byte, a field
// that does not parse) raises `ErrorTabla` naming the file (and record); nothing reads past the file's
// bytes, nor beyond what its header accounts for. A table that reads as damaged is read again for the
// lock wait first, in case a program that does not lock is halfway through rewriting it.

#include "companion/codepage.h"
#include "companion/errores.h"
#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <utility>

namespace nod NOD_CORE_EXPORT {

/// A field of a table: name (upper case, at most 10 characters), dBase type ('C' character, 'N' numeric,
/// 'F' float, 'L' logical, 'D' date, 'M' memo), width and decimals.
struct TCampoDbf {
    QString nombre;
    char tipo = 'C';
    int longitud = 10;
    int decimales = 0;
    bool operator==(const TCampoDbf&) const = default;
};

/// One key value of a search or range: a field name and its value. The value is compared by the field's
/// type: text with character fields, a number (or a text holding one) with numeric fields, a QDate or a
/// TDateTime serial with date fields, a Boolean with logical fields.
using TValorClave = std::pair<QString, QVariant>;
using TClaves = QList<TValorClave>;

class DatosDbf; // the loaded, shared image of a file (tables/dbfdatos.h)

/// An open table: a cursor over the visible rows (those not deleted, inside the range, passing the
/// filter) in the order of the current index tag (physical order when there is none).
/// After opening, the cursor stands on the first visible row.
class TTabla {
public:
    ~TTabla();
    TTabla(const TTabla&) = delete;
    TTabla& operator=(const TTabla&) = delete;

    /// Opens a table by its real path (tools and tests; the routines use `CreaTabla`). Throws ErrorTabla.
    static std::unique_ptr<TTabla> AbreRuta(const QString& ruta, const QString& indice = {});

    /// The file's real path and the current index tag (empty: physical order).
    const QString& Ruta() const;
    const QString& Indice() const;
    const QList<TCampoDbf>& Campos() const;
    bool TieneCampo(const QString& campo) const;
    /// Position of a field in `Campos()`, for fast repeated access; -1 when the table has no such field.
    int IndiceCampo(const QString& campo) const;
    CodePage PaginaCodigos() const;

    // Cursor. Eof is true on an empty view and after Next on the last row (the cursor stays on that row);
    // Bof likewise before the first.
    void First();
    void Next();
    void Prior();
    void Last();
    bool Eof() const;
    bool Bof() const;
    /// Number of visible rows.
    int RecordCount() const;
    /// Physical record number of the current row, from 1; 0 when there is none.
    int RecNo() const;

    // Field values of the current row. An unknown field name throws ErrorTabla naming table and field; with
    // no current row (empty view) values are empty, 0 or false. Character fields come without their
    // trailing blanks (leading blanks are kept); numeric fields parse their text (blank gives 0); a memo
    // field gives its text from the .dbt file.
    QString AsString(const QString& campo) const;
    int AsInteger(const QString& campo) const;
    qint64 AsLargeInt(const QString& campo) const;
    double AsFloat(const QString& campo) const;
    bool AsBoolean(const QString& campo) const;
    /// A date field as a serial (0 when blank).
    TDateTime AsDateTime(const QString& campo) const;
    /// True when the field holds only blanks.
    bool EsNulo(const QString& campo) const;
    // The same by field position, for scans: resolve each field once with IndiceCampo, then every row's
    // value is decoded straight from the record's bytes at the field's offset, with no name lookup.
    //     const int cod = tb->IndiceCampo("CODCLIENTE");
    //     for (tb->First(); !tb->Eof(); tb->Next()) TBBuscaClave(*clientes, tb->AsLargeInt(cod));
    QString AsString(int campo) const;
    qint64 AsLargeInt(int campo) const;
    double AsFloat(int campo) const;
    bool AsBoolean(int campo) const;
    TDateTime AsDateTime(int campo) const;

    // Writing. Append starts a blank new row and Edit a copy of the current one; the setters change that
    // buffer; Post writes it under the table's write lock (throws ErrorTabla when the lock cannot be had, a
    // value does not fit its field, or a text has a character the code page cannot hold); Cancel drops it.
    // After Post the cursor stands on the written row when it is visible.
    void Append();
    void Edit();
    void SetString(const QString& campo, const QString& valor);
    void SetInteger(const QString& campo, qint64 valor);
    void SetFloat(const QString& campo, double valor);
    void SetBoolean(const QString& campo, bool valor);
    void SetDateTime(const QString& campo, TDateTime valor);
    /// Blanks a field.
    void SetNulo(const QString& campo);
    void Post();
    void Cancel();
    /// True between Append/Edit and Post/Cancel.
    bool Editando() const;

private:
    struct Impl;
    explicit TTabla(std::unique_ptr<Impl> impl);
    static std::unique_ptr<TTabla> Abre(const QString& ruta, std::shared_ptr<const DatosDbf> datos,
                                        const QString& indice);
    std::unique_ptr<Impl> d;

    friend std::unique_ptr<TTabla> CreaTabla(const QString&, const QString&, const QString&);
    friend bool TBBusca(TTabla&, const TClaves&, bool);
    friend bool TBBuscaClave(TTabla&, double);
    friend bool TBBuscaClave(TTabla&, QStringView);
    friend void TBRango(TTabla&, const TClaves&, const TClaves&);
    friend void TBQuitaRango(TTabla&);
    friend void TBIndexa(TTabla&, const QString&);
    friend void TBFiltra(TTabla&, const QString&);
    friend bool BloqueaUltimo(TTabla&);
    friend void LiberaBloqueo(TTabla&);
    friend bool TBDelete(TTabla&);
    friend bool TBPackDbf(TTabla&);
};

/// Opens `fichero` (e.g. "PROVIN.DBF"; ".DBF" is added when there is no extension; the name is matched
/// without regard to case in the folder) of the database `alias` (Config.CarpetaAlias) on the index tag
/// `indice` (empty: physical order). Throws ErrorTabla when the alias is not configured, the file is missing
/// or unreadable, or the table has no such tag. The caller owns the handle; dropping it closes the table.
std::unique_ptr<TTabla> CreaTabla(const QString& alias, const QString& fichero, const QString& indice = {});

/// The same, but nullptr instead of an exception (the reason goes to the log, category lcTablas). With
/// `creaSiFalta`, a missing file whose structure the catalog knows (e.g. "CONEXION") is first created empty.
std::unique_ptr<TTabla> CreaTablaSinExcepcion(const QString& alias, const QString& fichero,
                                              const QString& indice = {}, bool creaSiFalta = false);

/// Positions the cursor on the first visible row, in index order, whose fields equal the given values.
/// `exacta` true: a text must equal the field's value (trailing blanks aside); false: the field's value need
/// only begin with the text (partial key). Numbers, dates and Booleans always compare whole. When the fields
/// are the leading fields of the current tag the search is a binary search, otherwise a scan. Returns
/// whether a row was found; when none is, the cursor does not move.
///     TBBusca(*tb, {{"COD_PROV", "28"}, {"COD_MUN", "079"}})   // MADRID on tag "CPROVMUN"
bool TBBusca(TTabla& tb, const TClaves& claves, bool exacta = true);

/// The fast path of TBBusca for routines that look up many keys in one open table (the revision of client
/// codes looks up a million of them): an exact search by one value of the leading key field of the current
/// tag, a binary search over the tag's order with no field lookup by name and no allocation (a text with
/// characters beyond ASCII is encoded per call). Same result and same cursor as
/// `TBBusca(tb, {{leading field, valor}})`, range and filter included. Throws ErrorTabla when the table is
/// in physical order (no tag).
///     TBBuscaClave(*clientes, 1234)   // clientes opened on tag "CODCLIENTE"
bool TBBuscaClave(TTabla& tb, double valor);
bool TBBuscaClave(TTabla& tb, QStringView valor);

/// Restricts the view to the rows whose key fields lie between `desde` and `hasta`, both included
/// (compared as in TBBusca with exact values), and moves to the first of them. The fields need not be those
/// of the tag. Replaces any earlier range.
void TBRango(TTabla& tb, const TClaves& desde, const TClaves& hasta);
/// The rows whose fields equal `igual`: TBRango(tb, igual, igual).
inline void TBRango(TTabla& tb, const TClaves& igual) {
    TBRango(tb, igual, igual);
}
/// Removes the range and moves to the first row.
void TBQuitaRango(TTabla& tb);

/// Changes the index tag (empty: physical order) and moves to the first row; the range and filter stay.
/// Throws ErrorTabla for a tag that the catalog does not know for this table.
void TBIndexa(TTabla& tb, const QString& indice);

/// Filters the view with an expression and moves to the first row; an empty text removes the filter.
/// Grammar: comparisons `FIELD op value` with op one of = <> < > <= >=, values 'text' or "text", numbers,
/// True/False (any case), joined with AND, OR, NOT and parentheses. A quoted value compared with a numeric
/// field is read as a number ("GRUPO='2'"). Throws ErrorTabla naming the table, the text and the place
/// for anything it cannot parse, a field the table lacks, or a text beyond the limits (8,192 characters,
/// NOT and parentheses 64 deep).
///     TBFiltra(*tb, "ENT_MENOR=False AND COD_PROV = 28");
void TBFiltra(TTabla& tb, const QString& filtro);

/// Moves to the last visible row and takes the table's write lock, held until `LiberaBloqueo` or until the
/// handle is dropped, so that the next number read from that row stays this workstation's until it
/// appends its own row. False when there is no row or the lock cannot be had in time (logged).
bool BloqueaUltimo(TTabla& tb);
void LiberaBloqueo(TTabla& tb);

/// Marks the current row deleted (under the write lock) and moves to the next visible row. False when there
/// is no current row. Throws ErrorTabla when the file cannot be written.
bool TBDelete(TTabla& tb);

/// Physically drops the deleted rows: writes the live rows to a new file beside the table and renames it
/// into place under the write lock, so that a crash leaves either the old table or the new one whole.
/// The handle then shows the packed table, on the first row. False (logged) when it cannot be done.
bool TBPackDbf(TTabla& tb);

/// Creates an empty table at `ruta` with the given fields, Windows-1252, replacing any file there.
/// Throws ErrorTabla.
void CreaFicheroDbf(const QString& ruta, const QList<TCampoDbf>& campos);

/// Forgets the loaded images of every table (tests; the images are otherwise refreshed on their own when a
/// file changes).
void OlvidaTablasCargadas();

/// Forgets the loaded image of one table (its `Ruta()`), for a routine that reads a large table once and
/// should not leave its bytes in memory; open handles keep theirs until they are dropped.
void OlvidaTablaCargada(const QString& ruta);

} // namespace nod
