#pragma once
// The joined documents ("documentos unidos", DU): the scanned pages that a dossier gathers and that
// are later incorporated into the office's general folder of joined documents (`CarpetaDocumentosUnidos`),
// where every image is named by a running number: 0001.jpg, 0002.jpg ...

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Incorporates the JPEG images of a dossier's folder `origen` into the general folder, after asking
/// "Incorporar Documentos Unidos": "Hay documentos unidos asociados al protocolo", "¿Desea incorporar los
/// documentos unidos asociados al protocolo?". On Yes each image, in name order, is copied under the
/// next free number in 4 figures and ".jpg" (the next number follows the highest that a ".jpg" or
/// ".jpeg" name of the general folder holds: after "0007.JPG" and "12.jpeg" comes "0013.jpg"); then,
/// when `moverA` is not empty, the dossier's images are moved into that folder (`MueveImagenesA`).
///
/// Error boxes, and nothing done: no folder `origen` ("No hay DU asociados al expediente", titled "Sin DU
/// asociados"); no general folder ("No se ha encontrado la carpeta <folder>", "Error consultar DU
/// general"); no image in `origen` ("No se han encontrado imágenes en la carpeta <folder>", "No hay DU
/// asociados al expediente"). An image that cannot be copied ("No se ha podido copiar la imagen <image>
/// en <copy>", "Incorporar Documentos Unidos") undoes the copies of this call and moves nothing.
/// Folders are given as the suite writes them, or as real paths. The boxes go through the message service
/// over the active window (the suite's owner argument is not needed for that).
void PasaImagenesADU(const QString& origen, const QString& moverA);

} // namespace nod
