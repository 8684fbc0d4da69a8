#pragma once
// Notarial fees. Deeds follow the official scale (a fixed fee up to a first amount, then decreasing per-mille
// rates on the excess); policies follow one of two scales kept in the configuration (`sTipoArancel`): the
// "C" scale of lower and upper tables with and without guarantee, or the four-rate scale with its guarantee
// surcharge and invoice minimum. Rates are per mille: amount × rate / 1000.
//
// Routines without suffix work in pesetas and give whole pesetas; the `_E` twins work in euros and round to
// cents (`RedondeaDec`). Flags are compared exactly: the guarantee and lower-table flags mean yes only as
// "SI", the document kind matters only as "factura", the surcharge flag of `TASA_C` only as "S".
//
// None of these report errors. An amount that is not a finite number gives a fee of 0, and so does a fee
// that does not fit the result's integer type; negative amounts go through the scales as they stand.

#include "nod_core_export.h"

#include <QString>
#include <QtGlobal>

namespace nod NOD_CORE_EXPORT {

/// Deed fee in pesetas: 4 000 up to 1 000 000, then the base fee and rate of the highest bracket the
/// amount passes, truncated to whole pesetas.
/// Example: Ges_Arancel(1000001) == 4000, Ges_Arancel(5000000) == 11000, Ges_Arancel(200000000) == 71000.
qint64 Ges_Arancel(double importe);

/// Deed fee in euros, rounded to cents. Example: Ges_Arancel_E(601012.10) == 306.52.
double Ges_Arancel_E(double importe);

/// Policy fee in whole pesetas on the configured scale (`sTipoArancel`).
///   "C" scale: the lower table when `inferior` is "SI", else the upper one, each with or without
///   guarantee (`aval` "SI"); the upper table with guarantee charges brackets 1 and 2 at the single rate
///   `nSuperiorConAvalP12` once the amount passes `nSuperiorT2`. Never below `nCantidadMinima`.
///   Four-rate scale: rates `nCor_Tipo1`..`4` over `nCor_Tramo1`..`3`, or with `inferior` "SI" the
///   reduced rate `nCor_TipoR` up to 40 000 000, `nCor_Tipo3` up to 50 000 000 and `nCor_Tipo4` beyond;
///   with guarantee, a surcharge at half the first rate on at most `nCor_f_Cuant` of the amount
///   (`nCor_f_Cual` 0) or of at most `nCor_f_max`; for kind "factura" never below `nCor_minimo`.
/// The fee rounds half up: Trunc(fee + 0.5).
/// Example: on a four-rate scale of 3 ‰ up to 1 000 000 and 2 ‰ up to 10 000 000,
/// ARANCEL_C(2000000, "NO", "", "NO") == 5000.
int ARANCEL_C(double importe, const QString& aval, const QString& tipoDocumento, const QString& inferior);

/// What the search for a base amount found (see `BASE_C`).
struct BusquedaBase {
    int resultado = 0;      ///< the amount `BASE_C` returns
    qint64 alto = 0;        ///< final end of the bracket whose fee is above the target
    qint64 bajo = 0;        ///< final end of the bracket whose fee is not above the target
    qint64 ultimaSonda = 0; ///< the last amount tried (its fee is within 500 of the target when found)
    int vueltas = 0;        ///< halvings made
    bool agotada = false;   ///< the search gave up after `kMaximoVueltasBase` halvings
};

/// Halvings after which the search gives up: the bracket is a thousand pesetas wide long before, so
/// reaching it means the fee does not grow with the amount (or jumps over the target).
constexpr int kMaximoVueltasBase = 200;

/// The amount whose policy fee (kind "factura") meets a target fee, by bisection:
/// the target is raised to `nCor_minimo`; if the fee of `importeMaximo` is not more than 500 above it, the
/// result is Trunc(importeMaximo). Otherwise the bracket [500 000, Trunc(importeMaximo)] is halved at whole
/// thousands until a probe's fee is within 500 of the target, and the result is the midpoint of the final
/// bracket cut down to whole tens of thousands. Because that midpoint is not the matching probe, a search
/// that hits early returns an amount up to half its bracket away from the probe.
/// A search that does not end within `kMaximoVueltasBase` halvings stops there, logs a warning and returns
/// the midpoint of the bracket it reached. A maximum that is not finite or not a 32-bit amount, or a target
/// that is not a number, gives 0.
/// Example (the four-rate scale of `ARANCEL_C`, minimum 0): BASE_C(2000000, 5000, "NO", "NO") == 2000000.
int BASE_C(double importeMaximo, double honorarioObjetivo, const QString& aval, const QString& inferior);

/// `BASE_C` with the details of its search.
BusquedaBase BuscaBase_C(double importeMaximo, double honorarioObjetivo, const QString& aval,
                         const QString& inferior);

/// Small per-mille charge in pesetas: 0.06 ‰ below 15 000 000; 900 + 0.03 ‰ of the excess below
/// 25 000 000; 1 200 + 0.006 ‰ of the excess below 50 000 000; 1 350 + 0.004 ‰ of the excess beyond.
/// With `recargo` "S" the larger of 210 and half the charge is added. Never below 40.
/// Example: TASA_C(10000, "") == 40, TASA_C(20000000, "S") == 1575.
int TASA_C(double importe, const QString& recargo);

} // namespace nod
