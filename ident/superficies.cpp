#include "companion/rnumcad.h"
#include "ident/catastro.h"
#include "text/recorte.h"

namespace nod {

namespace {

// Looks for the plural word first, then the singular, in `w`: on a find, returns the trimmed text before it
// and leaves in `w` the text after it (when `corta`).
bool parteAntesDe(QString& w, QStringView plural, QStringView singular, QString& antes, bool corta = true) {
    for (QStringView palabra : {plural, singular}) {
        const qsizetype p = w.indexOf(palabra);
        if (p >= 0) {
            antes = Trim(w.left(p));
            if (corta) w = w.mid(p + palabra.size());
            return true;
        }
    }
    return false;
}

double cifras(const QString& texto) {
    return Cad_Float(DejaSoloNumeros(texto));
}

} // namespace

void ExtraeSuperficiesRustica(const QString& s, double& superficie) {
    superficie = 0;
    if (!s.contains(u"HECTAREA") && !s.contains(u"AREA")) { // "HECTAREAS", "CENTIAREA(S)" hold these two
        superficie = Cad_Float(DejaSoloNumeros(s, true).replace(u',', u'.'));
        return;
    }
    QString w = QString(s).remove(u',').remove(u'.');
    QString hectareas, areas, centiareas;
    const bool hayHectareas = parteAntesDe(w, u"HECTAREAS", u"HECTAREA", hectareas);
    const bool hayAreas = parteAntesDe(w, u"AREAS", u"AREA", areas);
    const bool hayCentiareas = parteAntesDe(w, u"CENTIAREAS", u"CENTIAREA", centiareas, false);
    if (hayHectareas) {
        const double h = cifras(hectareas);
        superficie = h > 0 ? h * 10000 : h;
    }
    if (hayAreas) {
        const double a = cifras(areas);
        superficie += a > 0 ? a * 100 : a;
    }
    if (hayCentiareas) superficie += cifras(centiareas);
}

} // namespace nod
