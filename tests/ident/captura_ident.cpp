// Screenshots of the identification dialogs, for a person to look at: run under Xvfb, writes
// <folder>/TFCalculaLetraNIF.png and <folder>/TFValidaReferenciaCatastral.png (folder: first argument,
// default "screenshots").
#include "companion/config.h"
#include "ident/calculaletranif.h"
#include "ident/editrefcatastral.h"
#include "ident/validareferenciacatastral.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QString carpeta = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots");
    QDir().mkpath(carpeta);
    nod::Config.Carga(nod::CarpetaOficinaPorDefecto());

    nod::TFCalculaLetraNIF nif;
    nif.show();
    nif.ENIF->setText(QStringLiteral("12345678"));
    nif.CalculaLetra();
    QApplication::processEvents();
    bool ok = nif.grab().save(carpeta + QStringLiteral("/TFCalculaLetraNIF.png"));
    nif.RBCIF->click();
    nif.ECIF->setText(QStringLiteral("B58818501"));
    nif.BBValidaCIF->click();
    QApplication::processEvents();
    ok = nif.grab().save(carpeta + QStringLiteral("/TFCalculaLetraNIF_CIF.png")) && ok;

    nod::Config.SetRefCatastralActual(QStringLiteral("9872023VH5797S0001WX"));
    nod::TFValidaReferenciaCatastral ref;
    ref.show();
    ref.ERCRefCatastral->setFocus();
    QApplication::processEvents();
    ref.SBExplica->showMessage(ref.ERCRefCatastral->toolTip());
    QApplication::processEvents();
    ok = ref.grab().save(carpeta + QStringLiteral("/TFValidaReferenciaCatastral.png")) && ok;
    return ok ? 0 : 1;
}
