// Identity and cadastral checks per call, on pseudo-random valid numbers (the common case at the counter).
#include "companion/documentos.h"
#include "ident/cif.h"
#include "ident/controlcatastral.h"
#include "ident/nif.h"

#include <QString>
#include <QStringList>
#include <benchmark/benchmark.h>
#include <random>

namespace {

QStringList cifs() {
    std::mt19937 rng(7);
    QStringList r;
    for (int i = 0; i < 1024; ++i) {
        const QString digitos = QStringLiteral("%1").arg(rng() % 10000000, 7, 10, QLatin1Char('0'));
        const QChar letra = QStringLiteral("ABEHPQS")[int(rng() % 7)];
        const int c = nod::ControlCIF(digitos);
        r << letra + digitos +
                 (letra == u'P' || letra == u'Q' || letra == u'S' ? QChar(u"JABCDEFGHI"[c])
                                                                  : QChar(u'0' + c));
    }
    return r;
}

QStringList referencias() {
    std::mt19937 rng(11);
    QStringList r;
    for (int i = 0; i < 1024; ++i) {
        QString ref = QStringLiteral("%1").arg(rng() % 10000000, 7, 10, QLatin1Char('0')) +
                      QStringLiteral("VH") +
                      QStringLiteral("%1").arg(rng() % 10000, 4, 10, QLatin1Char('0')) + u'S' +
                      QStringLiteral("%1").arg(rng() % 10000, 4, 10, QLatin1Char('0'));
        r << ref + nod::LetrasControlCatastral(ref);
    }
    return r;
}

void BM_EsCif(benchmark::State& state) {
    const QStringList numeros = cifs();
    qsizetype i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(nod::EsCif(numeros[i++ & 1023]));
}
BENCHMARK(BM_EsCif);

void BM_NIF(benchmark::State& state) {
    std::mt19937 rng(3);
    QStringList numeros;
    for (int i = 0; i < 1024; ++i)
        numeros << QString::number(rng() % 100000000);
    qsizetype i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(nod::NIF(numeros[i++ & 1023]));
}
BENCHMARK(BM_NIF);

void BM_ControlCatastralCorrecto(benchmark::State& state) {
    const QStringList refs = referencias();
    qsizetype i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(nod::ControlCatastralCorrecto(refs[i++ & 1023]));
}
BENCHMARK(BM_ControlCatastralCorrecto);

} // namespace

BENCHMARK_MAIN();
