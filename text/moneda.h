#pragma once
// Pesetas and euros, and Spanish digit grouping. The rate is the configuration's `PesetasPorEuro`
// (166.386 by law), read on every call.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Pesetas in euros as text with two decimals and Spanish grouping ("1.000,00"); a result of "0,00"
/// gives "" so that zero amounts print blank: PesetasEurosNod(166386) == "1.000,00".
/// Half cents round away from zero. A rate that is not positive gives "".
QString PesetasEurosNod(qint64 pesetas);

/// Pesetas in euros rounded half up to `decimales` places (unrounded when `decimales` < 1):
/// PesetasEurosNod(166386, 2) == 1000.0. The rounding is done on the written decimals of the fraction,
/// so a fraction that reaches 1 carries into the units. Negative amounts are rounded as their
/// magnitude and keep their sign. A rate that is not positive gives 0.
double PesetasEurosNod(qint64 pesetas, int decimales);

/// Euros in whole pesetas, rounded half up: EurosPesetasNod(1000.0) == 166386. A product beyond the
/// range of a 64-bit integer, NaN or a rate that is not positive gives 0.
qint64 EurosPesetasNod(double euros);

/// A number written with "." as decimal point, regrouped the Spanish way: blanks are removed, thousands
/// are grouped with "." and (when `decimal` is true) the decimal point becomes ",":
/// PuntosNod("1234567.89", true) == "1.234.567,89", PuntosNod("-123456", false) == "-123.456",
/// PuntosNod("1 234", false) == "1.234". Other characters are kept as they stand; a text with "," and
/// no "." is returned without grouping. Every "." regroups all that comes before it, the "," of an
/// earlier one included: PuntosNod("1.234.567", true) == "1,.234,567" (an already grouped figure is
/// not a number this routine reads). Once the text is wider than `kAnchoMaximoTexto` it is no longer
/// regrouped.
QString PuntosNod(const QString& numero, bool decimal);

} // namespace nod
