// nodrim-demo: the library's dialogs on an office, to look at and try.
//
//   nodrim-demo [--office DIR] [--screenshots DIR]
//
// The office is --office, else $NODRIM_DIR, else the bundled sample office. With --screenshots every
// dialog is opened in turn, saved as DIR/<name>.png and closed, and the program exits.

#include "apps/demo/capturas.h"
#include "apps/demo/catalogo.h"
#include "apps/demo/ventanademo.h"
#include "companion/config.h"
#include "frame/dosexe.h"
#include "frame/qtmensajes.h"
#include "frame/ventanas.h"

#include <QApplication>
#include <QCommandLineParser>
#include <clocale>
#include <iostream>

using namespace nod;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // machine formats never follow the user's decimal comma
    QApplication::setApplicationName(QStringLiteral("nodrim-demo"));

    QCommandLineParser opciones;
    opciones.setApplicationDescription(QStringLiteral("The NodRutinas dialogs on an office."));
    opciones.addHelpOption();
    QCommandLineOption oficina(QStringLiteral("office"), QStringLiteral("Office (suite) folder."),
                               QStringLiteral("DIR"));
    QCommandLineOption capturas(QStringLiteral("screenshots"),
                                QStringLiteral("Save a picture of every dialog into DIR and exit."),
                                QStringLiteral("DIR"));
    opciones.addOption(oficina);
    opciones.addOption(capturas);
    opciones.process(app);

    Config.Carga(CarpetaOficinaPorDefecto(opciones.value(oficina)));
    for (const QString& aviso : Config.Avisos())
        std::cerr << "nodrim-demo: " << qPrintable(aviso) << '\n';

    ServicioMensajesQt mensajes;
    InstalaServicioMensajes(&mensajes);
    FijaPitido(&QApplication::beep);

    demo::VentanaDemo ventana(demo::RegistraTodos());
    FijaVentanaPrincipal(&ventana);
    ventana.show();

    int codigo = 0;
    if (opciones.isSet(capturas)) {
        const demo::CatalogoDemo catalogo = demo::RegistraTodos();
        const int escritas = demo::CapturaTodos(ventana, catalogo, opciones.value(capturas));
        std::cout << escritas << " of " << catalogo.entradas().size() << " dialogs saved in "
                  << qPrintable(opciones.value(capturas)) << '\n';
        codigo = escritas == catalogo.entradas().size() ? 0 : 1;
    } else {
        codigo = app.exec();
    }
    InstalaServicioMensajes(nullptr);
    return codigo;
}
