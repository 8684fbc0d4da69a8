// Words of numbers, amounts and dates per call, beside ICU's rule-based Spanish spell-out of the same
// pseudo-random numbers (one formatter, reused for every call).
#include "companion/tdatetime.h"
#include "text/fechas.h"
#include "text/formatos.h"
#include "text/letras.h"

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

void FormateaFecha_(benchmark::State& state) {
    std::mt19937 gen(20240531);
    std::uniform_int_distribution<int> d(0, 60000); // 1899 to 2064
    std::vector<TDateTime> fechas(kMuestras);
    for (auto& f : fechas)
        f = d(gen);
    const QString formato = state.range(0) ? QStringLiteral("F5N") : QStringLiteral("F8S");
    const bool catalan = state.range(1) != 0;
    size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(FormateaFecha(formato, fechas[i++ % kMuestras], catalan));
}

} // namespace

BENCHMARK(LetrasNod_)->Arg(999'999'999'999)->Arg(999'999);
BENCHMARK(Icu_SpellOut)->Arg(999'999'999'999)->Arg(999'999);
BENCHMARK(FormateaCantidad_)->Arg(999'999'999)->Arg(999'999);
BENCHMARK(Icu_SpellOutImporte)->Arg(999'999'999)->Arg(999'999);
BENCHMARK(FormateaFecha_)->Args({1, 0})->Args({0, 0})->Args({1, 1});

BENCHMARK_MAIN();
