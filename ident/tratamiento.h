#pragma once
// Courtesy titles of the people of a deed, and the sex they tell.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The sex a courtesy title tells, on the upper-cased title: "DON", "Dº", "Dº." and "D." give "H";
/// "DOÑA", "Dª" and "Dª." give "M"; anything else "" (DeterminaSexo("Sr.") == "").
QString DeterminaSexo(const QString& titulo);

/// The courtesy title for sex "H" or "M" in language `idioma` (0 Spanish, 1 Catalan): "DON", "DOÑA",
/// "EL SENYOR", "LA SENYORA"; another sex gives "". Case "C" capitalises the Spanish title ("Don") and gives
/// the Catalan one with its article in lower case ("el Senyor"); "S" gives lower case; any other character
/// leaves the upper case. Don("M", 'C', 0) == "Doña".
QString Don(const QString& sexo, QChar caso, int idioma);

} // namespace nod
