#pragma once
// A client's address written on one line for the text of a deed, and the words for floor and stair codes.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

class TTabla;

/// Words for a floor code (upper-cased first): "+2" "sobreático", "+1" "ático", "-1" "sótano", "-2"
/// "sótano 2º", "EN" "entreplanta", "PR" "principal", "SS" "semisótano"; a whole number n gives "planta baja"
/// for 0 and "planta " + n with thousands separators + "ª" otherwise; anything else comes back upper-cased:
/// Planta("3") == "planta 3ª", Planta("pr") == "principal".
QString Planta(const QString& s);

/// Words for a stair or block code (upper-cased first): "DR" "derecha", "IZ" "izquierda", "CN" "centro",
/// "NO" "norte", "SU" "sur", "ES" "este", "OE" "oeste"; anything else upper-cased.
QString Escalera_Bloque(const QString& s);

/// The address of the client on the current record of a client table, on one line: for residents street,
/// number, block, stair, floor ... and, with `conPoblacion`, postcode, town, province and country; for
/// non-residents their free-form address and country. Cut to `longitudMaxima` characters when that is 1 or
/// more. Example: "CL MAYOR, Nº 5, Plt. 2ª, Piso: B".
QString DomicilioClienteCompleto(const TTabla& tabla, int longitudMaxima, bool conPoblacion);

/// The same for the client with code `codigo` of "CLIENTES.DBF" (alias `GetAliasNodrim`, tag "CODIGO");
/// empty when there is no such client or the table cannot be read (logged).
QString DomicilioClienteCompletoPorCodigo(qint64 codigo, int longitudMaxima, bool conPoblacion);

} // namespace nod
