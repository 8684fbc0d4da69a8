#include "ident/colegios.h"

#include "companion/config.h"
#include "companion/rnumcad.h"
#include "text/recorte.h"

namespace nod {

namespace {

struct Colegio {
    const char* region;
    const char* fragmento;
    const char* codigo;
};

// Regions in the order their fragments are tried: "ARA" (Aragón) comes before "ARIA" (Canarias), and "AST"
// (Asturias) before "LEON", so "CASTILLA-LEON" gives Asturias' code: that is how the suite has always
// answered such a name, and it is kept.
constexpr Colegio kColegios[] = {
    {"ANDALUCIA", "AND", "4150142"},
    {"ARAGON", "ARA", "5050195"},
    {"ASTURIAS", "AST", "3350178"},
    {"BALEARES", "BAL", "0750152"},
    {"CANARIAS", "ARIA", "3550180"},
    {"CANTABRIA", "CANT", "3950144"},
    {"CASTILLA LA MANCHA", "MAN", "0250146"},
    {"CASTILLA Y LEON", "LEON", "4750148"},
    {"CATALUÑA", "CAT", "0850153"},
    {"EXTREMADURA", "EXT", "1050155"},
    {"GALICIA", "GAL", "1550160"},
    {"MADRID", "MAD", "2850172"},
    {"MURCIA", "MUR", "3050177"},
    {"NAVARRA", "NAV", "3150177"},
    {"LA RIOJA", "RIO", "2650177"},
    {"PAIS VASCO", "VAS", "4850194"},
    {"VALENCIA", "VAL", "4650191"},
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
        if (r == QString::fromUtf8(c.region)) return QString::fromLatin1(c.codigo);
    for (const Colegio& c : kColegios)
        if (r.contains(QLatin1String(c.fragmento))) return QString::fromLatin1(c.codigo);
    return {};
}

} // namespace nod
