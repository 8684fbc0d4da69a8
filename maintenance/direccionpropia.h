#pragma once
// This workstation's own network address, as the connection table "CONEXION" records it, behind a seam
// that tests and programs with a fixed address replace.

#include "nod_core_export.h"

#include <QString>
#include <optional>

namespace nod NOD_CORE_EXPORT {

/// The workstation's address: the fixed one when set (`FijaDameIP`), else its first IPv4 address that is
/// not a loopback one on an interface that is up, else "127.0.0.1". Example: "192.168.1.23".
QString DameIP();

/// Fixes the address `DameIP` gives; nullopt returns to the machine's own.
void FijaDameIP(std::optional<QString> direccion);

} // namespace nod
