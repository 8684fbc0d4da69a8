#pragma once
// The confirmation the accounting screens ask before deleting entries: a few questions through the
// message service, no form of its own.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

class QObject;

namespace nod NOD_CORE_EXPORT {

/// Whether entries dated `fecha` may be deleted. Asks in turn, each a No/Sí box titled
/// "Confirmación de borrado de apuntes" with the focus on "No":
///   1. entries more than 3 days old (today − fecha > 3): "Existen apuntes contables con más de 3 días de
///      antigüedad" / "¿Desea continuar con el proceso?";
///   2. entries of a closed quarter (`CierreTrimestre`): "Los apuntes seleccionados son de un trimestre ya
///      cerrado";
///   3. entries of a previous year: "Los apuntes son de un año anterior" / "¿Está totalmente seguro de que
///      desea borrarlos?";
///   4. always, last: "¿Está seguro de que desea borrarlos?".
/// The first "No" (or Escape) ends with the information "Proceso cancelado." titled "Atención" and false;
/// true when every question was answered "Sí". Entries of today ask only the last question.
/// `owner` is the calling form; the boxes go through the message service, which places them itself.
bool ConfirmaBorradoApuntes(QObject* owner, TDateTime fecha);

/// The first day on which the quarter of `fecha` counts as closed: `nDiasCierreTrimestre` days after the
/// quarter's last day (at least one, so a running quarter is never closed). With the default 20,
/// CierreTrimestre(15/02/2024) is 20/04/2024. 0 for a serial outside the calendar.
TDateTime CierreTrimestre(TDateTime fecha);

} // namespace nod
