#pragma once
// The NIF: a national's identity number (DNI) written with its control letter, the number modulo 23 in
// the table "TRWAGMYFPDXBNJZSQVHLCKE", and grouped by points: 12345678 is written 12.345.678-Z.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The formatted NIF of a bare number of up to 8 digits: NIF("12345678") == "12.345.678-Z",
/// NIF("123") == "00.000.123-P", NIF("") == "". Anything else comes back as it was (trimmed once it is
/// known to be digits): a 9-digit number, a number with points or hyphens, letters.
QString NIF(const QString& s);

/// The NIF of a number that may already carry points, hyphen and a (wrong) letter: when the text starts
/// with a digit everything but digits is dropped and the letter worked out again, otherwise the text goes
/// through `NIF` as it is (so a NIE or CIF comes back unchanged). RecalculaNIF("12.345.678-A") ==
/// "12.345.678-Z".
QString RecalculaNIF(const QString& s);

} // namespace nod
