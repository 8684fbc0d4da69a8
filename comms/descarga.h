#pragma once
// DescargarFichero: one file from a web address to a path, as the routines that fetch the web gateway's
// files use it.

#include "nod_core_export.h"

#include <QString>
#include <QtGlobal>
#include <functional>

namespace nod NOD_CORE_EXPORT {

/// Called as the bytes arrive: received so far and the total (-1 while the server has not said).
using ProgresoDescarga = std::function<void(qint64 recibidos, qint64 total)>;

/// Downloads `direccion` (http or https, following up to five redirections that do not go from https to
/// http) into `ruta`, whose folder must exist. True when the whole file was written.
///
/// The file is written under a temporary name beside `ruta` and renamed into place only once complete, so
/// `ruta` holds either its old content or the whole new file, never a part. False, with the reason in the
/// log, and `ruta` untouched when: the server cannot be reached, answers an HTTP error (404 ...), sends no
/// data for `EsperaDescargaMs` milliseconds, closes the connection before the length it announced, or
/// answers a web page (type "text/html", or a body that begins as one) for a file that is not one; or
/// when the file cannot be written.
bool DescargarFichero(const QString& direccion, const QString& ruta, const ProgresoDescarga& progreso = {});

} // namespace nod
