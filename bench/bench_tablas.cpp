// Table layer speed: warm per-call lookups on the sample office (each call opens its table, as the
// routines do), and the client-code revision's core: scanning 1,000,000 records spread over tables, each
// code looked up in a 100,000-record clients table.
#include "companion/config.h"
#include "companion/tablas.h"
#include "ident/municipios.h"
#include "ident/paises.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace nod;

namespace {

void cargaOficinaMuestra() {
    Config.Carga(QStringLiteral(NOD_SOURCE_DIR "/sample-office"));
}

void BM_BusquedaMunicipio(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(BusquedaMunicipio(QStringLiteral("28"), QStringLiteral("079")));
}
BENCHMARK(BM_BusquedaMunicipio);

void BM_Cod_PaisBOE(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(Cod_PaisBOE(QStringLiteral("ALEMANIA")));
}
BENCHMARK(BM_Cod_PaisBOE);

// A table of `n` records with a numeric CODCLIENTE field, written in one go.
void escribeTabla(const QString& ruta, int n, int desde, int paso) {
    CreaFicheroDbf(ruta, {{QStringLiteral("CODCLIENTE"), 'N', 8, 0}, {QStringLiteral("TEXTO"), 'C', 30, 0}});
    QFile f(ruta);
    f.open(QIODevice::ReadWrite);
    QByteArray b = f.readAll();
    if (b.endsWith('\x1a')) b.chop(1);
    for (int i = 0; i < n; ++i)
        b += ' ' + QByteArray::number(desde + i * paso).rightJustified(8, ' ') + QByteArray(30, 'x');
    b += '\x1a';
    b[4] = char(n & 0xFF);
    b[5] = char(n >> 8 & 0xFF);
    b[6] = char(n >> 16 & 0xFF);
    b[7] = char(n >> 24 & 0xFF);
    f.seek(0);
    f.write(b);
}

void BM_RevisionCodigos(benchmark::State& st) {
    QTemporaryDir dir;
    const QString clientes = dir.filePath(QStringLiteral("CLIENTES.DBF"));
    escribeTabla(clientes, 100000, 1, 1);
    QStringList tablas;
    for (int t = 0; t < 10; ++t) {
        tablas << dir.filePath(QStringLiteral("T%1.DBF").arg(t));
        escribeTabla(tablas.last(), 100000, t, 7); // some codes beyond 100,000: misses
    }
    qint64 fallos = 0, leidos = 0;
    for (auto _ : st) {
        auto cli = TTabla::AbreRuta(clientes, QStringLiteral("CODCLIENTE"));
        for (const QString& ruta : tablas) {
            auto tb = TTabla::AbreRuta(ruta);
            const int campo = tb->IndiceCampo(QStringLiteral("CODCLIENTE"));
            for (tb->First(); !tb->Eof(); tb->Next()) {
                const qint64 codigo = tb->AsLargeInt(campo);
                ++leidos;
                if (codigo != 0 && !TBBusca(*cli, {{QStringLiteral("CODCLIENTE"), codigo}})) ++fallos;
            }
        }
    }
    st.counters["registros/s"] = benchmark::Counter(double(leidos), benchmark::Counter::kIsRate);
    benchmark::DoNotOptimize(fallos);
}
BENCHMARK(BM_RevisionCodigos)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
