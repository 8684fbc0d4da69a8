#pragma once
// Case of generated text: the case character of the suite's format codes ("S" lower, "N" upper,
// "C" capitalised words).

#include "nod_core_export.h"

#include <QChar>
#include <QString>

namespace nod NOD_CORE_EXPORT {

/// 'S' lower case, 'N' upper case, 'C' `CapitalCase`; any other character returns `s` unchanged:
/// MayusMinus("quince DE marzo", 'N') == "QUINCE DE MARZO".
QString MayusMinus(const QString& s, QChar caso);

/// Lower-cases the text and gives every word a capital, short words too: "QUINCE DE MARZO" ->
/// "Quince De Marzo". A hyphen starts a new capital only inside the last word:
/// CapitalCase("MARIA-JOSE DE LA FUENTE") == "Maria-jose De La Fuente",
/// CapitalCase("JOSE MARIA-LUISA") == "Jose Maria-Luisa".
QString CapitalCase(const QString& s);

} // namespace nod
