#pragma once
// Texts that a caller hands to a box, a label or a wait window, made fit to be shown as they were meant:
// every kind of line break breaks the line, and no control character reaches the screen as a stray glyph.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// "\r\n", "\r" and "\n" all become "\n", the one break Qt draws:
/// NormalizaSaltos("uno\rdos\r\ntres\n") == "uno\ndos\ntres\n".
QString NormalizaSaltos(const QString& texto);

/// The text as a label shows it: line breaks normalised as `NormalizaSaltos` does, and a tab or any other
/// control character (below 32, DEL and 128 to 159) a blank. Markup is not looked at here: labels show it
/// as plain text. TextoVisible("a\tb\x01" "c\rd") == "a b c\nd".
QString TextoVisible(const QString& texto);

} // namespace nod
