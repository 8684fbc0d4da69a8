// The identification family in the demo: the DNI letter calculator and the cadastral reference dialog.
#include "apps/demo/catalogo.h"
#include "companion/config.h"
#include "ident/calculaletranif.h"
#include "ident/validareferenciacatastral.h"

namespace nod::demo {

namespace {

QString calculaLetraNif(QWidget* owner) {
    ICalculaLetraNif(owner);
    return QStringLiteral("cerrado");
}

// The reference travels through the configuration, as the suite's screens hand it over.
QString validaReferenciaCatastral(QWidget* owner) {
    Config.SetRefCatastralActual(QStringLiteral("9872023VH5797S0001WX"));
    IValidaReferenciaCatastral(owner);
    return QStringLiteral("referencia \"%1\"").arg(Config.GetRefCatastralActual());
}

} // namespace

void RegistraDialogosIdent(CatalogoDemo& c) {
    c.agrega("Identificación", "calcula_letra_nif", "TFCalculaLetraNIF: letra del NIF, NIE y CIF",
             calculaLetraNif);
    c.agrega("Identificación", "valida_referencia_catastral",
             "TFValidaReferenciaCatastral: referencia catastral", validaReferenciaCatastral);
}

} // namespace nod::demo
