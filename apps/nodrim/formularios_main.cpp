// nodrim-formularios: the form layer of `nodrim batch`, a process of its own so that nodrim starts
// without the widget libraries. nodrim starts it when a request first names a routine that shows a form
// and passes it those requests, one JSON line each, reading one response line back.
//
//   nodrim-formularios batch [--office DIR]   requests on standard input, as nodrim batch
//   nodrim-formularios --help                 the routines that show forms
//
// Without a display it draws offscreen; the forms are never shown to anyone, they are answered from each
// request's "answers" (apps/nodrim/formularios.h).

#include "apps/nodrim/formularios.h"
#include "apps/nodrim/lote.h"
#include "companion/config.h"

#include <QApplication>
#include <clocale>
#include <iostream>

using namespace nod;

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // machine formats never follow the user's decimal comma
    std::ios::sync_with_stdio(false);

    const QStringList args = app.arguments().mid(1);
    if (args == QStringList{QStringLiteral("--help")}) {
        for (const auto& [nombre, formas] : lote::RutinasConFormularios().todas())
            if (!lote::TodasLasRutinas().busca(nombre))
                std::cout << "  " << lote::Firmas(nombre, formas) << '\n';
        return 0;
    }
    const bool conOficina = args.size() == 3 && args[1] == u"--office";
    if (args.isEmpty() || args[0] != u"batch" || (args.size() != 1 && !conOficina)) {
        std::cerr << "usage: nodrim-formularios batch [--office DIR]\n       nodrim-formularios --help\n";
        return 2;
    }
    Config.Carga(CarpetaOficinaPorDefecto(conOficina ? args[2] : QString()));
    lote::InstalaRespuestaFormularios();
    switch (lote::Procesa(std::cin, std::cout, lote::RutinasConFormularios())) {
    case lote::FinLote::Completo:
        return 0;
    case lote::FinLote::FalloLectura:
    case lote::FinLote::FalloEscritura:
        break;
    }
    return 1;
}
