// Words of numbers, amounts and dates per call, beside ICU's rule-based Spanish spell-out of the same
// pseudo-random numbers (one formatter, reused for every call), and FormateaFecha before and after its
// fixed words were made once.
#include "companion/fechas.h"
#include "companion/letrascatalan.h"
#include "companion/rnumcad.h"
#include "companion/tdatetime.h"
#include "text/fechas.h"
#include "text/formatos.h"
#include "text/letras.h"
#include "text/mayusculas.h"
#include "text/recorte.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <random>
#include <unicode/locid.h>
#include <unicode/rbnf.h>
#include <unicode/unistr.h>
#include <vector>

using namespace nod;

namespace {

constexpr size_t kMuestras = 4096;

std::vector<qint64> enteros(qint64 maximo) {
    std::mt19937_64 gen(20240531);
    std::uniform_int_distribution<qint64> d(0, maximo);
    std::vector<qint64> v(kMuestras);
    for (auto& x : v)
        x = d(gen);
    return v;
}

std::vector<double> importes(qint64 maximo) {
    std::mt19937_64 gen(20240531);
    std::uniform_int_distribution<qint64> d(0, maximo * 100 + 99);
    std::vector<double> v(kMuestras);
    for (auto& x : v)
        x = double(d(gen)) / 100; // euros and cents
    return v;
}

icu::RuleBasedNumberFormat& formateadorIcu() {
    static std::unique_ptr<icu::RuleBasedNumberFormat> f = [] {
        UErrorCode estado = U_ZERO_ERROR;
        auto r = std::make_unique<icu::RuleBasedNumberFormat>(icu::URBNF_SPELLOUT, icu::Locale("es"), estado);
        if (U_FAILURE(estado)) r.reset();
        return r;
    }();
    return *f;
}

void LetrasNod_(benchmark::State& state) {
    const auto numeros = enteros(state.range(0));
    size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(LetrasNod(numeros[i++ % kMuestras], u'M', u'N', false));
}

void Icu_SpellOut(benchmark::State& state) {
    const auto numeros = enteros(state.range(0));
    auto& f = formateadorIcu();
    size_t i = 0;
    for (auto _ : state) {
        icu::UnicodeString s;
        f.format(int64_t(numeros[i++ % kMuestras]), s);
        benchmark::DoNotOptimize(s);
    }
}

void FormateaCantidad_(benchmark::State& state) {
    const auto numeros = importes(state.range(0));
    size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(FormateaCantidad(QStringLiteral("M3N"), numeros[i++ % kMuestras]));
}

void Icu_SpellOutImporte(benchmark::State& state) {
    const auto numeros = importes(state.range(0));
    auto& f = formateadorIcu();
    size_t i = 0;
    for (auto _ : state) {
        icu::UnicodeString s;
        f.format(numeros[i++ % kMuestras], s);
        benchmark::DoNotOptimize(s);
    }
}

// FormateaFecha as it was written before its fixed words were made once per language and case: every
// call built every piece (day, month, weekday, joiners) and changed its case, then joined them pair by
// pair. Kept here only for the "before" column; the "after" must give the same text for every input.
namespace antes {

using namespace Qt::StringLiterals;

QString dosCifras(int n) {
    return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}

QString cifras(const QDate& d, bool ceros, bool anioLargo) {
    const QString anio =
        anioLargo ? QStringLiteral("%1").arg(d.year(), 4, 10, QLatin1Char('0')) : dosCifras(d.year() % 100);
    if (ceros) return dosCifras(d.day()) + u'/' + dosCifras(d.month()) + u'/' + anio;
    return QString::number(d.day()) + u'/' + QString::number(d.month()) + u'/' + anio;
}

struct Piezas {
    QString unirMes, unirAnio, delAnio, dia, anio, mes, diaSemana;
};

Piezas piezas(TDateTime fecha, const QDate& d, QChar caso, bool catalan) {
    auto union_ = [caso](const QString& j) { return caso == u'C' ? j : MayusMinus(j, caso); };
    Piezas p;
    if (catalan) {
        const int m = d.month();
        p.unirMes = m == 4 || m == 8 || m == 10 ? QStringLiteral(" d'") : QStringLiteral(" de ");
        p.unirAnio = QStringLiteral(" de ");
        p.delAnio = union_(QStringLiteral(" de l'any  "));
        p.dia = letrasEnCatalan(d.day(), u'M', caso, false);
        p.anio = letrasEnCatalan(d.year(), u'M', caso, false);
        p.mes = MayusMinus(MesToStr(m, 1, NombreMinusculas), caso);
        p.diaSemana = MayusMinus(DiaTexto(fecha, 1, NombreCapital), caso);
    } else {
        p.unirMes = p.unirAnio = union_(QStringLiteral(" de "));
        p.delAnio = union_(QStringLiteral(" del año "));
        p.dia = LetrasNod(d.day(), u'M', caso, false);
        p.anio = LetrasNod(d.year(), u'M', caso, false);
        p.mes = MayusMinus(MesToStr(d.month(), 0, NombreMinusculas), caso);
        p.diaSemana = MayusMinus(DiaTexto(fecha, 0, NombreMinusculas), caso);
    }
    return p;
}

QString FormateaFecha(const QString& formato, TDateTime fecha, bool catalan) {
    const QDate d = TDateTimeToQDate(fecha);
    if (!d.isValid()) return {};
    const QChar caso = formato.size() >= 3 ? UpperCase(formato.mid(2, 1))[0] : QChar();
    const QString codigo = formato.left(2);
    if (codigo == u"F2") return cifras(d, true, false);
    if (codigo == u"F3") return cifras(d, true, true);
    const int numero = codigo.size() == 2 && codigo[0] == u'F' ? codigo[1].unicode() - u'0' : 0;
    if (numero < 4 || numero > 8) return cifras(d, false, false);
    const Piezas p = piezas(fecha, d, caso, catalan);
    const QString mesYAnio = p.unirMes + p.mes + p.unirAnio;
    QString r;
    switch (numero) {
    case 4:
        r = p.dia + mesYAnio + p.anio;
        break;
    case 5:
        r = p.diaSemana + u", "_s + p.dia + mesYAnio + p.anio;
        break;
    case 6:
        r = QString::number(d.day()) + mesYAnio + QString::number(d.year());
        break;
    case 7:
        r = p.diaSemana + u", "_s + QString::number(d.day()) + mesYAnio + QString::number(d.year());
        break;
    case 8:
        r = p.dia + p.unirMes + p.mes + p.delAnio + p.anio;
        break;
    }
    return Trim(r);
}

} // namespace antes

// The same dates for both columns: 1899 to 2064. Arguments: template (1 "F5N", 0 "F8S"), Catalan.
template <QString (*Formatea)(const QString&, TDateTime, bool)> void formateaFecha(benchmark::State& state) {
    std::mt19937 gen(20240531);
    std::uniform_int_distribution<int> d(0, 60000);
    std::vector<TDateTime> fechas(kMuestras);
    for (auto& f : fechas)
        f = d(gen);
    const QString formato = state.range(0) ? QStringLiteral("F5N") : QStringLiteral("F8S");
    const bool catalan = state.range(1) != 0;
    for (TDateTime f : fechas)
        if (FormateaFecha(formato, f, catalan) != antes::FormateaFecha(formato, f, catalan)) {
            state.SkipWithError("FormateaFecha gives another text than before");
            return;
        }
    size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(Formatea(formato, fechas[i++ % kMuestras], catalan));
}

void FormateaFecha_(benchmark::State& state) {
    formateaFecha<&FormateaFecha>(state);
}

void FormateaFechaAntes_(benchmark::State& state) {
    formateaFecha<&antes::FormateaFecha>(state);
}

} // namespace

BENCHMARK(LetrasNod_)->Arg(999'999'999'999)->Arg(999'999);
BENCHMARK(Icu_SpellOut)->Arg(999'999'999'999)->Arg(999'999);
BENCHMARK(FormateaCantidad_)->Arg(999'999'999)->Arg(999'999);
BENCHMARK(Icu_SpellOutImporte)->Arg(999'999'999)->Arg(999'999);
BENCHMARK(FormateaFechaAntes_)->Args({1, 0})->Args({0, 0})->Args({1, 1});
BENCHMARK(FormateaFecha_)->Args({1, 0})->Args({0, 0})->Args({1, 1});

BENCHMARK_MAIN();
