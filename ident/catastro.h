#pragma once
// Cadastral references: the 20-character identifier the national land registry gives every property.
//
//   urban  (7 digits, 2 letters, 4 digits, 1 letter, 4 digits, 2 letters): 9872023VH5797S0001WX
//   rustic (5 digits, 1 letter, 12 digits, 2 letters):                     28079A000000001001AB
//
// Clerks often type a reference without its leading zeros; these routines recognise such an abbreviated
// reference and expand it. Input is trimmed and upper-cased first; only "0".."9" count as digits and only
// "A".."Z" as letters.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Whether `s` has the shape of an abbreviated urban reference: digits, two letters, digits, a letter,
/// digits, two letters. Characters after the last two letters are not looked at.
/// SePuedeFormatearReferenciaCatastralUrbana("123VH5797S1WX") is true.
bool SePuedeFormatearReferenciaCatastralUrbana(const QString& s);

/// The 20-character urban reference, each digit group left-padded with zeros (7, 4 and 4 digits); an input
/// of 20 characters or more, or one without the urban shape, comes back trimmed and upper-cased.
/// FormatearReferenciaCatastralUrbana("123VH5797S1WX") == "0000123VH5797S0001WX".
QString FormatearReferenciaCatastralUrbana(const QString& s);

/// Whether `s` has the shape of an abbreviated rustic reference: digits, a letter, digits, and the last two
/// characters of the text letters. The test looks at the end of the text while the formatter takes the two
/// characters that follow the second digit group; 1A2BCD passes and formats with "BC".
bool SePuedeFormatearReferenciaCatastralRustica(const QString& s);

/// The 20-character rustic reference (5 digits padded, the letter, 12 digits padded, two characters); other
/// input comes back trimmed and upper-cased.
/// FormatearReferenciaCatastralRustica("28079A1001AB") == "28079A000000001001AB".
QString FormatearReferenciaCatastralRustica(const QString& s);

/// The surface in square metres of a written rustic surface. With none of the words "HECTAREA(S)",
/// "AREA(S)" or "CENTIAREA(S)" (upper case) the text is read as a plain number ("," or "." as decimal mark).
/// Otherwise hectares, ares and centiares are looked for in that order, each in the text left after the
/// previous one; "AREAS" is also found inside "CENTIAREAS", so
/// ExtraeSuperficiesRustica("2 HECTAREAS 12 CENTIAREAS", s) gives s == 21200 (12 read as ares).
void ExtraeSuperficiesRustica(const QString& s, double& superficie);

} // namespace nod
