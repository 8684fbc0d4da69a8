// A program of the suite on the installed library: loads the installed sample office, calls a routine of
// NodRutinas::Core and one of NodRutinas::Widgets, and answers a message box through its event loop.
//   consumidor SAMPLE_OFFICE    the folder where the installed sample office must be found
// Exit status 0 when everything gave what it should; each failure is written to standard error.

#include <companion/config.h>
#include <companion/dialogo.h>
#include <frame/mensajenod.h>
#include <ident/municipios.h>
#include <text/letras.h>

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <iostream>

namespace {

int fallos = 0;

void comprueba(bool bien, const QString& que, const QString& obtenido) {
    if (bien) return;
    ++fallos;
    std::cerr << "consumidor: " << que.toStdString() << ": got \"" << obtenido.toStdString() << "\"\n";
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: consumidor SAMPLE_OFFICE\n";
        return 2;
    }
    const QString esperada = QDir(QString::fromLocal8Bit(argv[1])).canonicalPath();
    const QString ejemplo = QDir(nod::CarpetaOficinaDeEjemplo()).canonicalPath();
    comprueba(!esperada.isEmpty() && ejemplo == esperada, QStringLiteral("the installed sample office"),
              nod::CarpetaOficinaDeEjemplo());
    nod::Config.Carga(nod::CarpetaOficinaPorDefecto());

    const QString letras = nod::LetrasNod(101, u'F', u'N', false);
    comprueba(letras == QStringLiteral("CIENTO UNA"), QStringLiteral("LetrasNod(101, 'F', 'N', false)"), letras);
    const QString municipio = nod::BusquedaMunicipio(QStringLiteral("28"), QStringLiteral("079"));
    comprueba(municipio == QStringLiteral("MADRID"), QStringLiteral("BusquedaMunicipio(\"28\", \"079\")"), municipio);
    const QChar letra = nod::Acelerador(QStringLiteral("Cata&stro"));
    comprueba(letra == u's', QStringLiteral("Acelerador(\"Cata&stro\")"), letra);

    // The box runs its own modal loop; rejected once it is up, as Escape does, it answers 2.
    nod::TFMensajeNod caja;
    caja.CambiaMensaje1(QStringLiteral("Mensaje de prueba"));
    comprueba(QString::fromLatin1(caja.metaObject()->className()) == QStringLiteral("nod::TFMensajeNod"),
              QStringLiteral("the box's class"), QString::fromLatin1(caja.metaObject()->className()));
    QTimer::singleShot(0, &caja, [&caja] { caja.reject(); });
    const int respuesta = caja.exec();
    comprueba(respuesta == 2, QStringLiteral("the box's answer to Escape"), QString::number(respuesta));

    if (fallos == 0) std::cout << "consumidor: NodRutinas::Core and NodRutinas::Widgets answer as expected\n";
    return fallos == 0 ? 0 : 1;
}
