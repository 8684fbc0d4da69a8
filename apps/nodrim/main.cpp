// nodrim: the library's routines from the shell and from scripts.
//
//   nodrim batch [--office DIR]          JSON Lines requests on standard input, responses on standard output
//   nodrim [--office DIR] Routine args   one call; each argument is read as JSON when it parses
//                                        (21, 2.5, true, "text"), otherwise as a plain string
//   nodrim --help                        the routines and their argument types

#include "apps/nodrim/lote.h"
#include "companion/config.h"

#include <QCoreApplication>

#include <clocale>
#include <iostream>

using namespace nod;
using nod::lote::json;

namespace {

int ayuda(std::ostream& os)
{
    os << "usage: nodrim batch [--office DIR]\n"
          "       nodrim [--office DIR] ROUTINE [ARG...]\n\n"
          "Office folder: --office, else $NODRIM_DIR, else the bundled sample office.\n\n"
          "Routines:\n";
    for (const auto& [nombre, formas] : lote::TodasLasRutinas().todas())
        os << "  " << lote::Firmas(nombre, formas) << '\n';
    return 0;
}

json argumento(const char* texto)
{
    json j = json::parse(texto, nullptr, false);
    return j.is_discarded() || j.is_object() || j.is_array() ? json(texto) : j;
}

int unaLlamada(const std::string& rutina, const std::vector<std::string>& args)
{
    json peticion{{"fn", rutina}, {"args", json::array()}};
    for (const auto& a : args)
        peticion["args"].push_back(argumento(a.c_str()));
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
    if (!r["out"].empty())
        std::cout << "out: " << r["out"].dump() << '\n';
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
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
