#include "protocol/bis.h"

namespace nod {

QChar DadoNumeroDevuelveBisMasdeUna(int posicion) {
    if (posicion >= 1 && posicion <= 26) return QChar(posicion + 96);
    if (posicion >= 27 && posicion <= 37) return QChar(posicion + 40);
    if (posicion >= 38 && posicion <= 49) return QChar(posicion + 41);
    if (posicion >= 50 && posicion <= 80) return QChar(posicion - 17);
    return QChar(0);
}

int DadoBisDevuelveNumeroMasdeUna(const QString& sufijo) {
    if (sufijo.isEmpty()) return 0;
    const int c = sufijo[0].unicode();
    if (c >= 33 && c <= 64) return c + 17;
    if (c >= 67 && c <= 77) return c - 40;
    if (c >= 79 && c <= 90) return c - 41;
    if (c >= 97 && c <= 122) return c - 96;
    return 0;
}

QString DadoNumeroDevuelveBisDobleMasdeUna(int posicion) {
    if (posicion >= 1 && posicion <= 26) return QString(QChar(u'a' + posicion - 1));
    if (posicion >= 27 && posicion <= 52) return QLatin1Char('A') + QString(QChar(u'A' + posicion - 27));
    if (posicion >= 53 && posicion <= 78) return QLatin1Char('B') + QString(QChar(u'A' + posicion - 53));
    if (posicion == 79) return QStringLiteral("CA");
    if (posicion == 80) return QStringLiteral("CB");
    return {};
}

int DadoBisDobleDevuelveNumeroMasdeUna(const QString& sufijo) {
    for (int posicion = 1; posicion <= 80; ++posicion)
        if (DadoNumeroDevuelveBisDobleMasdeUna(posicion) == sufijo) return posicion;
    return 0;
}

QString DadoBisDevuelveBisDobleMasdeUna(const QString& sufijo) {
    if (sufijo == QLatin1String("A") || sufijo == QLatin1String("B")) return sufijo;
    if (sufijo.isEmpty() || sufijo == QLatin1String("N")) return {};
    return DadoNumeroDevuelveBisDobleMasdeUna(DadoBisDevuelveNumeroMasdeUna(sufijo));
}

} // namespace nod
