#pragma once
// Every change to a table file goes through here and through shapelib's DBF API: appending or rewriting
// a record, marking one deleted, packing, creating an empty table. Each change holds the table's write
// lock (tables/dbfbloqueo.h) from before shapelib reads the header until the header is written back,
// so the record count it appends after is the one on disk at that moment, whoever wrote last.

#include "nod_core_export.h"
#include "tables/dbfbloqueo.h"
#include "tables/tablas.h"

#include <QByteArray>

namespace nod NOD_CORE_EXPORT {

/// Writes the record bytes `registro` (deletion mark included) as record `fila` (from 0), or appends them
/// when `fila` is -1; returns the record's number. `bloqueo`: the write lock already held by the caller
/// (BloqueaUltimo), or null to take one for this write. Throws ErrorTabla naming the file.
int EscribeRegistroDbf(const QString& ruta, int fila, const QByteArray& registro, BloqueoFichero* bloqueo);

/// Marks record `fila` deleted. Throws ErrorTabla.
void BorraRegistroDbf(const QString& ruta, int fila, BloqueoFichero* bloqueo);

/// Rewrites the table without its deleted records: a new file beside it, synced, renamed into place.
/// Throws ErrorTabla; on failure the table is left as it was.
void EmpaquetaDbf(const QString& ruta, BloqueoFichero* bloqueo);

/// Creates an empty table (Windows-1252, dBase III) with these fields. Throws ErrorTabla.
void CreaDbf(const QString& ruta, const QList<TCampoDbf>& campos);

} // namespace nod
