// nodrim: the library's routines from the shell and from scripts.
//
//   nodrim batch [--office DIR]          JSON Lines requests on standard input, responses on standard output
//   nodrim [--office DIR] Routine args   one call; each argument is read as the type of the routine's
//                                        parameter (21 as an integer, 2.5, true, text as it stands)
//   nodrim revision [--table NAME] [--pdf FILE]   the client-code revision (apps/nodrim/revision.h)
//   nodrim --help                        the routines and their argument types
//
// Routines that show forms live in the form layer, nodrim-formularios beside this program, started the
// first time a request names one (README, "Forms in batch").
//
// Exit status: 0 done; 1 a call that failed, an office folder that does not exist, or standard input or
// output that could not be read or written; 2 a command line that cannot be understood.

#include "apps/nodrim/capaformularios.h"
#include "apps/nodrim/descriptor.h"
#include "apps/nodrim/lote.h"
#include "apps/nodrim/revision.h"
#include "companion/config.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <array>
#include <cctype>
#include <cerrno>
#include <clocale>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <optional>
#include <unistd.h>

using namespace nod;
using nod::lote::json;

namespace {

constexpr int kFallo = 1;
constexpr int kErrorDeUso = 2;
constexpr char kUso[] = "usage: nodrim batch [--office DIR]\n"
                        "       nodrim [--office DIR] ROUTINE [ARG...]\n"
                        "       nodrim --help\n";

int ayuda(std::ostream& os) {
    os << kUso << "\nOffice folder: --office, else $NODRIM_DIR, else the bundled sample office ("
       << QDir::toNativeSeparators(CarpetaOficinaDeEjemplo()).toStdString() << ").\n\nRoutines:\n";
    for (const auto& [nombre, formas] : lote::TodasLasRutinas().todas())
        os << "  " << lote::Firmas(nombre, formas) << '\n';
    const QString formularios = lote::CapaFormularios(lote::ProgramaCapaFormularios(), {}).Ayuda();
    if (!formularios.isEmpty())
        os << "\nRoutines that show forms (answered by the objects of \"answers\"):\n"
           << formularios.toStdString();
    return 0;
}

int errorDeUso(const std::string& mensaje) {
    std::cerr << "nodrim: " << mensaje << '\n' << kUso;
    return kErrorDeUso;
}

int fallo(const std::string& mensaje) {
    std::cerr << "nodrim: " << mensaje << '\n';
    return kFallo;
}

// A standard descriptor that the caller closed is opened on /dev/null, so that no file a routine opens
// takes its number (a table opened as descriptor 1 would receive the responses). Tells which were closed.
std::array<bool, 3> ocupaDescriptoresCerrados() {
    std::array<bool, 3> cerrado{};
    for (int fd = 0; fd < 3; ++fd) {
        if (::fcntl(fd, F_GETFD) != -1 || errno != EBADF) continue;
        cerrado[fd] = true;
        const int nuevo = ::open("/dev/null", fd == 0 ? O_RDONLY : O_WRONLY);
        if (nuevo >= 0 && nuevo != fd) {
            ::dup2(nuevo, fd);
            ::close(nuevo);
        }
    }
    return cerrado;
}

struct Orden {
    std::optional<QString> office;     // --office, when given
    std::vector<std::string> palabras; // "batch", or the routine and its arguments
    bool ayuda = false;
};

// Options come before the routine, or anywhere after "batch"; --office is also taken after a routine's
// arguments. A word that starts with "-" and a letter is an option; "-1" is a number.
std::optional<std::string> leeOrden(int argc, char** argv, Orden& orden) {
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        const bool esOpcion = a.size() > 1 && a[0] == '-' && !std::isdigit(static_cast<unsigned char>(a[1]));
        if (a == "--office" || a.rfind("--office=", 0) == 0) {
            const bool junto = a != "--office";
            if (!junto && i + 1 == argc) return "--office needs a folder";
            const std::string carpeta = junto ? a.substr(9) : argv[++i];
            if (carpeta.empty()) return "--office needs a folder";
            orden.office = QString::fromLocal8Bit(carpeta.c_str());
        } else if (orden.palabras.empty() && (a == "--help" || a == "-h")) {
            orden.ayuda = true;
        } else if (esOpcion && (orden.palabras.empty() || orden.palabras[0] == "batch")) {
            return "unknown option " + a;
        } else if (!orden.palabras.empty() && orden.palabras[0] == "batch") {
            return "unexpected word \"" + a + "\" after batch";
        } else {
            orden.palabras.push_back(a);
        }
    }
    return std::nullopt;
}

// The office folder: one named with --office or $NODRIM_DIR, else the bundled sample office; it must
// exist. nullopt after reporting the problem.
std::optional<QString> carpetaOficina(const Orden& orden) {
    const QString entorno = qEnvironmentVariable("NODRIM_DIR");
    if (!orden.office && entorno.isEmpty()) {
        const QString ejemplo = CarpetaOficinaDeEjemplo();
        if (QFileInfo(ejemplo).isDir()) return ejemplo;
        const std::string donde = QDir::toNativeSeparators(ejemplo).toStdString();
        fallo("no office folder: none named with --office or $NODRIM_DIR, and no sample office at " + donde);
        return std::nullopt;
    }
    const QString carpeta = orden.office ? *orden.office : entorno;
    const std::string nombre = "the office folder " + QDir::toNativeSeparators(carpeta).toStdString() +
                               (orden.office ? "" : " (from $NODRIM_DIR)");
    const QFileInfo info(carpeta);
    if (info.isDir()) return carpeta;
    fallo(nombre + (info.exists() ? " is not a folder" : " does not exist"));
    return std::nullopt;
}

// A shell word as the JSON value a parameter of the given type takes ("integer", "number&" ...);
// nullopt when the word cannot be one.
std::optional<json> comoTipo(const std::string& palabra, std::string tipo) {
    if (!tipo.empty() && tipo.back() == '&') tipo.pop_back();
    if (tipo == "string" || tipo == "character") return json(palabra);
    const json j = json::parse(palabra, nullptr, false);
    const bool encaja = (tipo == "integer" && j.is_number_integer()) || (tipo == "number" && j.is_number()) ||
                        (tipo == "boolean" && j.is_boolean()) || (tipo == "array of strings" && j.is_array());
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

int atiendeLote(std::ostream& salida, const lote::BufferDescriptor& bufferSalida) {
    lote::BufferDescriptor bufferEntrada(STDIN_FILENO, lote::BufferDescriptor::Sentido::Lectura);
    std::istream entrada(&bufferEntrada);
    switch (lote::Procesa(entrada, salida)) {
    case lote::FinLote::Completo:
        break;
    case lote::FinLote::FalloLectura:
        return fallo(std::string("the requests could not be read from standard input: ") +
                     std::strerror(bufferEntrada.error()));
    case lote::FinLote::FalloEscritura:
        return fallo(std::string("the responses could not be written to standard output: ") +
                     std::strerror(bufferSalida.error()));
    }
    return 0;
}

int unaLlamada(const std::string& rutina, const std::vector<std::string>& args, std::ostream& salida) {
    const json peticion{{"fn", rutina}, {"args", argumentos(rutina, args)}};
    const json r = lote::Atiende(peticion);
    for (const auto& d : r["dialogs"])
        std::cerr << d["kind"].get<std::string>() << ": " << d["title"].get<std::string>() << ": "
                  << d["text"].get<std::string>() << '\n';
    if (r.contains("error")) return fallo(r["error"].get<std::string>());
    const json& res = r["result"];
    salida << (res.is_string() ? res.get<std::string>() : res.dump()) << '\n';
    if (!r["out"].empty()) salida << "out: " << r["out"].dump() << '\n';
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const auto cerrado = ocupaDescriptoresCerrados(); // before anything opens a file
    if (const int estado = lote::MainRevisionSiToca(argc, argv); estado >= 0) return estado; // revision.h
    QCoreApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // machine formats never follow the user's decimal comma
    std::ios::sync_with_stdio(false);

    Orden orden;
    if (const auto e = leeOrden(argc, argv, orden)) return errorDeUso(*e);
    if (orden.ayuda) return ayuda(std::cout);
    if (orden.palabras.empty())
        return errorDeUso("a routine or batch is needed; nodrim --help lists the routines");
    const bool esLote = orden.palabras[0] == "batch";
    if (cerrado[1]) return fallo("standard output is closed: there is nowhere to write");
    if (esLote && cerrado[0]) return fallo("standard input is closed: there are no requests to read");

    const auto carpeta = carpetaOficina(orden);
    if (!carpeta) return kFallo;
    Config.Carga(*carpeta); // its warnings go to the log (standard error)
    // A routine this program does not hold may be one that shows a form: the form layer answers it.
    lote::CapaFormularios capa(lote::ProgramaCapaFormularios(), Config.CarpetaOficina());
    lote::FijaReenvio(
        [&capa](const json& peticion) -> std::optional<json> { return capa.Atiende(peticion); });

    lote::BufferDescriptor bufferSalida(STDOUT_FILENO, lote::BufferDescriptor::Sentido::Escritura);
    std::ostream salida(&bufferSalida);
    if (esLote) return atiendeLote(salida, bufferSalida);
    const int estado =
        unaLlamada(orden.palabras[0], {orden.palabras.begin() + 1, orden.palabras.end()}, salida);
    if (!salida.flush())
        return fallo(std::string("the result could not be written to standard output: ") +
                     std::strerror(bufferSalida.error()));
    return estado;
}
