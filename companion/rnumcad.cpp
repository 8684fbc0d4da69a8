#include "companion/rnumcad.h"

#include <charconv>
#include <algorithm>
#include <cmath>
#include <string>

namespace nod {

namespace {

// The shortest decimal digits of |x| and the exponent that places the point: |x| == 0.d1d2d3... × 10^exp.
struct Decimal {
    std::string digitos;
    int exponente = 0;
};

Decimal descompone(double x)
{
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(x), std::chars_format::scientific);
    const std::string s(buf, res.ptr);
    const auto e = s.find('e');
    Decimal d;
    for (char c : s.substr(0, e))
        if (c != '.')
            d.digitos += c;
    d.exponente = std::stoi(s.substr(e + 1)) + 1;
    return d;
}

} // namespace

QString Float_Cad(double x)
{
    if (!std::isfinite(x) || x == 0)
        return QStringLiteral("0");
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::fixed);
    QString s = QString::fromLatin1(buf, res.ptr - buf);
    s.replace(QLatin1Char('.'), QLatin1Char(','));
    return s;
}

double RedondeaDec(double x, int decimales)
{
    if (!std::isfinite(x) || x == 0)
        return x;
    decimales = std::clamp(decimales, 0, 15);
    Decimal d = descompone(x);
    const int corte = d.exponente + decimales; // digits kept
    if (corte >= int(d.digitos.size()))
        return x; // already exact at this precision
    if (corte < 0)
        return std::signbit(x) ? -0.0 : 0.0;
    const bool sube = d.digitos[size_t(corte)] >= '5';
    std::string kept = d.digitos.substr(0, size_t(corte));
    int exponente = d.exponente;
    if (sube) {
        int i = int(kept.size()) - 1;
        while (i >= 0 && kept[size_t(i)] == '9')
            kept[size_t(i--)] = '0';
        if (i >= 0)
            ++kept[size_t(i)];
        else {
            kept.insert(kept.begin(), '1');
            ++exponente;
        }
    }
    if (kept.empty())
        return std::signbit(x) ? -0.0 : 0.0;
    const std::string texto = (std::signbit(x) ? "-0." : "0.") + kept + "e" + std::to_string(exponente);
    double r = 0;
    std::from_chars(texto.data(), texto.data() + texto.size(), r);
    return r;
}

} // namespace nod
