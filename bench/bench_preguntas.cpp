// The data prompt in-process: a prompt routine building its form, showing it (laid out and painted)
// and reading the answer, once the form layer is up; and the heaviest and lightest panels alone.
// The same prompt answered in batch: by the form layer in-process (entered through its handlers, button
// pressed, response built), and through the real `nodrim batch`, started for one request and for many.
#include "apps/nodrim/formularios.h"
#include "apps/nodrim/lote.h"
#include "companion/config.h"
#include "companion/modal.h"
#include "prompts/preguntadatos.h"
#include "prompts/preguntasfechas.h"

#include <QApplication>
#include <QProcess>
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

using nod::lote::json;

const json kPeticion = {{"fn", "PreguntaMesAno"},
                        {"args", {0, 0, "Listado", 0, 0}},
                        {"today", "2024-03-10"},
                        {"answers", {{{"set", {{"cbMes", "DICIEMBRE"}, {"seAno4", "05"}}}}}}};

bool respondida(const json& r) {
    return !r.contains("error") && r["out"] == json({12, 2005});
}

void BM_PreguntaRespondidaEnProceso(benchmark::State& state) {
    nod::lote::InstalaRespuestaFormularios();
    for (auto _ : state) {
        const json r = nod::lote::Atiende(kPeticion, nod::lote::RutinasConFormularios());
        if (!respondida(r)) {
            state.SkipWithError(r.dump().c_str());
            break;
        }
    }
    nod::FijaEjecutorModal({});
}
BENCHMARK(BM_PreguntaRespondidaEnProceso)->Unit(benchmark::kMillisecond)->UseRealTime();

// `porLote` requests through one `nodrim batch` started for them; the time per request.
void BM_PreguntaPorNodrim(benchmark::State& state) {
    const int porLote = int(state.range(0));
    QByteArray entrada;
    for (int i = 0; i < porLote; ++i)
        entrada += QByteArray::fromStdString(kPeticion.dump()) + '\n';
    for (auto _ : state) {
        QProcess p;
        p.start(QStringLiteral(NODRIM_EXE), {QStringLiteral("batch")});
        p.write(entrada);
        p.closeWriteChannel();
        if (!p.waitForFinished(60000) || p.exitCode() != 0) {
            state.SkipWithError("nodrim batch did not run");
            break;
        }
        const QList<QByteArray> lineas = p.readAllStandardOutput().trimmed().split('\n');
        if (lineas.size() != porLote ||
            !respondida(json::parse(lineas.back().toStdString(), nullptr, false))) {
            state.SkipWithError("nodrim batch did not answer the form");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * porLote);
}
BENCHMARK(BM_PreguntaPorNodrim)
    ->ArgName("requests")
    ->Arg(1)
    ->Arg(200)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

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
