#pragma once
// The annexes of a document: files kept beside it that the word-processor link joins to it when
// printing ("Escritura.docx" has "Escritura_Anexo1.docx", "Escritura_Anexo planos.docx" ...).

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Deletes the annexes of the document `fichero` (a full path, as the suite writes it or real): the files
/// of its folder named as the document without its extension, then "_Anexo", any text, and the same
/// extension, ignoring case. The extension is taken out of the name wherever it appears in it, so the
/// annexes of "Acta.doc.doc" are "Acta_Anexo*.doc". The document itself and any other file stay.
///
/// Annexes are deleted in name order. One that cannot be deleted (open in the word processor, or held
/// by the file system) brings the question "Eliminar anexos": "No se puede eliminar el fichero <name>",
/// "asegúrese de que no está abierto", "Cierre el documento y pulse Si. Pulse No para cancelar."; Yes
/// tries again, as often as the file stays, and No leaves that annex and goes on with the next.
void DeleteAnexos(const QString& fichero);

} // namespace nod
