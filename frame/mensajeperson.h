#pragma once
// The suite's own message boxes: the coloured box `Mensaje_Person` and the financial assets help box.
// Both go through the message service (companion/mensajes.h): a program with a screen shows real
// dialogs (frame/qtmensajes.h), tests and the command line answer from a script.

#include "companion/mensajes.h"
#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Button sets of a message box (`TMensaje`).
enum TMensaje : int {
    tmAceptar = 0,             // one button, "&Aceptar"
    tmSiNo = 1,                // "&Si" / "&No", focus on "&Si"
    tmNoSi = 2,                // "&Si" / "&No", focus on "&No"
    tmAceptarCancelar = 3,     // "&Aceptar" / "&Cancelar", focus on "&Aceptar"
    tmCancelarAceptar = 4,     // "&Aceptar" / "&Cancelar", focus on "&Cancelar"
    tmPersonalizado = 5,       // two captions of the caller's, focus on the first
    tmPersonalizadoSegundo = 6 // two captions of the caller's, focus on the second
};

/// Icon of a message box (`TIcono`): 0 stop, any other value a question.
enum TIcono : int { tiStop = 0, tiPregunta = 1 };

/// Default button (`TBotonDefecto`): accepted and not used; the focused button follows from the
/// `TMensaje` value alone.
enum TBotonDefecto : int { tbPrimero = 0, tbSegundo = 1 };

/// Shows the suite's coloured box and returns its modal result: 1 for the first button, 2 for the
/// second one or Escape. Mind the order: `mensaje2` (second parameter) is the lower, centred line and
/// `mensaje1` (fifth) the upper, wrapped one; an empty line is not shown. The background is
/// `GetMaxColor(esquema)` when `esquema` > 0, else `fondo`; `boton1`/`boton2` are used by types 5 and 6.
/// Example: Mensaje_Person(0, "", 0, "Aviso", "Hecho", "", "", 0, 0x0000FF, 0xFFFFFF, 0) shows one
/// "&Aceptar" button on red and returns 1 when it is pressed, 2 on Escape.
int Mensaje_Person(int tipo, const QString& mensaje2, int icono, const QString& titulo,
                   const QString& mensaje1, const QString& boton1, const QString& boton2, int esquema,
                   TColor fondo, TColor letras, int boton);

/// What `Mensaje_Person` asks the message service to show, with the background already chosen.
PeticionMensajePerson PeticionPerson(int tipo, const QString& mensaje2, int icono, const QString& titulo,
                                     const QString& mensaje1, const QString& boton1, const QString& boton2,
                                     int esquema, TColor fondo, TColor letras);

/// Shows the financial assets help box: `tipo` 0 with one "&Aceptar" button (result 1), 1 with
/// "&Si" (6) and "&No" (7). Escape answers 6, as the suite always did.
int Mensaje_ActivosFinancieros(int tipo);

} // namespace nod
