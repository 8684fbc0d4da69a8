// Cost per call of the names and folders of a deed's files, which the document programs ask for once per
// deed when they walk a year of the protocol (merging, sending copies, archiving scans). The office is a
// copy of the sample office's configuration in a temporary folder, so the folders the routines create
// land there; after the first call every folder exists and a call costs its look at the disk.
#include "companion/config.h"
#include "frame/notarios.h"
#include "protocol/carpetasdocumentos.h"
#include "protocol/imagenesnotario.h"
#include "protocol/nombresdocumentos.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace nod;

namespace {

// The sample office's configuration in a temporary folder, loaded into Config for the whole run.
const QTemporaryDir& oficina() {
    static QTemporaryDir dir;
    static const bool cargada = [] {
        QDir().mkpath(dir.filePath(QStringLiteral("CONFIG")));
        for (const char* ini : {"CONFIG.INI", "VARIOS.INI"})
            QFile::copy(QStringLiteral(NOD_SOURCE_DIR "/sample-office/CONFIG/") + QLatin1String(ini),
                        dir.filePath(QStringLiteral("CONFIG/")) + QLatin1String(ini));
        Config.Carga(dir.path());
        return true;
    }();
    (void)cargada;
    return dir;
}

// The deed numbers of a walk through one year, notaries taking turns.
struct Escrituras {
    int numero = 1;
    int notario() const { return 1 + numero % 2; }
    void siguiente() { numero = numero < 2000 ? numero + 1 : 1; }
};

void BM_FicheroSello(benchmark::State& st) {
    oficina();
    const QString notario = QStringLiteral(" 2 ");
    for (auto _ : st)
        benchmark::DoNotOptimize(FicheroSello(notario));
}
BENCHMARK(BM_FicheroSello);

void BM_InicialesNotario(benchmark::State& st) {
    oficina();
    int notario = 1;
    for (auto _ : st) {
        benchmark::DoNotOptimize(InicialesNotario(notario));
        notario = 3 - notario;
    }
}
BENCHMARK(BM_InicialesNotario);

// The office's template: initials, year and number.
void BM_DameNombreFicheroWordEscrituras(benchmark::State& st) {
    oficina();
    Escrituras e;
    for (auto _ : st) {
        benchmark::DoNotOptimize(
            DameNombreFicheroWordEscrituras(0, e.notario(), e.numero, 2024, e.numero % 4));
        e.siguiente();
    }
}
BENCHMARK(BM_DameNombreFicheroWordEscrituras);

// A template without the initials: no notary to select.
void BM_DameNombreFicheroWordEscrituras_SinIniciales(benchmark::State& st) {
    oficina();
    const QString anterior = Config.GetsEnlaceWordNombreFichero();
    Config.SetsEnlaceWordNombreFichero(QStringLiteral("<AÑO4>-<NUMERO5>"));
    Escrituras e;
    for (auto _ : st) {
        benchmark::DoNotOptimize(
            DameNombreFicheroWordEscrituras(0, e.notario(), e.numero, 2024, e.numero % 4));
        e.siguiente();
    }
    Config.SetsEnlaceWordNombreFichero(anterior);
}
BENCHMARK(BM_DameNombreFicheroWordEscrituras_SinIniciales);

void BM_DameNombreFicheroCopiaAutorizada(benchmark::State& st) {
    const QString cola = QStringLiteral("A");
    Escrituras e;
    for (auto _ : st) {
        benchmark::DoNotOptimize(DameNombreFicheroCopiaAutorizada(cola, e.numero, e.numero % 4));
        e.siguiente();
    }
}
BENCHMARK(BM_DameNombreFicheroCopiaAutorizada);

// Folders that exist already (the first call of each created it): one look at the disk per call.
void BM_DameCarpetaFicheroWordEscrituras(benchmark::State& st) {
    oficina();
    Escrituras e;
    for (auto _ : st) {
        benchmark::DoNotOptimize(DameCarpetaFicheroWordEscrituras(0, e.notario(), 2024));
        e.siguiente();
    }
}
BENCHMARK(BM_DameCarpetaFicheroWordEscrituras);

void BM_DameCarpetaFicheroCopiaAutorizada(benchmark::State& st) {
    oficina();
    Escrituras e;
    for (auto _ : st) {
        benchmark::DoNotOptimize(DameCarpetaFicheroCopiaAutorizada(e.notario(), 2024));
        e.siguiente();
    }
}
BENCHMARK(BM_DameCarpetaFicheroCopiaAutorizada);

// One folder per deed: the walk creates 2,000 folders on its first pass, then finds them.
void BM_DameCarpetaFicherosElectronicosEscrituras(benchmark::State& st) {
    oficina();
    Escrituras e;
    for (auto _ : st) {
        benchmark::DoNotOptimize(
            DameCarpetaFicherosElectronicosEscrituras(0, e.notario(), e.numero, 0, 2024, QString()));
        e.siguiente();
    }
}
BENCHMARK(BM_DameCarpetaFicherosElectronicosEscrituras);

} // namespace

BENCHMARK_MAIN();
