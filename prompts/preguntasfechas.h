#pragma once
// Prompt routines that ask for a period: a day, a range of days, a month, a quarter, a semester, a year.
//
// Every routine shows the data prompt (prompts/preguntadatos.h) modally, owned by the application, and
// returns true exactly when the clerk accepted; on cancel ("Sa&lir", Escape) every variable keeps the
// value it came with. Dates are serials; a date field keeps the time of day it is given. A caption or
// label the caller gives replaces the form's own; an empty one keeps it. Texts are shown as plain text.
//
// Parameters the suite's signatures leave unnamed have one role throughout:
//   - an integer called `esquema` is the calling program's colour scheme (frame/colores.h): above 0
//     the form's background runs from `GetMaxColor(esquema)` at the top to `GetMinColor(esquema)` at the
//     bottom; 0 keeps the standard look;
//   - two colours `colorArriba`, `colorAbajo` fill the form's background the same way, from the top
//     colour to the bottom one; both 0 keep the standard look;
//   - an integer called `ano` next to date fields limits them to 1 January .. 31 December of that year;
//     0 leaves them free.

#include "companion/mensajes.h" // TColor
#include "companion/tdatetime.h"
#include "nod_widgets_export.h"

#include <QString>

namespace nod NOD_WIDGETS_EXPORT {

/// Kind "DesdeDia": the form's caption `titulo`, the note under the field `nota`, the field = `fecha`.
/// On accept `fecha` = the field without its time part.
/// Example: a clerk who accepts 15/03/2024 gets the serial of 15/03/2024 at midnight.
bool PreguntaDesdeElDia(TDateTime& fecha, int ano, int esquema, const QString& titulo, const QString& nota);

/// Kind "FechaDesdeHasta" in the colours of the calling program's scheme `programa` (see `esquema`).
bool PreguntaDesdeHastaElDia(int programa, TDateTime& desde, TDateTime& hasta, int ano);

/// Kind "FechaDesdeHasta": both fields from `desde` and `hasta`; on accept both read back.
bool PreguntaDesdeHastaElDia(TDateTime& desde, TDateTime& hasta, int ano, TColor colorArriba,
                             TColor colorAbajo);

/// As `PreguntaDesdeHastaElDia` with the form's caption `titulo`.
bool PreguntaDesdeHastaElDiaTitul(TDateTime& desde, TDateTime& hasta, int ano, const QString& titulo,
                                  int esquema);

/// Kind "DesdeDia" with the caption `titulo`, the field's label `etiqueta` (its own when empty) and the
/// note `nota`; the field admits only the days from `minima` to `maxima` (whole-day serials; 0 leaves
/// that end open). On accept `fecha` = the field.
bool PreguntaFecha(TDateTime& fecha, int minima, const QString& titulo, const QString& etiqueta,
                   const QString& nota, int maxima);

/// Kind "FechaDesdeHastaCuando": all invoices from `desde` to `hasta`, pending at `cuando`. The fields
/// start at today; on accept the three dates read back.
bool PreguntaDesdeHastaCuando(TDateTime& desde, TDateTime& hasta, TDateTime& cuando, int ano,
                              const QString& titulo, TColor colorArriba, TColor colorAbajo);

/// Kind "FechaDesdeHastaFactura": the dates (starting at today) and the kinds of invoice to list. On
/// accept `tipos` = one letter per ticked box in the order of the form: "N" pending, "D" waived, "S"
/// collected, "E" special, "M" defaulting. Example: every box ticked gives "NDSEM".
bool PreguntaDesdeHastaFactura(TDateTime& desde, TDateTime& hasta, QString& tipos, int ano,
                               const QString& titulo, int esquema);

/// Kind "MesAño", proposing the previous month. On accept `mes` = the chosen month (1..12, 0 when the
/// list shows none) and `ano` = the year.
bool PreguntaMesAno(int& mes, int& ano, const QString& titulo, TColor colorArriba, TColor colorAbajo);
bool PreguntaMesAno(int& mes, int& ano, int esquema, const QString& titulo);

/// Kind "MesAñoSerie", proposing the previous month with every series ticked. `ofrecidas` names the
/// series offered ("A", "B", "C", "D", "E", "R"): boxes of other series are hidden; empty offers all.
/// On accept `series` = one letter per ticked box, in that order.
bool PreguntaMesAnoSerie(int& mes, int& ano, QString& series, const QString& titulo,
                         const QString& ofrecidas);

/// Kind "TrimestreAño", proposing the quarter of today minus three months (in January, the last quarter
/// of the year before). On accept `trimestre` = 1..4 (0 when none is shown) and `ano`.
bool PreguntaTrimAno(int& trimestre, int& ano, const QString& titulo, TColor colorArriba, TColor colorAbajo);

/// Kind "SemestreAño", proposing the semester of today minus six months. On accept `semestre` = 1..2.
bool PreguntaSemestreAno(int& semestre, int& ano, const QString& titulo, TColor colorArriba,
                         TColor colorAbajo);

/// Kind "Año" with `etiqueta` as the field's label (its own when empty): the field shows `ano` when it
/// is a year in figures, else the current year. On accept `ano` = the field as decimal text.
bool PreguntaAno(QString& ano, const QString& titulo, const QString& etiqueta, TColor colorArriba,
                 TColor colorAbajo);
/// The same with a number: `ano` when at least 1, else the current year.
bool PreguntaAno(int& ano, const QString& titulo, const QString& etiqueta, TColor colorArriba,
                 TColor colorAbajo);

/// Kind "ModeloIndicSociedades": the month and year of the companies index, and whether the old model
/// carries amounts. On accept `mes`, `ano` and `conCuantias` ("Con cuantías" chosen).
bool PreguntaIndiceModeloAntiguo(int& mes, int& ano, bool& conCuantias);

} // namespace nod
