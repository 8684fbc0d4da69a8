#pragma once
// Texts of the situation codes the suite stores for deeds, master deeds and policies, and the kind letter
// of an intervention. Codes are compared exactly (case-sensitive, whole text).

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Long text of a deed's situation "1".."6"; any other code: "No hay información anotada".
/// Example: Situacion("4") == "Terminado, para retirar".
QString Situacion(const QString& codigo);

/// Short text of a deed's situation "1".."6"; any other code: empty. Example: Situa_2("5") == "Retiró parte".
QString Situa_2(const QString& codigo);

/// Long text of a master deed's situation "B".."N"; any other code (also "A"): "No hay información anotada".
/// Example: SituacionMatriz("J") == "Archivada".
QString SituacionMatriz(const QString& codigo);

/// Short text of a master deed's situation "B".."N"; any other code: empty.
/// Example: Situa_2Matriz("H") == "Pend. índice".
QString Situa_2Matriz(const QString& codigo);

/// Text of a policy's situation 1..6; any other code: empty. Example: SituacionPoliza(3) == "Para preparar".
QString SituacionPoliza(int codigo);

/// Kind letter of an intervention: 1 "A", 2 "T", 3 "R", 4 "P", 5 "I", 6 "Z"; 7 to 12, 16, 17 and 99
/// "0"; anything else empty. Example: LetraActuacionNumeros(99) == "0", LetraActuacionNumeros(13) == "".
QString LetraActuacionNumeros(int clase);

} // namespace nod
