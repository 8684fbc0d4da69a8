#pragma once
// Calendar helpers of the maker's generic library (unit Rvarias) that the routines rely on.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The four-digit year of a date (0 for a serial outside the calendar).
int Ano(TDateTime fecha);

/// The month (1..12) of a date (0 for a serial outside the calendar).
int Mes(TDateTime fecha);

/// A year typed with one or two digits as four digits: 0..49 fall in the 2000s and 50..99 in the 1900s,
/// so "05" and "5" give "2005" and "98" gives "1998". Blanks around the digits are ignored; any other
/// text (three or more digits, letters, empty) comes back unchanged.
QString CompletaAnno(const QString& anno);

/// Form of a month or weekday name: 0 lower case ("marzo"), 1 capitalised ("Marzo"), 2 upper case
/// ("MARZO"); any other value gives lower case.
enum FormaNombre { NombreMinusculas = 0, NombreCapital = 1, NombreMayusculas = 2 };

/// The name of month `mes` (1..12) in Spanish (idioma 0, "septiembre") or Catalan (idioma 1, "març"),
/// in the form `forma`: MesToStr(3, 1, 0) == "març", MesToStr(9, 0, 1) == "Septiembre".
/// A month outside 1..12 gives "".
QString MesToStr(int mes, int idioma, int forma);

/// The weekday name of the date `fecha` in Spanish (idioma 0, "miércoles") or Catalan (idioma 1,
/// "dimecres"), in the form `forma`: DiaTexto(EncodeDate(2010, 4, 15), 1, 1) == "Dijous".
/// A serial outside the calendar gives "".
QString DiaTexto(TDateTime fecha, int idioma, int forma);

} // namespace nod
