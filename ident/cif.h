#pragma once
// The CIF check the suite's programs use on the number of a company or other legal person.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Whether `s` (normalised first: no blanks, points or hyphens, upper case) is a valid CIF, or, when it
/// starts with a digit or "X", a valid NIF or NIE ("X" read as 0). Organisation letters "K", "L", "M" and "N"
/// pass with any ninth character; letters outside "ABCDEFGHKLMNPQSX" never pass.
///
/// The control is checked twice on the same sum (the doubled odd digits summed digit by digit plus the even
/// digits; control c = 10 - sum mod 10): the first check wants the letter "A".."J" of c for "P" and "S" and
/// the digit c (10 written 0) for the rest; the second, when the first fails, accepts the digit c (never "0")
/// or the letter of c for every organisation letter. So every letter accepts the control letter, and "P"
/// and "S" accept the digits 1 to 9 but not "0".
/// EsCif("A58818501") is true, and so is EsCif("A5881850A").
bool EsCif(const QString& s);

} // namespace nod
