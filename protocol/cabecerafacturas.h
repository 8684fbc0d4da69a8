#pragma once
// The invoice header in force: the lines printed at the top of each invoice are kept per notary in the
// table "CAB_FACT.DBF" of the notary's database alias, one row per line ("FECHA_ENT" the day from which it
// applies, "NOMBRE" which line, "DESCRIP" its text). The lines in force on a date are loaded into the
// configuration values of the same names (`Fac_1`..`Fac_4`, `Fac_d_1`..`Fac_d_4`, `Fac_g_1`..`Fac_g_4`).

#include "companion/tdatetime.h"
#include "nod_core_export.h"

namespace nod NOD_CORE_EXPORT {

/// Loads into the configuration the header lines in force on `fecha` for the selected notary: those of the
/// day itself when the table has rows of that day, else those of the latest earlier day. Rows whose
/// "NOMBRE" is not exactly one of the twelve line names ("fac_1" ... "fac_g_4") are skipped; a missing
/// table, or no row on or before the date, leaves the lines unchanged.
/// With `todos`, when the office keeps one header per notary (`HayMultiplesCabeceras`) and has more than
/// one (`nCuantos`), every notary is selected in turn (`SetsNotario`, `ActualizaConvenio`) and its header
/// loaded; the notary selected before is then selected again, its agreement values reloaded and its own
/// header loaded once more, so the configuration ends with the header of the notary in use.
void ActualizaCabeceraFacturas(TDateTime fecha, bool todos);

} // namespace nod
