#pragma once
// Today's date and the current time, behind a seam: tests and `nodrim batch` ("today") fix them.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <optional>

namespace nod NOD_CORE_EXPORT {

/// The current date and time as a serial (the fixed one when set).
TDateTime Now();

/// Today's date as a whole-day serial.
TDateTime Date();

/// Fixes the current date-time for everything that asks `Now`/`Date`; nullopt returns to the system clock.
void FijaAhora(std::optional<TDateTime> ahora);

} // namespace nod
