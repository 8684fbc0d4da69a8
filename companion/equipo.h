#pragma once
// The workstation itself, as the suite names it on the office's network.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// The computer's network name: the host name without its domain ("PUESTO3" of "puesto3.notaria.local"),
/// as written by the system.
QString DameNombreEquipo();

} // namespace nod
