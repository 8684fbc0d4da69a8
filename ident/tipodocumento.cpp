#include "ident/tipodocumento.h"

#include "companion/documentos.h"
#include "companion/rnumcad.h"
#include "text/recorte.h"

namespace nod {

QString TipoDeDocumento(int codigo) {
    switch (codigo) {
    case 1:
        return QStringLiteral("N.I.F.");
    case 2:
        return QStringLiteral("C.I.F.");
    case 3:
        return QStringLiteral("N.I.E.");
    case 4:
        return QStringLiteral("PASAPORTE");
    default:
        return QStringLiteral("DOCUMENTO DE IDENTIFICACION");
    }
}

int TipoDeDocumento(const QString& etiqueta) {
    const QString t = Trim(QString(etiqueta).remove(u'.'));
    if (t == u"NIF") return 1;
    if (t == u"CIF") return 2;
    if (t == u"NIE") return 3;
    if (UpperCase(t) == u"PASAPORTE") return 4;
    return 5;
}

int QueTipoDeDocumentoEsParaConsultaDNI(const QString& s) {
    const int tipo = QueTipoDeDocumentoEs(s);
    return tipo == 2 || tipo == 4 ? tipo : 1;
}

} // namespace nod
