#include "companion/documentos.h"

#include "companion/rnumcad.h"

namespace nod {

namespace {

constexpr QStringView kLetrasNIF = u"TRWAGMYFPDXBNJZSQVHLCKE";
constexpr QStringView kLetrasControlCIF = u"JABCDEFGHI";

bool esLetraAscii(QChar c) {
    return c >= u'A' && c <= u'Z';
}

// The value of a run of at most 18 digits already checked with sonDigitos.
qint64 valor(QStringView digitos) {
    qint64 v = 0;
    for (QChar c : digitos)
        v = v * 10 + (c.unicode() - u'0');
    return v;
}

QString forma(const QString& s, bool normaliza) {
    return normaliza ? PreparaCIFNIF(s) : s;
}

// A letter followed by 7 digits and a last character, the common frame of CIF, NIE and K/L/M numbers.
bool letraSieteDigitosYControl(QStringView t, QStringView letras) {
    return t.size() == 9 && letras.contains(t[0]) && EsUnNumero(t.mid(1, 7));
}

} // namespace

QString PreparaCIFNIF(const QString& s) {
    QString r;
    r.reserve(s.size());
    for (QChar c : s)
        if (!c.isSpace() && c != u'.' && c != u'-' && c != u'/') r.append(c);
    return r.toUpper();
}

QChar LetraNIF(qint64 numero) {
    if (numero < 0) return QChar();
    return kLetrasNIF[numero % 23];
}

bool EsNif(const QString& s, bool normaliza) {
    const QString t = forma(s, normaliza);
    return t.size() == 9 && EsUnNumero(QStringView(t).left(8)) &&
           LetraNIF(valor(QStringView(t).left(8))) == t[8];
}

bool EsUnNie(const QString& s, bool normaliza) {
    const QString t = forma(s, normaliza);
    if (!letraSieteDigitosYControl(t, u"XYZ")) return false;
    const qint64 numero = (t[0].unicode() - u'X') * 10'000'000LL + valor(QStringView(t).mid(1, 7));
    return LetraNIF(numero) == t[8];
}

int ControlCIF(QStringView digitos) {
    if (digitos.size() != 7 || !EsUnNumero(digitos)) return -1;
    int suma = 0;
    for (int i = 0; i < 7; ++i) {
        const int d = digitos[i].unicode() - u'0';
        // The digits in odd places (first, third ...) count doubled, each double by the sum of its digits.
        suma += i % 2 == 0 ? (2 * d) / 10 + (2 * d) % 10 : d;
    }
    return (10 - suma % 10) % 10;
}

bool EsUnCif(const QString& s, bool normaliza) {
    const QString t = forma(s, normaliza);
    if (!letraSieteDigitosYControl(t, u"ABCDEFGHJNPQRSUVW")) return false;
    const int control = ControlCIF(QStringView(t).mid(1, 7));
    const QChar ultimo = t[8];
    const bool conLetra = ultimo == kLetrasControlCIF[control];
    const bool conDigito = ultimo == QChar(u'0' + control);
    const bool soloLetra = QStringView(u"NPQRSW").contains(t[0]) || QStringView(t).mid(1, 2) == u"00";
    const bool soloDigito = QStringView(u"ABEH").contains(t[0]);
    if (soloLetra) return conLetra;
    if (soloDigito) return conDigito;
    return conLetra || conDigito;
}

int QueTipoDeDocumentoEs(const QString& s) {
    const QString t = PreparaCIFNIF(s);
    const QStringView v(t);
    if (t.size() == 9 && EsUnNumero(v.left(8)) && esLetraAscii(t[8])) return 1;
    if (letraSieteDigitosYControl(t, u"KLM") && esLetraAscii(t[8])) return 1;
    if (letraSieteDigitosYControl(t, u"XYZ") && esLetraAscii(t[8])) return 3;
    if (letraSieteDigitosYControl(t, u"ABCDEFGHJNPQRSUVW") &&
        (EsUnNumero(t[8]) || kLetrasControlCIF.contains(t[8])))
        return 2;
    bool algunDigito = false;
    for (QChar c : t) {
        if (!EsUnNumero(c) && !esLetraAscii(c)) return 5;
        algunDigito = algunDigito || EsUnNumero(c);
    }
    return algunDigito && t.size() >= 5 && t.size() <= 15 ? 4 : 5;
}

} // namespace nod
