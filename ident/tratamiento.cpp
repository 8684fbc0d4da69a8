#include "ident/tratamiento.h"

#include "companion/rnumcad.h"
#include "text/mayusculas.h"

namespace nod {

QString DeterminaSexo(const QString& titulo) {
    const QString t = UpperCase(titulo);
    if (t == u"DON" || t == u"Dº" || t == u"Dº." || t == u"D.") return QStringLiteral("H");
    if (t == u"DOÑA" || t == u"Dª" || t == u"Dª.") return QStringLiteral("M");
    return {};
}

QString Don(const QString& sexo, QChar caso, int idioma) {
    const bool catalan = idioma == 1;
    const bool hombre = sexo == u"H";
    if (!hombre && sexo != u"M") return {};
    QString titulo = catalan ? (hombre ? QStringLiteral("EL SENYOR") : QStringLiteral("LA SENYORA"))
                             : (hombre ? QStringLiteral("DON") : QStringLiteral("DOÑA"));
    if (caso == u'C')
        return catalan ? (hombre ? QStringLiteral("el Senyor") : QStringLiteral("la Senyora"))
                       : MayusMinus(titulo, u'C');
    if (caso == u'S') return MayusMinus(titulo, u'S');
    return titulo;
}

} // namespace nod
