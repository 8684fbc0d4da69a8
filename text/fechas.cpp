#include "text/fechas.h"

#include "companion/fechas.h"
#include "companion/letrascatalan.h"
#include "companion/rnumcad.h"
#include "text/lecturanumeros.h"
#include "text/letras.h"
#include "text/limpieza.h"
#include "text/mayusculas.h"
#include "text/recorte.h"

#include <array>
#include <initializer_list>

namespace nod {

using namespace Qt::StringLiterals;

namespace {

const QString kMascaraVacia = QStringLiteral("  /  /    ");

QString dosCifras(int n) {
    return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}

QString cifras(const QDate& d, bool ceros, bool anioLargo) {
    const QString anio =
        anioLargo ? QStringLiteral("%1").arg(d.year(), 4, 10, QLatin1Char('0')) : dosCifras(d.year() % 100);
    if (ceros) return dosCifras(d.day()) + u'/' + dosCifras(d.month()) + u'/' + anio;
    return QString::number(d.day()) + u'/' + QString::number(d.month()) + u'/' + anio;
}

// The fixed words of worded dates, in each language and case, made once with the routines that make
// them (so they are the same words): the case character of a template is one of four kinds, 'S' lower,
// 'N' upper, 'C' capitalised and any other (the words as produced), for the number words as for the rest.
constexpr QChar kCasos[] = {u'S', u'N', u'C', QChar()};

int claseDeCaso(QChar caso) {
    switch (caso.unicode()) {
    case u'S':
        return 0;
    case u'N':
        return 1;
    case u'C':
        return 2;
    default:
        return 3;
    }
}

struct PalabrasFecha {
    QString unirMes[3]; // between day and month; Catalan: [0] " de ", [1] " d'" before abril, agost, octubre
    QString unirAnio;   // between month and year (F4 to F7)
    QString delAnio;    // between month and year (F8)
    QString dias[32];   // day of the month in words, from 1
    QString meses[13];  // from 1
    QString semana[8];  // weekday, from 1 (Monday)
};

PalabrasFecha construyePalabras(bool catalan, QChar caso) {
    // With 'C' the joiners stay lower case; the other case characters convert them.
    auto union_ = [caso](const QString& j) { return caso == u'C' ? j : MayusMinus(j, caso); };
    PalabrasFecha p;
    const int idioma = catalan ? 1 : 0;
    if (catalan) {
        p.unirMes[0] = p.unirAnio = QStringLiteral(" de ");
        p.unirMes[1] = QStringLiteral(" d'");
        p.delAnio = union_(QStringLiteral(" de l'any  "));
    } else {
        p.unirMes[0] = p.unirMes[1] = p.unirAnio = union_(QStringLiteral(" de "));
        p.delAnio = union_(QStringLiteral(" del año "));
    }
    for (int d = 1; d <= 31; ++d)
        p.dias[d] = catalan ? letrasEnCatalan(d, u'M', caso, false) : LetrasNod(d, u'M', caso, false);
    for (int m = 1; m <= 12; ++m)
        p.meses[m] = MayusMinus(MesToStr(m, idioma, NombreMinusculas), caso);
    // The weekday of 3 January 2000 (a Monday) and the six days after it.
    for (int w = 1; w <= 7; ++w)
        p.semana[w] = MayusMinus(
            DiaTexto(EncodeDate(2000, 1, 2 + w), idioma, catalan ? NombreCapital : NombreMinusculas), caso);
    return p;
}

const PalabrasFecha& palabrasFecha(bool catalan, int clase) {
    static const auto tablas = [] {
        std::array<std::array<PalabrasFecha, 4>, 2> t;
        for (int c = 0; c < 4; ++c) {
            t[0][size_t(c)] = construyePalabras(false, kCasos[c]);
            t[1][size_t(c)] = construyePalabras(true, kCasos[c]);
        }
        return t;
    }();
    return tablas[catalan ? 1 : 0][size_t(clase)];
}

// Joins the pieces of a worded date into one text, allocated once.
QString junta(std::initializer_list<QStringView> piezas) {
    qsizetype n = 0;
    for (QStringView p : piezas)
        n += p.size();
    QString r;
    r.reserve(n);
    for (QStringView p : piezas)
        r.append(p);
    return r;
}

// Lower case, outer blanks and final full stops gone, accents removed (after `preparar` has run on
// the lower-cased text).
template <typename F> QString limpiaFecha(const QString& texto, F preparar) {
    QString t = TrimLeft(preparar(lowerCase(texto)));
    qsizetype n = t.size();
    while (n > 0 && (t[n - 1] <= u' ' || t[n - 1] == u'.'))
        --n;
    return QuitaAcentoMayMin(t.left(n));
}

// "<day><joiner><month> de <year>" with the month looked up in `meses`.
QString leeFecha(const QString& t, qsizetype finDia, qsizetype largoUnion, const char16_t* const (&meses)[13],
                 bool catalan) {
    if (finDia < 0) return kMascaraVacia;
    const QString resto = t.mid(finDia + largoUnion);
    const qsizetype finMes = resto.indexOf(u" de ");
    if (finMes < 0) return kMascaraVacia;
    const QString mes = resto.left(finMes);
    int numeroMes = 0;
    for (int i = 0; i < 13 && numeroMes == 0; ++i)
        if (mes == QStringView(meses[i]))
            numeroMes = i < 12 ? i + 1 : 9; // the thirteenth word is another spelling of September
    if (numeroMes == 0) return kMascaraVacia;
    const int dia = ConvierteNumeroDeCadenaAEnteroNod(t.left(finDia), catalan);
    const int anio = ConvierteNumeroDeCadenaAEnteroNod(resto.mid(finMes + 4), catalan);
    return StrCeros(dia, 2) + u'/' + dosCifras(numeroMes) + u'/' + QString::number(anio);
}

const char16_t* const kMesesEs[13] = {u"enero",     u"febrero",   u"marzo",    u"abril",      u"mayo",
                                      u"junio",     u"julio",     u"agosto",   u"septiembre", u"octubre",
                                      u"noviembre", u"diciembre", u"setiembre"};
// Catalan has a single spelling; the thirteenth slot never matches.
const char16_t* const kMesesCa[13] = {u"gener",    u"febrer",   u"març",  u"abril",    u"maig",
                                      u"juny",     u"juliol",   u"agost", u"setembre", u"octubre",
                                      u"novembre", u"desembre", u"\n"};

// "de l'any  dos mil" -> "de dos mil": every "l'any" goes with the blanks after it, also one that the
// removal of another brings together ("l'l'anyany"). One pass: the text kept so far never holds one.
QString sinLAny(const QString& s) {
    static constexpr QStringView kLAny = u"l'any";
    QString r;
    r.reserve(s.size());
    for (qsizetype i = 0; i < s.size(); ++i) {
        r += s[i];
        if (!r.endsWith(kLAny)) continue;
        r.chop(kLAny.size());
        while (i + 1 < s.size() && s[i + 1] == u' ')
            ++i;
    }
    return r;
}

} // namespace

QString FormateaFecha(const QString& formato, TDateTime fecha, bool catalan) {
    const QDate d = TDateTimeToQDate(fecha);
    if (!d.isValid()) return {};
    const QStringView codigo = QStringView(formato).left(2);
    if (codigo == u"F2") return cifras(d, true, false);
    if (codigo == u"F3") return cifras(d, true, true);
    const int numero = codigo.size() == 2 && codigo[0] == u'F' ? codigo[1].unicode() - u'0' : 0;
    if (numero < 4 || numero > 8) return cifras(d, false, false); // "F1" and any other code
    // The case character, in either case; only 'S', 'N' and 'C' mean anything.
    const QChar caso = formato.size() >= 3 ? formato[2].toUpper() : QChar();
    const int clase = claseDeCaso(caso);
    const PalabrasFecha& p = palabrasFecha(catalan, clase);
    const int dia = d.day(), mes = d.month(), anio = d.year();
    const QString& unirMes = p.unirMes[catalan && (mes == 4 || mes == 8 || mes == 10) ? 1 : 0];
    const auto enLetras = [&](int n) {
        return catalan ? letrasEnCatalan(n, u'M', kCasos[clase], false)
                       : LetrasNod(n, u'M', kCasos[clase], false);
    };
    QString r;
    switch (numero) {
    case 4:
        r = junta({p.dias[dia], unirMes, p.meses[mes], p.unirAnio, enLetras(anio)});
        break;
    case 5:
        r = junta(
            {p.semana[d.dayOfWeek()], u", ", p.dias[dia], unirMes, p.meses[mes], p.unirAnio, enLetras(anio)});
        break;
    case 6:
        r = junta({QString::number(dia), unirMes, p.meses[mes], p.unirAnio, QString::number(anio)});
        break;
    case 7:
        r = junta({p.semana[d.dayOfWeek()], u", ", QString::number(dia), unirMes, p.meses[mes], p.unirAnio,
                   QString::number(anio)});
        break;
    case 8:
        r = junta({p.dias[dia], unirMes, p.meses[mes], p.delAnio, enLetras(anio)});
        break;
    }
    // Only a year out of the words' range leaves a blank at an end (its words are empty).
    return r.isEmpty() || (r.front() > u' ' && r.back() > u' ') ? r : Trim(r);
}

QString PonerFechaNod(int modo, const QString& lugar, bool catalan, TDateTime fecha) {
    if (fecha == 0) {
        const QString enBlanco =
            QStringLiteral("    ") + u" de "_s + QString(12, u' ') + u" de "_s + QString(6, u' ');
        switch (modo) {
        case 3:
            return lugar + u" a "_s + enBlanco;
        case 4:
            return enBlanco;
        case 5:
            return QString(12, u' ');
        default:
            return {};
        }
    }
    const QDate d = TDateTimeToQDate(fecha);
    if (!d.isValid()) return {};
    const QString mes = MesToStr(d.month(), catalan ? 1 : 0, NombreCapital);
    const QString fechaLarga =
        QString::number(d.day()) + u" de "_s + mes + u" de "_s + QString::number(d.year());
    switch (modo) {
    case 1:
        return cifras(d, true, false);
    case 2:
        return cifras(d, true, true);
    case 3:
        return lugar + u" a "_s + fechaLarga;
    case 4:
        return fechaLarga;
    case 5:
        return mes;
    default:
        return {};
    }
}

QString TraduceFechaNod(const QString& texto) {
    const QString t = limpiaFecha(texto, [](QString s) { return s.replace(u"del año"_s, u"de"_s); });
    return leeFecha(t, t.indexOf(u" de "), 4, kMesesEs, false);
}

QString TraduceFechaCatalan(const QString& texto) {
    const QString t = limpiaFecha(texto, sinLAny);
    const qsizetype de = t.indexOf(u" de "), d = t.indexOf(u" d'");
    if (d >= 0 && (de < 0 || d < de)) return leeFecha(t, d, 3, kMesesCa, true);
    return leeFecha(t, de, 4, kMesesCa, true);
}

} // namespace nod
