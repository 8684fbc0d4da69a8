#pragma once
// String and number conversions of the maker's generic library (unit Rnumcad), as the routines of this
// library rely on them.

#include <QString>

namespace nod {

/// A double with its shortest exact decimal digits, "," as the decimal mark and no thousands separators,
/// as the suite prints figures: Float_Cad(7.5) == "7,5", Float_Cad(21) == "21", Float_Cad(-0.25) == "-0,25".
/// NaN and infinities give "0".
QString Float_Cad(double x);

/// `x` rounded to `decimales` decimals (0 to 15), half-way cases away from zero, judged on the shortest
/// decimal form of x (the figure the clerk sees): RedondeaDec(2.675, 2) == 2.68, RedondeaDec(-0.5, 0) == -1.
/// NaN and infinities come back unchanged; a negative count rounds to whole units.
double RedondeaDec(double x, int decimales);

} // namespace nod
