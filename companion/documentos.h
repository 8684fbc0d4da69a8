#pragma once
// Checks of Spanish identity and tax numbers, as the suite's generic library offers them.
//
// Every check takes a flag `normaliza`: true tolerates the way clerks type a number (blanks, points,
// hyphens and slashes anywhere, lower case), which are removed first with `PreparaCIFNIF`; false demands the
// bare upper-case form and rejects anything else. The routines that already normalised their input call
// them with false.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The number with blanks, points, hyphens and slashes removed and upper-cased:
/// PreparaCIFNIF(" b-12.345.674 ") == "B12345674".
QString PreparaCIFNIF(const QString& s);

/// The NIF control letter of a DNI number (its value modulo 23 in "TRWAGMYFPDXBNJZSQVHLCKE"):
/// LetraNIF(12345678) == 'Z'. A negative number gives '\0'.
QChar LetraNIF(qint64 numero);

/// Whether `s` is a NIF: 8 digits followed by their control letter. EsNif("12345678Z", false) is true;
/// EsNif("12.345.678-z", true) is true; EsNif("12.345.678-z", false) is false.
bool EsNif(const QString& s, bool normaliza);

/// Whether `s` is a NIE: "X", "Y" or "Z" (standing for 0, 1 and 2 in front of the number), 7 digits and the
/// NIF letter of the resulting 8-digit number. EsUnNie("X1234567L", false) is true.
bool EsUnNie(const QString& s, bool normaliza);

/// Whether `s` is the tax number of a legal person (CIF) by the tax agency's rules: an organisation letter of
/// "ABCDEFGHJNPQRSUVW", 7 digits and a control character. The control comes from the doubled odd digits
/// and the even ones; it must be a letter ("JABCDEFGHI") for letters N, P, Q, R, S, W and whenever the
/// province digits are "00", a digit for A, B, E and H, and may be either for the rest.
/// EsUnCif("A58818501", false) is true; EsUnCif("P2800000H", false) is true.
bool EsUnCif(const QString& s, bool normaliza);

/// The control character value of the 7 digits of a CIF (0 to 9): ControlCIF("5881850") == 1.
/// The letter form is "JABCDEFGHI"[value]. Returns -1 when `digitos` is not 7 digits.
int ControlCIF(QStringView digitos);

/// The document-type code of a number, by its shape (normalised first): 1 NIF (8 digits and a letter, and
/// also the K, L and M personal numbers), 2 CIF, 3 NIE, 4 a passport (any other 5 to 15 letters and digits
/// with at least one digit that is not a NIF, CIF or NIE shape), 5 anything else, the empty text included.
/// Only the shape counts: a NIF with a wrong letter is still 1. QueTipoDeDocumentoEs("X1234567L") == 3.
int QueTipoDeDocumentoEs(const QString& s);

} // namespace nod
