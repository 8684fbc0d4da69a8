#pragma once
// Amounts, numbers and percentages in Spanish words, as deeds write them beside their figures.
//
// Gender character: 'F' feminine ("UNA", "VEINTIUNA", "DOSCIENTAS"); 'M' masculine with the short
// form before a noun ("VEINTIÚN"); any other character (the suite passes 'N') masculine with the full
// form ("VEINTIUNO"). Case character: 'S' gives lower case, anything else upper case.
// The routines work on 0 to 999 999 999 999; a number outside that range, negative, NaN or infinite
// gives "" (and so does any part of a decimal that falls outside it).

#include "nod_core_export.h"

#include <QChar>
#include <QString>
#include <array>
#include <string_view>

namespace nod NOD_CORE_EXPORT {

/// The words of one gender, each followed by one blank: [1] "UNO " or "UNA ", [2..29] "DOS " ..
/// "VEINTINUEVE " ([21] by gender: "VEINTIUNA ", "VEINTIÚN ", "VEINTIUNO "), the tens "TREINTA " ..
/// "NOVENTA " and the hundreds "CIENTO ", "DOSCIENTOS "/"DOSCIENTAS " ...
struct PalabrasNumero {
    std::array<std::u16string_view, 30> hasta29{};
    std::array<std::u16string_view, 10> decenas{};  // [3..9]
    std::array<std::u16string_view, 10> centenas{}; // [1..9]
};

/// The table for a gender character.
const PalabrasNumero& TablaPalabras(QChar genero);

/// `numero` in words. `corto` asks for the short form of one in the last group ("UN", "VEINTIÚN") as
/// used before a noun. The thousands take their short form only when the last three digits are not all
/// zero: 21 000 reads "VEINTIUNO MIL", 21 500 reads "VEINTIÚN MIL QUINIENTOS" with 'M'. A round million
/// ends in "DE" so that the unit reads right after it: "UN MILLON DE", "DOS MILLONES DE".
/// LetrasNod(101, 'F', 'N', false) == "CIENTO UNA"; LetrasNod(0, 'N', 'S', false) == "cero".
QString LetrasNod(qint64 numero, QChar genero, QChar minusculas, bool corto);

/// Appends the words of a six-character group of digits (blanks count as 0) to `resultado`: its
/// thousands (short form only when its last three digits are not zero), "MIL ", then its last three
/// digits with `corto`. SeisCifrasNod("021500", r, TablaPalabras('M'), false) appends
/// "VEINTIÚN MIL QUINIENTOS ".
void SeisCifrasNod(const QString& seis, QString& resultado, const PalabrasNumero& palabras, bool corto);
/// The same with the table of a gender character (the form scripts call).
void SeisCifrasNod(const QString& seis, QString& resultado, QChar genero, bool corto);

/// Appends the words of a group of three digits `centenas` `decenas` `unidades`; `grupo` 1 is the
/// thousands group (one thousand is "MIL" alone, so a lone 1 appends nothing), 2 the units group.
/// `corto` asks for "UN" and the gender's 21. CientosNod(1, 2, 0, true, TablaPalabras('M'), r, 2)
/// appends "VEINTIÚN ".
void CientosNod(int unidades, int decenas, int centenas, bool corto, const PalabrasNumero& palabras,
                QString& resultado, int grupo);
/// The same with the table of a gender character (the form scripts call).
void CientosNod(int unidades, int decenas, int centenas, bool corto, QChar genero, QString& resultado,
                int grupo);

/// A number with `decimales` decimal digits in words, the integer part, " CON " and the decimal digits
/// read as a whole number, with no word for the decimal unit: LetrasDecimalNod(2.5, 2, 'N', 'N') ==
/// "DOS CON CINCUENTA". Decimal digits beyond `decimales` are cut, not rounded.
QString LetrasDecimalNod(double numero, int decimales, QChar genero, QChar minusculas);

/// A percentage's number in words, its decimals named by their count: LetrasPorCientoNod(3.25, 'M',
/// 'N') == "TRES ENTEROS CON VEINTICINCO CENTÉSIMAS" (" DÉCIMAS", " CENTÉSIMAS", " MILÉSIMAS", no
/// unit word for four or more decimals). The percentage words themselves are left to the caller.
QString LetrasPorCientoNod(double numero, QChar genero, QChar minusculas);

/// An amount in euros in words, masculine and short: EurosEnLetra(21.5, "N") ==
/// "VEINTIÚN EUROS CON CINCUENTA CENTIMOS". The unit is always plural ("UN EUROS") and upper-case
/// "CENTIMOS" carries no accent, as the suite's deeds print them. The numbers take the case of the
/// first character of `minusculas`; the words " euros", " con ", " céntimos" are lower case only when
/// `minusculas` is exactly "S", like every flag passed as text: EurosEnLetra(1, "SI") == "un EUROS".
/// Cents are the decimal digits as written, one digit standing for tens ("5" reads "CINCUENTA");
/// amounts are expected rounded to cents.
QString EurosEnLetra(double importe, const QString& minusculas);

class Texto;
class Cifras;
/// The words of `EurosEnLetra`, appended to `r` for the writers that put figure and words in one text;
/// `c` holds the digits of `importe`, `minusculas` is the case character of the numbers and
/// `unidadMinusculas` lowers the unit words. Writes nothing when `EurosEnLetra` gives "".
void EscribeEurosEnLetra(Texto& r, double importe, const Cifras& c, QChar minusculas, bool unidadMinusculas);

/// Kept for callers of the earlier currency: always "".
QString Letras_Pesetas(qint64 numero, QChar minusculas);
/// Kept for callers of the earlier currency: always "".
QString Letras_Euros(double importe, int decimales, QChar minusculas);

} // namespace nod
