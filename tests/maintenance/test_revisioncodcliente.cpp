// The client-code revision over generated offices: thirty tables in four databases with known dangling
// codes, zero codes and codes of existing clients; then the bad offices: a table missing, locked, damaged
// or with an unreadable record, and no clients table at all.
#include "companion/mensajes.h"
#include "maintenance/revisioncodcliente.h"
#include "tests/maintenance/ayudas.h"
#include "tests/maintenance/oficina_revision.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace nod;
using namespace nod::prueba;

namespace {

constexpr qint64 kClientes = 200;

QString texto(const char* s) {
    return QString::fromUtf8(s);
}

QString mensajeTabla(const QString& tabla, int modo) {
    QString t;
    MensajeTabla(tabla, modo, t);
    return t;
}

struct Linea {
    QString tabla;
    qint64 codigo;
    bool operator==(const Linea&) const = default;
    bool operator<(const Linea& o) const { return std::tie(tabla, codigo) < std::tie(o.tabla, o.codigo); }
};
void PrintTo(const Linea& l, std::ostream* os) {
    *os << l.tabla.toStdString() << " / " << l.codigo;
}

QList<Linea> lineas(const TMensajesRevision& m) {
    QList<Linea> l;
    for (const auto& x : m)
        l.append({x.TABLA, x.CODCLIENTE});
    return l;
}

// An office where every table lives in every database of its modes, with 40 records each: one record in
// seven without client (code 0), the others pointing at existing clients, except the dangling codes
// 900000 + 1000 × table + 10 × mode at records 5 and 23 (and, in CLAVES, the code 999999 of one deleted
// client at record 30 in each database). The clients table refers to a deleted spouse at records 6 and 60.
class Revision : public ::testing::Test {
protected:
    Revision()
        : oficina(ConfigOficinaRevision())
        , instalado(mensajes) {
        EscribeClientes(oficina.ruta(u"COMUN/CLIENTES.DBF"_s), kClientes, [](qint64 i) {
            return i == 6 || i == 60 ? 950000 + i : i % 3 ? 0 : (i + 2) % kClientes + 1;
        });
        const auto& tablas = TablasRevisionPrueba();
        for (int n = 0; n < tablas.size(); ++n) {
            const auto& t = tablas[n];
            if (t.nombre == QLatin1String("CLIENTES")) {
                esperadas << Linea{mensajeTabla(u"CLIENTES"_s, 0), 950006}
                          << Linea{mensajeTabla(u"CLIENTES"_s, 0), 950060};
                continue;
            }
            for (int modo : modosDe(t)) {
                const qint64 colgado = 900000 + 1000 * n + 10 * modo;
                const bool claves = t.nombre == QLatin1String("CLAVES");
                EscribeTablaRevision(ruta(t, modo), t, 40, [&](qint64 i) -> qint64 {
                    if (i == 5 || i == 23) return colgado;
                    if (claves && i == 30) return 999999;
                    return i % 7 == 3 ? 0 : (i * 13) % kClientes + 1;
                });
                const QString tabla = mensajeTabla(t.fichero, modo);
                esperadas << Linea{tabla, colgado} << Linea{tabla, colgado};
                if (claves) esperadas << Linea{tabla, 999999};
            }
        }
    }

    static QList<int> modosDe(const TablaRevisionPrueba& t) {
        QList<int> m;
        for (int modo = 0; modo < 4; ++modo)
            if (t.modos & (1u << modo)) m << modo;
        return m.isEmpty() ? QList<int>{0} : m; // TIT_CLI lives in the common database
    }
    QString ruta(const TablaRevisionPrueba& t, int modo) const {
        return oficina.ruta(CarpetaDeModo(modo) + QLatin1Char('/') + t.fichero + u".DBF"_s);
    }
    QStringList textosEspera() const { return TextosEspera(mensajes); }

    OficinaPrueba oficina;
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado;
    QList<Linea> esperadas; // in the order of the run, and of the records within each table
    TRevisionCodCliente revision;
};

// The progress window names each table in turn and ends the run.
TEST_F(Revision, EveryDanglingCodeIsFoundInTheOrderOfTheRunAndNoneInvented) {
    ASSERT_TRUE(revision.MuestraCodClienteIncorrectoEnTodasTablas());
    EXPECT_EQ(lineas(revision.Mensajes()), esperadas);
    QStringList esperados = {QString()};
    for (const auto& t : TablasRevisionPrueba())
        esperados << texto("Buscando clientes erróneos en la tabla ") + t.nombre;
    esperados << u"El proceso ha finalizado"_s;
    EXPECT_EQ(textosEspera(), esperados);
    EXPECT_FALSE(mensajes.esperaVisible());
}

TEST_F(Revision, OneTableRunReadsThatTableInItsModesOnly) {
    ASSERT_TRUE(revision.MuestraCodClienteIncorrectoEnTabla(u"claves"_s));
    QList<Linea> claves = esperadas;
    claves.removeIf([](const Linea& l) {
        return !l.tabla.startsWith(u"En la Tabla CLAVES "_s) &&
               l.tabla != QLatin1String("En la Tabla CLAVES");
    });
    EXPECT_EQ(lineas(revision.Mensajes()), claves);
    EXPECT_EQ(claves.size(), 9); // modes 1, 2 and 3; the deleted client 999999 once in each database
    EXPECT_EQ(textosEspera(), (QStringList{QString(), texto("Buscando clientes erróneos en la tabla CLAVES"),
                                           u"El proceso ha finalizado"_s}));

    mensajes.limpia();
    EXPECT_FALSE(revision.MuestraCodClienteIncorrectoEnTabla(u"NO_EXISTE"_s));
    EXPECT_TRUE(mensajes.mostrados().isEmpty());
}

TEST_F(Revision, ChecksOutsideTheirDatabasesFindNothing) {
    ASSERT_TRUE(revision.Prepara());
    revision.MuestraCodClienteIncorrectoEnAPODERADOS(2); // no archive for powers of attorney
    revision.MuestraCodClienteIncorrectoEnCLAVES(4);     // no such database
    revision.MuestraCodClienteIncorrectoEnCLAVES(0);     // not written in the common database
    EXPECT_TRUE(revision.Mensajes().isEmpty());
    revision.MuestraCodClienteIncorrectoEnCLAVES(2);
    EXPECT_EQ(revision.Mensajes().size(), 3);
    EXPECT_EQ(revision.Mensajes()[0].TABLA, u"En la Tabla CLAVES"_s) << "mode 2: no suffix";
}

// Each check describes the record by its own fields (records 5 and 23 hold the dangling code).
TEST_F(Revision, EachCheckDescribesTheReferringRecord) {
    struct Caso {
        const char* tabla;
        int modo;
        const char* mensaje;
    };
    const Caso casos[] = {
        {"APODERADOS", 0, "El apoderado del poder 6/2.020 referencia al cliente 901.000"},
        {"PODERES", 0, "El poderdante del poder 6/2.020 referencia al cliente 924.000"},
        {"VALORES", 3, "El valor 6/2.020 referencia al cliente 929.030"},
        {"CLAVES_L", 3, "El otorgante del asiento del Libro Indicador 6/2.020 referencia al cliente 908.030"},
        {"ENTRADAS", 0, "El otorgante de la entrada 6/2.020 referencia al cliente 914.000"},
        {"CLAVES_E", 0, "La entrada 6/2.020 referencia al cliente 906.000"},
        {"FACTURAC", 3, "La factura 6/2.020 referencia al cliente 917.030"},
        {"BANCOS", 0, "El banco 6 con nombre: TEXTO 5 referencia al cliente 903.000"},
        {"DEPOSITO", 0, "El asiento 6 del depósito del 06/01/2024 referencia al cliente 912.000"},
        {"APUNTES", 0, "El apunte 6 del 06/01/2024, factura B-6 referencia al cliente 902.000"},
        {"CLIENTES", 0, "El cliente  APELLIDOS 6, NOMBRE 6 (7) referencia al cliente 950.006"},
        {"TIT_CLI", 0, "El titular real referencia al cliente 927.000"},
    };
    ASSERT_TRUE(revision.Prepara());
    for (const Caso& c : casos) {
        const qsizetype antes = revision.Mensajes().size();
        if (QLatin1String(c.tabla) == QLatin1String("TIT_CLI"))
            revision.MuestraCodClienteIncorrectoEnTIT_CLI();
        else
            revision.Revisa(QLatin1String(c.tabla), c.modo);
        ASSERT_GT(revision.Mensajes().size(), antes) << c.tabla;
        EXPECT_EQ(revision.Mensajes()[antes].MENSAJE, texto(c.mensaje)) << c.tabla;
    }
}

// APUNTES is walked on its tag SERIE+FACTURA: series A (even records) before B (odd ones).
TEST_F(Revision, LinesFollowTheOrderOfTheTableTag) {
    const auto& apuntes = TablaRevisionPorNombre(u"APUNTES"_s);
    EscribeTablaRevision(ruta(apuntes, 0), apuntes, 6, [](qint64 i) { return 990000 + i; });
    ASSERT_TRUE(revision.Prepara());
    revision.MuestraCodClienteIncorrectoEnAPUNTES(0);
    const QList<qint64> esperados = {990000, 990002, 990004, 990001, 990003, 990005};
    QList<qint64> codigos;
    for (const auto& m : revision.Mensajes())
        codigos << m.CODCLIENTE;
    EXPECT_EQ(codigos, esperados);
}

TEST_F(Revision, AMissingDamagedOrLockedTableIsSkippedAndTheRunGoesOn) {
    QFile::remove(ruta(TablaRevisionPorNombre(u"DEUDAS"_s), 1));
    QFile danada(ruta(TablaRevisionPorNombre(u"PLUSVAL"_s), 2));
    ASSERT_TRUE(danada.open(QIODevice::ReadWrite));
    danada.resize(danada.size() / 2); // the header promises more records than the file holds
    danada.close();
    // Another workstation writing CLAVES_S of the notary: its write lock outlasts the wait for it.
    const auto& clavesS = TablaRevisionPorNombre(u"CLAVES_S"_s);
    auto escritor = TTabla::AbreRuta(ruta(clavesS, 3));
    ASSERT_TRUE(BloqueaUltimo(*escritor));
    OlvidaTablasCargadas(); // as in another process: nothing of that file is loaded here

    ASSERT_TRUE(revision.MuestraCodClienteIncorrectoEnTodasTablas());

    QList<Linea> quedan = esperadas;
    quedan.removeIf([](const Linea& l) {
        return l.tabla == mensajeTabla(u"DEUDAS"_s, 1) || l.tabla == mensajeTabla(u"PLUSVAL"_s, 2) ||
               l.tabla == mensajeTabla(u"CLAVES_S"_s, 3);
    });
    EXPECT_EQ(lineas(revision.Mensajes()), quedan);
}

// A table whose layout lacks the searched field or a field of the check's tag cannot be walked as the
// check walks it: it is skipped like a table that cannot be opened.
TEST_F(Revision, ATableWithoutTheFieldsOfTheCheckIsSkipped) {
    TablaRevisionPrueba sinSerie = TablaRevisionPorNombre(u"APUNTES"_s);
    sinSerie.campos.removeIf([](const TCampoDbf& c) { return c.nombre == QLatin1String("SERIE"); });
    EscribeTablaRevision(ruta(sinSerie, 0), sinSerie, 5, [](qint64) { return 990000; });
    TablaRevisionPrueba sinCliente = TablaRevisionPorNombre(u"BANCOS"_s);
    sinCliente.campoCliente = u"OTRO"_s;
    sinCliente.campos.last().nombre = u"OTRO"_s;
    EscribeTablaRevision(ruta(sinCliente, 0), sinCliente, 5, [](qint64) { return 990000; });
    ASSERT_TRUE(revision.Prepara());
    revision.MuestraCodClienteIncorrectoEnAPUNTES(0);
    revision.MuestraCodClienteIncorrectoEnBANCOS(0);
    EXPECT_TRUE(revision.Mensajes().isEmpty());
}

// A record whose client code is no number ends the reading of its table; what was found before stays.
TEST_F(Revision, AnUnreadableRecordEndsItsTableOnly) {
    const auto& testigos = TablaRevisionPorNombre(u"TESTIGOS"_s);
    QFile f(ruta(testigos, 1));
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    const qint64 cabecera = 32 + 32 * testigos.campos.size() + 1, registro = 1 + 12 + 8 + 20;
    f.seek(cabecera + 10 * registro + 1 + 12); // record 10's CODCLIENTE
    f.write("ABCDEFGH");
    f.close();
    ASSERT_TRUE(revision.Prepara());
    revision.MuestraCodClienteIncorrectoEnTESTIGOS(1);
    revision.MuestraCodClienteIncorrectoEnTESTIGOS(2);
    ASSERT_EQ(revision.Mensajes().size(), 3); // record 5 of mode 1, records 5 and 23 of mode 2
    EXPECT_EQ(revision.Mensajes()[0].TABLA, mensajeTabla(u"TESTIGOS"_s, 1));
}

TEST_F(Revision, WithoutAClientsTableTheClerkIsToldAndNothingIsListed) {
    QFile::remove(oficina.ruta(u"COMUN/CLIENTES.DBF"_s));
    EXPECT_FALSE(revision.MuestraCodClienteIncorrectoEnTodasTablas());
    EXPECT_TRUE(revision.Mensajes().isEmpty());
    ASSERT_EQ(mensajes.mostrados().size(), 1);
    EXPECT_EQ(mensajes.mostrados()[0].kind, u"Mensaje_Error"_s);
    EXPECT_TRUE(mensajes.mostrados()[0].text.startsWith(u"No se puede abrir la tabla de clientes"_s));
}

// Codes are searched exactly whatever their shape: whole codes up to 9 digits, beyond them, fractions,
// negatives.
TEST(RevisionCodigos, EveryShapeOfCodeIsSearchedExactly) {
    OficinaPrueba o(ConfigOficinaRevision());
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado(mensajes);
    const QList<TCampoDbf> camposClientes = {{u"CODIGO"_s, 'N', 12, 1},
                                             {u"APELLIDOS"_s, 'C', 10, 0},
                                             {u"NOMBRE"_s, 'C', 10, 0},
                                             {u"CONYUGE"_s, 'N', 12, 1}};
    const double clientes[] = {1, 64, 2.5, -7, 200000000, 99999999};
    const double referidos[] = {1, 64, 63, 65, 2.5, 2.4, -7, -8, 200000000, 300000000, 99999999, 99999998};
    QDir().mkpath(o.ruta(u"COMUN"_s));
    const auto escribe = [&](const QString& tabla, const QList<TCampoDbf>& campos, const auto& codigos) {
        CreaFicheroDbf(o.ruta(u"COMUN/"_s + tabla), campos);
        auto tb = TTabla::AbreRuta(o.ruta(u"COMUN/"_s + tabla));
        for (double c : codigos) {
            tb->Append();
            tb->SetFloat(campos[0].nombre, c);
            tb->Post();
        }
    };
    escribe(u"CLIENTES.DBF"_s, camposClientes, clientes);
    escribe(u"TIT_CLI.DBF"_s, {{u"CODCLIENTE"_s, 'N', 12, 1}}, referidos);
    TRevisionCodCliente revision;
    ASSERT_TRUE(revision.Prepara());
    revision.MuestraCodClienteIncorrectoEnTIT_CLI();
    QList<qint64> faltan;
    for (const auto& m : revision.Mensajes())
        faltan << m.CODCLIENTE;
    // In the order of the tag CODCLIENTE; 2.4 is listed rounded, as the suite prints codes.
    EXPECT_EQ(faltan, (QList<qint64>{-8, 2, 63, 65, 99999998, 300000000}));
}

TEST(MensajeTabla, SuffixOfEachDatabase) {
    struct Caso {
        const char* tabla;
        int modo;
        int notarios;
        const char* notario;
        const char* texto;
    };
    const Caso casos[] = {
        {"claves", 0, 1, "1", "En la Tabla CLAVES de COMUN"},
        {"Tit_Rel", 1, 1, "1", "En la Tabla TIT_REL de BORRADOR"},
        {"PLUSVAL", 2, 1, "1", "En la Tabla PLUSVAL"},
        {"POLIZAS", 3, 2, "2", "En la Tabla POLIZAS del NOTARIO 2"},
        {"POLIZAS", 3, 0, "2", "En la Tabla POLIZAS de NOTARIO"},
        {"señal", 7, 1, "1", "En la Tabla SEÑAL"},
    };
    OficinaPrueba o;
    for (const Caso& c : casos) {
        Config.SetnCuantos(c.notarios);
        Config.SetsNotario(QLatin1String(c.notario));
        EXPECT_EQ(mensajeTabla(texto(c.tabla), c.modo), texto(c.texto)) << c.tabla << " " << c.modo;
    }
}

TEST(TablasConCodCliente, TheThirtyTablesSorted) {
    QStringList esperadas;
    for (const auto& t : TablasRevisionPrueba())
        esperadas << t.nombre;
    esperadas.sort();
    EXPECT_EQ(TablasConCodCliente(), esperadas);
}

// The sample office's dangling codes, as sample-office/README.md lists them (notary 1 selected).
TEST(OficinaMuestra, TheRevisionListsTheDocumentedDanglingCodes) {
    OficinaPrueba o;
    Config.Carga(OficinaMuestra());
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado(mensajes);
    TRevisionCodCliente revision;
    ASSERT_TRUE(revision.MuestraCodClienteIncorrectoEnTodasTablas());
    const QString comun = u" de COMUN"_s, borrador = u" de BORRADOR"_s, notario = u" del NOTARIO 1"_s;
    const auto l = [](const char* tabla, const QString& sufijo, qint64 codigo) {
        return Linea{u"En la Tabla "_s + QLatin1String(tabla) + sufijo, codigo};
    };
    QList<Linea> esperadas = {
        l("ACTIVOS", comun, 341),     l("APODERAD", comun, 350),   l("APUNTES", comun, 362),
        l("APUNTES", comun, 362),     l("BANCOS", comun, 303),     l("CLAVES", borrador, 402),
        l("CLAVES", {}, 501),         l("CLAVES", notario, 318),   l("CLAVES", notario, 604),
        l("CLAVES_E", comun, 377),    l("CLAVES_L", notario, 611), l("CLIENTES", comun, 318),
        l("DEPOSITO", comun, 389),    l("DEUDAS", borrador, 415),  l("ENTRADAS", comun, 305),
        l("FACTURAA", borrador, 433), l("FACTURAC", notario, 620), l("PLUSVAL", {}, 517),
        l("PODERES", comun, 394),     l("POLIZAS", notario, 633),  l("TESTIGOS", borrador, 402),
        l("TIT_CLI", comun, 311),     l("TIT_REL", notario, 655),  l("VALORES", notario, 648)};
    QList<Linea> encontradas = lineas(revision.Mensajes());
    // Within a table the order is the tag's; compare the sets.
    std::sort(esperadas.begin(), esperadas.end());
    std::sort(encontradas.begin(), encontradas.end());
    EXPECT_EQ(encontradas, esperadas);
}

} // namespace
