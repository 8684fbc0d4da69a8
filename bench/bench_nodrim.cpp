// `nodrim batch`: how fast it starts (the real program, empty input) and how many requests per second it
// answers for a trivial routine.
#include "apps/nodrim/lote.h"
#include "companion/config.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

// Starts `nodrim batch` with standard input and output on /dev/null and waits for it to end.
bool ejecutaNodrimVacio() {
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_addopen(&acciones, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&acciones, 1, "/dev/null", O_WRONLY, 0);
    char programa[] = NODRIM_EXE;
    char batch[] = "batch";
    char* argv[] = {programa, batch, nullptr};
    pid_t pid = 0;
    const int r = posix_spawn(&pid, programa, &acciones, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&acciones);
    if (r != 0) return false;
    int estado = 0;
    return waitpid(pid, &estado, 0) == pid && WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

void BM_ArranqueLoteVacio(benchmark::State& state) {
    for (auto _ : state) {
        if (!ejecutaNodrimVacio()) {
            state.SkipWithError("nodrim batch did not run");
            break;
        }
    }
}
BENCHMARK(BM_ArranqueLoteVacio)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);

void BM_PeticionesTriviales(benchmark::State& state) {
    const int porLote = int(state.range(0));
    std::string entrada;
    for (int i = 0; i < porLote; ++i)
        entrada += R"({"fn":"AliasNotario","args":[3]})"
                   "\n";
    for (auto _ : state) {
        std::istringstream in(entrada);
        std::ostringstream out;
        nod::lote::Procesa(in, out);
        benchmark::DoNotOptimize(out.str().size());
    }
    state.SetItemsProcessed(state.iterations() * porLote);
}
BENCHMARK(BM_PeticionesTriviales)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();

// The longest line accepted (1 MiB): a text argument as long as it can be, and the costliest shape to
// parse, as many empty objects as fit.
void BM_LineaMasLarga(benchmark::State& state) {
    const bool objetos = state.range(0) != 0;
    const std::string inicio =
        objetos ? R"({"fn":"AliasNotario","args":[)" : R"({"fn":"QuitaAcentos","args":[")";
    const std::string fin = objetos ? "]}" : "\"]}";
    std::string linea = inicio;
    const std::size_t cabe = nod::lote::kLineaMaxima - inicio.size() - fin.size();
    if (objetos) {
        linea += "{}";
        while (linea.size() + 3 <= inicio.size() + cabe)
            linea += ",{}";
    } else {
        linea.append(cabe, 'a');
    }
    linea += fin;
    for (auto _ : state)
        benchmark::DoNotOptimize(nod::lote::AtiendeLinea(linea, 1));
    state.SetBytesProcessed(state.iterations() * std::int64_t(linea.size()));
}
BENCHMARK(BM_LineaMasLarga)->ArgName("objects")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    nod::Config.Carga(nod::CarpetaOficinaPorDefecto());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
