#include "ident/nif.h"

#include "companion/documentos.h"
#include "companion/rnumcad.h"
#include "text/moneda.h"

#include <algorithm>

namespace nod {

namespace {

bool todoCifras(const QString& s) {
    return std::all_of(s.begin(), s.end(), [](QChar c) { return EsUnNumero(c); });
}

} // namespace

QString NIF(const QString& s) {
    if (s.isEmpty()) return {};
    if (!todoCifras(s)) return s;
    const QString t = s.trimmed();
    bool ok = false;
    const int n = t.toInt(&ok);
    if (!ok || t.contains(u'.') || t.contains(u'-') || t.size() >= 9) return t;
    return PuntosNod(StrCeros(n, 8), false) + u'-' + LetraNIF(n);
}

QString RecalculaNIF(const QString& s) {
    if (!s.isEmpty() && EsUnNumero(s[0])) return NIF(DejaSoloNumeros(s));
    return NIF(s);
}

} // namespace nod
