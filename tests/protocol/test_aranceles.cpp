// Deed and policy fees, the small charge and the search for a base amount.
#include "configuracion_arancel.h"
#include "protocol/aranceles.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace nod;
using namespace nod::prueba;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
const QString SI = QStringLiteral("SI");
const QString NO = QStringLiteral("NO");
const QString FACTURA = QStringLiteral("factura");

TEST(Ges_Arancel, EscalaEnPesetas) {
    const std::pair<double, qint64> casos[] = {
        {0, 4000},         {-5000000, 4000},   {1000000, 4000},    {1000001, 4000}, // the increment truncates
        {1000572, 4001},   {5000000, 11000},   {5000001, 11000},   {10000000, 17250},
        {25000000, 28500}, {100000000, 51000}, {200000000, 71000}, {kNaN, 0},
        {kInf, 0},         {1e300, 0}, // a fee beyond 64 bits
    };
    for (const auto& [importe, honorario] : casos)
        EXPECT_EQ(Ges_Arancel(importe), honorario) << importe;
}

TEST(Ges_Arancel_E, EscalaEnEuros) {
    const std::pair<double, double> casos[] = {
        {6010.12, 24.04},   {6010.13, 24.04},    {10000, 31.02},      {30050.61, 66.11},
        {60101.21, 103.67}, {150253.03, 171.28}, {601012.10, 306.52}, {1000000, 386.32},
        {-1, 24.04},        {kNaN, 0},           {-kInf, 0},
    };
    for (const auto& [importe, honorario] : casos)
        EXPECT_DOUBLE_EQ(Ges_Arancel_E(importe), honorario) << importe;
}

class Arancel : public testing::Test {
protected:
    ConfigGuardada guardada;
};

// Amount; the guarantee, kind of document and lower-table arguments; the fee.
void compruebaCasos(
    std::initializer_list<std::tuple<double, const char*, const char*, const char*, int>> casos) {
    for (const auto& [importe, aval, tipo, inferior, honorario] : casos)
        EXPECT_EQ(ARANCEL_C(importe, QLatin1String(aval), QLatin1String(tipo), QLatin1String(inferior)),
                  honorario)
            << importe << " aval " << aval << " tipo " << tipo << " inferior " << inferior;
}

TEST_F(Arancel, CuatroTiposYRecargoPorAval) {
    EscalaCuatroTipos();
    compruebaCasos({
        {2000000, "NO", "", "NO", 5000}, // the example at the declaration
        {500000, "NO", "", "NO", 1500},
        {500000, "NO", "factura", "NO", 3000}, // the invoice minimum
        {500000, "NO", "Factura", "NO", 1500}, // only "factura" exactly
        {20000000, "NO", "", "NO", 31000},
        {60000000, "NO", "", "NO", 66000},
        {30000000, "NO", "", "SI", 45000}, // reduced rate up to 40 000 000
        {45000000, "NO", "", "SI", 65000},
        {60000000, "NO", "", "SI", 75000},
        {500500, "NO", "", "NO", 1502},  // 1501.5 rounds up
        {-1000, "NO", "", "NO", -2},     // -2.5 + 0.5 truncates towards zero
        {2000000, "si", "", "si", 5000}, // flags are case-sensitive
        {kNaN, "NO", "factura", "NO", 0},
        // The guarantee surcharge.
        {20000000, "SI", "", "NO", 46000}, // charged only on the first 10 000 000
        {4000000, "SI", "", "NO", 15000},
        {30000000, "SI", "", "SI", 52500}, // half the reduced rate
    });
    Config.SetnCor_f_Cual(1); // limited by a maximum surcharge instead
    compruebaCasos({{20000000, "SI", "", "NO", 43000}, {4000000, "SI", "", "NO", 15000}});
}

TEST_F(Arancel, EscalaC) {
    EscalaC();
    compruebaCasos({
        {3000000, "SI", "", "SI", 10000},
        {30000000, "SI", "", "SI", 56000},
        {20000000, "NO", "", "SI", 31000},
        {3000000, "SI", "", "NO", 13000},
        // Past the second limit brackets 1 and 2 are charged at 4.4 ‰, not 5 + 4 ‰ (which would give 36000).
        {10000000, "SI", "", "NO", 37000},
        {50000000, "SI", "", "NO", 127000},
        {200000000, "SI", "", "NO", 327000},
        {200000000, "NO", "", "NO", 176000},
        // The minimum of this scale, whatever the kind; never the invoice minimum nor a surcharge.
        {100000, "NO", "", "NO", 2500},
        {100000, "NO", "factura", "NO", 2500},
        {-100000, "SI", "factura", "SI", 2500},
    });
}

TEST(TASA_C, TablaYRecargo) {
    const std::tuple<double, const char*, int> casos[] = {
        {10000, "", 40},     {20000000, "S", 1575}, {20000000, "", 1050}, {15000000, "", 900},
        {14999999, "", 899}, {25000000, "", 1200},  {50000000, "", 1350}, {100000000, "", 1550},
        {1000000, "S", 270}, {1000000, "s", 60},    {1000000, "SI", 60},  {-5000000, "S", 40},
        {kNaN, "S", 0},      {kInf, "", 0},         {1e15, "", 0}, // a charge beyond 32 bits
    };
    for (const auto& [importe, recargo, tasa] : casos)
        EXPECT_EQ(TASA_C(importe, QLatin1String(recargo)), tasa) << importe << recargo;
}

// Where the maximum's fee already meets the target the search ends there; inputs that are no amounts
// (nor 32-bit amounts) give 0.
TEST_F(Arancel, BASE_C_SinBusqueda) {
    EscalaCuatroTipos();
    const std::tuple<double, double, int> casos[] = {
        {2000000, 5000, 2000000}, {2000000, 5400, 2000000}, {2000000.9, 4600, 2000000},
        {2000000, kInf, 2000000}, {kNaN, 5000, 0},          {kInf, 5000, 0},
        {3e9, 5000, 0},           {2000000, kNaN, 0}};
    for (const auto& [maximo, objetivo, base] : casos)
        EXPECT_EQ(BASE_C(maximo, objetivo, NO, NO), base) << maximo << " " << objetivo;
}

TEST_F(Arancel, BASE_C_DevuelveElPuntoMedioDelTramoFinal) {
    EscalaCuatroTipos();
    // First probe 10 250 000 has fee 21 250, within 500 of 21 000; the bracket is then
    // [500 000, 10 250 000] and its midpoint, cut to tens of thousands, is what comes back.
    const BusquedaBase b = BuscaBase_C(20000000, 21000, NO, NO);
    EXPECT_EQ(std::tuple(b.vueltas, b.ultimaSonda, b.alto, b.bajo, b.resultado, b.agotada),
              std::tuple(1, 10250000LL, 10250000LL, 500000LL, 5370000, false));
    EXPECT_EQ(BASE_C(20000000, 21000, NO, NO), 5370000);
}

TEST_F(Arancel, BASE_C_ElObjetivoNoBajaDelMinimo) {
    EscalaCuatroTipos();
    // Target 0 becomes 3 000: probes go down to where the fee is about 3 000.
    const BusquedaBase b = BuscaBase_C(20000000, 0, NO, NO);
    EXPECT_LE(std::abs(ARANCEL_C(double(b.ultimaSonda), NO, FACTURA, NO) - 3000), 500);
}

TEST_F(Arancel, BASE_C_SeRindeSiElArancelSaltaSobreElObjetivo) {
    EscalaC();
    Config.SetnSuperiorConAvalP12(20); // the fee jumps from 21 000 to 100 000 at 5 000 000
    const BusquedaBase b = BuscaBase_C(20000000, 50000, SI, NO);
    EXPECT_EQ(std::tuple(b.agotada, b.vueltas, b.bajo, b.alto, b.resultado),
              std::tuple(true, kMaximoVueltasBase, 5000000LL, 5001000LL, 5000000));
}

// Random realistic configurations: increasing limits and positive rates that fall bracket by bracket.
void configuracionAleatoria(std::mt19937& g) {
    std::uniform_real_distribution<double> tipo(0.2, 6.0);
    std::uniform_int_distribution<int> millones(1, 60);
    auto limites = [&](int n) {
        std::vector<int> t;
        int acumulado = 0;
        for (int i = 0; i < n; ++i)
            t.push_back(acumulado += millones(g) * 1000000);
        return t;
    };
    auto tipos = [&](int n) {
        std::vector<double> p{tipo(g)};
        for (int i = 1; i < n; ++i)
            p.push_back(p.back() * std::uniform_real_distribution<double>(0.3, 1.0)(g));
        return p;
    };
    const auto t4 = limites(3), tc = limites(4), ti = limites(3);
    const auto p4 = tipos(4), ps = tipos(5), pc = tipos(5), pi = tipos(4);
    Config.SetsTipoArancel(g() % 2 ? QStringLiteral("C") : QString());
    const auto serie = [](const char* nombre, const auto& valores, size_t cuantos) {
        for (size_t i = 0; i < cuantos; ++i)
            Pon(QLatin1String(nombre) + QString::number(i + 1), valores[i]);
    };
    serie("nCor_Tipo", p4, 4);
    serie("nCor_Tramo", t4, 3);
    serie("nInferiorConAvalP", pi, 4);
    serie("nInferiorConAvalT", ti, 3);
    serie("nInferiorSinAvalP", pi, 3);
    serie("nInferiorSinAvalT", ti, 2);
    serie("nSuperiorConAvalP", pc, 5);
    serie("nSuperiorSinAvalP", ps, 5);
    serie("nSuperiorT", tc, 4);
    Config.SetnCor_TipoR(p4[1]);
    Config.SetnCor_f_Cual(int(g() % 2));
    Config.SetnCor_f_Cuant(millones(g) * 1000000);
    Config.SetnCor_f_max(millones(g) * 1000);
    Config.SetnCor_minimo(int(g() % 5000));
    Config.SetnCantidadMinima(int(g() % 5000));
    // The single rate is the blended rate of the first two brackets, so the fee has no jump.
    Config.SetnSuperiorConAvalP12((tc[0] * pc[0] + (tc[1] - tc[0]) * pc[1]) / tc[1]);
}

TEST_F(Arancel, BASE_C_PropiedadesConConfiguracionesAleatorias) {
    std::mt19937 g(20240531);
    int buscadas = 0;
    for (int i = 0; i < 400; ++i) {
        configuracionAleatoria(g);
        const QString aval = g() % 2 ? SI : NO;
        const QString inferior = g() % 2 ? SI : NO;
        const double maximo = std::uniform_int_distribution<int>(2, 1500)(g) * 1000000.0;
        const int bajo = ARANCEL_C(500000, aval, FACTURA, inferior);
        const int alto = ARANCEL_C(maximo, aval, FACTURA, inferior);
        const double objetivo = std::uniform_real_distribution<double>(bajo, alto)(g);
        const BusquedaBase b = BuscaBase_C(maximo, objetivo, aval, inferior);
        SCOPED_TRACE(testing::Message()
                     << "vuelta " << i << " maximo " << maximo << " objetivo " << objetivo);
        const double meta = std::max(objetivo, double(Config.GetnCor_minimo()));
        ASSERT_FALSE(b.agotada);
        EXPECT_LE(b.vueltas, 64);
        if (alto - meta <= 500) {
            EXPECT_EQ(b.resultado, int(maximo));
            continue;
        }
        ++buscadas;
        // The probe that ended the search meets the target within 500 pesetas...
        EXPECT_LE(std::abs(ARANCEL_C(double(b.ultimaSonda), aval, FACTURA, inferior) - meta), 500);
        EXPECT_TRUE(b.ultimaSonda == b.alto || b.ultimaSonda == b.bajo);
        // ...and the amount returned is the final bracket's midpoint cut down to tens of thousands,
        // whose fee cannot pass that of the bracket's top.
        EXPECT_EQ(b.resultado, int(std::trunc(double(b.alto + b.bajo) / 20000)) * 10000);
        EXPECT_LE(ARANCEL_C(b.resultado, aval, FACTURA, inferior),
                  ARANCEL_C(double(b.alto), aval, FACTURA, inferior));
    }
    EXPECT_GT(buscadas, 200);
}

TEST_F(Arancel, BASE_C_SiempreTerminaAunqueElArancelNoCrezca) {
    std::mt19937 g(7);
    std::uniform_real_distribution<double> tipo(-5.0, 5.0);
    for (int i = 0; i < 200; ++i) {
        configuracionAleatoria(g);
        Config.SetnCor_Tipo2(tipo(g));
        Config.SetnCor_Tipo3(tipo(g));
        Config.SetnSuperiorSinAvalP3(tipo(g));
        Config.SetnSuperiorConAvalP12(tipo(g) * 4);
        Config.SetnInferiorSinAvalP2(tipo(g));
        Config.SetnCor_Tramo2(Config.GetnCor_Tramo1() / 2); // limits out of order
        const BusquedaBase b = BuscaBase_C(std::uniform_int_distribution<int>(1, 2000)(g) * 1000000.0,
                                           std::uniform_real_distribution<double>(0, 500000)(g),
                                           g() % 2 ? SI : NO, g() % 2 ? SI : NO);
        EXPECT_TRUE(b.agotada ? b.vueltas == kMaximoVueltasBase : b.vueltas <= kMaximoVueltasBase)
            << b.vueltas;
    }
}

} // namespace
