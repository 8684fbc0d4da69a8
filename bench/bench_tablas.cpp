// Table layer speed: warm per-call lookups on the sample office (each call opens its table, as the
// routines do) beside in-memory indexes of the same tables, and the client-code revision's core: scanning
// 1,000,000 records spread over tables, each code looked up in a 100,000-record clients table.
#include "companion/config.h"
#include "ident/colegios.h"
#include "ident/empleados.h"
#include "ident/municipios.h"
#include "ident/paises.h"
#include "tables/tablas.h"
#include "text/recorte.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace nod;

namespace {

void cargaOficinaMuestra() {
    Config.Carga(QStringLiteral(NOD_SOURCE_DIR "/sample-office"));
}

// Per-call lookups, warm: each call opens its table, looks at the file (so that a change made by another
// workstation is seen on the next call) and searches it. Beside each, the same search on a handle opened
// once: the tag's order already in memory, no open and no look at the file. For the municipality, also a
// hash built once from the table (what a program that loaded the table would keep): the least a lookup
// can cost. And what looking at the file costs alone: one stat().

// The same search as the routine, on a table kept open (its range, filter and tag set once).
struct TablaAbierta {
    std::unique_ptr<TTabla> tb;
    TablaAbierta(const char* fichero, const char* etiqueta, const char* filtro = "") {
        cargaOficinaMuestra();
        tb = CreaTabla(Config.GetAliasNodrim(), QLatin1String(fichero), QLatin1String(etiqueta));
        TBFiltra(*tb, QLatin1String(filtro));
    }
    [[gnu::noinline]] QString busca(const TClaves& claves, const char* campo) {
        return TBBusca(*tb, claves) ? Trim(tb->AsString(QLatin1String(campo))) : QString();
    }
};

void BM_BusquedaMunicipio(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(BusquedaMunicipio(QStringLiteral("28"), QStringLiteral("079")));
}
BENCHMARK(BM_BusquedaMunicipio);

void BM_BusquedaMunicipio_TablaAbierta(benchmark::State& st) {
    TablaAbierta t("MUNICIPI.DBF", "CPROVMUN");
    const QString provincia = QStringLiteral("28"), municipio = QStringLiteral("079");
    for (auto _ : st)
        benchmark::DoNotOptimize(
            t.busca({{QStringLiteral("COD_PROV"), Trim(provincia)}, {QStringLiteral("COD_MUN"), municipio}},
                    "NOMBRE"));
}
BENCHMARK(BM_BusquedaMunicipio_TablaAbierta);

void BM_BusquedaMunicipio_Hash(benchmark::State& st) {
    cargaOficinaMuestra();
    using Clave = std::pair<QString, QString>;
    QHash<Clave, QString> indice;
    auto tb = CreaTabla(Config.GetAliasNodrim(), QStringLiteral("MUNICIPI.DBF"));
    for (tb->First(); !tb->Eof(); tb->Next())
        indice.insert(Clave(Trim(tb->AsString(QStringLiteral("COD_PROV"))),
                            Trim(tb->AsString(QStringLiteral("COD_MUN")))),
                      Trim(tb->AsString(QStringLiteral("NOMBRE"))));
    const QString provincia = QStringLiteral("28"), municipio = QStringLiteral("079");
    for (auto _ : st)
        benchmark::DoNotOptimize(indice.value(Clave(Trim(provincia), municipio)));
}
BENCHMARK(BM_BusquedaMunicipio_Hash);

void BM_Cod_PaisBOE(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(Cod_PaisBOE(QStringLiteral("ALEMANIA")));
}
BENCHMARK(BM_Cod_PaisBOE);

void BM_Cod_PaisBOE_TablaAbierta(benchmark::State& st) {
    TablaAbierta t("PROVIN.DBF", "ALFABETICO", "GRUPO='2'");
    const QString nombre = QStringLiteral("ALEMANIA");
    for (auto _ : st)
        benchmark::DoNotOptimize(t.busca({{QStringLiteral("PROVINCIA"), Trim(nombre)}}, "BOE_161299"));
}
BENCHMARK(BM_Cod_PaisBOE_TablaAbierta);

void BM_Cod_ProvToNombre(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(Cod_ProvToNombre(QStringLiteral("28")));
}
BENCHMARK(BM_Cod_ProvToNombre);

void BM_Cod_ProvToNombre_TablaAbierta(benchmark::State& st) {
    TablaAbierta t("PROVIN.DBF", "CODIGO", "GRUPO='1'");
    for (auto _ : st)
        benchmark::DoNotOptimize(t.busca({{QStringLiteral("CODIGO"), QStringLiteral("28")}}, "PROVINCIA"));
}
BENCHMARK(BM_Cod_ProvToNombre_TablaAbierta);

void BM_Empleado(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(Empleado(1, QStringLiteral("EMAIL")));
}
BENCHMARK(BM_Empleado);

void BM_Empleado_TablaAbierta(benchmark::State& st) {
    TablaAbierta t("EMPLEADO.DBF", "CODUSER");
    for (auto _ : st)
        benchmark::DoNotOptimize(t.busca({{QStringLiteral("CODUSER"), 1}}, "EMAIL"));
}
BENCHMARK(BM_Empleado_TablaAbierta);

void BM_Sustituto(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(Sustituto(2, QStringLiteral("LOCALIDAD")));
}
BENCHMARK(BM_Sustituto);

void BM_Sustituto_TablaAbierta(benchmark::State& st) {
    TablaAbierta t("SUSTIT.DBF", "NUMERO");
    for (auto _ : st)
        benchmark::DoNotOptimize(t.busca({{QStringLiteral("NUMEROSUST"), 2}}, "LOCALIDAD"));
}
BENCHMARK(BM_Sustituto_TablaAbierta);

// The college of a region needs no table: its fixed list, for comparison.
void BM_ObtenCodColegioPorNombre(benchmark::State& st) {
    cargaOficinaMuestra();
    for (auto _ : st)
        benchmark::DoNotOptimize(ObtenCodColegioPorNombre(QStringLiteral("COMUNIDAD DE MADRID"), {}));
}
BENCHMARK(BM_ObtenCodColegioPorNombre);

// The one system call of a warm open. On a virtual machine it may cost more than everything else.
void BM_StatDeLaTabla(benchmark::State& st) {
    const QByteArray ruta =
        QFile::encodeName(QStringLiteral(NOD_SOURCE_DIR "/sample-office/DATOS/MUNICIPI.DBF"));
    struct stat s {};
    for (auto _ : st)
        benchmark::DoNotOptimize(::stat(ruta.constData(), &s));
}
BENCHMARK(BM_StatDeLaTabla);

// The least any look at the file can cost: a system call that does nothing (the kernel's entry and exit).
void BM_LlamadaAlSistemaVacia(benchmark::State& st) {
    for (auto _ : st)
        benchmark::DoNotOptimize(::getppid());
}
BENCHMARK(BM_LlamadaAlSistemaVacia);

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
