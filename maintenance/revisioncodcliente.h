#pragma once
// The client-code revision: finds the records of the office's tables whose client code points to no
// client (the checks of unit Seleccionmodorevisioncodcliente, without their form).
//
// Every table that stores a client code is read in each database where it lives; each code that is not
// zero is searched among the codes of the clients table ("Clientes.dbf" of alias `GetAliasNodrim`, field
// "CODIGO"), and every miss becomes one line of the result set, e.g.
//     TABLA "En la Tabla APODERAD de COMUN"
//     MENSAJE "El apoderado del poder 15/2.008 referencia al cliente 1.234"
//     CODCLIENTE 1234
// (number and year of a decoded code and the client code are grouped by thousands, the year too, as the
// suite prints them). Lines come table by table in the order of the run, and within a table in the order
// of the table's index tag, as a walk on that tag would give them.
//
// Databases of the modes (`AliasRevision`):
//   0  the common database                 alias `GetAliasNodrim` ("DB")
//   1  the drafts (deeds being prepared)   alias `GetAliasBorrador` ("DBBORRADOR")
//   2  the archive (protocols of earlier   alias `GetAliasArchivo` ("DBARCHIVO"); only the tables of deeds
//      notaries in the office's care)      that the all-tables run reads there (CLAVES, CLAVES_C, CLAVES_I,
//                                          CLAVES_S, PLUSVAL, TESTIGOS); any other check opens nothing in
//                                          mode 2
//   3  the notary's database               the selected notary's alias (`AliasNotarioActual`, "DBNOTARIO1")
// Any other mode opens nothing. TIT_CLI, which takes no mode, is read in the common database.
//
// A table that cannot be opened in a mode (missing, locked by another workstation past
// `EsperaBloqueoTablas`, damaged, without the tag or the field the check needs) is skipped; so is the rest
// of a table with a record that cannot be read (the lines found before it stay). Both go to the log.
//
// Long runs keep the event loop turning between tables and every 65,536 records, so the progress window
// repaints. Memory grows with the lines found, not with the records read: each table's loaded image is
// let go once its check is done (the table layer would otherwise keep it for the next opening), so a run
// holds the clients' codes and one table at a time.

#include "nod_core_export.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

namespace nod NOD_CORE_EXPORT {

class ConjuntoCodigos;

/// One line of the result set (`cdsMensajes`).
struct TMensajeRevision {
    QString TABLA;         // where the miss was found: `MensajeTabla` of the table file and mode
    QString MENSAJE;       // what refers to the client
    qint64 CODCLIENTE = 0; // the missing code
    bool operator==(const TMensajeRevision&) const = default;
};
using TMensajesRevision = QList<TMensajeRevision>;

/// "En la Tabla " + the table name in upper case + " de COMUN" (mode 0), " de BORRADOR" (1), nothing (2 and
/// any other mode), and for mode 3 " del NOTARIO " + the selected notary (`GetsNotario`) when the
/// configuration counts more than zero notaries (`GetnCuantos`), else " de NOTARIO".
/// Example: MensajeTabla("claves", 3, t) gives "En la Tabla CLAVES del NOTARIO 1".
void MensajeTabla(const QString& tabla, int modo, QString& texto);

/// The database alias a check opens in `modo` (see above); empty for a mode outside 0..3.
QString AliasRevision(int modo);

/// The thirty tables of the revision, sorted: "ACTIVOS", "APODERADOS" ... "VALORES".
QStringList TablasConCodCliente();

/// The modes in which the all-tables run reads a table, in order: {0, 1} for "ACTIVOS", {} for
/// "TIT_CLI" (it takes no mode) and for a name that is not in the list.
QList<int> ModosRevision(const QString& tabla);

/// The checks of every table named by `TablasConCodCliente`, in the order of the all-tables run.
#define NOD_REVISIONES_CON_MODO(X)                                                                           \
    X(ACTIVOS)                                                                                               \
    X(APODERADOS)                                                                                            \
    X(APUNTES)                                                                                               \
    X(BANCOS)                                                                                                \
    X(CLAVES)                                                                                                \
    X(CLAVES_C)                                                                                              \
    X(CLAVES_E)                                                                                              \
    X(CLAVES_I) X(CLAVES_L) X(CLAVES_P) X(CLAVES_S) X(CLIENTES) X(DEPOSITO) X(DEUDAS) X(ENTRADAS)            \
        X(FACTURAA) X(FACTURAB) X(FACTURAC) X(FACTURAD) X(FACTURAX) X(FACTURAE) X(FACTURAF) X(FACTURAG)      \
            X(PLUSVAL) X(PODERES) X(POLIZAS) X(TESTIGOS) X(TIT_REL) X(VALORES)

class TRevisionCodCliente {
public:
    TRevisionCodCliente();
    ~TRevisionCodCliente();
    TRevisionCodCliente(const TRevisionCodCliente&) = delete;
    TRevisionCodCliente& operator=(const TRevisionCodCliente&) = delete;

    /// Reads the codes of the clients table (its field "CODIGO") and empties the result set. When the
    /// clients table cannot be read the clerk is told ("No se puede abrir la tabla de clientes: ...") and
    /// false comes back; the checks then find nothing.
    bool Prepara();

    /// The all-tables run: `Prepara`, then every check in the run's order and modes, the progress window
    /// reading "Buscando clientes erróneos en la tabla " + name before each table and closing on
    /// "El proceso ha finalizado". False when the clients table could not be opened.
    bool MuestraCodClienteIncorrectoEnTodasTablas();
    /// The same for one table of `TablasConCodCliente` (any case), in its modes of the run. False for a
    /// name not in the list (nothing is shown then) or when the clients table could not be opened.
    bool MuestraCodClienteIncorrectoEnTabla(const QString& tabla);

    /// One check: appends to the result set the misses of table `tabla` (a name of the list) in the
    /// database of `modo`. Needs `Prepara` first.
    void Revisa(const QString& tabla, int modo);

// clang-format off
#define NOD_X(T) void MuestraCodClienteIncorrectoEn##T(int modo) { Revisa(QStringLiteral(#T), modo); }
    NOD_REVISIONES_CON_MODO(NOD_X)
#undef NOD_X
    // clang-format on
    /// The beneficial owners of the client companies (TIT_CLI), in the common database.
    void MuestraCodClienteIncorrectoEnTIT_CLI() {
        Revisa(QStringLiteral("TIT_CLI"), 0);
    }

    /// The result set, in the order the lines were found.
    const TMensajesRevision& Mensajes() const {
        return m_mensajes;
    }
    /// Records read by the checks since `Prepara` (benchmarks and logs).
    qint64 RegistrosLeidos() const {
        return m_leidos;
    }

private:
    bool corre(const QStringList& tablas);

    std::unique_ptr<ConjuntoCodigos> m_clientes; // the codes of the clients table
    TMensajesRevision m_mensajes;
    qint64 m_leidos = 0;
};

} // namespace nod
