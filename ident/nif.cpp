#include "ident/nif.h"

#include "companion/documentos.h"
#include "companion/rnumcad.h"
#include "text/moneda.h"

namespace nod {

QString NIF(const QString& s) {
    if (s.isEmpty()) return {};
    if (!EsUnNumero(s)) return s;
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
