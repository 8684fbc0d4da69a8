#pragma once
// Temporary files, temporary tables and files held by other workstations.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Creates an empty, uniquely named file in the system's temporary folder and returns its full name:
/// the first three characters of `prefijo`, a hexadecimal number and ".tmp" (as Windows names them).
/// Empty when the temporary folder cannot be written, or when those characters hold a separator, a
/// drive mark or another character no file name may hold ("../", "/tm"): the file would land elsewhere.
QString FicheroTemporalNod(const QString& prefijo);

/// Deletes `ruta`.dbf, `ruta`.mdx and `ruta`.dbt, skipping the ones that do not exist. The archive
/// attribute is set on the bare path first, as the suite always did (a no-op where files have none).
/// Only temporary tables are deleted: `ruta` must lie in the temporary folder itself and be named as
/// `FicheroTemporalNod` names files (with or without ".tmp"); anything else is refused (logged).
void EliminaTablaTemporal(const QString& ruta);

/// True when the file exists and another process (another workstation of the office) holds it: an
/// exclusive open is refused, or a lock of the table layer is held on it. A missing file or a folder
/// gives false. Never raises.
bool FicheroAbierto(const QString& nombre);

/// The folder part of a file name, with its final separator ("\", "/" or the drive's ":"); empty when
/// the name has none. Example: ExtraePath("C:\\NOD\\DATOS\\A.DBF") == "C:\\NOD\\DATOS\\".
QString ExtraePath(const QString& nombre);

/// The day number of a date-time in the system's time-stamp form: 1 January of year 1 is day 1.
/// Example: GetDate(0) (30/12/1899) == 693594.
int GetDate(TDateTime fecha);

} // namespace nod
