#pragma once
// Offices for the client-code revision's tests and benchmark: the thirty tables as the suite's programs
// write them (the fields each check reads, from the office's table layouts), written straight as dBase
// records so that a million of them take a moment.

#include "tables/tablas.h"

#include <QList>
#include <QString>
#include <functional>

namespace nod::prueba {

/// One table of the revision: the check's name, its file, the field holding the client code, the fields,
/// and the modes of the all-tables run (bit m: mode m; 0 for TIT_CLI, which takes none).
struct TablaRevisionPrueba {
    QString nombre;
    QString fichero;
    QString campoCliente;
    QList<TCampoDbf> campos;
    unsigned modos;
};

/// The thirty tables, in the order of the all-tables run.
const QList<TablaRevisionPrueba>& TablasRevisionPrueba();
const TablaRevisionPrueba& TablaRevisionPorNombre(const QString& nombre);

/// The database folder of each mode in the offices below: COMUN, BORRADOR, ARCHIVO, NOTARIO1.
QString CarpetaDeModo(int modo);
/// CONFIG.INI of such an office (aliases DB, DBBORRADOR, DBARCHIVO, DBNOTARIO1; one notary).
QString ConfigOficinaRevision();

/// Writes `n` records of table `t` at `ruta`: record i holds the client code `codigo(i)`; a code field
/// holds year 2020 and number i + 1 in its packing (CODPODER and VALORES's CODNUMERO year × 10 000 +
/// number, the other codes year × 100 000 + number), other numbers i + 1, texts "TEXTO i", dates
/// 1/1/2024 plus i days, SERIE "A" for even i and "B" for odd.
void EscribeTablaRevision(const QString& ruta, const TablaRevisionPrueba& t, qint64 n,
                          const std::function<qint64(qint64)>& codigo);

/// The clients table: codes 1..n (record i holds code i + 1), APELLIDOS "APELLIDOS i", NOMBRE
/// "NOMBRE i", the spouse's code `conyuge(i)`.
void EscribeClientes(const QString& ruta, qint64 n, const std::function<qint64(qint64)>& conyuge);

} // namespace nod::prueba
