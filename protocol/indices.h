#pragma once
// Role words of a party turned into column indices. Each table is one string of fixed-width slots, each
// word left-aligned in its slot; the word is searched as a substring of the whole string, so the index
// comes from the position where it is found: Trunc(position / width - 1), with the 1-based position and
// 0 when absent. Hence an absent word gives -1, a word in slot k gives k - 1 for the tables that open
// with a blank slot, and a blank or a piece of a word gives the slot where it first appears.
// The word is upper-cased first, accented letters too ("representación" finds "REPRESENTACIÓN").

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Roles of a deed's party: ADQUIRENTE 0, AVALISTA 1, CAUSANTE 2, CEDENTE 3, CESIONARIO 4, COMPRADOR 5,
/// DONANTE 6, DONATARIO 7, HEREDERO 8, HIPOTECANTE 9, LEGATARIO 10, PRESTAMISTA 11, PRESTATARIO 12,
/// SOCIEDAD 13, VENDEDOR 14, TRANSMITENTE 15. Example: IndexActuacion("vendedor") == 14.
int IndexActuacion(const QString& palabra);

/// Roles of a policy's party: ADQUIRENTE 0, APODERADO 1, AVALISTA 2, CONYUGE 3, FIADOR 4, PIGNORANTE 5,
/// REPRESENTANTE 6, REQUERIDO 7, TITULAR 8, TRANSMITENTE 9. Example: IndexActuacionPolizas("Fiador") == 4.
int IndexActuacionPolizas(const QString& palabra);

/// Kinds of intervention, by the upper-case phrases of `Intervencion`; the table has no leading blank
/// slot, so the first two phrases both give 0 and the rest one less than their kind.
/// Example: IndexIntervencion("EN REPRESENTACIÓN DE") == 0, IndexIntervencion("REPRESENTADO.") == 4.
int IndexIntervencion(const QString& palabra);

} // namespace nod
