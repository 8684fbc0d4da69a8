// The client-code revision, the whole all-tables run (thirty tables in four databases, the report
// excluded): on the sample office, and on generated offices of 250,000 and 1,000,000 referring records
// and 100,000 clients, with the table images already loaded and read from the files each time, beside a
// minimal loop over the same files. Memory is the peak resident size reached during the runs above what
// was resident before them: it must not grow with the records read.
#include "companion/config.h"
#include "maintenance/revisioncodcliente.h"
#include "tables/tablas.h"
#include "tests/maintenance/oficina_revision.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <memory>
#include <random>
#include <unistd.h>

using namespace nod;
using namespace nod::prueba;

namespace {

constexpr qint64 kClientes = 100000;

// A line of /proc/self/status ("VmRSS", "VmHWM"), in MB.
double estadoMB(const char* clave) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& l : f.readAll().split('\n'))
        if (l.startsWith(clave))
            return l.mid(qsizetype(std::strlen(clave)) + 1).trimmed().split(' ')[0].toDouble() / 1024.0;
    return 0;
}

// Starts a new peak of resident memory (Linux: "5" to clear_refs resets VmHWM to the present size).
void reiniciaPico() {
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (f.open(QIODevice::WriteOnly)) f.write("5");
}

// The office, written once: the referring records shared evenly among the tables of every database
// where they live; codes of random clients, one in ten zero, one in a thousand dangling.
struct OficinaGrande {
    QTemporaryDir dir;
    qint64 colgados = 0;
    qint64 bytes = 0; // size of all the tables
    explicit OficinaGrande(qint64 referentes) {
        QDir(dir.path()).mkpath(QStringLiteral("CONFIG"));
        QFile ini(dir.filePath(QStringLiteral("CONFIG/CONFIG.INI")));
        ini.open(QIODevice::WriteOnly);
        ini.write(ConfigOficinaRevision().toLatin1());
        ini.close();
        std::mt19937_64 azar(12);
        EscribeClientes(dir.filePath(QStringLiteral("COMUN/CLIENTES.DBF")), kClientes,
                        [&](qint64) { return qint64(azar() % 4 == 0 ? azar() % kClientes + 1 : 0); });
        int tablas = 0;
        for (const auto& t : TablasRevisionPrueba())
            if (t.nombre != QLatin1String("CLIENTES")) tablas += std::max(1, std::popcount(t.modos));
        const qint64 porTabla = referentes / tablas;
        for (const auto& t : TablasRevisionPrueba()) {
            if (t.nombre == QLatin1String("CLIENTES")) continue;
            for (int modo = 0; modo < 4; ++modo) {
                if (!(t.modos & (1u << modo)) && !(t.modos == 0 && modo == 0)) continue;
                EscribeTablaRevision(
                    dir.filePath(CarpetaDeModo(modo) + QLatin1Char('/') + t.fichero + QStringLiteral(".DBF")),
                    t, porTabla, [&](qint64) -> qint64 {
                        const auto r = azar() % 1000;
                        if (r < 100) return 0;
                        if (r == 999) return ++colgados, kClientes + 1 + qint64(azar() % 5000);
                        return qint64(azar() % kClientes + 1);
                    });
            }
        }
        QDirIterator it(dir.path(), {QStringLiteral("*.DBF")}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            bytes += QFileInfo(it.next()).size();
    }
};

// One office of each size, written when first asked for (the larger takes some seconds).
const OficinaGrande& oficina(qint64 referentes) {
    static std::map<qint64, std::unique_ptr<OficinaGrande>> oficinas;
    auto& o = oficinas[referentes];
    if (!o) o = std::make_unique<OficinaGrande>(referentes);
    return *o;
}

void revisa(benchmark::State& st, const QString& carpeta, bool enFrio) {
    Config.Carga(carpeta);
    OlvidaTablasCargadas();
    qint64 leidos = 0, lineas = 0;
    const double antes = estadoMB("VmRSS:");
    reiniciaPico();
    for (auto _ : st) {
        if (enFrio) OlvidaTablasCargadas();
        TRevisionCodCliente r;
        r.MuestraCodClienteIncorrectoEnTodasTablas();
        leidos += r.RegistrosLeidos();
        lineas = r.Mensajes().size();
    }
    st.counters["registros/s"] = benchmark::Counter(double(leidos), benchmark::Counter::kIsRate);
    st.counters["registros"] = double(leidos) / double(st.iterations());
    st.counters["lineas"] = double(lineas);
    // Memory: the peak during the runs above what was resident before, and what the runs leave behind.
    st.counters["MB_pico_mas"] = estadoMB("VmHWM:") - antes;
    st.counters["MB_quedan_mas"] = estadoMB("VmRSS:") - antes;
}

// Generated offices. Every run after the first finds the tables' images loaded (the files did not change).
void BM_RevisionTodasTablas(benchmark::State& st) {
    const OficinaGrande& o = oficina(st.range(0));
    revisa(st, o.dir.path(), false);
    st.counters["colgados"] = double(o.colgados);
    st.counters["MB_tablas"] = double(o.bytes) / (1024.0 * 1024.0);
}
BENCHMARK(BM_RevisionTodasTablas)->Arg(250000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();

// Every run reads every file again.
void BM_RevisionTodasTablasEnFrio(benchmark::State& st) {
    const OficinaGrande& o = oficina(st.range(0));
    revisa(st, o.dir.path(), true);
    st.counters["MB_tablas"] = double(o.bytes) / (1024.0 * 1024.0);
}
BENCHMARK(BM_RevisionTodasTablasEnFrio)
    ->Arg(250000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// The sample office as the demo program revises it, read from the files each time.
void BM_RevisionOficinaMuestra(benchmark::State& st) {
    revisa(st, QStringLiteral(NOD_SOURCE_DIR "/sample-office"), true);
}
BENCHMARK(BM_RevisionOficinaMuestra)->Unit(benchmark::kMillisecond)->UseRealTime();

// For comparison: a minimal loop over the same files, each read whole, the client code parsed at its
// offset and searched in a sorted array of the clients' codes.
void BM_BucleMinimo(benchmark::State& st) {
    const OficinaGrande& o = oficina(1000000);
    std::vector<qint64> clientes;
    for (qint64 i = 1; i <= kClientes; ++i)
        clientes.push_back(i);
    struct Fichero {
        QString ruta;
        int desplazamiento, ancho;
    };
    std::vector<Fichero> ficheros;
    QDirIterator it(o.dir.path(), {QStringLiteral("*.DBF")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString ruta = it.next();
        const auto tb = TTabla::AbreRuta(ruta);
        for (const auto& t : TablasRevisionPrueba())
            if (t.fichero == QFileInfo(ruta).completeBaseName()) {
                int desplazamiento = 1;
                for (const TCampoDbf& c : tb->Campos()) {
                    if (c.nombre == t.campoCliente) ficheros.push_back({ruta, desplazamiento, c.longitud});
                    desplazamiento += c.longitud;
                }
            }
    }
    qint64 leidos = 0, fallos = 0;
    std::vector<char> buffer;
    for (auto _ : st) {
        for (const Fichero& f : ficheros) {
            const int fd = ::open(QFile::encodeName(f.ruta).constData(), O_RDONLY);
            const off_t tam = ::lseek(fd, 0, SEEK_END);
            buffer.resize(size_t(tam));
            ::pread(fd, buffer.data(), size_t(tam), 0);
            ::close(fd);
            const char* h = buffer.data();
            const int registros =
                int(quint8(h[4]) | quint8(h[5]) << 8 | quint8(h[6]) << 16 | quint8(h[7]) << 24);
            const int cabecera = quint8(h[8]) | quint8(h[9]) << 8, longitud = quint8(h[10]) | quint8(h[11])
                                                                                                  << 8;
            for (int r = 0; r < registros; ++r) {
                const char* p = h + cabecera + qint64(r) * longitud + f.desplazamiento;
                qint64 codigo = 0;
                for (int k = 0; k < f.ancho; ++k)
                    if (p[k] >= '0' && p[k] <= '9') codigo = codigo * 10 + (p[k] - '0');
                if (codigo != 0 && !std::binary_search(clientes.begin(), clientes.end(), codigo)) ++fallos;
            }
            leidos += registros;
        }
    }
    st.counters["registros/s"] = benchmark::Counter(double(leidos), benchmark::Counter::kIsRate);
    benchmark::DoNotOptimize(fallos);
}
BENCHMARK(BM_BucleMinimo)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("nod.frame.info=false")); // the progress texts
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
