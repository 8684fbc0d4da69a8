#pragma once
// The focus mark of the suite's dialogs: a control that takes the focus is highlighted, and loses the
// mark when the focus leaves it. Buttons, edits and pickers of every dialog use the same two calls.

#include "companion/mensajes.h"
#include "nod_widgets_export.h"

#include <QColor>

class QWidget;

namespace nod NOD_WIDGETS_EXPORT {

/// A stored colour (blue in the high byte, red in the low byte) as Qt paints it.
/// Example: ColorQt(0x0000FF) is pure red, ColorQt(0xFF0000) pure blue.
QColor ColorQt(TColor c);

/// Colour of the focus mark: the suite's pale yellow (stored 0x80FFFF).
constexpr TColor kColorFoco = 0x80FFFF;

/// Marks `control` as the one with the focus: its background (button face or edit base) turns
/// `kColorFoco`. Marking twice keeps the original colours to restore.
void TomaFocoControl(QWidget* control);

/// Removes the mark, putting the control's own colours back. A control never marked is left alone.
void DejaFocoControl(QWidget* control);

/// Whether `control` carries the mark now.
bool TieneFocoMarcado(const QWidget* control);

} // namespace nod
