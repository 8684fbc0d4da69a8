#pragma once
// Dates written in words or figures, in Spanish or Catalan, as deeds date themselves, and dates typed in
// words read back.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// A date by a template code "F1".."F8" and an optional third character for the case: 'S' lower,
/// 'N' upper, 'C' capitalised words (given in either case); any other character, or none, keeps the
/// case as produced. Day and year words come from `LetrasNod` (Catalan: `letrasEnCatalan`) and stay
/// upper case with 'C'; with 'C' the joiners stay lower case.
///   "F1" d/m/yy, "F2" dd/mm/yy, "F3" dd/mm/yyyy,
///   "F4" day words + " de " + month + " de " + year words,
///   "F5" weekday + ", " + the same as F4, "F6" as F4 with day and year in figures,
///   "F7" weekday + ", " + F6, "F8" as F4 with " del año " before the year.
/// Catalan joins day and month with " d'" before "abril", "agost" and "octubre" and " de " otherwise,
/// the year with " de " (" de l'any  " in F8, two blanks as the suite prints it); its joiners are not
/// case-converted except " de l'any  ". Any other code gives d/m/yy; a serial outside the calendar "".
/// The weekday of "F5" and "F7" is the date's own in both languages: Spanish lower case ("lunes"),
/// Catalan capitalised ("Dijous") before the case character applies. The Catalan one is
/// `DiaTexto(fecha, 1, 1)`, given the whole date and not only its day of the month, since the day
/// of the month alone does not tell the weekday and a deed must state the real one.
/// FormateaFecha("F4S", 15 March 2010, false) == "quince de marzo de dos mil diez".
QString FormateaFecha(const QString& formato, TDateTime fecha, bool catalan);

/// The dating line of a document. Modes: 1 dd/mm/yy, 2 dd/mm/yyyy, 3 lugar + " a " + day + " de " +
/// month + " de " + year (figures, month by name), 4 the same without the place, 5 the month name
/// alone; other modes "". A date 0 gives the blank form to fill in by hand:
/// PonerFechaNod(4, "", false, 0) == "     de              de       ".
/// Month names are capitalised ("15 de Marzo de 2010"; Catalan "Març", always joined by " de ").
QString PonerFechaNod(int modo, const QString& lugar, bool catalan, TDateTime fecha);

/// Reads "<day> de <month> de <year>" in Spanish words ("del año" may stand for the second "de"; case,
/// accents, outer blanks and final full stops do not matter) as "dd/mm/yyyy":
/// TraduceFechaNod("quince de marzo del año dos mil diez.") == "15/03/2010". Anything that does not
/// read gives the empty mask "  /  /    ". Day and year are read by `ConvierteNumeroDeCadenaAEnteroNod`.
QString TraduceFechaNod(const QString& texto);

/// The same for Catalan: "quinze d'abril de l'any dos mil deu" == "15/04/2010". Day and month are joined
/// by " de " or " d'" (whichever comes first), "l'any" and the blanks after it are dropped.
QString TraduceFechaCatalan(const QString& texto);

} // namespace nod
