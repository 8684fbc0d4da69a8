#include "text/alineacion.h"

namespace nod {

namespace {
QString blancos(qsizetype n) {
    return n > 0 ? QString(n, u' ') : QString();
}

bool desmedido(int ancho) {
    return ancho > kAnchoMaximoTexto;
}
} // namespace

QString StrCentra(const QString& s, int ancho) {
    if (ancho <= s.size() || desmedido(ancho)) return s;
    const qsizetype antes = (ancho - s.size()) / 2;
    return blancos(antes) + s + blancos(ancho - s.size() - antes);
}

QString JustificaDer(const QString& s, int ancho) {
    if (desmedido(ancho)) return s;
    if (ancho > s.size()) return blancos(ancho - s.size()) + s;
    return s.left(qMax(ancho, 0));
}

QString JustificaIzq(const QString& s, int ancho) {
    return ancho >= s.size() && !desmedido(ancho) ? s + blancos(ancho - s.size() + 1) : s;
}

QString AlineaDecha(const QString& s, int ancho) {
    if (desmedido(ancho)) return s;
    return blancos(ancho - s.size()) + s;
}

QString AlineaIzda(const QString& s, int ancho) {
    if (desmedido(ancho)) return s;
    return s + blancos(ancho - s.size());
}

} // namespace nod
