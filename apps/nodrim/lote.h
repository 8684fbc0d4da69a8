#pragma once
// `nodrim batch`: JSON Lines in, JSON Lines out, one response per request and in order.
//
// Request:   {"fn": "LetrasNod", "args": [...], "config": {"nCuantos": 2}, "answers": [1],
//             "today": "2024-05-31"}
// Response:  {"result": ..., "out": [...], "dialogs": [{"kind", "title", "text", "answer", "defaulted"}...],
//             "warnings": [...]}, with "error" when the request was refused or the call failed (unknown
//             routine, arguments that fit no form of it, a routine that raised, answers left unused, a
//             form answer that does not fit the form).
// "config" values apply to this request only; "answers" feed the dialogs the routine shows, in order
// (a box with none left answers as Escape would, and says so in "defaulted"; a form with none left is an
// error, it never waits); "today" fixes the current date; "warnings" holds what the library logged as a
// warning while the request ran (left out when nothing was).
// A form is answered by an object {"set": {"<control>": value, ...}, "press": "<button>"} and reported
// as {"kind": "form", "title", "panel", "values", "answer", "result"} (README, "Forms in batch").

#include "apps/nodrim/rutinas.h"

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace nod::lote {

/// The longest request line read, in bytes without the line end; a longer one is refused unread.
inline constexpr std::size_t kLineaMaxima = std::size_t(1) << 20;
/// The deepest nesting of arrays and objects a request may have, the request object included.
inline constexpr int kAnidamientoMaximo = 64;

/// Runs one request; never throws.
json Atiende(const json& peticion, const Rutinas& rutinas = TodasLasRutinas());

/// What the program does with a request for a routine its own table does not hold: nodrim passes it to
/// its form layer, a separate process (see capaformularios.h); nullopt keeps the "unknown routine" error.
using Reenvio = std::function<std::optional<json>(const json& peticion)>;
/// Installs `r` for every request from now on (an empty one: none); returns the one it replaces.
Reenvio FijaReenvio(Reenvio r);

/// Makes the warnings of a response leave out the log messages `esRuido` picks (null: none): notices of
/// the windowing platform that say nothing of the request. They still reach the log.
void FijaAvisosSinInteres(bool (*esRuido)(const QString& mensaje));

/// The request being answered, for a form layer that answers the forms its routine shows. Exists only
/// while `Atiende` runs a routine.
class PeticionEnCurso {
public:
    /// The request running now, or null.
    static PeticionEnCurso* Actual();

    /// The next entry of "answers", for a form: null when none is left. An entry that is not an object
    /// is not taken and makes the request fail (a form asks for {"set", "press"}).
    const json* siguienteParaFormulario();
    /// The next entry of "answers" when it is an object, for a form still open after its button (an
    /// "Añadir" that adds a line): null, and nothing taken, when none is left or the next is a modal result.
    const json* otraParaFormularioAbierto();
    /// Records a form for "dialogs", after the dialogs shown before it; the entry stays where it is
    /// returned while the request runs, to be completed once the form is answered.
    json& anotaFormulario(json entrada);
    /// Makes the request fail with `motivo` once the routine has returned (the first reason is kept).
    void falla(std::string motivo);

private:
    friend json Atiende(const json&, const Rutinas&);
    PeticionEnCurso() = default;
    struct Estado;
    Estado* m_estado = nullptr;
};

/// Parses and runs one line; a line that is not a JSON request within the limits above gives an error
/// response naming the line number (and for bad JSON, the byte offset where it goes wrong).
json AtiendeLinea(std::string_view linea, long numeroLinea, const Rutinas& rutinas = TodasLasRutinas());

/// How a stream of requests ended.
enum class FinLote {
    Completo,      // the input ended and every response was written
    FalloLectura,  // reading the input failed (a folder, a closed or broken descriptor)
    FalloEscritura // a response could not be written; nothing more was read
};

/// Reads requests until the end of `entrada`, writing one response line per request. Blank lines are
/// skipped. Output is flushed whenever no more input is waiting; it stops at the first failed write.
FinLote Procesa(std::istream& entrada, std::ostream& salida, const Rutinas& rutinas = TodasLasRutinas());

/// The signature of every form of a routine, e.g. "LetrasNod(integer, character, character, boolean)".
std::string Firmas(const std::string& nombre, const std::vector<Sobrecarga>& formas);

} // namespace nod::lote
