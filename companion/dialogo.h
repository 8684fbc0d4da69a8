#pragma once
// The conventions every dialog of the library follows, applied in one call at the end of its constructor:
//
//     TFMiDialogo::TFMiDialogo(QWidget* owner) : QDialog(owner) {
//         ... controls, layouts, connections ...
//         AplicaConvencionesDialogo(this);
//     }
//
// What the call gives the dialog, whatever its controls (also those added later):
// - Enter moves the focus to the next control in Tab order, from a button too; no `QDialogButtonBox` and
//   no auto-default `QPushButton` turns it into "accept" (`ReglaEnter::BotonPorDefecto` when the dialog's
//   design names a default button). A multi-line editable text takes Enter itself, as does any control
//   marked with `TomaEnterPropio`.
// - Escape, the window's close button and every `reject()` give modal result 2 (`resultadoEscape`): a
//   dialog with its own `reject()` override keeps its own result; `QDialog::reject()`'s 0 becomes 2. Read
//   the result from `exec()` or `result()`: the argument of the `finished(int)` signal is still Qt's 0.
// - Every `QLabel` shows plain text (`Qt::PlainText`): "Pérez & Cía <S.L.>" shows as typed.
// - Shown, the window lies inside its screen's available area (`AjustaALaPantalla`), frame included.
// - A read-only scrolling text takes the focus with Tab and scrolls with the keys.
// - An input without a label as buddy gets its hint (tooltip) as accessible name; a label that names
//   an input should be its buddy (`QLabel::setBuddy`, or `QFormLayout::addRow(text, field)` which sets it).
// - A repeated "&" letter among the visible controls is logged (category nod.frame) when the dialog shows.
// - Optional, by `OpcionesDialogo`: the focus mark (`TomaFocoControl`) on the focused control, the focused
//   control's hint in a status bar, plain letters pressing buttons, Escape and close button ignored.
//
// Pieces for single controls live beside this one: companion/filtroteclas.h (character filters),
// companion/editimporte.h (amounts), companion/esperadialogo.h (waiting on the network),
// companion/textovisible.h (line breaks and control characters).

#include "nod_widgets_export.h"

#include <QString>
#include <QStringList>

class QDialog;
class QLabel;
class QStatusBar;
class QWidget;

namespace nod NOD_WIDGETS_EXPORT {

/// How a dialog answers Enter.
enum class ReglaEnter {
    /// Enter moves the focus to the next control, from every control, buttons included. Space or the
    /// accelerator presses a button. No button is drawn as default.
    SiguienteControl,
    /// The dialog's design names a default button (`QPushButton::setDefault`, which may change with a
    /// mode): Enter on a button presses that button; elsewhere it presses the shown and enabled default
    /// button, or moves the focus when there is none.
    BotonPorDefecto,
};

/// Which controls wear the focus mark (`TomaFocoControl`) while they have the focus.
enum class MarcaFoco {
    Ninguna,
    Campos,    ///< edits, spin boxes and pickers, combo boxes, check and radio boxes
    Controles, ///< every control that takes the focus, buttons included
};

struct OpcionesDialogo {
    ReglaEnter enter = ReglaEnter::SiguienteControl;
    /// Result of Escape, the close button and `QDialog::reject()` (the suite's cancel result).
    int resultadoEscape = 2;
    /// False: Escape and the close button do nothing (a progress or wait window that cannot be cancelled).
    bool escapeCierra = true;
    /// A plain letter typed while a button has the focus presses the button whose "&" letter it is, as
    /// Alt+letter does (the message boxes, whose focus sits on buttons).
    bool letrasPulsanBotones = false;
    MarcaFoco marcaFoco = MarcaFoco::Ninguna;
    /// When set, the focused control's hint (its tooltip) is shown here and cleared when the focus leaves.
    QStatusBar* barraAyuda = nullptr;
};

/// Applies the conventions above to `dialogo` with `opciones`. Call it once, when the controls exist;
/// calling it again replaces the options. The conventions live in a child object of the dialog.
void AplicaConvencionesDialogo(QDialog* dialogo, const OpcionesDialogo& opciones = {});

/// The options `AplicaConvencionesDialogo` gave `ventana`, or nullptr when it was never called for it
/// (the conformance test of the demo's catalogue checks every dialog by this).
const OpcionesDialogo* ConvencionesDe(const QWidget* ventana);

/// Marks a control that takes Enter itself (a grid that edits its cell, a memo): Enter is left to it.
void TomaEnterPropio(QWidget* control, bool propio = true);

/// Exempts a label from plain text: one that shows markup on purpose (a link, a formatted help line) and
/// never a text a caller hands in.
void PermiteTextoRico(QLabel* etiqueta);

/// Moves the window `ventana` so that its frame lies inside the available area of the screen that holds
/// its centre (else the primary screen); a window larger than the area keeps its top left corner inside.
/// A window already inside does not move.
void AjustaALaPantalla(QWidget* ventana);

/// The letter of the accelerator of a caption, in lower case: Acelerador("Cata&stro") == 's',
/// Acelerador("Pérez && Cía") == QChar() ("&&" is a plain "&"), Acelerador("&Ñ") == 'ñ'.
QChar Acelerador(const QString& texto);

/// The accelerator letters used more than once among the visible controls of `ventana` (buttons, check and
/// radio boxes, group boxes, labels with a buddy), sorted, in lower case; empty when every one is unique.
QStringList AceleradoresRepetidos(const QWidget* ventana);

/// Sets a label's text as plain text, line breaks normalised and control characters as blanks
/// (`TextoVisible`). Use it for every text a caller hands in.
void PonTextoPlano(QLabel* etiqueta, const QString& texto);

/// Puts `texto` (as `PonTextoPlano`) in a label of fixed size so that its beginning is never lost. When the
/// text fits the label's rectangle (wrapped when the label wraps) it is shown whole with the label's own
/// alignment and true is returned. Otherwise the label shows the lines that fit, aligned to the top, the
/// last one cut with "…", carries the whole text (up to `kMaximoTextoAyuda` characters) in its tooltip and
/// accessible description, lets the mouse select it, and false is returned. Set the label's size, font and
/// word wrap first.
bool PonTextoAjustado(QLabel* etiqueta, const QString& texto);

/// The longest text a tooltip carries; a longer one is cut there with "…".
constexpr int kMaximoTextoAyuda = 4000;

} // namespace nod
