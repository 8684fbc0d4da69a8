#pragma once
// Padding text with blanks into the fixed-width columns of printed lists. `L` below is the length of `s`.
// A width beyond `kAnchoMaximoTexto` (65 535, far wider than any line or record the suite writes) is a
// mistake of the caller, not a column: the text comes back unchanged instead of being padded to it.

#include "companion/rnumcad.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Centres `s` in `ancho` characters, the odd blank to the right: StrCentra("AB", 5) == " AB  ".
/// When `ancho` <= L, `s` comes back unchanged.
QString StrCentra(const QString& s, int ancho);

/// Right-justifies `s` in `ancho` characters, cutting it to its first `ancho` characters when longer:
/// JustificaDer("AB", 4) == "  AB", JustificaDer("ABCDEF", 3) == "ABC".
QString JustificaDer(const QString& s, int ancho);

/// Left-justifies `s`, one character wider than `ancho` (the suite's lists count on that column):
/// JustificaIzq("AB", 4) == "AB   " (five characters). When `ancho` < L, `s` comes back unchanged.
QString JustificaIzq(const QString& s, int ancho);

/// `ancho` − L blanks before `s` (none when `ancho` <= L): AlineaDecha("AB", 4) == "  AB".
QString AlineaDecha(const QString& s, int ancho);

/// `ancho` − L blanks after `s` (none when `ancho` <= L): AlineaIzda("AB", 4) == "AB  ".
QString AlineaIzda(const QString& s, int ancho);

} // namespace nod
