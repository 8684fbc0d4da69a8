// The table layer over real dBase files: writing and reading back (also through an independent reader),
// searches, ranges, filters, deletion, packing, and two processes appending at once.
#include "tables/tablas.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

using namespace nod;

namespace {

const QList<TCampoDbf> kCampos = {{QStringLiteral("CODIGO"), 'N', 6, 0},
                                  {QStringLiteral("NOMBRE"), 'C', 20, 0},
                                  {QStringLiteral("IMPORTE"), 'N', 10, 2},
                                  {QStringLiteral("ACTIVO"), 'L', 1, 0},
                                  {QStringLiteral("FECHA"), 'D', 8, 0}};

struct Fila {
    int codigo;
    const char* nombre;
    double importe;
    bool activo;
    QDate fecha;
};

const Fila kFilas[] = {{3, "PEÑA", 10.5, true, {2024, 2, 29}},
                       {1, "ÁLVAREZ", -2.25, false, {}},
                       {2, "GARCÍA", 1234567.89, true, {1999, 12, 31}},
                       {2, "GARCÍA BIS", 0, false, {2000, 1, 1}}};

// Appends the rows CODIGO `desde` onwards, NOMBRE "P<codigo>".
void anade(const QString& ruta, int desde, int cuantas) {
    auto tb = TTabla::AbreRuta(ruta);
    for (int i = desde; i < desde + cuantas; ++i) {
        tb->Append();
        tb->SetInteger(QStringLiteral("CODIGO"), i);
        tb->SetString(QStringLiteral("NOMBRE"), QStringLiteral("P%1").arg(i));
        tb->Post();
    }
}

class Tablas : public ::testing::Test {
protected:
    void SetUp() override {
        ruta = dir.filePath(QStringLiteral("PRUEBA.DBF"));
        CreaFicheroDbf(ruta, kCampos);
        auto tb = TTabla::AbreRuta(ruta);
        for (const Fila& f : kFilas) {
            tb->Append();
            tb->SetInteger(QStringLiteral("CODIGO"), f.codigo);
            tb->SetString(QStringLiteral("NOMBRE"), QString::fromUtf8(f.nombre));
            tb->SetFloat(QStringLiteral("IMPORTE"), f.importe);
            tb->SetBoolean(QStringLiteral("ACTIVO"), f.activo);
            tb->SetDateTime(QStringLiteral("FECHA"), QDateToTDateTime(f.fecha));
            tb->Post();
        }
    }
    QTemporaryDir dir;
    QString ruta;
};

TEST_F(Tablas, WrittenRowsReadBackHereAndInAnIndependentReader) {
    auto tb = TTabla::AbreRuta(ruta);
    ASSERT_EQ(tb->RecordCount(), 4);
    for (const Fila& f : kFilas) {
        ASSERT_FALSE(tb->Eof());
        EXPECT_EQ(tb->AsInteger(QStringLiteral("CODIGO")), f.codigo);
        EXPECT_EQ(tb->AsString(QStringLiteral("NOMBRE")), QString::fromUtf8(f.nombre));
        EXPECT_DOUBLE_EQ(tb->AsFloat(QStringLiteral("IMPORTE")), f.importe);
        EXPECT_EQ(tb->AsBoolean(QStringLiteral("ACTIVO")), f.activo);
        EXPECT_EQ(tb->AsDateTime(QStringLiteral("FECHA")), QDateToTDateTime(f.fecha));
        EXPECT_EQ(tb->EsNulo(QStringLiteral("FECHA")), !f.fecha.isValid());
        tb->Next();
    }
    EXPECT_TRUE(tb->Eof());
    EXPECT_THROW(tb->AsString(QStringLiteral("NO_EXISTE")), ErrorTabla);
    QProcess py;
    py.start(
        QStringLiteral("/usr/bin/python3"),
        {QStringLiteral("-c"),
         QStringLiteral("import dbfread,sys\n"
                        "for r in dbfread.DBF(sys.argv[1], encoding='cp1252'):\n"
                        "  print(r['CODIGO'], r['NOMBRE'], '%.2f' % r['IMPORTE'], r['ACTIVO'], r['FECHA'])"),
         ruta});
    ASSERT_TRUE(py.waitForFinished(30000));
    ASSERT_EQ(py.exitCode(), 0) << py.readAllStandardError().toStdString();
    EXPECT_EQ(QString::fromUtf8(py.readAllStandardOutput()),
              QStringLiteral("3 PEÑA 10.50 True 2024-02-29\n1 ÁLVAREZ -2.25 False None\n"
                             "2 GARCÍA 1234567.89 True 1999-12-31\n2 GARCÍA BIS 0.00 False 2000-01-01\n"));
}

TEST_F(Tablas, SearchesOnTagsAndWithoutThem) {
    auto tb = TTabla::AbreRuta(ruta, QStringLiteral("NOMBRE"));
    EXPECT_EQ(tb->AsString(QStringLiteral("NOMBRE")), QStringLiteral("GARCÍA"))
        << "byte order: Á sorts after Z";
    struct C {
        const char* campo;
        QVariant valor;
        bool exacta;
        int recno; // 0: not found
    };
    // Exact searches on the tag's own field are compared with the key search below.
    for (const C& c :
         {C{"NOMBRE", QStringLiteral("GARC"), true, 0}, C{"NOMBRE", QStringLiteral("GARC"), false, 3},
          C{"NOMBRE", QStringLiteral("ZZ"), false, 0}, C{"CODIGO", 2, true, 3},
          C{"CODIGO", QStringLiteral("02"), true, 3}, C{"CODIGO", QStringLiteral("x"), true, 0},
          C{"ACTIVO", false, true, 4}, C{"FECHA", QDate(2024, 2, 29), true, 1}}) {
        tb->First();
        EXPECT_EQ(TBBusca(*tb, {{QString::fromLatin1(c.campo), c.valor}}, c.exacta), c.recno != 0) << c.campo;
        if (c.recno) {
            EXPECT_EQ(tb->RecNo(), c.recno) << c.campo;
        }
    }
    TBIndexa(*tb, QStringLiteral("CODIGO"));
    tb->Last();
    EXPECT_EQ(tb->AsInteger(QStringLiteral("CODIGO")), 3);
    EXPECT_THROW(TBIndexa(*tb, QStringLiteral("NO_HAY")), ErrorTabla);
}

TEST_F(Tablas, RangesAndFilters) {
    auto tb = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    TBRango(*tb, {{QStringLiteral("CODIGO"), 2}});
    EXPECT_EQ(tb->RecordCount(), 2);
    TBRango(*tb, {{QStringLiteral("IMPORTE"), 0}}, {{QStringLiteral("IMPORTE"), 100}});
    EXPECT_EQ(tb->RecordCount(), 2) << "a range over fields that are not the tag's";
    TBQuitaRango(*tb);
    struct C {
        const char* filtro;
        int cuantos;
    };
    for (const C& c :
         {C{"ACTIVO=True", 2}, C{"activo = false", 2}, C{"CODIGO='2'", 2},
          C{"CODIGO = 2 AND ACTIVO=False", 1}, C{"CODIGO=1 OR NOT (IMPORTE < 100)", 2},
          C{"NOMBRE <> 'PEÑA'", 3}, C{"NOMBRE=\"GARCÍA\"", 1}, C{"IMPORTE >= -2.25", 4}, C{"", 4}})
        EXPECT_NO_THROW({
            TBFiltra(*tb, QString::fromUtf8(c.filtro));
            EXPECT_EQ(tb->RecordCount(), c.cuantos) << c.filtro;
        });
    for (const char* malo : {"CODIGO", "CODIGO = ", "NOEXISTE=1", "CODIGO == 1 AND", "(CODIGO=1",
                             "NOMBRE='abc", "CODIGO # 1", "CODIGO=1 2"})
        EXPECT_THROW(TBFiltra(*tb, QString::fromLatin1(malo)), ErrorTabla) << malo;
}

TEST_F(Tablas, DeleteAndPack) {
    auto tb = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    ASSERT_TRUE(TBBusca(*tb, {{QStringLiteral("CODIGO"), 2}}));
    ASSERT_TRUE(TBDelete(*tb));
    EXPECT_EQ(tb->AsString(QStringLiteral("NOMBRE")), QStringLiteral("GARCÍA BIS"))
        << "moves to the next row";
    EXPECT_EQ(tb->RecordCount(), 3);
    const qint64 antes = QFileInfo(ruta).size();
    ASSERT_TRUE(TBPackDbf(*tb));
    EXPECT_EQ(QFileInfo(ruta).size(), antes - 46) << "one record of 46 bytes less";
    auto otra = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    EXPECT_EQ(otra->RecordCount(), 3);
    EXPECT_FALSE(TBBusca(*otra, {{QStringLiteral("NOMBRE"), QStringLiteral("GARCÍA")}}));
}

TEST_F(Tablas, EditAndLastRowLock) {
    auto tb = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    ASSERT_TRUE(BloqueaUltimo(*tb));
    EXPECT_EQ(tb->AsInteger(QStringLiteral("CODIGO")), 3);
    tb->Append();
    tb->SetInteger(QStringLiteral("CODIGO"), tb->AsInteger(QStringLiteral("CODIGO")) + 1);
    tb->Post();
    LiberaBloqueo(*tb);
    EXPECT_EQ(tb->AsInteger(QStringLiteral("CODIGO")), 4);
    tb->Edit();
    EXPECT_THROW(tb->SetString(QStringLiteral("NOMBRE"), QStringLiteral("ДОМ")), ErrorTabla)
        << "not in Windows-1252";
    EXPECT_THROW(tb->SetString(QStringLiteral("NOMBRE"), QString(21, QLatin1Char('X'))), ErrorTabla);
    // Figures too wide for the field, down to ones too wide to write at all, are refused, never cut.
    for (double enorme : {1e12, 1e100, 1e300, -1e300})
        EXPECT_THROW(tb->SetFloat(QStringLiteral("IMPORTE"), enorme), ErrorTabla) << enorme;
    tb->SetString(QStringLiteral("NOMBRE"), QStringLiteral("NUEVO €"));
    tb->Post();
    EXPECT_EQ(TTabla::AbreRuta(ruta)->RecordCount(), 5);
    auto otra = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    otra->Last();
    EXPECT_EQ(otra->AsString(QStringLiteral("NOMBRE")), QStringLiteral("NUEVO €"));
}

TEST_F(Tablas, TwoProcessesAppendingLoseNothing) {
    constexpr int kPorProceso = 1000;
    const pid_t hijo = fork();
    ASSERT_GE(hijo, 0);
    if (hijo == 0) {
        try {
            anade(ruta, 100000, kPorProceso);
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    anade(ruta, 200000, kPorProceso);
    int estado = 0;
    waitpid(hijo, &estado, 0);
    ASSERT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0);
    OlvidaTablasCargadas();
    auto tb = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    EXPECT_EQ(tb->RecordCount(), 4 + 2 * kPorProceso);
    for (int base : {100000, 200000})
        for (int i = 0; i < kPorProceso; i += 97) {
            ASSERT_TRUE(TBBusca(*tb, {{QStringLiteral("CODIGO"), base + i}}));
            EXPECT_EQ(tb->AsString(QStringLiteral("NOMBRE")), QStringLiteral("P%1").arg(base + i));
        }
}

// A table of `n` records written in one go (CODIGO = record number from 1), every third one deleted;
// returns the number of live records.
int escribeTablaGrande(const QString& ruta, int n) {
    CreaFicheroDbf(ruta, kCampos);
    QFile f(ruta);
    EXPECT_TRUE(f.open(QIODevice::ReadWrite));
    QByteArray b = f.readAll();
    if (b.endsWith('\x1a')) b.chop(1);
    const QByteArray resto(20 + 10 + 1 + 8, ' ');
    int vivas = 0;
    for (int i = 1; i <= n; ++i) {
        const bool borrada = i % 3 == 0;
        vivas += borrada ? 0 : 1;
        b += (borrada ? '*' : ' ') + QByteArray::number(i).rightJustified(6, ' ') + resto;
    }
    b += '\x1a';
    for (int k = 0; k < 4; ++k)
        b[4 + k] = char(n >> (8 * k) & 0xFF);
    f.seek(0);
    f.write(b);
    return vivas;
}

TEST_F(Tablas, KilledPackLeavesTheTableWhole) {
    // Large enough for the pack to take far longer than noticing its new file takes.
    const int vivas = escribeTablaGrande(ruta, 300000);
    const QString nueva = dir.filePath(QStringLiteral("PRUEBA.empaquetando.dbf"));
    const pid_t hijo = fork();
    ASSERT_GE(hijo, 0);
    if (hijo == 0) {
        auto tb = TTabla::AbreRuta(ruta);
        _exit(TBPackDbf(*tb) ? 0 : 1);
    }
    // Kill the packer as soon as its new file exists: it is then copying the live records.
    QElapsedTimer reloj;
    reloj.start();
    while (!QFileInfo::exists(nueva) && reloj.elapsed() < 60000)
        usleep(100);
    kill(hijo, SIGKILL);
    int estado = 0;
    waitpid(hijo, &estado, 0);
    ASSERT_TRUE(WIFSIGNALED(estado)) << "the pack ended before it was killed";
    ASSERT_TRUE(QFileInfo::exists(nueva)) << "killed after the rename, not during the pack";

    OlvidaTablasCargadas();
    auto tb = TTabla::AbreRuta(ruta, QStringLiteral("CODIGO"));
    EXPECT_EQ(tb->RecordCount(), vivas);
    for (int codigo : {1, 2, 4, 149998, 299999})
        EXPECT_TRUE(TBBuscaClave(*tb, codigo)) << codigo;
    EXPECT_FALSE(TBBuscaClave(*tb, 3)) << "deleted rows stay deleted";
    // The half-written file left behind does not stop the next pack.
    ASSERT_TRUE(TBPackDbf(*tb));
    EXPECT_EQ(TTabla::AbreRuta(ruta)->RecordCount(), vivas);
    EXPECT_FALSE(QFileInfo::exists(nueva));
}

TEST_F(Tablas, KeySearchFastPathAgreesWithTBBusca) {
    anade(ruta, 5, 1); // NOMBRE "P5", IMPORTE blank: within the range 0 to 100
    struct C {
        const char* indice;
        QVariant clave;
        int recno; // 0: not found
        const char* filtro = "";
        bool rango = false; // IMPORTE between 0 and 100: not the tag's field
    };
    const C casos[] = {{"CODIGO", 2, 3},
                       {"CODIGO", 3, 1},
                       {"CODIGO", 4, 0},
                       {"CODIGO", -1, 0},
                       {"CODIGO", QStringLiteral("02"), 3},
                       {"CODIGO", QStringLiteral("x"), 0},
                       {"CODIGO", 2, 4, "ACTIVO=False"},
                       {"CODIGO", 2, 4, "", true},
                       {"CODIGO", 1, 0, "", true},
                       {"CODIGO", 5, 5, "", true},
                       {"NOMBRE", QStringLiteral("P5"), 5},
                       {"NOMBRE", QStringLiteral("P5  "), 5},
                       {"NOMBRE", QStringLiteral("P"), 0},
                       {"NOMBRE", QStringLiteral("P55"), 0},
                       {"NOMBRE", QStringLiteral("GARCÍA"), 3},
                       {"NOMBRE", QStringLiteral("PEÑA"), 1},
                       {"NOMBRE", QStringLiteral("PEÑA"), 0, "CODIGO=5"},
                       {"NOMBRE", QStringLiteral("ÁLVAREZ"), 0, "", true}};
    for (const C& c : casos) {
        SCOPED_TRACE(testing::Message() << c.indice << " [" << c.filtro << "] " << c.rango << ' '
                                        << qPrintable(c.clave.toString()));
        auto rapida = TTabla::AbreRuta(ruta, QString::fromLatin1(c.indice));
        auto general = TTabla::AbreRuta(ruta, QString::fromLatin1(c.indice));
        for (TTabla* tb : {rapida.get(), general.get()}) {
            TBFiltra(*tb, QString::fromLatin1(c.filtro));
            if (c.rango) TBRango(*tb, {{QStringLiteral("IMPORTE"), 0}}, {{QStringLiteral("IMPORTE"), 100}});
            tb->Last();
        }
        const int antes = rapida->RecNo();
        const bool hallada = c.clave.typeId() == QMetaType::QString
                                 ? TBBuscaClave(*rapida, c.clave.toString())
                                 : TBBuscaClave(*rapida, c.clave.toDouble());
        EXPECT_EQ(hallada, c.recno != 0);
        EXPECT_EQ(rapida->RecNo(), c.recno ? c.recno : antes);
        EXPECT_EQ(
            TBBusca(*general,
                    {{rapida->Campos()[rapida->IndiceCampo(QString::fromLatin1(c.indice))].nombre, c.clave}}),
            hallada);
        EXPECT_EQ(general->RecNo(), rapida->RecNo());
    }
    EXPECT_THROW(TBBuscaClave(*TTabla::AbreRuta(ruta), 1), ErrorTabla) << "physical order has no key";
}

// Tables are opened by alias and name as the routines write them: any case, extension optional. The path
// found is kept between calls, yet loading another office (or restoring the previous configuration) must send
// the same alias and name to that office's folder.
TEST(TablasPorAlias, NamesResolveWithoutRegardToCaseInTheLoadedOffice) {
    const auto oficinaCon = [](int filas) {
        auto o = std::make_unique<prueba::OficinaPrueba>(QStringLiteral("[ALIAS]\nDB=DATOS\n"));
        QDir().mkpath(o->ruta(QStringLiteral("DATOS")));
        const QString ruta = o->ruta(QStringLiteral("DATOS/Tipo_Int.dbf"));
        CreaFicheroDbf(ruta, kCampos);
        anade(ruta, 0, filas);
        return o;
    };
    const auto filas = [] {
        return CreaTabla(QStringLiteral("DB"), QStringLiteral("TIPO_INT.DBF"))->RecordCount();
    };
    const auto una = oficinaCon(1);
    for (const char* nombre : {"Tipo_Int.dbf", "TIPO_INT.DBF", "tipo_int", "TIPO_INT"}) {
        const auto tb =
            CreaTabla(QStringLiteral("DB"), QString::fromLatin1(nombre), QStringLiteral("CODIGO"));
        EXPECT_TRUE(tb->Ruta().endsWith(QStringLiteral("/DATOS/Tipo_Int.dbf"))) << nombre;
    }
    EXPECT_THROW(CreaTabla(QStringLiteral("DB"), QStringLiteral("NOHAY.DBF")), ErrorTabla);
    EXPECT_THROW(CreaTabla(QStringLiteral("OTRO"), QStringLiteral("TIPO_INT")), ErrorTabla);
    EXPECT_EQ(CreaTablaSinExcepcion(QStringLiteral("DB"), QStringLiteral("NOHAY.DBF")), nullptr);
    EXPECT_EQ(
        CreaTablaSinExcepcion(QStringLiteral("DB"), QStringLiteral("TIPO_INT"), QStringLiteral("NO_HAY")),
        nullptr);
    EXPECT_EQ(filas(), 1);
    {
        const auto otra = oficinaCon(2);
        EXPECT_EQ(filas(), 2);
    }
    EXPECT_EQ(filas(), 1) << "the first office's configuration is back";
}

} // namespace
