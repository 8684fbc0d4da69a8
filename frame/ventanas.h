#pragma once
// The suite's windows: forms found or created on demand, hiding and showing every form of the program,
// bringing a window to the front, and where the text caret and the screen's centre are.

#include "nod_widgets_export.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

namespace nod NOD_WIDGETS_EXPORT {

/// Creates an object of some class with the given owner (the class reference of the suite's calls).
using FabricaObjeto = std::function<QObject*(QObject* owner)>;

/// Looks among the objects the application owns (its children and its top-level windows) for one named
/// `nombre` (names compare without regard to case, as the suite's component names do). When there is
/// one, sets `existia` and returns it; else clears `existia` and returns `crea(owner)`, unnamed. The
/// search is always among the application's objects, whatever the owner.
QObject* CreaObjeto(const FabricaObjeto& crea, const QString& nombre, QObject* owner, bool& existia);

/// Frees `objeto` only when it is not null and was created (not found) by `CreaObjeto`.
void BorraObjeto(QObject* objeto, bool existia);

/// The form of class `clase` owned by `owner` (named as the class without its leading "T": class
/// "TFMensajeNod" looks for "FMensajeNod"), else a new one made by `crea(owner)`. It is not shown.
QWidget* MostrarNoModal(QWidget* owner, const QMetaObject& clase,
                        const std::function<QWidget*(QWidget*)>& crea);

/// Same, for a form class with a constructor taking its owner.
template <class F> QWidget* MostrarNoModal(QWidget* owner) {
    return MostrarNoModal(owner, F::staticMetaObject, [](QWidget* o) -> QWidget* { return new F(o); });
}

/// Reads the text caret of the focused control of the foreground window, in screen coordinates; none
/// when there is no foreground window of another program or it has no caret.
using LectorCursor = std::function<std::optional<QPoint>()>;
LectorCursor FijaLectorCursor(LectorCursor lector);

/// Writes the caret position into `punto` and returns true; on any failure returns false and leaves
/// `punto` untouched. Only a foreign program's window counts: this program's own is a failure. Qt has no
/// access to other programs' windows, so without an installed reader the answer is false.
bool PosicionDelCursor(QPoint& punto);

/// The centre of a desktop of `tamano`, each half rounded to the nearest integer, ties to even.
/// Example: CentroDe({1367, 769}) == QPoint(684, 384).
QPoint CentroDe(QSize tamano);

/// The centre of the whole desktop (every screen).
QPoint CentroDeLaPantalla();

/// The forms hidden by `OcultaNodrim`, to be shown again by `MuestraNodrim`.
using ListaVentanas = std::unique_ptr<QList<QPointer<QWidget>>>;

/// The program's visible windows in the order of the suite's form list: the active window first, then
/// the others in the order they were created.
QWidgetList FormulariosVisibles();

/// Frees `lista`, makes a new one, and hides every visible window of the program, walking
/// `FormulariosVisibles` from the last to the first and recording each one; the active window is hidden
/// last.
void OcultaNodrim(ListaVentanas& lista);

/// Shows again, in list order, the windows `OcultaNodrim` hid (those still alive), and frees the list,
/// so the window that was active comes back last, on top of the others.
void MuestraNodrim(ListaVentanas& lista);

/// Brings a window to the front the way the system allows it: minimise, bring to the foreground, restore
/// (to its placement before minimising: a maximised window comes back maximised). An id that is not a
/// window of this program is ignored.
void TomaFoco(WId ventana);
void TomaFoco(QWidget* ventana);

/// The program's main window (default: the first visible QMainWindow, else the first visible window).
void FijaVentanaPrincipal(QWidget* ventana);
QWidget* VentanaPrincipal();

/// `TomaFoco` of the program's main window.
void TomaFocoNodrim();

} // namespace nod
