// Invoice headers in force by date, per notary, and the intervention descriptions of Tipo_Int.dbf.
#include "companion/config.h"
#include "protocol/actuaciones.h"
#include "protocol/cabecerafacturas.h"
#include "tables/tablas.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <QVariantList>
#include <gtest/gtest.h>

using namespace nod;
using namespace nod::prueba;

namespace {

const char* kConfig =
    "[GENERAL]\nNumeroNotarios=2\nNotario=2\n[ALIAS]\nDB=DATOS\nDBNOTARIO1=N1\nDBNOTARIO2=N2\n"
    "[FACTURACION]\nMultiplesCabeceras=1\n[NOTARIO1]\nfac_1=Cabecera del INI 1\n"
    "[NOTARIO2]\nfac_1=Cabecera del INI 2\n";

// Writes a table at `ruta` (its folder made) with the rows' values in field order.
void creaDbf(const QString& ruta, const QList<TCampoDbf>& campos, const QList<QVariantList>& filas) {
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    CreaFicheroDbf(ruta, campos);
    auto t = TTabla::AbreRuta(ruta);
    for (const QVariantList& fila : filas) {
        t->Append();
        for (qsizetype i = 0; i < fila.size(); ++i) {
            if (campos[i].tipo == 'D')
                t->SetDateTime(campos[i].nombre, fila[i].toDouble());
            else if (campos[i].tipo == 'N')
                t->SetInteger(campos[i].nombre, fila[i].toInt());
            else
                t->SetString(campos[i].nombre, fila[i].toString());
        }
        t->Post();
    }
}

void escribeCabeceras(const OficinaPrueba& o, const QString& carpeta,
                      std::initializer_list<std::tuple<TDateTime, const char*, const char*>> lineas) {
    QList<QVariantList> filas;
    for (const auto& [fecha, nombre, texto] : lineas)
        filas.append({fecha, QString::fromUtf8(nombre), QString::fromUtf8(texto)});
    creaDbf(o.ruta(carpeta + QStringLiteral("/CAB_FACT.DBF")),
            {{QStringLiteral("FECHA_ENT"), 'D', 8, 0},
             {QStringLiteral("NOMBRE"), 'C', 10, 0},
             {QStringLiteral("DESCRIP"), 'C', 80, 0}},
            filas);
}

TDateTime dia(int d, int m, int a) {
    return EncodeDate(a, m, d);
}

class Cabeceras : public testing::Test {
protected:
    void SetUp() override {
        escribeCabeceras(oficina, QStringLiteral("N1"),
                         {{dia(1, 1, 2010), "fac_1", "Notaría Pérez 2010"},
                          {dia(1, 1, 2015), "fac_1", "Notaría Pérez 2015"},
                          {dia(1, 1, 2015), "fac_g_4", "Registro Mercantil"},
                          {dia(1, 1, 2015), "FAC_2", "Nombre en mayúsculas: no es una línea"},
                          {dia(1, 6, 2012), "fac_1", "Notaría Pérez 2012"}});
        escribeCabeceras(
            oficina, QStringLiteral("N2"),
            {{dia(1, 3, 2014), "fac_1", "Notaría Gómez 2014"}, {dia(1, 3, 2014), "fac_d_2", "C/ Mayor, 1"}});
        oficina.recarga();
        OlvidaTablasCargadas();
    }
    OficinaPrueba oficina{QString::fromUtf8(kConfig)};
};

TEST_F(Cabeceras, EnVigorPorFechaYSinFilaNadaCambia) {
    Config.SetsNotario(QStringLiteral("1"));
    const std::pair<TDateTime, const char*> casos[] = {
        {dia(31, 12, 2009), "Cabecera del INI 1"}, // no row in force yet: the line of the INI stays
        {dia(1, 6, 2012), "Notaría Pérez 2012"},   // the day itself
        {dia(31, 12, 2014) + 0.5, "Notaría Pérez 2012"}, {dia(2, 1, 2015), "Notaría Pérez 2015"},
        {dia(2, 1, 2011), "Notaría Pérez 2010"},
    };
    for (const auto& [fecha, texto] : casos) {
        ActualizaCabeceraFacturas(fecha, false);
        EXPECT_EQ(Config.GetFac_1(), QString::fromUtf8(texto)) << fecha;
    }
    EXPECT_EQ(Config.GetFac_g_4(), QStringLiteral("Registro Mercantil"));
    EXPECT_TRUE(Config.GetFac_2().isEmpty());

    Config.SetsNotario(QStringLiteral("3")); // no alias, no table
    Config.SetFac_1(QStringLiteral("sin tocar"));
    ActualizaCabeceraFacturas(dia(1, 1, 2020), false);
    EXPECT_EQ(Config.GetFac_1(), QStringLiteral("sin tocar"));
}

TEST_F(Cabeceras, TodosLosNotariosTerminanEnElSeleccionado) {
    EXPECT_EQ(Config.GetsNotario(), QStringLiteral("2"));
    ActualizaCabeceraFacturas(dia(1, 1, 2016), true);
    EXPECT_EQ(Config.GetsNotario(), QStringLiteral("2"));
    EXPECT_EQ(Config.GetFac_1(), QStringLiteral("Notaría Gómez 2014"));
    EXPECT_EQ(Config.GetFac_d_2(), QStringLiteral("C/ Mayor, 1"));

    Config.SetsNotario(QStringLiteral("1"));
    Config.SetHayMultiplesCabeceras(false); // only the notary in use
    ActualizaCabeceraFacturas(dia(1, 1, 2016), true);
    EXPECT_EQ(Config.GetFac_1(), QStringLiteral("Notaría Pérez 2015"));
}

TEST(ActuacionINTI, DescripcionPorCodigo) {
    OficinaPrueba oficina(QStringLiteral("[ALIAS]\nDB=DATOS\n"));
    const QString ruta = oficina.ruta(QStringLiteral("DATOS/Tipo_Int.dbf"));
    creaDbf(ruta, {{QStringLiteral("CODIGO"), 'N', 4, 0}, {QStringLiteral("DESCRIPCIO"), 'C', 60, 0}},
            {{3, QStringLiteral("Mandatario verbal")}, {1, QStringLiteral("En su nombre")}});
    OlvidaTablasCargadas();
    EXPECT_EQ(QStringList({Actuacion_INTI(1), Actuacion_INTI(3), Actuacion_INTI(2)}),
              QStringList({QStringLiteral("En su nombre"), QStringLiteral("Mandatario verbal"), QString()}));
    auto abierta = CreaTabla(QStringLiteral("DB"), QStringLiteral("Tipo_Int.dbf"), QStringLiteral("CODIGO"));
    EXPECT_EQ(Actuacion_INTI(3, *abierta), QStringLiteral("Mandatario verbal"));
    EXPECT_EQ(abierta->AsInteger(QStringLiteral("CODIGO")), 3); // left open, on the row found
    QFile::remove(ruta);
    OlvidaTablasCargadas();
    EXPECT_EQ(Actuacion_INTI(1), QString()); // no table
}

} // namespace

// The sample office's own tables: each notary's header lines change on their dates, and the office's
// intervention kinds are found by code.
TEST(OficinaMuestra, CabecerasDeLosDosNotariosYTiposDeIntervencion) {
    const TConfig anterior = Config;
    Config.Carga(OficinaMuestra());
    OlvidaTablasCargadas();
    struct Caso {
        const char* notario;
        TDateTime fecha;
        const char* fac_1;
        const char* fac_3;
        const char* fac_g_2;
    };
    const char *ruiz = "IGNACIO RUIZ VALDÉS", *olmedo = "MARÍA DEL CARMEN OLMEDO SÁNCHEZ",
               *principe = "C/ Príncipe de Vergara, 41, 2º dcha. 28001 MADRID",
               *castellana = "Paseo de la Castellana, 118, 4º. 28046 MADRID";
    const Caso casos[] = {
        {"1", dia(2, 1, 2015), ruiz, principe, "ES12 0049 1500 0512 3456 7890"},
        {"1", dia(31, 5, 2021), ruiz, principe, "ES12 0049 1500 0512 3456 7890"},
        {"1", dia(1, 6, 2021), ruiz, castellana, "ES12 0049 1500 0512 3456 7890"},
        {"1", dia(15, 3, 2025), ruiz, castellana, "ES76 2100 0418 4502 0005 1332"},
        {"2", dia(14, 9, 2023), olmedo, principe, "ES91 0182 2370 4102 0150 3124"},
        {"2", dia(15, 9, 2023), olmedo, castellana, "ES91 0182 2370 4102 0150 3124"},
    };
    for (const Caso& c : casos) {
        Config.SetsNotario(QString::fromLatin1(c.notario));
        ActualizaCabeceraFacturas(c.fecha, false);
        EXPECT_EQ(QStringList({Config.GetFac_1(), Config.GetFac_3(), Config.GetFac_g_2()}),
                  QStringList(
                      {QString::fromUtf8(c.fac_1), QString::fromUtf8(c.fac_3), QString::fromUtf8(c.fac_g_2)}))
            << c.notario << ' ' << c.fecha;
    }
    EXPECT_EQ(QStringList({Actuacion_INTI(1), Actuacion_INTI(7), Actuacion_INTI(20), Actuacion_INTI(13)}),
              QStringList({QStringLiteral("En su nombre"), QStringLiteral("Como apoderado de"),
                           QStringLiteral("Por sí y en representación de su cónyuge"), QString()}));
    Config = anterior;
}
