#pragma once
// `nodrim batch`: JSON Lines in, JSON Lines out, one response per request and in order.
//
// Request:  {"fn": "LetrasNod", "args": [...], "config": {"nCuantos": 2}, "answers": [1], "today":
// "2024-05-31"} Response: {"result": ..., "out": [...], "dialogs": [{"kind", "title", "text"}...]} and
// "error" when the
//           call failed (unknown routine, arguments that fit no form of it, a routine that raised).
// "config" values apply to this request only; "answers" feed the dialogs the routine shows, in order
// (an exhausted list answers as Escape would); "today" fixes the current date.

#include "apps/nodrim/rutinas.h"

#include <iosfwd>
#include <string>
#include <string_view>

namespace nod::lote {

/// The longest request line read, in bytes without the line end; a longer one is refused.
inline constexpr std::size_t kLineaMaxima = 1 << 20;
/// The deepest nesting of arrays and objects a request may have, the request object included.
inline constexpr int kAnidamientoMaximo = 64;

/// Runs one request; never throws.
json Atiende(const json& peticion, const Rutinas& rutinas = TodasLasRutinas());

/// Parses and runs one line; a line that is not JSON gives an error response naming the line number.
json AtiendeLinea(std::string_view linea, long numeroLinea, const Rutinas& rutinas = TodasLasRutinas());

/// Reads requests until the end of `entrada`, writing one response line per request.
/// Blank lines are skipped. Output is flushed whenever no more input is waiting.
void Procesa(std::istream& entrada, std::ostream& salida, const Rutinas& rutinas = TodasLasRutinas());

/// The signature of every form of a routine, e.g. "LetrasNod(number, character, character) -> string".
std::string Firmas(const std::string& nombre, const std::vector<Sobrecarga>& formas);

} // namespace nod::lote
