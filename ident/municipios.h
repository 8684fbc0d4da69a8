#pragma once
// Municipalities and minor local entities, over the office's table "MUNICIPI.DBF" (database alias
// `GetAliasNodrim`): COD_INE (5-digit INE code: province and municipality), COD_PROV, COD_MUN, NOMBRE and
// ENT_MENOR (the row is a minor local entity inside the municipality of that code, not the municipality).
// Every routine opens the table itself; a missing table gives the empty default and a line in the log.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Name of the municipality with province code `provincia` (trimmed) and municipality code `municipio`:
/// BusquedaMunicipio("28", "079") == "MADRID"; empty when there is none.
QString BusquedaMunicipio(const QString& provincia, const QString& municipio);

/// INE code of the place named `nombre` (trimmed, exact), among municipalities only unless `incluyeMenores`,
/// and within province `provincia` when one is given: BusquedaCodIne(false, "MADRID", "28") == "28079".
/// A province holds digits and blanks only; any other text finds nothing (logged).
QString BusquedaCodIne(bool incluyeMenores, const QString& nombre, const QString& provincia);

/// Name of the municipality of INE code `ine` (padded to 5 digits), or of its minor entity `nombreEntidad`
/// when it has one of that exact name. Nothing is looked up (empty result) unless the INE, province and
/// municipality codes are all given and not zeros; only the INE code is then used as the key.
QString Cod_MunToNombre(const QString& ine, const QString& prov, const QString& mun,
                        const QString& nombreEntidad);

/// Whether `nombre` (its first 30 characters) is a place of INE code `ine`. `codMun` becomes "0000" and then
/// the COD_MUN of the row found; when that row is a minor entity the result is its name and
/// `nombreMunicipio` the name of its municipality (with `codMun` the municipality's). When nothing matches
/// the result is empty and `nombreMunicipio` untouched.
QString CompruebaEntidadMenor(const QString& ine, const QString& nombre, QString& codMun,
                              QString& nombreMunicipio);

/// A search pattern for a place name: separators become "*" and an article mark at the end is dropped:
/// PoblacionFormateada("CORUÑA (A)") == "*CORUÑA*".
QString PoblacionFormateada(const QString& s);

} // namespace nod
