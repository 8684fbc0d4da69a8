#pragma once
// Numbers written in Spanish or Catalan words read back into integers, as dates typed in words are
// read (see `TraduceFechaNod`).

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Reads thousands, hundreds, tens and units written in words, each word separated by one blank; case
/// and accents do not matter. Spanish forms: "mil", "ciento"/"cien", "doscientos".."novecientos",
/// "once".."diecinueve", "veinte".."veintinueve", "treinta".."noventa", "y", units "uno".."diez".
/// Catalan forms (`catalan` true): "mil", "cent", "dos cents".."nou cents", "onze".."dinou",
/// "vint i u".."vint i nou", "vint".."noranta", "i", units "u".."deu" (words joined by blanks, not
/// hyphens). ConvierteNumeroDeCadenaAEnteroNod("dos mil veintidós", false) == 2022.
///
/// Limits kept on purpose: the multiplier of "mil" can only be one unit word from one to ten
/// ("veinte mil" adds nothing for its thousands); an unrecognised last word makes the whole result 0;
/// a last word of a single character is not read ("cent u" gives 100).
int ConvierteNumeroDeCadenaAEnteroNod(const QString& texto, bool catalan);

/// One unit word, compared exactly: Spanish "uno"/"una"/"un", "dos" .. "diez"; Catalan "u"/"una"/"un",
/// "dos", "tres", "quatre", "cinc", "sis", "set", "vuit", "nou", "deu". Anything else gives 0:
/// ConvierteUnidadesDeCadenaAEnteroNod("quatre", true) == 4.
int ConvierteUnidadesDeCadenaAEnteroNod(const QString& palabra, bool catalan);

} // namespace nod
