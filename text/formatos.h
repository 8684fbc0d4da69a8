#pragma once
// Numbers and amounts written by the short format codes of the suite's document templates: the figure
// with Spanish grouping ("1.234,5"), the words, or both.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// A number by a four-character code: mode (characters 1-2), gender (3) and case (4) as `LetrasNod`
/// takes them. The figure groups thousands with "." and keeps every decimal digit after ",";
/// W is the number in words (`LetrasDecimalNod` with all its decimals), P the percentage words
/// (`LetrasPorCientoNod`):
///   "N1" figure, "N2" W, "N3" P, "N4" figure (W), "N5" W (figure), "N6" figure (P), "N7" P (figure),
///   any other code W.
/// FormateaNumero("N4MN", 1234.5) == "1.234,5 (MIL DOSCIENTOS TREINTA Y CUATRO CON CINCO)".
/// The figure's picture has no compulsory digit, so a zero integer part prints nothing: 0 gives ""
/// and 0.5 gives ",5".
QString FormateaNumero(const QString& formato, double numero);

/// An amount in euros by a three-character code: mode (characters 1-2) and case (3). The figure has
/// two decimals when the amount has one or two, all of them when it has more, none when it has none;
/// E is `EurosEnLetra`:
///   "M1" figure €, "M2" E, "M3" figure € (E), "M4" E (figure € ), any other code figure €.
/// FormateaCantidad("M3N", 1234.5) == "1.234,50 € (MIL DOSCIENTOS TREINTA Y CUATRO EUROS CON CINCUENTA
/// CENTIMOS)"; the blank before the closing parenthesis of "M4" belongs to the text.
/// As in `FormateaNumero`, a zero integer part prints nothing (0.5 gives ",50 €").
QString FormateaCantidad(const QString& formato, double importe);

} // namespace nod
