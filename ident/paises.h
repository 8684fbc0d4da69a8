#pragma once
// Codes and names of countries and provinces, over the office's table "PROVIN.DBF" (database alias
// `GetAliasNodrim`): provinces are group 1 (codes below 100); countries are group 2 (the 1999 gazette
// list, with its code in BOE_161299 and the ISO 3166 alpha-3 code) and group 3 (the 2003 gazette list,
// annex 11, with its code in COD_198). Every routine opens the table itself and closes it before
// returning; a missing table gives the documented default and a line in the log.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// 1999-list code of a country by its name (trimmed, exact): Cod_PaisBOE("ALEMANIA") == "276" in the
/// sample office; "999" for a blank or unknown name.
QString Cod_PaisBOE(const QString& nombre);
/// ISO 3166 alpha-3 code of a country by its name: Cod_PaisISO3166("FRANCIA") == "FRA"; "ESP" when unknown.
QString Cod_PaisISO3166(const QString& nombre);
/// Row code of a country by its name; "999" when unknown.
QString Cod_PaisCodigo(const QString& nombre);
/// ISO alpha-3 code of the row with this code, only for codes of 100 or more (countries); "ESP" otherwise:
/// Cod_PaisISO3166PorCodigo("99") == "ESP".
QString Cod_PaisISO3166PorCodigo(const QString& codigo);
/// Name of the group-2 country with this code; "999" for 0 or an unknown code.
QString Cod_PaisToNombre(const QString& codigo);
/// Name of the province with this code ("28" gives "MADRID"); empty for "", "000" or an unknown code.
QString Cod_ProvToNombre(const QString& codigo);
/// Name of the first row, in alphabetical order, with this ISO alpha-3 code; "ESPAÑA" when none has it.
QString Cod_ISO3166_13ToNombre(const QString& iso);
/// 2003-list code (COD_198) of the country whose 1999-list row has code `codigo`: the group-3 row of the same
/// name; empty when there is none.
QString DameCodPais_BOE2003_12_23_Anexo11_grupo3____a_partir_del_codigo_grupo2(int codigo);

} // namespace nod
