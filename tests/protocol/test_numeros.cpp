// Packing and unpacking of protocol codes, and the printed number.
#include "companion/codigos.h"
#include "companion/errores.h"
#include "protocol/numeros.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace nod;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(Empaquetado, EjemplosDeCadaFormato) {
    EXPECT_EQ(EncodeCod4(2008, 15), 20080015);
    EXPECT_DOUBLE_EQ(EncodeCod(2008, 12.94), 200800012.9);
    EXPECT_DOUBLE_EQ(EncodeCod(2008, 12.96), 200800013.0);
    EXPECT_EQ(EncodeCod6(1999, 12), 1999000012);
    EXPECT_EQ(EncodeCor(2008, 12), 200800012);
    EXPECT_EQ(EncodeCor(2008, 12.9), 200800012);
    EXPECT_EQ(EncodeCor(2008, -12.9), 200799988);
    EXPECT_EQ(EncodeCod(2008, 1234), 200801234); // the whole-number companion form
}

TEST(Empaquetado, ResultadoQueNoCabeDaCero) {
    EXPECT_EQ(EncodeCod6(2148, 0), 0);
    EXPECT_EQ(EncodeCod6(2008, 123456), 2008123456);
    EXPECT_EQ(EncodeCor(30000, 1), 0);
    EXPECT_EQ(EncodeCod4(std::numeric_limits<int>::max(), 1), 0);
    EXPECT_EQ(EncodeCod(std::numeric_limits<int>::min(), -1), 0);
    EXPECT_EQ(EncodeCor(2008, kNaN), 0);
    EXPECT_EQ(EncodeCor(2008, 1e12), 0);
}

struct Desempaquetado {
    double codigo;
    int anno4, num4, anno5, num5;
    bool decodifica = true; // false: the year does not fit, DecodeCod gives 0 and 0
};

class CodigosDobles : public testing::TestWithParam<Desempaquetado> {};

TEST_P(CodigosDobles, CodToYDecodeCoinciden) {
    const auto& c = GetParam();
    EXPECT_EQ(CodToAno4(c.codigo), c.anno4);
    EXPECT_EQ(CodToNum4(c.codigo), c.num4);
    EXPECT_EQ(CodToNum5(c.codigo), c.num5);
    int anno = -1, numero = -1;
    DecodeCod(c.codigo, anno, numero);
    EXPECT_EQ(anno, c.anno5);
    EXPECT_EQ(numero, c.decodifica ? c.num5 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Tabla, CodigosDobles,
    testing::Values(Desempaquetado{200801234.9, 20080, 1234, 2008, 1234}, // the fraction is dropped
                    Desempaquetado{20080015, 2008, 15, 200, 80015},
                    Desempaquetado{-200801234, -20080, -1234, -2008, -1234}, // truncating division
                    Desempaquetado{-0.5, 0, 0, 0, 0}, Desempaquetado{kNaN, 0, 0, 0, 0},
                    Desempaquetado{kInf, 0, 0, 0, 0}, Desempaquetado{-kInf, 0, 0, 0, 0},
                    Desempaquetado{9.3e18, 0, 0, 0, 0}, // beyond 64 bits: cannot be truncated
                    // The year does not fit 32 bits, but the number part is still the remainder.
                    Desempaquetado{1e15 + 1234, 0, 1234, 0, 1234, false}));

TEST(Desempaquetado, FormatosEnteros) {
    const auto par = [](void (*decodifica)(int, int&, int&), int codigo) {
        int a = -1, n = -1;
        decodifica(codigo, a, n);
        return std::pair(a, n);
    };
    EXPECT_EQ(par(DecodeCod4, 20080015), std::pair(2008, 15));
    EXPECT_EQ(par(DecodeCod6, 1999000012), std::pair(1999, 12));
    EXPECT_EQ(par(DecodeCor, 200800012), std::pair(2008, 12));
    EXPECT_EQ(par(DecodeCor, std::numeric_limits<int>::min()), std::pair(-21474, -83648));
}

TEST(CodToAno5, AnchoDelNumeroPorElPivote3000) {
    const std::pair<double, int> casos[] = {
        {200800123, 2008},
        {2008000123, 2008},
        {20080000123, 2008},
        {299999999, 2999},
        {300000000, 300},
        {3000000000.0, 300},
        {0, 0},
        {kNaN, 0},
        {299912345678.0, 29991}, // still 3000 or more after the third division: kept as it comes
    };
    for (const auto& [codigo, anno] : casos)
        EXPECT_EQ(CodToAno5(codigo), anno) << codigo;
}

TEST(Numero, LosTresModos) {
    EXPECT_EQ(Numero(200801234, 1), QStringLiteral("1.234"));
    EXPECT_EQ(Numero(200801234, 2), QStringLiteral("1.234/2.008"));
    EXPECT_EQ(Numero(200801234, 3), QStringLiteral("01234/2008"));
    EXPECT_EQ(Numero(200899999, 2), QStringLiteral("99.999/2.008"));
    EXPECT_EQ(Numero(200800007, 1), QStringLiteral("7"));
    EXPECT_EQ(Numero(200800000, 1), QString()); // the picture "#," has no mandatory digit
    EXPECT_EQ(Numero(200801234, 0), QString());
    EXPECT_EQ(Numero(200801234, 4), QString());
}

TEST(Numero, CodigosDeOtraLongitudSeCortanPorPosicion) {
    EXPECT_EQ(Numero(2008012345, 3), QStringLiteral("01234/2008"));  // tenth digit ignored
    EXPECT_EQ(Numero(20080123, 3), QStringLiteral("0123/2008"));     // short number piece
    EXPECT_EQ(Numero(-200801234, 2), QStringLiteral("80.123/-200")); // the sign takes a position
    EXPECT_THROW(Numero(2008, 1), EConvertError);                    // no number piece at all
    EXPECT_EQ(Numero(2008, 3), QStringLiteral("/2008"));             // mode 3 converts nothing
}

TEST(FormateaMiles, Agrupa) {
    EXPECT_EQ(FormateaMiles(1234567), QStringLiteral("1.234.567"));
    EXPECT_EQ(FormateaMiles(-2008), QStringLiteral("-2.008"));
    EXPECT_EQ(FormateaMiles(999), QStringLiteral("999"));
    EXPECT_EQ(FormateaMiles(0), QString());
    EXPECT_EQ(FormateaMiles(std::numeric_limits<qint64>::min()),
              QStringLiteral("-9.223.372.036.854.775.808"));
}

TEST(CodToBis, NumeroConSuMarca) {
    EXPECT_EQ(CodToBis(200801234.1, 1), QStringLiteral("1.234 bis"));
    EXPECT_EQ(CodToBis(200801234.3, 1), QStringLiteral("1.234 quáter"));
    EXPECT_EQ(CodToBis(200801234, 1), QStringLiteral("1.234"));
    EXPECT_EQ(CodToBis(200801234.2, 2), QStringLiteral("1.234 ter/2008"));
    EXPECT_EQ(CodToBis(200801234.2, 0), QStringLiteral("ter"));
    EXPECT_EQ(CodToBis(200800000, 1), QStringLiteral("0"));
    EXPECT_EQ(CodToBis(EncodeCod(2008, 12.94), 1), QStringLiteral("12 decies"));
    EXPECT_EQ(CodToBis(200801234.1, 3), QString());
    EXPECT_EQ(CodToBis(kNaN, 1), QString());
    EXPECT_EQ(CodToBis(1e300, 1), QString());
}

} // namespace
