#pragma once
// The code of a notarial college (one per region), for the official returns that name it.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Code of the college of region `nombre` (or `alternativo` when `nombre` is empty; the configured college of
/// the notary, `GetColegio` then `GetColeg2`, when both are empty): an exact region name first, then the
/// first of the fragments "AND", "ARA", "AST" ... found in it, in that fixed order. Empty when nothing
/// matches: ObtenCodColegioPorNombre("COMUNIDAD DE MADRID", "") == "2850172".
QString ObtenCodColegioPorNombre(const QString& nombre, const QString& alternativo);

} // namespace nod
