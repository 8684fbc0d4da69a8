#pragma once
// Small calendar helpers: days of a month, last day of a month, dates from numbers that may overflow,
// and quarters.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Days of the month of `fecha`: 31, 30, or 29/28 for February by the leap-year rule; 0 for a serial
/// outside the calendar. DiasMes(EncodeDate(2024, 2, 10)) == 29.
int DiasMes(TDateTime fecha);

/// The last day of month `mes` of year `anio`; 0 for a month outside 1..12 or a year outside 1..9999.
TDateTime UltimoDia(int mes, int anio);

/// A date from year, month and day that may overflow: a month above 12 adds `mes` div 12 years and
/// keeps `mes` mod 12 (so month 24 becomes month 0 and fails, as the suite has always done), and the
/// days count from the first of the month, rolling over its end: EncodeFecha(2010, 14, 1) is
/// 1 February 2011, EncodeFecha(2010, 1, 32) is 1 February 2010, day 0 is the month's eve.
/// Throws EConvertError when the month ends up 0 or the year falls outside 1..9999; the numbers are
/// unsigned 16-bit in the suite, so a negative one or one above 65535 throws too.
TDateTime EncodeFecha(int anio, int mes, int dia);

/// "PRIMER", "SEGUNDO", "TERCER", "CUARTO" for quarters 1 to 4, else "".
QString IntToTrim(int trimestre);

/// The quarter by the first letter of a word (any case): P 1, S 2, T 3, C 4, anything else 0:
/// TrimToInt("tercer") == 3.
int TrimToInt(const QString& trimestre);

/// The first month of quarter `trimestre`, 3 × trimestre − 2 (TrimToMes(4) == 10); 0 when that does
/// not fit an int.
int TrimToMes(int trimestre);

} // namespace nod
