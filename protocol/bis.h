#pragma once
// Letter suffixes of repeated ("bis") deed numbers. Two alphabets, both of 80 positions:
//   single character: 1..26 "a".."z", 27..37 "C".."M", 38..49 "O".."Z", 50..80 "!".."?" (codes 33..63);
//     the capitals "A", "B" and "N" never appear, because the double-letter suffixes give them a meaning;
//   double letter: 1..26 "a".."z", 27..52 "AA".."AZ", 53..78 "BA".."BZ", 79 "CA", 80 "CB".

#include "nod_core_export.h"

#include <QChar>
#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The single-character suffix of a position; the character with code 0 outside 1..80.
/// Example: DadoNumeroDevuelveBisMasdeUna(27) == 'C', (50) == '!', (81) == QChar(0).
QChar DadoNumeroDevuelveBisMasdeUna(int posicion);

/// The position of a single-character suffix, by its first character: codes 33..64 give code + 17 (so "@",
/// code 64, gives 81, one beyond the forward alphabet), "C".."M" code - 40, "O".."Z" code - 41,
/// "a".."z" code - 96; anything else and the empty text 0. Example: DadoBisDevuelveNumeroMasdeUna("C") == 27.
int DadoBisDevuelveNumeroMasdeUna(const QString& sufijo);

/// The double-letter suffix of a position; empty outside 1..80.
/// Example: DadoNumeroDevuelveBisDobleMasdeUna(27) == "AA", (80) == "CB".
QString DadoNumeroDevuelveBisDobleMasdeUna(int posicion);

/// The position of a double-letter suffix (exact, case-sensitive); 0 when it is none.
/// Example: DadoBisDobleDevuelveNumeroMasdeUna("BZ") == 78.
int DadoBisDobleDevuelveNumeroMasdeUna(const QString& sufijo);

/// The double-letter suffix for a single-character one; "A" and "B" come back unchanged, "N" and the
/// empty text give empty. Example: DadoBisDevuelveBisDobleMasdeUna("C") == "AA".
QString DadoBisDevuelveBisDobleMasdeUna(const QString& sufijo);

} // namespace nod
