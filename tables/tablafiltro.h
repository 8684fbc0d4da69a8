#pragma once
// Filter expressions over a table's rows, as the routines write them:
//     "GRUPO='2'"   "ENT_MENOR=False"   "ENT_MENOR=False AND COD_PROV = 28"
// A comparison is FIELD op value, op one of = <> != < > <= >=; a value is a quoted text ('...' or "...",
// a doubled quote inside stands for itself), a number or True/False (any case). Comparisons join with
// AND, OR, NOT and parentheses; AND binds tighter than OR. A value compares by the field's type, as keys
// do (tables/dbfclaves.h): '2' against a numeric field is the number 2.
//
// A filter is at most `kLongitudMaximaFiltro` characters long and nests NOT and parentheses at most
// `kProfundidadMaximaFiltro` deep; the routines' filters are a few dozen characters and one or two
// levels, and anything beyond is refused with an error instead of exhausting the stack.

#include "nod_core_export.h"
#include "tables/dbfclaves.h"

#include <memory>

namespace nod NOD_CORE_EXPORT {

constexpr qsizetype kLongitudMaximaFiltro = 8192;
constexpr int kProfundidadMaximaFiltro = 64;

class FiltroTabla {
public:
    /// Compiles `texto` for the fields of `datos`. Throws ErrorTabla naming the table, the text and the
    /// position of what it cannot parse, or the field the table lacks.
    static std::unique_ptr<FiltroTabla> Compila(const DatosDbf& datos, const QString& texto);
    virtual ~FiltroTabla() = default;
    /// Whether record `fila` passes.
    virtual bool cumple(const DatosDbf& datos, int fila) const = 0;
};

} // namespace nod
