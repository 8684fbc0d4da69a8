#pragma once
// Calendar helpers of the maker's generic library (unit Rvarias) that the routines rely on.

#include "companion/tdatetime.h"

#include <QString>

namespace nod {

/// The four-digit year of a date (0 for a serial outside the calendar).
int Ano(TDateTime fecha);

/// The month (1..12) of a date (0 for a serial outside the calendar).
int Mes(TDateTime fecha);

/// A year typed with one or two digits as four digits: 0..49 fall in the 2000s and 50..99 in the 1900s,
/// so "05" and "5" give "2005" and "98" gives "1998". Blanks around the digits are ignored; any other
/// text (three or more digits, letters, empty) comes back unchanged.
QString CompletaAnno(const QString& anno);

} // namespace nod
