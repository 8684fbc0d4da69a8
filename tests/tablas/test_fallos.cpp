// Faults found by probing the table layer as an attacker and a clumsy script would: filters that nest or
// run on without end, special files where a table should be, headers that lie about the file, programs
// that rewrite a table without locking it, and in-place rewrites that keep the file's size and times.
#include "companion/config.h"
#include "tables/dbfdatos.h"
#include "tables/tablas.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace nod;

namespace {

const QList<TCampoDbf> kCampos = {{QStringLiteral("CODIGO"), 'N', 6, 0},
                                  {QStringLiteral("NOMBRE"), 'C', 20, 0},
                                  {QStringLiteral("FECHA"), 'D', 8, 0},
                                  {QStringLiteral("ACTIVO"), 'L', 1, 0}};

// A table of `n` rows, CODIGO 1..n, NOMBRE "FILA <codigo>" and FECHA 1 January 2020 onwards; returns its
// bytes.
QByteArray creaTabla(const QString& ruta, int n) {
    CreaFicheroDbf(ruta, kCampos);
    auto tb = TTabla::AbreRuta(ruta);
    for (int i = 1; i <= n; ++i) {
        tb->Append();
        tb->SetInteger(QStringLiteral("CODIGO"), i);
        tb->SetString(QStringLiteral("NOMBRE"), QStringLiteral("FILA %1").arg(i));
        tb->SetDateTime(QStringLiteral("FECHA"), EncodeDate(2020, 1, 1) + i);
        tb->Post();
    }
    QFile f(ruta);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    return f.readAll();
}

void escribe(const QString& ruta, const QByteArray& bytes) {
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(f.write(bytes), bytes.size());
}

// The error the table at `ruta` gives when opened, or "" when it opens.
QString errorAlAbrir(const QString& ruta) {
    try {
        TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
        return {};
    } catch (const ErrorTabla& e) {
        return e.mensaje();
    }
}

// Runs `prueba` in a child process and gives its exit status, or -1 when it has not ended after
// `plazoMs` (it is killed then): a hang fails the test instead of stopping the suite.
int enOtroProceso(const std::function<bool()>& prueba, int plazoMs = 20000) {
    const pid_t hijo = fork();
    if (hijo == 0) _exit(prueba() ? 0 : 1);
    QElapsedTimer reloj;
    reloj.start();
    int estado = 0;
    while (waitpid(hijo, &estado, WNOHANG) == 0) {
        if (reloj.elapsed() > plazoMs) {
            kill(hijo, SIGKILL);
            waitpid(hijo, &estado, 0);
            return -1;
        }
        usleep(2000);
    }
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -2;
}

class Fallos : public ::testing::Test {
protected:
    void SetUp() override {
        // A damaged table is read again for the lock wait before it is reported: short here.
        Config.SetEsperaBloqueoTablas(300);
        OlvidaTablasCargadas();
        ruta = dir.filePath(QStringLiteral("TABLA.DBF"));
        sana = creaTabla(ruta, 5);
        cabecera = quint8(sana[8]) | quint8(sana[9]) << 8;
    }
    void TearDown() override { Config = anterior; }
    TConfig anterior = Config;
    QTemporaryDir dir;
    QString ruta;
    QByteArray sana;
    int cabecera = 0; // the header's length: the first record starts there
};

// Fault 2: a filter nested or chained beyond any routine's need overflowed the stack of the recursive
// parser and evaluator. Now it is refused with a message that says why, and a short one.
TEST_F(Fallos, Fault2DeepOrLongFiltersAreAClearErrorNotACrash) {
    const auto repite = [](const char* trozo, int veces) {
        return QString::fromLatin1(trozo).repeated(veces);
    };
    const struct {
        const char* nombre;
        QString filtro;
        const char* motivo;
    } malos[] = {
        {"20,000 nested parentheses", repite("(", 20000) + QStringLiteral("CODIGO=1") + repite(")", 20000),
         "caracteres"},
        {"31,000 NOTs", repite("NOT ", 31000) + QStringLiteral("CODIGO=1"), "caracteres"},
        {"260,000 ORs", QStringLiteral("CODIGO=1") + repite(" OR CODIGO=1", 260000), "caracteres"},
        {"65 nested parentheses", repite("(", 65) + QStringLiteral("CODIGO=1") + repite(")", 65), "niveles"},
        {"65 NOTs", repite("NOT ", 65) + QStringLiteral("CODIGO=1"), "niveles"}};
    auto tb = TTabla::AbreRuta(ruta);
    for (const auto& m : malos) {
        try {
            TBFiltra(*tb, m.filtro);
            ADD_FAILURE() << m.nombre << " was accepted";
        } catch (const ErrorTabla& e) {
            EXPECT_TRUE(e.mensaje().contains(QLatin1String(m.motivo))) << m.nombre << ": " << e.what();
            EXPECT_TRUE(e.mensaje().contains(ruta)) << m.nombre;
            EXPECT_LT(e.mensaje().size(), 400)
                << m.nombre << ": the message quotes the start of the text only";
        }
    }
    // Within the limits every filter still works: deep nesting, and long chains of OR and AND.
    const struct {
        QString filtro;
        int cuantas;
    } buenos[] = {
        {repite("(", 64) + QStringLiteral("CODIGO=1") + repite(")", 64), 1},
        {repite("NOT ", 64) + QStringLiteral("CODIGO=1"), 1},
        {QStringLiteral("CODIGO=9") + repite(" OR CODIGO=9", 400) + QStringLiteral(" OR CODIGO=4"), 1},
        {QStringLiteral("CODIGO>0") + repite(" AND CODIGO<5", 400), 4},
        {QStringLiteral("NOT (CODIGO=1 OR CODIGO=2) AND NOT CODIGO=3 OR CODIGO=1"), 3}};
    for (const auto& b : buenos) {
        TBFiltra(*tb, b.filtro);
        EXPECT_EQ(tb->RecordCount(), b.cuantas) << qPrintable(b.filtro.left(60));
    }
}

// Fault 4: a FIFO where a table should be hung the process for good in open(); a folder or a FIFO is
// no table, and says so at once. A FIFO beside a table, in place of its memo file, is not waited for.
TEST_F(Fallos, Fault4FifoOrFolderWhereATableShouldBeIsReportedNotAHang) {
    const QString fifo = dir.filePath(QStringLiteral("FIFO.DBF"));
    ASSERT_EQ(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString carpeta = dir.filePath(QStringLiteral("CARPETA.DBF"));
    ASSERT_TRUE(QDir().mkpath(carpeta));
    ASSERT_EQ(mkfifo(QFile::encodeName(dir.filePath(QStringLiteral("TABLA.dbt"))).constData(), 0600), 0);
    const struct {
        const char* nombre;
        QString ruta;
        bool abre;
    } casos[] = {{"a FIFO", fifo, false}, {"a folder", carpeta, false}, {"a FIFO as memo file", ruta, true}};
    for (const auto& c : casos) {
        const int r = enOtroProceso([&] {
            OlvidaTablasCargadas();
            const QString error = errorAlAbrir(c.ruta);
            return c.abre ? error.isEmpty() : error.contains(QStringLiteral("no es un fichero"));
        });
        EXPECT_EQ(r, 0) << c.nombre << (r == -1 ? ": hung" : ": wrong answer");
    }
}

// Fault 6: the record count, header length and file size must agree, or the table is damaged: a lower
// count hid records and a longer file was read whole, answering "not found" without a word. Every other
// damage to the header is named too.
TEST_F(Fallos, Fault6HeaderThatDisagreesWithTheFileIsDamage) {
    const auto con = [&](const std::function<void(QByteArray&)>& cambio) {
        QByteArray b = sana;
        cambio(b);
        return b;
    };
    const struct {
        const char* nombre;
        QByteArray bytes;
        const char* motivo; // "" when the table opens
    } casos[] = {
        {"a record count lower than the records held", con([](QByteArray& b) { b[4] = char(b[4] - 1); }),
         "registros"},
        {"bytes after the end mark", con([](QByteArray& b) { b += QByteArray(4096, ' '); }), "registros"},
        {"a last byte that is no end mark", con([](QByteArray& b) { b[b.size() - 1] = ' '; }), "0x1A"},
        {"a header one byte longer, shifting every field", con([&](QByteArray& b) {
             b[8] = char(cabecera + 1);
             b.insert(cabecera, ' ');
         }),
         "terminador"},
        {"no terminator after the fields", con([&](QByteArray& b) { b[cabecera - 1] = ' '; }), "terminador"},
        {"no end mark", con([](QByteArray& b) { b.chop(1); }), ""},
        {"a NUL after the terminator, as dBase III+ wrote", con([&](QByteArray& b) {
             b[8] = char(cabecera + 1);
             b.insert(cabecera, '\0');
         }),
         ""},
        {"empty", QByteArray(), "bytes"},
        {"truncated header", sana.left(20), "bytes"},
        {"truncated records", sana.left(sana.size() - 40), "registros"},
        {"unknown version", con([](QByteArray& b) { b[0] = char(0x30); }), "versión"},
        {"record count lies", con([](QByteArray& b) { b[4] = char(0x50); }), "registros"},
        {"record length lies", con([](QByteArray& b) { b[10] = char(b[10] + 1); }), "bytes"},
        {"header length lies", con([](QByteArray& b) { b[9] = char(0x7F); }), "cabecera"},
        {"field type unknown", con([](QByteArray& b) { b[32 + 11] = 'Z'; }), "tipo"},
        {"date of wrong width", con([](QByteArray& b) { b[32 * 3 + 16] = 9; }), "longitud"}};
    for (const auto& c : casos) {
        escribe(ruta, c.bytes);
        OlvidaTablasCargadas();
        const QString error = errorAlAbrir(ruta);
        if (*c.motivo == '\0') {
            EXPECT_TRUE(error.isEmpty()) << c.nombre << ": " << qPrintable(error);
            EXPECT_EQ(TTabla::AbreRuta(ruta)->RecordCount(), 5) << c.nombre;
        } else {
            EXPECT_TRUE(error.contains(QStringLiteral("dañada")) &&
                        error.contains(QString::fromUtf8(c.motivo)) && error.contains(ruta))
                << c.nombre << ": " << qPrintable(error);
        }
    }
    // A table padded to 8 GB is refused from its header and size, without reading the padding.
    escribe(ruta, sana);
    ASSERT_EQ(truncate(QFile::encodeName(ruta).constData(), qint64(8) << 30), 0);
    EXPECT_TRUE(errorAlAbrir(ruta).contains(QStringLiteral("registros")));
}

// Fault 7: a program that rewrites the table without locking it (truncate, then write, as cp does) made
// existing rows vanish for the readers in between. A table that reads as damaged is read again within the
// lock wait before it is reported.
TEST_F(Fallos, Fault7RowsDoNotVanishWhileAnotherProgramRewritesTheTable) {
    Config.SetEsperaBloqueoTablas(5000); // a busy machine may hold the writer up between two writes
    const QByteArray bytes = creaTabla(ruta, 300);
    const pid_t escritor = fork();
    ASSERT_GE(escritor, 0);
    if (escritor == 0) {
        const QByteArray nativa = QFile::encodeName(ruta);
        for (;;) {
            const int fd = ::open(nativa.constData(), O_WRONLY | O_TRUNC);
            for (qsizetype hecho = 0; fd >= 0 && hecho < bytes.size(); hecho += 4096) {
                if (::write(fd, bytes.constData() + hecho,
                            size_t(qMin<qsizetype>(4096, bytes.size() - hecho))) < 0)
                    _exit(1);
                usleep(100);
            }
            ::close(fd);
            usleep(300);
        }
    }
    int fallos = 0;
    QString primerFallo;
    for (int i = 0; i < 400; ++i) {
        const int codigo = 1 + (i * 37) % 300;
        try {
            auto tb = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
            if (TBBuscaClave(*tb, codigo) &&
                tb->AsString(QStringLiteral("NOMBRE")) == QStringLiteral("FILA %1").arg(codigo))
                continue;
            primerFallo = QStringLiteral("%1 not found").arg(codigo);
        } catch (const ErrorTabla& e) {
            primerFallo = e.mensaje();
        }
        ++fallos;
    }
    kill(escritor, SIGKILL);
    waitpid(escritor, nullptr, 0);
    EXPECT_EQ(fallos, 0) << qPrintable(primerFallo);
}

// Fault 8: the loaded image of a table was kept while the file kept its device, inode, size and
// modification time, so a rewrite in place that kept them (cp -p, touch -r, a coarse clock on a share)
// was never seen by a running process. Whatever serves a table warm, the next open sees the new bytes, with
// the tag's order and a filter built over them, while a table opened before keeps the image it read.
TEST(Fault8Cache, ARewriteThatKeepsSizeAndTimesIsSeenOnTheNextOpen) {
    prueba::OficinaPrueba oficina(QStringLiteral("[ALIAS]\nDB=DATOS\n"));
    const QString ruta = oficina.ruta(QStringLiteral("DATOS/TABLA.DBF"));
    QDir().mkpath(oficina.ruta(QStringLiteral("DATOS")));
    const QByteArray original = creaTabla(ruta, 5);
    const int cabecera = quint8(original[8]) | quint8(original[9]) << 8;
    const int largo = quint8(original[10]) | quint8(original[11]) << 8;
    const auto nombreDe = [](TTabla& tb, int codigo) {
        return TBBuscaClave(tb, codigo) ? tb.AsString(QStringLiteral("NOMBRE")) : QStringLiteral("(none)");
    };
    const auto porRuta = [&] { return TTabla::AbreRuta(ruta, QStringLiteral("CODIGO")); };
    const auto porAlias = [] {
        return CreaTabla(QStringLiteral("DB"), QStringLiteral("TABLA.DBF"), QStringLiteral("CODIGO"));
    };
    const struct {
        const char* nombre;
        std::function<std::unique_ptr<TTabla>()> abre;
        bool renombra; // the new bytes are written beside the table and renamed into place
    } casos[] = {{"by path, in place", porRuta, false},
                 {"by alias, in place", porAlias, false},
                 {"by alias, renamed into place", porAlias, true}};
    for (const auto& c : casos) {
        escribe(ruta, original);
        usleep(30000); // older than any clock tick: a reopen may be served warm
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(nombreDe(*c.abre(), 3), QStringLiteral("FILA 3")) << c.nombre;
        const auto abierta = c.abre();
        struct stat antes {};
        ASSERT_EQ(::stat(QFile::encodeName(ruta).constData(), &antes), 0);
        QByteArray nueva = original;
        nueva.replace(cabecera + 2 * largo + 1, 6, "     9"); // CODIGO of the third row
        const QString destino = c.renombra ? ruta + QStringLiteral(".nueva") : ruta;
        {
            QFile f(destino);
            ASSERT_TRUE(f.open(c.renombra ? QIODevice::WriteOnly : QIODevice::ReadWrite));
            ASSERT_EQ(f.write(nueva), nueva.size());
        }
        const timespec tiempos[2] = {antes.st_atim, antes.st_mtim};
        ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(destino).constData(), tiempos, 0), 0);
        ASSERT_TRUE(!c.renombra || ::rename(QFile::encodeName(destino).constData(),
                                            QFile::encodeName(ruta).constData()) == 0);
        struct stat despues {};
        ASSERT_EQ(::stat(QFile::encodeName(ruta).constData(), &despues), 0);
        ASSERT_EQ(despues.st_size, antes.st_size);
        ASSERT_EQ(despues.st_mtim.tv_nsec, antes.st_mtim.tv_nsec);
        const auto tb = c.abre();
        EXPECT_EQ(nombreDe(*tb, 9), QStringLiteral("FILA 3")) << c.nombre;
        EXPECT_EQ(nombreDe(*tb, 3), QStringLiteral("(none)")) << c.nombre;
        tb->Last();
        EXPECT_EQ(tb->AsInteger(QStringLiteral("CODIGO")), 9) << c.nombre;
        TBFiltra(*tb, QStringLiteral("CODIGO > 5"));
        EXPECT_EQ(tb->RecordCount(), 1) << c.nombre;
        EXPECT_EQ(nombreDe(*abierta, 3), QStringLiteral("FILA 3")) << c.nombre;
    }
}

// Fault 14: the five bytes Windows-1252 leaves undefined read as U+0081, U+008D, U+008F, U+0090 and U+009D,
// as Windows reads them, and are written back as the same bytes: a row rewritten unchanged stays the same.
TEST_F(Fallos, Fault14UndefinedWindows1252BytesRoundTripThroughATable) {
    QByteArray b = sana;
    b.replace(cabecera + 1 + 6, 5, "\x81\x8D\x8F\x90\x9D");
    escribe(ruta, b);
    auto tb = TTabla::AbreRuta(ruta);
    const QString nombre = tb->AsString(QStringLiteral("NOMBRE"));
    EXPECT_EQ(nombre, QString::fromUtf16(u"\u0081\u008D\u008F\u0090\u009D1")); // \u takes four digits
    tb->Edit();
    tb->SetString(QStringLiteral("NOMBRE"), nombre);
    tb->Post();
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll().mid(cabecera), b.mid(cabecera));
}

// Damaged table files: every one gives ErrorTabla naming the file, or opens; none crashes or reads past the
// bytes (this suite also runs under AddressSanitizer). This reads every field of every row of an image; the
// decoders may throw ErrorTabla, nothing else.
void leeTodo(const DatosDbf& d) {
    for (int f = 0; f < d.numRegistros(); ++f)
        for (int c = 0; c < d.campos().size(); ++c) {
            try {
                (void)d.texto(f, c);
                (void)d.numero(f, c);
                (void)d.logico(f, c);
                (void)d.fecha(f, c);
            } catch (const ErrorTabla& e) {
                EXPECT_TRUE(e.mensaje().contains(QStringLiteral("registro"))) << e.what();
            }
        }
}

// A field that does not parse, or a number only the C library reads ("inf", "nan"), names the record.
TEST_F(Fallos, FieldsThatDoNotParseAreErrors) {
    QByteArray b = sana;
    b[cabecera + 27 + 3] = 'x'; // first record, date field
    const auto d = DatosDbf::DesdeBytes(QStringLiteral("DANADA.DBF"), b);
    EXPECT_THROW(d->fecha(0, 2), ErrorTabla);
    for (const char* texto : {"   nan", "   inf", "-inf  ", " 1e999"}) {
        QByteArray n = sana;
        n.replace(cabecera + 1, 6, texto);
        const auto dn = DatosDbf::DesdeBytes(QStringLiteral("DANADA.DBF"), n);
        EXPECT_THROW(dn->numero(0, 0), ErrorTabla) << texto;
        EXPECT_THROW(dn->orden({0}), ErrorTabla) << texto;
    }
}

TEST_F(Fallos, RandomDamageGivesAnErrorOrAReadableTable) {
    std::mt19937 azar(12345);
    int abiertas = 0;
    for (int vuelta = 0; vuelta < 3000; ++vuelta) {
        QByteArray b = sana;
        const int cambios = 1 + int(azar() % 6);
        for (int i = 0; i < cambios; ++i)
            b[int(azar() % quint32(b.size()))] = char(azar());
        if (vuelta % 3 == 0) b.truncate(int(azar() % quint32(b.size() + 1)));
        try {
            const auto d = DatosDbf::DesdeBytes(QStringLiteral("AZAR.DBF"), b);
            ++abiertas;
            leeTodo(*d);
            (void)d->orden({0});
            (void)d->orden({1, 0});
        } catch (const ErrorTabla&) {
        }
    }
    EXPECT_GT(abiertas, 0) << "some damages leave a readable table";
}

} // namespace
