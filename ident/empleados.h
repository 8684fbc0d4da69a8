#pragma once
// A field of a staff member's record ("EMPLEADO.DBF", key CODUSER) or of a substitute notary's record
// ("SUSTIT.DBF", key NUMEROSUST), in the suite's database alias (`GetAliasNodrim`).

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The value as text, trimmed, of field `campo` of the employee whose CODUSER is `codigo`: Empleado(1,
/// "NOMBRE"); empty when there is no such employee or field, or the table cannot be read (logged).
QString Empleado(int codigo, const QString& campo);

/// The same from the substitute notary whose NUMEROSUST is `numero`.
QString Sustituto(int numero, const QString& campo);

} // namespace nod
