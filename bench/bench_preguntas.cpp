// The data prompt in-process: a prompt routine building its form, showing it (laid out and painted)
// and reading the answer, once the form layer is up; and the heaviest and lightest panels alone.
#include "companion/config.h"
#include "companion/modal.h"
#include "prompts/preguntadatos.h"
#include "prompts/preguntasfechas.h"

#include <QApplication>
#include <QPushButton>
#include <benchmark/benchmark.h>

namespace {

// Shows the form as exec() would, lets it lay out and paint, and accepts it.
int muestraYAcepta(QDialog& d) {
    d.show();
    QApplication::processEvents();
    d.done(1);
    return d.result();
}

void BM_PreguntaMesAno(benchmark::State& state) {
    nod::EjecutorModalInstalado ejecutor(muestraYAcepta);
    for (auto _ : state) {
        int mes = 0, ano = 0;
        const bool r = nod::PreguntaMesAno(mes, ano, QStringLiteral("Listado mensual"), 0, 0);
        benchmark::DoNotOptimize(r);
        benchmark::DoNotOptimize(mes);
    }
}
BENCHMARK(BM_PreguntaMesAno)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_FormularioMostrado(benchmark::State& state, const char* tipo) {
    for (auto _ : state) {
        nod::TFPreguntaDatos f(nullptr, QString::fromUtf8(tipo));
        muestraYAcepta(f);
    }
}
BENCHMARK_CAPTURE(BM_FormularioMostrado, BalanMensualCobro, "BalanMensualCobro")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BM_FormularioMostrado, Texto, "Texto")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    nod::Config.Carga(nod::CarpetaOficinaPorDefecto());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
