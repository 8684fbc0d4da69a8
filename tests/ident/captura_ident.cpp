// Screenshots of the identification dialogs, for a person to look at: run under Xvfb (at any
// QT_SCALE_FACTOR), writes into <folder> (first argument, default "screenshots"):
//   TFCalculaLetraNIF_DNI.png, _CIF.png, _NIE.png   the NIF dialog in its three modes, with a verdict
//   TFValidaReferenciaCatastral.png                  the cadastral dialog at rest
//   TFValidaReferenciaCatastral_espera.png           ... while it waits on a cadastre that does not answer
//   pantalla_espera.png                              the whole screen then (the dialog and the wait message)
#include "companion/config.h"
#include "frame/qtmensajes.h"
#include "ident/calculaletranif.h"
#include "ident/editrefcatastral.h"
#include "ident/validareferenciacatastral.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTcpServer>
#include <QTest>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QString carpeta = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots");
    QDir().mkpath(carpeta);
    nod::Config.Carga(nod::CarpetaOficinaPorDefecto());
    nod::ServicioMensajesQt mensajes;
    nod::InstalaServicioMensajes(&mensajes);
    bool ok = true;
    auto guarda = [&](QWidget* w, const char* nombre) {
        QApplication::processEvents();
        QTest::qWait(150);
        ok = w->grab().save(carpeta + QLatin1Char('/') + QLatin1String(nombre)) && ok;
    };

    nod::TFCalculaLetraNIF nif;
    nif.show();
    nif.ENIF->setText(QStringLiteral("12345678"));
    nif.CalculaLetra();
    guarda(&nif, "TFCalculaLetraNIF_DNI.png");
    nif.RBCIF->click();
    nif.ECIF->setText(QStringLiteral("B58818501"));
    nif.BBValidaCIF->click();
    guarda(&nif, "TFCalculaLetraNIF_CIF.png");
    nif.RBNIE->click();
    nif.ENIE->setText(QStringLiteral("X1234567X"));
    nif.BBValidaCIF->click();
    guarda(&nif, "TFCalculaLetraNIF_NIE.png");

    // A cadastre that takes the request and never answers.
    QTcpServer mudo;
    mudo.listen(QHostAddress::LocalHost);
    nod::Config.SetServidorCatastro(QStringLiteral("http://127.0.0.1:%1").arg(mudo.serverPort()));
    nod::Config.SetEsperaCatastroMs(60000);
    nod::Config.SetRefCatastralActual(QStringLiteral("9872023VH5797S0001WX"));
    nif.hide();
    nod::TFValidaReferenciaCatastral ref;
    // Shown modally as the suite shows it: at rest, then "Cata&stro" pressed, then "&Cancelar" while it
    // waits.
    QTimer::singleShot(300, &ref, [&] {
        ref.ERCRefCatastral->setFocus();
        guarda(&ref, "TFValidaReferenciaCatastral.png");
        QTimer::singleShot(700, &ref, [&] {
            ok = ref.grab().save(carpeta + QStringLiteral("/TFValidaReferenciaCatastral_espera.png")) && ok;
            ok = ref.screen()->grabWindow(0).save(carpeta + QStringLiteral("/pantalla_espera.png")) && ok;
            ref.BBCancelar->click();
        });
        ref.BBCatastro->click(); // returns once "&Cancelar" has abandoned the wait
    });
    ref.exec();
    nod::InstalaServicioMensajes(nullptr);
    return ok ? 0 : 1;
}
