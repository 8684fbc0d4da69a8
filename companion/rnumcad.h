#pragma once
// String and number conversions of the maker's generic library (unit Rnumcad), as the routines of this
// library rely on them.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// A double with its shortest exact decimal digits, "," as the decimal mark and no thousands separators,
/// as the suite prints figures: Float_Cad(7.5) == "7,5", Float_Cad(21) == "21", Float_Cad(-0.25) == "-0,25".
/// NaN and infinities give "0".
QString Float_Cad(double x);

/// `x` rounded to `decimales` decimals (0 to 15), half-way cases away from zero, judged on the shortest
/// decimal form of x (the figure the clerk sees): RedondeaDec(2.675, 2) == 2.68, RedondeaDec(-0.5, 0) == -1.
/// NaN and infinities come back unchanged; a negative count rounds to whole units.
double RedondeaDec(double x, int decimales);

/// Splits a figure written by `Float_Cad` at its decimal mark (",", or "." when there is no ","):
/// ParteEnteraDecimal("1234,05", e, d) gives e == "1234" and d == "05"; without a mark `decimal` is empty.
void ParteEnteraDecimal(const QString& numero, QString& entera, QString& decimal);

/// Whole number of a text: blanks around it are ignored, an optional sign, then decimal digits only.
/// Anything else, or a value beyond the type's range, gives 0: Cad_Int(" -42 ") == -42, Cad_Int("4a") == 0.
int Cad_Int(const QString& texto);
qint64 Cad_Int64(const QString& texto);

/// Real number of a text with "," or "." as decimal mark; when both appear, "." groups thousands:
/// Cad_Float("1.234,5") == 1234.5, Cad_Float("2.5") == 2.5. Blanks are ignored; anything else gives 0.
double Cad_Float(const QString& texto);

/// The first (last) `n` characters of `s`; all of it when shorter, "" when n <= 0. A character outside
/// the Basic Multilingual Plane counts two and is never cut in half: it is left out when only one of its
/// halves would fit.
QString StrLeft(const QString& s, int n);
QString StrRight(const QString& s, int n);

/// The widest text the padding routines (`StrCeros`, `StrCentra`, `JustificaDer` ...) build. A wider
/// width is a caller's mistake, not a column: the text is not padded at all rather than allocating it.
constexpr int kAnchoMaximoTexto = 65535;

/// `valor` in figures padded with zeros on the left to `ancho` characters (the sign counts):
/// StrCeros(7, 3) == "007", StrCeros(-7, 3) == "-07", StrCeros(1234, 2) == "1234". Beyond
/// `kAnchoMaximoTexto` there is no padding: StrCeros(7, 100000) == "7".
QString StrCeros(qint64 valor, int ancho);

/// Upper and lower case, letter by letter, accented and Catalan letters too ("ñ"/"Ñ", "ç"/"Ç", "à"/"À");
/// the length never changes ("ß" and "µ" stay as they are): UpperCase("camión") == "CAMIÓN".
QString UpperCase(const QString& s);
QString lowerCase(const QString& s);

/// The digits of a whole number grouped by thousands with ".", a leading "-" kept outside the groups:
/// AgrupaMiles("1234567") == "1.234.567", AgrupaMiles("-123456") == "-123.456".
QString AgrupaMiles(const QString& cifras);

/// True for the decimal digits "0" to "9" only.
bool EsUnNumero(QChar c);
/// True when `s` is not empty and every character of it is a decimal digit: EsUnNumero("0123") is true,
/// EsUnNumero("12.3") and EsUnNumero("") are false.
bool EsUnNumero(QStringView s);

/// The decimal digits of `s`, in order, everything else dropped: DejaSoloNumeros("B-12.3") == "123".
/// With `conSeparadores` the decimal and thousands marks "," and "." are kept too, for figures that
/// are converted afterwards: DejaSoloNumeros("1.234,5 m", true) == "1.234,5".
QString DejaSoloNumeros(const QString& s, bool conSeparadores = false);

} // namespace nod
