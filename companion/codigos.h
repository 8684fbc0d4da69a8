#pragma once
// Protocol codes as the maker's generic library (unit Rvarias) offers them to the suite's programs:
// the whole-number packing of a deed's year and number, and the printed number with its bis mark.

#include "nod_core_export.h"

#include <QString>
#include <QtGlobal>

namespace nod NOD_CORE_EXPORT {

/// A whole number printed with the picture "#,": thousands grouped with ".", no decimals, and no
/// mandatory digit, so 0 prints as an empty text. Example: FormateaMiles(1234567) == "1.234.567",
/// FormateaMiles(-2008) == "-2.008", FormateaMiles(0) == "".
QString FormateaMiles(qint64 n);

/// The code of a deed: year × 100 000 + number, as a whole number. A result that does not fit a
/// 32-bit code gives 0 (no code). Example: EncodeCod(2008, 1234) == 200801234.
int EncodeCod(int anno, int numero);

/// The bis order a code carries in its one decimal: 200801234.2 carries order 2 (0 means no bis).
/// Codes that are not finite numbers carry none.
int BisDeCodigo(double codigo);

/// The mark that a bis order prints after the number, in the Latin ordinals that Spanish deeds use:
/// 1 "bis", 2 "ter", 3 "quáter", 4 "quinquies", 5 "sexies", 6 "septies", 7 "octies", 8 "nonies",
/// 9 "decies"; 0 and any other order print nothing.
QString MarcaBis(int orden);

/// The printable number of a code with its bis mark (the order in the code's decimal, see `BisDeCodigo`):
///   mode 1: the number grouped by thousands, a blank and the mark when there is one: "1.234 bis";
///   mode 2: as mode 1, then "/" and the year: "1.234 bis/2008";
///   mode 0: the mark alone: "bis" (empty without bis);
///   any other mode, or a code that is not a finite number of at most 64 bits: empty.
/// Number 0 prints "0" here. Example: CodToBis(200801234.1, 1) == "1.234 bis".
QString CodToBis(double codigo, int modo);

} // namespace nod
