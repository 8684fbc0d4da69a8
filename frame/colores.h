#pragma once
// The suite's colour schemes. Each scheme is a gradient from a dark end ("Max") to a light end ("Min");
// the "Men" pair is the one message boxes use. Colours are `TColor` values as the suite stores them
// (blue in the high byte, red in the low byte); unknown schemes are silver (0xC0C0C0).

#include "companion/mensajes.h"
#include "nod_core_export.h"

namespace nod NOD_CORE_EXPORT {

/// Dark end of a scheme. Example: GetMaxColor(1) == 0x8C0000 (a dark blue); GetMaxColor(5) == 0xC0C0C0.
TColor GetMaxColor(int esquema);
/// Light end of a scheme. Example: GetMinColor(2) == 0x9DBFA7.
TColor GetMinColor(int esquema);
/// Dark end of a scheme's message-box pair. Example: GetMaxColorMen(4) == 0x13386C.
TColor GetMaxColorMen(int esquema);
/// Light end of a scheme's message-box pair. Example: GetMinColorMen(1) == 0xFFB546.
TColor GetMinColorMen(int esquema);

} // namespace nod
