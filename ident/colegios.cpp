#include "ident/colegios.h"

#include "companion/config.h"
#include "companion/rnumcad.h"
#include "text/recorte.h"

namespace nod {

namespace {

struct Colegio {
    const char16_t* region;
    const char* fragmento;
    const char* codigo;
};

// Regions in the order their fragments are tried: "ARA" (Aragón) comes before "ARIA" (Canarias), and "AST"
// (Asturias) before "LEON", so "CASTILLA-LEON" gives Asturias' code: that is how the suite has always
// answered such a name, and it is kept.
constexpr Colegio kColegios[] = {
    {u"ANDALUCIA", "AND", "4150142"},
    {u"ARAGON", "ARA", "5050195"},
    {u"ASTURIAS", "AST", "3350178"},
    {u"BALEARES", "BAL", "0750152"},
    {u"CANARIAS", "ARIA", "3550180"},
    {u"CANTABRIA", "CANT", "3950144"},
    {u"CASTILLA LA MANCHA", "MAN", "0250146"},
    {u"CASTILLA Y LEON", "LEON", "4750148"},
    {u"CATALUÑA", "CAT", "0850153"},
    {u"EXTREMADURA", "EXT", "1050155"},
    {u"GALICIA", "GAL", "1550160"},
    {u"MADRID", "MAD", "2850172"},
    {u"MURCIA", "MUR", "3050177"},
    {u"NAVARRA", "NAV", "3150177"},
    {u"LA RIOJA", "RIO", "2650177"},
    {u"PAIS VASCO", "VAS", "4850194"},
    {u"VALENCIA", "VAL", "4650191"},
};

QString normaliza(const QString& s) {
    return UpperCase(Trim(s));
}

} // namespace

QString ObtenCodColegioPorNombre(const QString& nombre, const QString& alternativo) {
    QString r;
    if (nombre.isEmpty() && alternativo.isEmpty()) {
        r = normaliza(Config.GetColegio());
        if (r.isEmpty()) r = normaliza(Config.GetColeg2());
    } else {
        r = normaliza(nombre);
        if (r.isEmpty()) r = normaliza(alternativo);
    }
    if (r.isEmpty()) r = normaliza(Config.GetColeg2());
    if (r.isEmpty()) return {};
    for (const Colegio& c : kColegios)
        if (r == QStringView(c.region)) return QString::fromLatin1(c.codigo);
    for (const Colegio& c : kColegios)
        if (r.contains(QLatin1String(c.fragmento))) return QString::fromLatin1(c.codigo);
    return {};
}

} // namespace nod
