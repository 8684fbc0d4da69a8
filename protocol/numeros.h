#pragma once
// Protocol codes: the year and number of a deed, policy or correlative entry packed into one number,
// and the printed form of a deed's number.
//
//   Cod4  year × 10 000 + number     (numbers 0..9 999)
//   Cod   year × 100 000 + number    (numbers 0..99 999; a double, the number may carry one decimal)
//   Cor   year × 100 000 + number    (correlative entries, whole numbers)
//   Cod6  year × 1 000 000 + number  (numbers 0..999 999)
//
// Unpacking truncates the code towards zero to a 64-bit whole number and then takes quotient and
// remainder (both truncating, so negative codes give negative parts). A code that cannot be truncated
// (not a finite number, or beyond 64 bits) gives 0 for every part; so does a year that does not fit a
// 32-bit integer, except for `CodToNum4`/`CodToNum5`, whose remainder always fits. Packing whose result
// does not fit a 32-bit code gives 0.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// year × 10 000 + number. Example: EncodeCod4(2008, 15) == 20080015.
int EncodeCod4(int anno, int numero);

/// year × 100 000 + number rounded to one decimal (`RedondeaDec`).
/// Example: EncodeCod(2008, 12.94) == 200800012.9.
double EncodeCod(int anno, double numero);

/// year × 1 000 000 + number. Example: EncodeCod6(1999, 12) == 1999000012; from year 2148 on the code
/// does not fit 32 bits: EncodeCod6(2148, 0) == 0.
int EncodeCod6(int anno, int numero);

/// year × 100 000 + number. Example: EncodeCor(2008, 12) == 200800012.
int EncodeCor(int anno, int numero);

/// year × 100 000 + the number's whole part (the fraction is dropped; a number that is not a finite
/// 32-bit value gives 0). Example: EncodeCor(2008, 12.9) == 200800012.
int EncodeCor(int anno, double numero);

/// year := code div 10 000, number := code mod 10 000. Example: 20080015 gives 2008 and 15.
void DecodeCod4(int codigo, int& anno, int& numero);

/// year := Trunc(code) div 100 000, number := Trunc(code) mod 100 000; both 0 when the code cannot be
/// truncated. Example: 200801234.2 gives 2008 and 1234.
void DecodeCod(double codigo, int& anno, int& numero);

/// Quotient and remainder by 1 000 000. Example: 1999000012 gives 1999 and 12.
void DecodeCod6(int codigo, int& anno, int& numero);

/// Quotient and remainder by 100 000. Example: 200800012 gives 2008 and 12.
void DecodeCor(int codigo, int& anno, int& numero);

/// Trunc(code) div 10 000 (0 on failure). Example: CodToAno4(20080015) == 2008.
int CodToAno4(double codigo);

/// Trunc(code) mod 10 000 (0 when the code cannot be truncated). Example: CodToNum4(20080015) == 15.
int CodToNum4(double codigo);

/// The year of a code whose number may have five, six or seven digits: the quotient by 100 000, or by
/// 1 000 000 when that is 3000 or more, or by 10 000 000 when that still is (3000 is the highest year a
/// code may hold). 0 on failure.
/// Example: CodToAno5(200800123) == CodToAno5(2008000123) == CodToAno5(20080000123) == 2008.
int CodToAno5(double codigo);

/// Trunc(code) mod 100 000 (0 when the code cannot be truncated). Example: CodToNum5(200801234) == 1234.
int CodToNum5(double codigo);

/// The printed number of a nine-digit code (four digits of year, five of number), by its decimal text s:
///   mode 1: characters 5..9 of s as a number with the picture "#," ("1.234"; number 0 prints empty);
///   mode 2: as mode 1, "/", then the year with the same picture, so it prints grouped too: "1.234/2.008";
///   mode 3: characters 5..9 and 1..4 as they stand: "01234/2008";
///   any other mode: empty.
/// A code of another length is cut by position all the same; a piece that is not a number (a code of
/// four characters or fewer) raises EConvertError. Example: Numero(200801234, 2) == "1.234/2.008".
QString Numero(int codigo, int modo);

} // namespace nod
