// Table layer speed: warm per-call lookups on the sample office (each call opens its table, as the
// routines do), and the client-code revision's core: scanning 1,000,000 records spread over tables, each
// code looked up in a 100,000-record clients table.
#include "companion/config.h"
#include "ident/municipios.h"
#include "ident/paises.h"
#include "tables/tablas.h"

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

// The ten tables of 100,000 records and the clients table, written once for every run of the benchmarks.
struct TablasRevision {
    QTemporaryDir dir;
    QString clientes = dir.filePath(QStringLiteral("CLIENTES.DBF"));
    QStringList tablas;
    TablasRevision() {
        escribeTabla(clientes, 100000, 1, 1);
        for (int t = 0; t < 10; ++t) {
            tablas << dir.filePath(QStringLiteral("T%1.DBF").arg(t));
            escribeTabla(tablas.last(), 100000, t, 7); // some codes beyond 100,000: misses
        }
    }
};

const TablasRevision& tablasRevision() {
    static const TablasRevision t;
    return t;
}

// Every code of every table looked up in the clients table: `busca` is the lookup under test.
// `enFrio`: every run reads the files again and builds the clients' order (otherwise the loaded images of
// the first run serve the rest, as they do a routine that reopens unchanged tables).
template <typename Busca> void revisaCodigos(benchmark::State& st, Busca busca, bool enFrio = false) {
    const TablasRevision& t = tablasRevision();
    qint64 fallos = 0, leidos = 0;
    for (auto _ : st) {
        if (enFrio) OlvidaTablasCargadas();
        auto cli = TTabla::AbreRuta(t.clientes, QStringLiteral("CODCLIENTE"));
        for (const QString& ruta : t.tablas) {
            auto tb = TTabla::AbreRuta(ruta);
            const int campo = tb->IndiceCampo(QStringLiteral("CODCLIENTE"));
            for (tb->First(); !tb->Eof(); tb->Next()) {
                const qint64 codigo = tb->AsLargeInt(campo);
                ++leidos;
                if (codigo != 0 && !busca(*cli, codigo)) ++fallos;
            }
        }
    }
    st.counters["registros/s"] = benchmark::Counter(double(leidos), benchmark::Counter::kIsRate);
    benchmark::DoNotOptimize(fallos);
}

// The scan as a revision routine writes it: fields resolved once, keys through the fast path.
void BM_RevisionCodigos(benchmark::State& st) {
    revisaCodigos(st, [](TTabla& cli, qint64 codigo) { return TBBuscaClave(cli, double(codigo)); });
}
BENCHMARK(BM_RevisionCodigos)->Unit(benchmark::kMillisecond);

// The same, reading every table from the file each time.
void BM_RevisionCodigosEnFrio(benchmark::State& st) {
    revisaCodigos(
        st, [](TTabla& cli, qint64 codigo) { return TBBuscaClave(cli, double(codigo)); }, true);
}
BENCHMARK(BM_RevisionCodigosEnFrio)->Unit(benchmark::kMillisecond);

// The same with the general search (a key list built per call), for comparison.
void BM_RevisionCodigosTBBusca(benchmark::State& st) {
    revisaCodigos(st, [](TTabla& cli, qint64 codigo) {
        return TBBusca(cli, {{QStringLiteral("CODCLIENTE"), codigo}});
    });
}
BENCHMARK(BM_RevisionCodigosTBBusca)->Unit(benchmark::kMillisecond);

// The scan alone, without lookups: what reading records and decoding a field at its offset costs.
void BM_RecorridoSinBusqueda(benchmark::State& st) {
    revisaCodigos(st, [](TTabla&, qint64 codigo) { return codigo > 0; });
}
BENCHMARK(BM_RecorridoSinBusqueda)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
