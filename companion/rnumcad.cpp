#include "companion/rnumcad.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace nod {

namespace {

// The shortest decimal digits of |x| and the exponent that places the point: |x| == 0.d1d2d3... × 10^exp.
struct Decimal {
    std::string digitos;
    int exponente = 0;
};

Decimal descompone(double x) {
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(x), std::chars_format::scientific);
    const std::string s(buf, res.ptr);
    const auto e = s.find('e');
    Decimal d;
    for (char c : s.substr(0, e))
        if (c != '.') d.digitos += c;
    d.exponente = std::stoi(s.substr(e + 1)) + 1;
    return d;
}

} // namespace

QString Float_Cad(double x) {
    if (!std::isfinite(x) || x == 0) return QStringLiteral("0");
    // Written without exponent, the largest double has 309 digits and the smallest 323 zeros after
    // the mark before its digit.
    char buf[512];
    auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::fixed);
    QString s = QString::fromLatin1(buf, res.ptr - buf);
    s.replace(QLatin1Char('.'), QLatin1Char(','));
    return s;
}

double RedondeaDec(double x, int decimales) {
    if (!std::isfinite(x) || x == 0) return x;
    decimales = std::clamp(decimales, 0, 15);
    Decimal d = descompone(x);
    const int corte = d.exponente + decimales;    // digits kept
    if (corte >= int(d.digitos.size())) return x; // already exact at this precision
    if (corte < 0) return std::signbit(x) ? -0.0 : 0.0;
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
    if (kept.empty()) return std::signbit(x) ? -0.0 : 0.0;
    const std::string texto = (std::signbit(x) ? "-0." : "0.") + kept + "e" + std::to_string(exponente);
    double r = 0;
    std::from_chars(texto.data(), texto.data() + texto.size(), r);
    return r;
}

void ParteEnteraDecimal(const QString& numero, QString& entera, QString& decimal) {
    qsizetype marca = numero.indexOf(QLatin1Char(','));
    if (marca < 0) marca = numero.indexOf(QLatin1Char('.'));
    if (marca < 0) {
        entera = numero;
        decimal.clear();
        return;
    }
    entera = numero.left(marca);
    decimal = numero.mid(marca + 1);
}

namespace {

template <typename T> T enteroDe(const QString& texto) {
    const QByteArray t = texto.trimmed().toLatin1();
    const char* ini = t.constData();
    const char* fin = ini + t.size();
    if (ini != fin && *ini == '+') ++ini;
    T v = 0;
    const auto res = std::from_chars(ini, fin, v);
    return res.ec == std::errc() && res.ptr == fin ? v : T(0);
}

} // namespace

int Cad_Int(const QString& texto) {
    return enteroDe<int>(texto);
}

qint64 Cad_Int64(const QString& texto) {
    return enteroDe<qint64>(texto);
}

double Cad_Float(const QString& texto) {
    QString t = texto;
    t.remove(QLatin1Char(' '));
    if (t.contains(QLatin1Char(','))) {
        t.remove(QLatin1Char('.'));
        t.replace(QLatin1Char(','), QLatin1Char('.'));
    }
    const QByteArray b = t.toLatin1();
    const char* ini = b.constData();
    const char* fin = ini + b.size();
    if (ini != fin && *ini == '+') ++ini;
    double v = 0;
    const auto res = std::from_chars(ini, fin, v, std::chars_format::fixed);
    return res.ec == std::errc() && res.ptr == fin && std::isfinite(v) ? v : 0.0;
}

// A cut of n units never keeps half of a character outside the Basic Multilingual Plane (two UTF-16
// units): the pair is left out whole, so the result is never longer than asked.
QString StrLeft(const QString& s, int n) {
    if (n <= 0) return {};
    if (n < s.size() && s[n].isLowSurrogate() && s[n - 1].isHighSurrogate()) --n;
    return s.left(n);
}

QString StrRight(const QString& s, int n) {
    if (n <= 0) return {};
    const qsizetype desde = s.size() - n;
    if (desde > 0 && s[desde].isLowSurrogate() && s[desde - 1].isHighSurrogate()) --n;
    return s.right(n);
}

QString StrCeros(qint64 valor, int ancho) {
    const bool negativo = valor < 0;
    // The magnitude as unsigned, so that the smallest Int64 has one too.
    const quint64 magnitud = negativo ? quint64(0) - quint64(valor) : quint64(valor);
    QString digitos = QString::number(magnitud);
    // The width is checked before any arithmetic on it, which is then done in 64 bits.
    if (ancho > 0 && ancho <= kAnchoMaximoTexto) {
        const qsizetype ceros = qsizetype(ancho) - digitos.size() - (negativo ? 1 : 0);
        if (ceros > 0) digitos.prepend(QString(ceros, QLatin1Char('0')));
    }
    return negativo ? QLatin1Char('-') + digitos : digitos;
}

namespace {

// Letter-by-letter case change that keeps the length: full case mappings such as "ß" -> "SS" and
// letters whose other case lies outside the Western code page ("µ" -> Greek "Μ") are left alone.
template <typename F> QString cambiaLetras(const QString& s, F cambia) {
    QString r = s;
    for (QChar& c : r) {
        if (c.unicode() == 0x00B5) continue;
        c = cambia(c);
    }
    return r;
}

} // namespace

QString UpperCase(const QString& s) {
    return cambiaLetras(s, [](QChar c) { return c.toUpper(); });
}

QString lowerCase(const QString& s) {
    return cambiaLetras(s, [](QChar c) { return c.toLower(); });
}

bool EsUnNumero(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

QString AgrupaMiles(const QString& cifras) {
    const qsizetype signo = cifras.startsWith(u'-') ? 1 : 0;
    const qsizetype n = cifras.size() - signo;
    QString r;
    r.reserve(cifras.size() + n / 3);
    if (signo) r += u'-';
    for (qsizetype i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0) r += u'.';
        r += cifras[signo + i];
    }
    return r;
}

bool EsUnNumero(QStringView s) {
    return !s.isEmpty() && std::all_of(s.begin(), s.end(), [](QChar c) { return EsUnNumero(c); });
}

QString DejaSoloNumeros(const QString& s, bool conSeparadores) {
    QString r;
    for (QChar c : s)
        if (EsUnNumero(c) || (conSeparadores && (c == u',' || c == u'.'))) r += c;
    return r;
}

} // namespace nod
