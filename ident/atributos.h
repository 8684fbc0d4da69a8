#pragma once
// Marital status, matrimonial property regime and legal form of the parties of a deed: the small codes the
// suite stores and the words a deed writes for them, in Spanish or Catalan.
//
// Marital status: 1 married, 2 married for the second time, 3 divorced, 4 judicially separated, 5 single,
// 6 widowed, 7 registered partner. Regime: 1 community of acquisitions ("gananciales"), 2 separation of
// property, 3 participation. Legal form: 1 ESTADO ... 26 SOCIEDAD LIMITADA LABORAL.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The marital-status words for a code 1..7, feminine when `sexo` is exactly "M" (any other text is the
/// masculine form), in Catalan when `catalan`; empty for other codes.
/// DecodificaEstadoCivil(6, "M", true) == "vídua".
QString DecodificaEstadoCivil(int codigo, const QString& sexo, bool catalan);

/// The code of a Spanish marital-status text, upper-cased and compared exactly with "CASADO", "CASADA" ...
/// "PAREJA DE HECHO"; 0 when none matches (no trimming: "casado " gives 0).
/// CodificaEstadoCivil("viuda") == 6.
int CodificaEstadoCivil(const QString& s);

/// The regime words for a code 1..3, in Catalan when `catalan`; empty for other codes.
/// DecodificaRegimen(2, false) == "separación de bienes".
QString DecodificaRegimen(int codigo, bool catalan);

/// The regime code of a text, by what its upper-case form contains, in this order: "GANANCIALES" 1,
/// "PARTICIPACI" 3, "SEPARACI" 2, else 0; accented and plain endings both match.
/// CodificaRegimen("Separación de bienes") == 2.
int CodificaRegimen(const QString& s);

/// The legal-form text of a code 1..26: DecodificaTipoJuridico(8) == "SOCIEDAD ANÓNIMA"; empty otherwise.
QString DecodificaTipoJuridico(int codigo);

/// The legal-form code of a text, upper-cased and compared exactly with the texts of the table; 0 when none
/// matches. "SOCIEDAD COLECTIVA" codes as 1 rather than 10, as the suite's stored data expects, so
/// CodificaTipoJuridico("sociedad colectiva") == 1.
int CodificaTipoJuridico(const QString& s);

/// Whether a party of this marital status can appear with a current spouse or partner (1, 2 and 7).
bool PuedeTenerConyuge(int codigo);

/// Whether a former spouse can be recorded for this marital status (3, 4 and 6).
bool PuedeTenerConyugeInactivo(int codigo);

} // namespace nod
