#pragma once
// The office's notaries and their database aliases.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The base alias (`GetAliasNotario`) followed by the notary number; notary 0 is written as "1", so
/// notaries 0 and 1 share one alias. Example: AliasNotario(12) == "DBNOTARIO12".
QString AliasNotario(int numero);

/// `AliasNotario` of the selected notary (`sNotario`, text made a number; text that is not one gives 0).
QString AliasNotarioActual();

/// The configured number of notaries, never below 1.
int NumeroDeNotarios();

} // namespace nod
