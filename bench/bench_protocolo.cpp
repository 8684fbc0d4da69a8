// Cost per call of the fee routines the billing screens run for every line of an invoice.
#include "companion/config.h"
#include "protocol/aranceles.h"

#include <benchmark/benchmark.h>

using namespace nod;

namespace {

void configura() {
    Config.SetsTipoArancel(QString());
    Config.SetnCor_Tipo1(4.5);
    Config.SetnCor_Tipo2(1.5);
    Config.SetnCor_Tipo3(1.0);
    Config.SetnCor_Tipo4(0.5);
    Config.SetnCor_TipoR(1.5);
    Config.SetnCor_Tramo1(1000000);
    Config.SetnCor_Tramo2(10000000);
    Config.SetnCor_Tramo3(50000000);
    Config.SetnCor_f_Cuant(10000000);
    Config.SetnCor_minimo(3000);
}

void BM_Ges_Arancel_E(benchmark::State& s) {
    double importe = 1000;
    for (auto _ : s) {
        benchmark::DoNotOptimize(Ges_Arancel_E(importe));
        importe = importe < 900000 ? importe * 1.37 : 1000;
    }
}
BENCHMARK(BM_Ges_Arancel_E);

void BM_ARANCEL_C(benchmark::State& s) {
    configura();
    const QString si = QStringLiteral("SI"), no = QStringLiteral("NO"), factura = QStringLiteral("factura");
    double importe = 100000;
    for (auto _ : s) {
        benchmark::DoNotOptimize(ARANCEL_C(importe, si, factura, no));
        importe = importe < 1e8 ? importe * 1.37 : 100000;
    }
}
BENCHMARK(BM_ARANCEL_C);

void BM_BASE_C(benchmark::State& s) {
    configura();
    const QString no = QStringLiteral("NO");
    double objetivo = 5000;
    for (auto _ : s) {
        benchmark::DoNotOptimize(BASE_C(200000000, objetivo, no, no));
        objetivo = objetivo < 100000 ? objetivo * 1.37 : 5000;
    }
}
BENCHMARK(BM_BASE_C);

} // namespace

BENCHMARK_MAIN();
