#pragma once
// Acting on a modal dialog that a routine opens with exec(): the action runs on the active modal widget
// as soon as it appears, from the event loop the dialog itself runs.

#include <QWidget>
#include <functional>

namespace nod::prueba {

/// Polls every 10 ms for up to `plazoMs` for an active modal widget and runs `accion` on it once, after
/// its window has become active (so keys reach its focused control). A dialog still open `plazoMs` after
/// the action is closed with result -1, so that a dialog that ignores the action fails the test instead
/// of blocking it.
void AlAbrirseModal(std::function<void(QWidget*)> accion, int plazoMs = 5000);

/// Top-level widgets still visible (after a dialog routine returns there should be none of its own).
int VentanasVisibles();

} // namespace nod::prueba
