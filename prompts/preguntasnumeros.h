#pragma once
// Prompt routines that ask for a number, an amount or a percentage. Same pattern and same roles of the
// unnamed parameters as prompts/preguntasfechas.h: true exactly when the clerk accepted, variables
// untouched on cancel, `esquema` a colour scheme, two colours the form's background from top to bottom.

#include "companion/mensajes.h" // TColor
#include "companion/tdatetime.h"
#include "nod_widgets_export.h"

#include <QString>

namespace nod NOD_WIDGETS_EXPORT {

/// Kind "NumeroAño": number `seNumero2` and year `seAno7` from the variables; the year field can be
/// changed only when `anoEditable`. On accept both read back.
bool PreguntaNumAno(int& numero, int& ano, const QString& titulo, int esquema, bool anoEditable);

/// Kind "NumeroMinuta": the number's label `etiqueta` (its own when empty), number and year from the
/// variables, except that a year of 0 starts the number at 0 (the suite resets it so on purpose); the
/// year field can be changed only when `anoEditable`. A number outside 0..99999 is refused by the form
/// ("El número de minuta no es válido (1 - 99.999)") and gives false.
bool PreguntaNumeroMinuta(int& numero, int& ano, const QString& titulo, const QString& etiqueta,
                          bool anoEditable);

/// Kind "NumeroFecha": number and date from the variables; the date can be changed only when
/// `fechaEditable`. On accept both read back.
bool PreguntaNumFecha(int& numero, TDateTime& fecha, const QString& titulo, int esquema, bool fechaEditable);

/// Kind "Cantidad" with the field's label `etiqueta` (its own when empty). With `moneda` "E" (euros)
/// the field shows and takes two decimals; with any other currency the amount is rounded to whole
/// units. Example: 1234.567 in euros shows "1.234,57"; in pesetas "1.235". On accept `cantidad` = the field.
bool PreguntaCantidad(double& cantidad, const QString& etiqueta, const QString& moneda);

/// Kind "CantidadMaxMin": both fields by `moneda` as in `PreguntaCantidad`.
bool PreguntaCantidadMaxMin(double& minima, double& maxima, const QString& moneda);

/// Kind "Cuantia": as `PreguntaCantidad` with the kind's own label "Cuantía: ".
bool PreguntaCuantia(double& cuantia, const QString& moneda);

/// Kind "CuantiaOtorgante": the amount (starting at 0,00) labelled `etiqueta`; returns it, 0 on cancel.
double PreguntaCuantiaOtorgante(const QString& etiqueta);

/// Kind "Porcentaje": the field shows `porcentaje`; on accept it reads back.
bool PreguntaPorcentaje(double& porcentaje, const QString& titulo);

/// Kind "XDias": the field shows `dias` (two figures at most; a longer value keeps the form's "30").
bool PreguntaXDias(int& dias, const QString& titulo);

/// Kind "NumCopiasPlusvalia": the number of copies, a whole number.
bool PreguntaNumCopiasPlusvalia(int& copias);

/// Kind "TurnoPolizas": the form proposes the current year, the first quarter, a contribution of 15 %
/// and a minimum amount of 40.000; the variables are answers only. On accept `ano`, `trimestre` (1..4,
/// 0 when the list shows none), `aportacion` (`FEAportacionTP`) and `cuantiaMinima` (`FECuantiaTP`).
bool PreguntaTurnoPolizas(int& ano, int& trimestre, double& aportacion, double& cuantiaMinima,
                          const QString& titulo, TColor colorArriba, TColor colorAbajo);

} // namespace nod
