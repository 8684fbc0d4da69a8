#pragma once
// Catalan numbers in words, written as the suite's Catalan deeds date themselves.

#include "nod_core_export.h"

#include <QChar>
#include <QString>

namespace nod NOD_CORE_EXPORT {

/// `numero` (0 to 999 999 999 999) in Catalan words, upper case unless `minusculas` is 'S'.
///
/// Forms, as Catalan grammar writes them:
/// - tens and units are joined by hyphens, twenty-something with "i": "vint-i-dos", "trenta-cinc";
/// - hundreds are hyphenated and agree with a feminine noun: "dos-cents", "dues-centes", "cent" alone;
/// - one is "una" with gender 'F', "un" before a noun (`corto` true) and "u" when counted ("trenta-u");
///   two is "dues" with gender 'F' ("vint-i-dues");
/// - thousands: "mil" alone for one thousand, the multiplier takes the short form and the gender
///   ("vint-i-un mil", "dues mil" with 'F');
/// - millions are masculine: "un milió", "dos milions", "vint-i-un milions", "mil milions".
/// Unlike the Spanish words, no "de" follows a round million (Catalan elides it before a vowel).
///
/// Examples: letrasEnCatalan(2010, 'M', 'S', false) == "dos mil deu";
/// letrasEnCatalan(21, 'M', 'N', false) == "VINT-I-U"; letrasEnCatalan(221, 'F', 'S', false) ==
/// "dues-centes vint-i-una". 0 gives "ZERO" ("zero"); a number outside the range gives "".
QString letrasEnCatalan(qint64 numero, QChar genero, QChar minusculas, bool corto);

} // namespace nod
