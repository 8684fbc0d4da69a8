#include "companion/codigos.h"

#include "companion/rnumcad.h"

#include <cmath>
#include <limits>

namespace nod {

QString FormateaMiles(qint64 n) {
    return n == 0 ? QString() : AgrupaMiles(QString::number(n));
}

int EncodeCod(int anno, int numero) {
    const qint64 codigo = qint64(anno) * 100000 + numero;
    if (codigo < std::numeric_limits<int>::min() || codigo > std::numeric_limits<int>::max()) return 0;
    return int(codigo);
}

int BisDeCodigo(double codigo) {
    if (!std::isfinite(codigo)) return 0;
    const double fraccion = std::fabs(codigo - std::trunc(codigo));
    return int(std::lround(fraccion * 10)) % 10;
}

QString MarcaBis(int orden) {
    static const char* const marcas[] = {"",       "bis",     "ter",    "quáter", "quinquies",
                                         "sexies", "septies", "octies", "nonies", "decies"};
    if (orden < 1 || orden > 9) return {};
    return QString::fromUtf8(marcas[orden]);
}

QString CodToBis(double codigo, int modo) {
    // Doubles at or beyond 2^63 do not truncate to a 64-bit whole number.
    constexpr double limite = 9223372036854775808.0;
    if (!std::isfinite(codigo) || std::fabs(codigo) >= limite || modo < 0 || modo > 2) return {};
    const QString marca = MarcaBis(BisDeCodigo(codigo));
    if (modo == 0) return marca;
    const qint64 entero = qint64(std::trunc(codigo));
    const qint64 numero = entero % 100000;
    QString texto = numero == 0 ? QStringLiteral("0") : FormateaMiles(numero);
    if (!marca.isEmpty()) texto += QLatin1Char(' ') + marca;
    if (modo == 2) texto += QLatin1Char('/') + QString::number(entero / 100000);
    return texto;
}

} // namespace nod
