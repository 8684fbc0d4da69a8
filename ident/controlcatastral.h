#pragma once
// The two control letters that close a 20-character cadastral reference (positions 19 and 20).
//
// The cadastre computes each letter from eleven characters: the first from positions 1-7 (the plot) and
// 15-18 (the property within it), the second from positions 8-14 (the map sheet or the polygon and parcel)
// and 15-18. Digits count by their value and letters by their place in the Spanish alphabet
// (A = 1 ... N = 14, Ñ = 15, O = 16 ... Z = 27); the values are weighted 13, 15, 12, 5, 4, 17, 9, 21, 3, 7, 1
// and the sum modulo 23 picks the letter of "MQWERTYUIOPASDFGHJKLBZX". The rule is the same for urban and
// rustic references.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The two control letters of the first 18 characters of `referencia` (upper case expected): "WX" for
/// "9872023VH5797S0001". Empty when there are fewer than 18 characters or a character is neither a digit
/// nor a letter of the Spanish alphabet.
QString LetrasControlCatastral(const QString& referencia);

/// Whether `referencia` is 20 characters whose last two are the control letters of the first 18:
/// ControlCatastralCorrecto("9872023VH5797S0001WX") is true.
bool ControlCatastralCorrecto(const QString& referencia);

} // namespace nod
