#pragma once
// Document-type codes of the people and bodies of a deed: 1 NIF, 2 CIF, 3 NIE, 4 passport, any other
// code an identity document of another kind.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The label of a document-type code: TipoDeDocumento(3) == "N.I.E."; codes other than 1..4 give
/// "DOCUMENTO DE IDENTIFICACION".
QString TipoDeDocumento(int codigo);

/// The code of a label: the points are removed and the text trimmed, then "NIF" gives 1, "CIF" 2 and "NIE" 3
/// compared exactly (so "n.i.f." gives 5), "PASAPORTE" 4 compared in upper case (so "pasaporte" gives 4),
/// anything else 5. TipoDeDocumento(" N.I.E. ") == 3.
int TipoDeDocumento(const QString& etiqueta);

/// The document type to look a person up by number: 2 for a CIF, 4 for a passport, 1 for everything else
/// (NIF, NIE and unknown numbers alike). QueTipoDeDocumentoEsParaConsultaDNI("X1234567L") == 1.
int QueTipoDeDocumentoEsParaConsultaDNI(const QString& s);

} // namespace nod
