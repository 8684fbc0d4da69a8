#include "protocol/numeros.h"

#include "companion/codigos.h"
#include "companion/errores.h"
#include "companion/rnumcad.h"

#include <cmath>
#include <limits>
#include <optional>

namespace nod {

namespace {

bool cabeEnInt(qint64 v) {
    return v >= std::numeric_limits<int>::min() && v <= std::numeric_limits<int>::max();
}

int empaqueta(int anno, qint64 numero, qint64 factor) {
    const qint64 codigo = qint64(anno) * factor + numero;
    return cabeEnInt(codigo) ? int(codigo) : 0;
}

// Trunc of a code to a 64-bit whole number; nothing when the code is not finite or too large.
std::optional<qint64> trunca(double codigo) {
    constexpr double limite = 9223372036854775808.0; // 2^63
    if (!std::isfinite(codigo) || codigo >= limite || codigo < -limite) return std::nullopt;
    return qint64(std::trunc(codigo));
}

struct Partes {
    int anno = 0;
    int numero = 0;
};

// Quotient and remainder of a truncated code; both 0 when the code fails or its year does not fit.
Partes parte(double codigo, qint64 factor) {
    const auto entero = trunca(codigo);
    if (!entero || !cabeEnInt(*entero / factor)) return {};
    return {int(*entero / factor), int(*entero % factor)};
}

void reparte(Partes p, int& anno, int& numero) {
    anno = p.anno;
    numero = p.numero;
}

// The number part alone, which fits whatever the year is; 0 when the code fails.
int resto(double codigo, qint64 factor) {
    const auto entero = trunca(codigo);
    return entero ? int(*entero % factor) : 0;
}

int numeroDeTexto(const QString& pieza) {
    bool ok = false;
    const int n = pieza.toInt(&ok);
    if (!ok) throw EConvertError(QStringLiteral("'%1' is not a valid integer value").arg(pieza));
    return n;
}

} // namespace

int EncodeCod4(int anno, int numero) {
    return empaqueta(anno, numero, 10000);
}

double EncodeCod(int anno, double numero) {
    return RedondeaDec(double(anno) * 100000 + numero, 1);
}

int EncodeCod6(int anno, int numero) {
    return empaqueta(anno, numero, 1000000);
}

int EncodeCor(int anno, int numero) {
    return empaqueta(anno, numero, 100000);
}

int EncodeCor(int anno, double numero) {
    const auto entero = trunca(numero);
    if (!entero || !cabeEnInt(*entero)) return 0;
    return empaqueta(anno, *entero, 100000);
}

void DecodeCod4(int codigo, int& anno, int& numero) {
    reparte(parte(codigo, 10000), anno, numero);
}

void DecodeCod(double codigo, int& anno, int& numero) {
    reparte(parte(codigo, 100000), anno, numero);
}

void DecodeCod6(int codigo, int& anno, int& numero) {
    reparte(parte(codigo, 1000000), anno, numero);
}

void DecodeCor(int codigo, int& anno, int& numero) {
    reparte(parte(codigo, 100000), anno, numero);
}

int CodToAno4(double codigo) {
    return parte(codigo, 10000).anno;
}

int CodToNum4(double codigo) {
    return resto(codigo, 10000);
}

int CodToAno5(double codigo) {
    const auto entero = trunca(codigo);
    if (!entero) return 0;
    qint64 anno = *entero / 100000;
    if (anno >= 3000) anno = *entero / 1000000;  // a six-digit number
    if (anno >= 3000) anno = *entero / 10000000; // a seven-digit number
    return cabeEnInt(anno) ? int(anno) : 0;
}

int CodToNum5(double codigo) {
    return resto(codigo, 100000);
}

QString Numero(int codigo, int modo) {
    const QString s = QString::number(codigo);
    const QString numero = s.mid(4, 5);
    const QString anno = s.left(4);
    switch (modo) {
    case 1:
        return FormateaMiles(numeroDeTexto(numero));
    case 2:
        return FormateaMiles(numeroDeTexto(numero)) + QLatin1Char('/') + FormateaMiles(numeroDeTexto(anno));
    case 3:
        return numero + QLatin1Char('/') + anno;
    default:
        return {};
    }
}

} // namespace nod
