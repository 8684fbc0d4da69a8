// nodrim: the library's routines from the shell and from scripts.
//
//   nodrim batch [--office DIR]          JSON Lines requests on standard input, responses on standard output
//   nodrim [--office DIR] Routine args   one call; each argument is read as the type of the routine's
//                                        parameter (21 as an integer, 2.5, true, text as it stands)
//   nodrim revision [--table NAME] [--pdf FILE]   the client-code revision (apps/nodrim/revision.h)
//   nodrim --help                        the routines and their argument types

#include "apps/nodrim/lote.h"
#include "apps/nodrim/revision.h"
#include "companion/config.h"

#include <QCoreApplication>
#include <clocale>
#include <iostream>
#include <optional>

using namespace nod;
using nod::lote::json;

namespace {

int ayuda(std::ostream& os) {
    os << "usage: nodrim batch [--office DIR]\n"
          "       nodrim [--office DIR] ROUTINE [ARG...]\n\n"
          "Office folder: --office, else $NODRIM_DIR, else the bundled sample office.\n\n"
          "Routines:\n";
    for (const auto& [nombre, formas] : lote::TodasLasRutinas().todas())
        os << "  " << lote::Firmas(nombre, formas) << '\n';
    return 0;
}

// A shell word as the JSON value a parameter of the given type takes ("integer", "number&" ...);
// nullopt when the word cannot be one.
std::optional<json> comoTipo(const std::string& palabra, std::string tipo) {
    if (!tipo.empty() && tipo.back() == '&') tipo.pop_back();
    if (tipo == "string" || tipo == "character") return json(palabra);
    const json j = json::parse(palabra, nullptr, false);
    const bool encaja = (tipo == "integer" && j.is_number_integer()) || (tipo == "number" && j.is_number()) ||
                        (tipo == "boolean" && j.is_boolean());
    return encaja ? std::optional<json>(j) : std::nullopt;
}

// The arguments for the first form of the routine whose parameter types all the words fit, so that
// "28" reaches a text parameter as text; when none fits, each word as JSON when it parses, for the
// error message to name what was given.
json argumentos(const std::string& rutina, const std::vector<std::string>& palabras) {
    if (const auto* formas = lote::TodasLasRutinas().busca(rutina)) {
        for (const auto& forma : *formas) {
            if (forma.parametros.size() != palabras.size()) continue;
            json args = json::array();
            for (size_t i = 0; i < palabras.size(); ++i) {
                auto v = comoTipo(palabras[i], forma.parametros[i]);
                if (!v) break;
                args.push_back(*v);
            }
            if (args.size() == palabras.size()) return args;
        }
    }
    json args = json::array();
    for (const auto& p : palabras) {
        const json j = json::parse(p, nullptr, false);
        args.push_back(j.is_discarded() || j.is_object() || j.is_array() ? json(p) : j);
    }
    return args;
}

int unaLlamada(const std::string& rutina, const std::vector<std::string>& args) {
    const json peticion{{"fn", rutina}, {"args", argumentos(rutina, args)}};
    const json r = lote::Atiende(peticion);
    for (const auto& d : r["dialogs"])
        std::cerr << d["kind"].get<std::string>() << ": " << d["title"].get<std::string>() << ": "
                  << d["text"].get<std::string>() << '\n';
    if (r.contains("error")) {
        std::cerr << "nodrim: " << r["error"].get<std::string>() << '\n';
        return 1;
    }
    const json& res = r["result"];
    std::cout << (res.is_string() ? res.get<std::string>() : res.dump()) << '\n';
    if (!r["out"].empty()) std::cout << "out: " << r["out"].dump() << '\n';
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (const int estado = lote::MainRevisionSiToca(argc, argv); estado >= 0) return estado; // revision.h
    QCoreApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // machine formats never follow the user's decimal comma
    std::ios::sync_with_stdio(false);

    std::vector<std::string> resto;
    QString office;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--office" && i + 1 < argc)
            office = QString::fromLocal8Bit(argv[++i]);
        else if (a.rfind("--office=", 0) == 0)
            office = QString::fromLocal8Bit(argv[i] + 9);
        else
            resto.push_back(a);
    }
    if (resto.empty() || resto[0] == "--help" || resto[0] == "-h")
        return ayuda(resto.empty() ? std::cerr : std::cout), resto.empty() ? 2 : 0;

    Config.Carga(CarpetaOficinaPorDefecto(office)); // its warnings go to the log (standard error)

    if (resto[0] == "batch") {
        lote::Procesa(std::cin, std::cout);
        return 0;
    }
    return unaLlamada(resto[0], {resto.begin() + 1, resto.end()});
}
