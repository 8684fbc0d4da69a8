// VAT, IGIC and IPSI percentages in force, withholding, cash-basis VAT and the split of a VAT quota.
#include "companion/config.h"
#include "companion/mensajes.h"
#include "configuracion_arancel.h"
#include "protocol/iva.h"
#include "protocol/sujeto.h"

#include <gtest/gtest.h>
#include <limits>

using namespace nod;
using namespace nod::prueba;

namespace {

TDateTime fecha(int d, int m, int a) {
    return EncodeDate(a, m, d);
}

class Iva : public testing::Test {
protected:
    ConfigGuardada guardada;
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado{mensajes};
};

TEST_F(Iva, PorcentajeEnVigorYPregunta) {
    // Association, town, date, percentage; in the question (none when empty) the percentages compared and
    // the date's period, and the title after "Aplicación ", whose last word names the tax.
    const std::tuple<int, const char*, TDateTime, double, const char*, const char*, const char*> casos[] = {
        {0, "", fecha(31, 8, 2012), 18, "", "", ""},
        {0, "", fecha(1, 9, 2012) + 0.75, 21, "", "", ""},
        {0, "", fecha(30, 6, 2010), 16, "", "", ""},
        {0, "", fecha(1, 7, 2010), 18, "", "", ""},
        {0, "", fecha(1, 9, 2012), 18, "18% y no el 21%", "posterior al 01/09/2012", "de IVA"},
        {0, "", fecha(15, 3, 2011), 21, "21% y no el 18%", "posterior al 01/07/2010 y anterior al 01/09/2012",
         "de IVA"},
        {0, "", fecha(30, 6, 2010), 7.5, "7,5% y no el 16%", "anterior al 01/07/2010", "de IVA"},
        {5, "", fecha(1, 9, 2012), 7, "", "", ""},
        // Association 5 wins over the town.
        {5, "CEUTA", fecha(31, 8, 2012), 4, "4% y no el 5%", "anterior al 01/09/2012", "del IGIC"},
        {5, "", fecha(2, 1, 2020), 21, "21% y no el 7%", "posterior al 01/09/2012", "del IGIC"},
        {0, "MELILLA", fecha(1, 7, 2018), 6, "", "", ""},
        {0, "MELILLA", fecha(30, 6, 2018), 6, "6% y no el 9%", "posterior al 24/09/2012", "del IPSI"},
        {0, "CEUTA", fecha(2, 7, 2018), 21, "21% y no el 6%", "posterior al 01/07/2018", "del IPSI"},
        {0, "CEUTA", fecha(23, 9, 2012), 9, "9% y no el 4%", "anterior al 24/09/2012", "de IPSI"},
        // Only the exact upper-case town selects IPSI.
        {0, "Ceuta", fecha(1, 1, 2020), 6, "6% y no el 21%", "posterior al 01/09/2012", "de IVA"},
    };
    for (const auto& [colegio, lugar, fecha, porcentaje, porcentajes, periodo, titulo] : casos) {
        SCOPED_TRACE(testing::Message() << colegio << " " << lugar << " " << fecha << " " << porcentaje);
        Config.SetnColegio(colegio);
        Config.SetLugar1(QLatin1String(lugar));
        for (int respuesta : {1, 2}) {
            mensajes.limpia();
            mensajes.respuestas({respuesta});
            const bool preguntado = *titulo != 0;
            EXPECT_EQ(CompruebaIVA(fecha, porcentaje), !preguntado || respuesta == 1);
            if (!preguntado) {
                EXPECT_TRUE(mensajes.mostrados().isEmpty());
                continue;
            }
            ASSERT_EQ(mensajes.mostrados().size(), 1);
            const DialogoMostrado& d = mensajes.mostrados()[0];
            EXPECT_EQ(d.kind, QStringLiteral("Mensaje_NoSi"));
            EXPECT_EQ(d.title, QStringLiteral("Aplicación ") + QLatin1String(titulo));
            // The message service shows the text, then the question on a line of its own.
            EXPECT_EQ(d.text,
                      QStringLiteral(
                          "¿Seguro que el %1 a aplicar es el %2?\rLa fecha es %3\n¿Desea continuar (S/N)?")
                          .arg(QString::fromLatin1(titulo).section(u' ', -1), QLatin1String(porcentajes),
                               QLatin1String(periodo)));
        }
    }
}

TEST_F(Iva, Retencion) {
    Config.SetTipoRet(18);
    // Town, the two dates, percentage; the percentage the clerk is asked to consider (empty: accepted).
    const std::tuple<const char*, TDateTime, TDateTime, double, const char*> casos[] = {
        {"", fecha(15, 6, 2015), fecha(20, 7, 2015), 19, "15"},
        {"", fecha(15, 6, 2015), fecha(20, 7, 2015), 15, ""},
        {"", fecha(20, 7, 2015), fecha(15, 6, 2015), 19, "15"},
        {"", fecha(20, 7, 2015), fecha(20, 7, 2015) + 0.9, 19, "15"}, // same day: the issue date is judged
        {"", fecha(15, 6, 2015), 0, 19, ""},
        {"", fecha(11, 7, 2015), 0, 15, "19"},
        {"", fecha(1, 1, 2015), 0, 21, "19"},
        {"", fecha(31, 12, 2014), 0, 21, ""},
        {"", fecha(1, 9, 2012), 0, 15, "21"},
        {"", fecha(31, 8, 2012), 0, 15, ""},
        {"", fecha(1, 3, 2010), 0, 18, "15"},
        {"", fecha(1, 3, 2016), 0, 18, "15"},
        {"", fecha(1, 3, 2016), 0, 15, ""},
        {"MELILLA", fecha(2, 7, 2018), 0, 6, "7,5"},
        {"MELILLA", fecha(2, 7, 2018), 0, 7.5, "6"},
        {"CEUTA", fecha(30, 6, 2018), 0, 7.5, ""},
        {"CEUTA", fecha(30, 6, 2018), fecha(1, 7, 2018), 7.5, "6"},
        {"CEUTA", fecha(1, 1, 2014), 0, 15, "7,5"},
    };
    for (const auto& [lugar, a, b, porcentaje, otro] : casos) {
        SCOPED_TRACE(testing::Message() << lugar << " " << a << " " << b << " " << porcentaje);
        Config.SetLugar1(QLatin1String(lugar));
        QString mensaje = QStringLiteral("sin tocar");
        EXPECT_EQ(CompruebaRetencion(a, b, porcentaje, mensaje), *otro == 0);
        EXPECT_EQ(mensaje, *otro ? QStringLiteral("Compruebe que la retención a aplicar no sería del %1%")
                                       .arg(QLatin1String(otro))
                                 : QString());
    }
    EXPECT_TRUE(mensajes.mostrados().isEmpty());
}

TEST_F(Iva, RetencionPorDefectoSoloConLaFechaDeEmision) {
    // A date that is no day falls in no period: only the default-rate test can judge it.
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Config.SetTipoRet(18);
    const QString aviso =
        QStringLiteral("La retención aplicada no coincide con la configurada por defecto (%1)");
    QString mensaje;
    EXPECT_TRUE(CompruebaRetencion(nan, 0, 18, mensaje));
    EXPECT_FALSE(CompruebaRetencion(nan, 0, 17.5, mensaje));
    EXPECT_EQ(mensaje, aviso.arg(QStringLiteral("18")));
    Config.SetTipoRet(7.5);
    EXPECT_FALSE(CompruebaRetencion(nan, 0, 17.5, mensaje));
    EXPECT_EQ(mensaje, aviso.arg(QStringLiteral("7,5")));
}

TEST_F(Iva, IvaPorCaja) {
    Config.SetCriterioFacturacion(3);
    EXPECT_FALSE(IVA_Por_Caja(fecha(31, 12, 2013)));
    EXPECT_TRUE(IVA_Por_Caja(fecha(1, 1, 2014)));
    EXPECT_FALSE(IVA_Por_Caja(std::numeric_limits<double>::quiet_NaN()));
    Config.SetCriterioFacturacion(2);
    EXPECT_FALSE(IVA_Por_Caja(fecha(1, 1, 2014)));
}

TEST(Sujeto, Pesetas) {
    const std::tuple<qint64, qint64, double, const char*, qint64> casos[] = {
        {100000, 16000, 16, "S", 100000},
        {100000, 16000, 16, "N", 0},
        {100000, 8000, 16, "S", 50000},
        {100000, 8000, 16, "N", 50000},
        {100000, 16003, 16, "S", 100000}, // within 100 / 16 / 2 = 3.125
        {100000, 16004, 16, "S", 100025},
        {100000, 16004, 16, "", -25},
        {100000, 0, 16, "S", 0},
        {100000, 0, 0, "N", 100000},
        {100000, 7000, 7, "s", 0},                            // only "S" selects the subject part
        {1000, 33, 7, "S", 471},                              // grossed up and truncated
        {100000, -8000, -16, "S", 50000},                     // no tolerance for a negative percentage
        {std::numeric_limits<qint64>::min(), 1, 100, "N", 0}, // the rest would overflow
        {100000, 1, -1e-300, "S", 0},                         // a subject part beyond 64 bits
        {100000, 8000, std::numeric_limits<double>::quiet_NaN(), "S", 0},
    };
    for (const auto& [importe, cuota, p, parte, esperado] : casos)
        EXPECT_EQ(Sujeto(importe, cuota, p, QLatin1String(parte)), esperado)
            << importe << " " << cuota << " " << p;
}

TEST(Sujeto, PorcentajeCeroConCuotaEsUnError) {
    EXPECT_THROW(Sujeto(100000, 8000, 0, QStringLiteral("S")), EDivisionPorCero);
    EXPECT_THROW(Sujeto_E(1000, 80, 0, QStringLiteral("S")), EDivisionPorCero);
    ConfigGuardada guardada;
    Config.SetTipoIva(0);
    EXPECT_THROW(MI_SUJETO(1000, 80, QStringLiteral("S"), QStringLiteral("E"), 0), EDivisionPorCero);
    EXPECT_EQ(MI_SUJETO(1000, 0, QStringLiteral("N"), QStringLiteral("E"), 0), 1000);
}

TEST(Sujeto, Euros) {
    ConfigGuardada guardada;
    Config.SetPesetasPorEuro(166.386); // tolerance 3.125 pesetas is 0.02 euros
    const std::tuple<double, double, double, const char*, double> casos[] = {
        {1000, 80, 16, "S", 500},         {1000, 160, 16, "S", 1000},     {1000, 160.01, 16, "S", 1000},
        {1000, 160.03, 16, "S", 1000.19}, {1000, 160.03, 16, "N", -0.19}, {1000, 0, 16, "N", 1000}};
    for (const auto& [importe, cuota, p, parte, esperado] : casos)
        EXPECT_NEAR(Sujeto_E(importe, cuota, p, QLatin1String(parte)), esperado, 1e-9) << cuota;
    EXPECT_EQ(Sujeto_E(std::numeric_limits<double>::infinity(), 80, 16, QStringLiteral("S")), 0);
}

TEST(Sujeto, MiSujeto) {
    ConfigGuardada guardada;
    Config.SetTipoIva(21);
    const std::tuple<double, double, const char*, const char*, double, double> casos[] = {
        {100000, 8000, "S", "", 16, 50000},   {1000, 33, "S", "", 7, 471},
        {1000, 33, "S", "E", 7, 3300.0 / 7},  {1000, 160.01, "S", "E", 16, 1000}, // within 100 / 16 / 332
        {1000, 160.02, "N", "E", 16, -0.125}, {1000, 210, "S", "E", 0, 1000},     // 0 means TipoIva
        {1000, 105, "N", "E", 0, 500},        {1000, 0, "N", "", 16, 1000},
    };
    for (const auto& [importe, cuota, parte, moneda, p, esperado] : casos)
        EXPECT_NEAR(MI_SUJETO(importe, cuota, QLatin1String(parte), QLatin1String(moneda), p), esperado, 1e-9)
            << cuota << moneda;
}

} // namespace
