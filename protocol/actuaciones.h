#pragma once
// Words for the role of each party of a deed or policy and for the kind of intervention of a person, as the
// billing screens and the deed texts print them; codes are compared exactly (case-sensitive).

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

class TTabla;

/// Role of a deed's party by its one-letter code ("A" "Adquirente", "C" "Comprador", "D" "Donante",
/// "E" "Cedente", "H" "Heredero", "I" "Avalista", "L" "Legatario", "N" "Donatario", "O" "Hipotecante",
/// "P" "Prestatario", "R" "Prestamista", "S" "Cesionario", "T" "Transmitente", "U" "Causante",
/// "V" "Vendedor", "Z" "Sociedad"); any other code, or one not exactly one character, gives empty.
/// Example: Actuacion("V") == "Vendedor".
QString Actuacion(const QString& codigo);

/// Role of a policy's party by its one-letter code ("A" "Adquirente", "C" "Conyuge", "E" "Requerido",
/// "F" "Fiador", "O" "Apoderado", "P" "Pignorante", "R" "Representante", "S" "Transmitente", "T" "Titular",
/// "V" "Avalista"); any other code: "En su propio nombre". Example: Actua_C("AB") == "En su propio nombre".
QString Actua_C(const QString& codigo);

/// First declaration code of a policy role ("A" "01", "C" "11", "E" "03", "F" "13", "O" "12", "P" "15",
/// "R" "05", "S" "02", "T" "10", "V" "14"); "0" or a code not of one character "09"; any other single
/// character empty. Example: Actua_CM("") == "09".
QString Actua_CM(const QString& codigo);

/// Second declaration code of a policy role ("A" "02", "C" "02", "E" "02", "F" "13", "O" "01", "P" "13",
/// "R" "01", "S" "01", "T" "02", "V" "13"); "0" or a code not of one character "02"; any other single
/// character empty. Example: Actua_CS("X") == "".
QString Actua_CS(const QString& codigo);

/// Kind of attorney by the code's first character: "D" "Director Oficina", "I" "Interventor Oficina",
/// "P" "Apoderado Particular", "S" "Subdirector Oficina", "Z" "Apoderado Sociedad"; anything else empty.
/// Example: ActuacionApoderado("Dx") == "Director Oficina".
QString ActuacionApoderado(const QString& codigo);

/// Phrase of a kind of intervention 0..7 ("En su nombre.", "En representación de", "Por sí y en
/// representación de", "Mandatario verbal.", "Los dos en representación de", "Representado.",
/// "Por sí y mandatario verbal de", "No presente por otorgamiento diferido o ausente"); others empty.
/// Example: Intervencion(3) == "Mandatario verbal.".
QString Intervencion(int clase);

/// One-digit class for declarations: role "4" gives "4"; otherwise, for kinds 1, 3 and 4, "5" when the
/// role occurs in "0AIECDHO" (as a substring; an empty role never does) and "6" when not; for other kinds
/// "1" and "2". Example: Intervencion_D(3, "A") == "5", Intervencion_D(2, "X") == "2".
QString Intervencion_D(int clase, const QString& actuacion);

/// Description of an intervention code from the table "Tipo_Int.dbf" of the suite's database
/// (`AliasNodrim`), opened on its index "CODIGO" and closed before returning: the "DESCRIPCIO" of the row
/// whose "CODIGO" is `codigo`, empty when there is none or the table cannot be opened (logged).
/// Example, on the sample office: Actuacion_INTI(1) == "En su nombre".
QString Actuacion_INTI(int codigo);

/// The same on a table the caller opened on "Tipo_Int.dbf": it is used as it stands (its cursor moves to
/// the row found) and left open.
QString Actuacion_INTI(int codigo, TTabla& tabla);

} // namespace nod
