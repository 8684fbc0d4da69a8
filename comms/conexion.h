#pragma once
// Whether this workstation can reach the internet, and whether it is the one that downloads updates.

#include "nod_core_export.h"

#include <functional>

namespace nod NOD_CORE_EXPORT {

/// True when the system reports a network connection and the maker's web site (`WebFabricante`) answers a
/// request made with agent name "InetURL:/1.0" and sent to the network, never served from a cache. Any HTTP
/// answer counts (the site was reached); a refused connection, a name that does not resolve or no answer
/// within `EsperaConexionMs` give false. Only the answer's headers are read.
bool TieneConexionAInternet();

/// Whether the system reports a network connection: its reachability when the platform tells it, else a
/// network interface other than loopback that is up, running and has an address.
bool EstadoConexionSistema();

/// Replaces the system's connection state for `TieneConexionAInternet` (tests); nullptr goes back to
/// `EstadoConexionSistema`. Returns the previous one.
using EstadoConexion = std::function<bool()>;
EstadoConexion FijaEstadoConexion(EstadoConexion estado);

/// True when the configured updating workstation (`UsuarioParaActualizar`) is exactly "TODOS" (so "todos"
/// is a workstation's name like any other) or, without regard to case, the name of this computer
/// (`DameNombreEquipo`).
bool PuedeActualizarEsteEquipo();

} // namespace nod
