#pragma once
// The one catalog of the office's tables: the index tags each table is opened on, as key expressions over
// its fields, and the structure of the tables the library may have to create. dBase kept tags in .mdx
// files beside the tables; here the order of a tag is built in memory from its expression.
//
// A key expression is one field or several joined with "+" ("COD_PROV+COD_MUN"): rows order by the first
// field, then the next. A tag that the catalog does not name but that is the name of a field of the table
// orders by that field alone: most of the suite's tags ("CODIGO", "CODCLIENTE", "FECHA_ENT", "EQUIPO" ...)
// are of that kind, so only the others are listed.

#include "nod_core_export.h"
#include "tables/tablas.h"

#include <QStringList>
#include <optional>

namespace nod NOD_CORE_EXPORT {

/// The key fields of tag `etiqueta` of the table file `fichero` ("PROVIN.DBF", "provin", a full path ...;
/// only the base name counts, without regard to case), given the table's fields. nullopt when the tag is
/// neither in the catalog nor a field of the table.
///     CamposDeIndice("MUNICIPI.DBF", "CPROVMUN", campos) == QStringList{"COD_PROV", "COD_MUN"}
std::optional<QStringList> CamposDeIndice(const QString& fichero, const QString& etiqueta,
                                          const QList<TCampoDbf>& campos);

/// The fields of a table the library creates when it is missing ("CONEXION"); nullopt for any other.
std::optional<QList<TCampoDbf>> EstructuraTabla(const QString& fichero);

} // namespace nod
