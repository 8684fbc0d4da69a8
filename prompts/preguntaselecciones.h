#pragma once
// Prompt routines that ask for a choice or a text: a notary, an official, a profession, the sex of a
// client, the tone of a letter, series, repairs, a check box, a free text, a cadastral reference. Same
// pattern as prompts/preguntasfechas.h: true exactly when the clerk accepted, variables untouched on
// cancel. `owner` is the form the prompt belongs to (centred on it while it is visible).

#include "companion/mensajes.h" // TColor
#include "nod_widgets_export.h"

#include <QString>

class QWidget;

namespace nod NOD_WIDGETS_EXPORT {

/// Kind "Texto": the label above the field = `titulo`, the field = `texto`. On accept `texto` = the field.
bool PreguntaTexto(const QString& titulo, QString& texto);

/// Kind "Oficial": the office's officials ("EMPLEADO.DBF", field NOMBRE, in table order); `nombre` is
/// shown when it is one of them. On accept `nombre` = the list's text (empty when none was chosen).
bool PreguntaOficial(QString& nombre);

/// Kind "Notario": the office's notaries by name (`NombreNotario` of notaries 1 .. `nCuantos`); `notario`
/// is shown when it is one of them. On accept `notario` = the list's text.
bool PreguntaNotario(QWidget* owner, QString& notario);

/// Kind "ProfesionJuridica": code 1 selects "Procurador", 2 "Abogado", 3 "Graduado social", 9 "Otro",
/// any other code no item. On accept item 0..3 gives code 1, 2, 3 or 9; accepting with no item chosen
/// leaves the code as it came (code 5 stays 5).
bool PreguntaProfesionJuridica(QWidget* owner, int& codigo);

/// Kind "SexoClientes" ("H.- Hombre" proposed). On accept `sexo` = "H", "M" or "S".
bool PreguntaSexoClientes(QString& sexo, const QString& titulo, TColor colorArriba, TColor colorAbajo);

/// Kind "ModeloCarta": proposes the configured tone (`nTonoCarta`). On accept `tono` = 0 "Blando",
/// 1 "Medio", 2 "Duro".
bool PreguntaModeloCarta(int& tono);

/// Kind "ReparacionClientes" (all four repairs ticked). On accept `opciones` = "1", "2", "3", "4" for each
/// ticked repair, in that order: "124" without the third.
bool PreguntaReparacionCliente(QString& opciones);

/// Kind "CheckBox": the box's text `etiqueta`, the form's caption `titulo`, the box's state `valor`.
/// On accept `valor` = the box's state.
bool PreguntaCheckBox(bool& valor, const QString& titulo, const QString& etiqueta);

/// Kind "SerieCliente": the series of a client's file. The boxes start ticked from `series` (letters
/// "A" to "F"; empty takes the configured `sComunDocumentosCliente`), all of them when `todas`. On accept
/// `series` = one letter per ticked box in order, `todas` = all six are ticked, and the selection is
/// stored in the configuration (`SetsComunDocumentosCliente`).
bool PreguntaSerieCliente(bool& todas, QString& series, const QString& titulo);

/// As `PreguntaSerieCliente` for an interested party's file: the selection is not stored.
bool PreguntaSerieInteresado(bool& todas, QString& series, const QString& titulo);

/// Kind "ReferenciaCatastral": the reference edit (upper case, 20 characters) holds `ref`. On accept
/// `ref` = the edit's text.
bool PreguntaRefCatastral(QString& ref);

} // namespace nod
