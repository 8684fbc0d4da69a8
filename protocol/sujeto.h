#pragma once
// The split of an amount into the part subject to VAT and the rest, given the VAT quota declared for it.
// When the quota matches the whole amount at the percentage (within a tolerance of half a unit of the
// percentage's resolution: 100 / percentage / 2 pesetas), the whole amount is subject; otherwise the
// subject part is the quota grossed up (quota × 100 / percentage) and the rest is what remains.
// The part selector `parte` gives the subject part only when it is "S", the rest otherwise.
//
// A quota other than 0 with a VAT percentage of 0 cannot be grossed up: the routines raise
// EDivisionPorCero naming the amounts instead of returning an infinity. Inputs that are not finite
// numbers give 0.

#include "companion/errores.h"
#include "nod_core_export.h"

#include <QString>
#include <QtGlobal>

namespace nod NOD_CORE_EXPORT {

/// The gross-up of a quota met a VAT percentage of 0.
class EDivisionPorCero : public ErrorNod {
public:
    using ErrorNod::ErrorNod;
};

/// In whole pesetas (the grossed-up part is truncated). A percentage of 0 or less gives a tolerance of 0.
/// Example: Sujeto(100000, 16000, 16, "S") == 100000; Sujeto(100000, 8000, 16, "S") == 50000 and
/// Sujeto(100000, 8000, 16, "N") == 50000.
qint64 Sujeto(qint64 importe, qint64 cuota, double porcentaje, const QString& parte);

/// In euros: the tolerance is converted at the configured pesetas per euro (`PesetasPorEuro`) and rounded
/// to cents, and the grossed-up part is rounded to cents. Example: Sujeto_E(1000, 80, 16, "S") == 500.
double Sujeto_E(double importe, double cuota, double porcentaje, const QString& parte);

/// Pesetas or euros (`moneda` "E"): a percentage of 0 means the configured `TipoIva`; the tolerance is
/// 100 / percentage / 2, or / 332 in euros (0 without any percentage); the grossed-up part is truncated
/// in pesetas and kept exact in euros. Example: MI_SUJETO(1000, 80, "S", "E", 16) == 500.
double MI_SUJETO(double importe, double cuota, const QString& parte, const QString& moneda,
                 double porcentaje);

} // namespace nod
