#pragma once
// Cleaning of text typed by users before it is compared or stored: accents, blanks, digits, punctuation
// and the final backslash of folders. Every routine returns a new string.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Replaces only the upper-case acute vowels (Á É Í Ó Ú) by plain ones; lower-case and grave vowels,
/// "Ü" and "Ñ" stay: QuitaAcentos("ÁRBOL ácido") == "ARBOL ácido".
QString QuitaAcentos(const QString& s);

/// Replaces acute and grave vowels of both cases by plain ones ("à" -> "a", "É" -> "E");
/// "ü", "Ü", "ñ" and "Ñ" stay: QuitaAcentoMayMin("Camión Àngel pingüino") == "Camion Angel pingüino".
QString QuitaAcentoMayMin(const QString& s);

/// Every run of blanks becomes one blank; the ends are not trimmed: "  a   b " -> " a b ".
QString ConvertirDoblesEspaciosEnUno(const QString& s);

/// Trims both ends and reduces every inner run of blanks to one: "  a   b " -> "a b".
QString SinDoblesEspacios(const QString& s);

/// Joins letter-spaced headings: "E S C R I T U R A" -> "ESCRITURA". The text is trimmed and its blank
/// runs reduced; when it starts "letter, blank, letter, blank" (looking no further than the character
/// before the last) every blank goes, so the words of a letter-spaced heading run together
/// ("A B CASA" -> "ABCASA"); otherwise the reduced text is kept. Either way the result passes through
/// `QuitaAcentos`.
QString QuitaEspaciosIntermedios(const QString& s);

/// Removes every blank: " 12 34 " -> "1234".
QString TrimTotal(const QString& s);

/// Removes every digit and then every blank, those that were there before too:
/// QuitaNumeros("Calle 5 Mayor") == "CalleMayor".
QString QuitaNumeros(const QString& s);

/// Trims and removes "-", "_", ",", ".", "/" and "\": StrNeto(" 12.345.678-Z ") == "12345678Z".
QString StrNeto(const QString& s);

/// Trims and, when the result is not empty and does not end in "\", appends "\" (always the backslash,
/// whatever the platform): PonBarraFinal(" C:\DATOS ") == "C:\DATOS\", PonBarraFinal("") == "".
/// The second parameter is kept for the suite's callers and not used.
QString PonBarraFinal(const QString& ruta, const QString& noUsado = {});

/// Trims and removes one final "\": QuitaBarraFinal("C:\DATOS\\") == "C:\DATOS\" (one backslash less).
/// The second parameter is kept for the suite's callers and not used.
QString QuitaBarraFinal(const QString& ruta, const QString& noUsado = {});

} // namespace nod
