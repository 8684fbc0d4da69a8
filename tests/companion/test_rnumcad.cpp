#include "companion/fechas.h"
#include "companion/letrascatalan.h"
#include "companion/rnumcad.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>

using namespace nod;

namespace {
QString u8(const char* s) {
    return QString::fromUtf8(s);
}
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
} // namespace

TEST(Rnumcad, Float_CadWritesTheShortestExactDigits) {
    const std::tuple<double, const char*> casos[] = {{7.5, "7,5"},         {21, "21"},
                                                     {-0.25, "-0,25"},     {0.1, "0,1"},
                                                     {-0.0, "0"},          {1e15, "1000000000000000"},
                                                     {1234.56, "1234,56"}, {1e-7, "0,0000001"},
                                                     {kNan, "0"},          {kInf, "0"}};
    for (const auto& [x, esperado] : casos)
        EXPECT_EQ(Float_Cad(x), QString::fromLatin1(esperado)) << x;

    // Figures far longer than any amount: every digit is written without exponent and reads back as
    // the same number.
    for (double x : {1e300, -1e100, std::numeric_limits<double>::max(), 1e22}) {
        const QString t = Float_Cad(x);
        const qsizetype digitos = qsizetype(std::floor(std::log10(std::fabs(x)))) + 1;
        EXPECT_EQ(t.size(), digitos + (x < 0 ? 1 : 0)) << x;
        EXPECT_TRUE(EsUnNumero(x < 0 ? t.mid(1) : t)) << x;
        EXPECT_EQ(Cad_Float(t), x) << x;
    }
    EXPECT_EQ(Float_Cad(std::numeric_limits<double>::denorm_min()),
              QStringLiteral("0,") + QString(323, QLatin1Char('0')) + QLatin1Char('5'));
}

TEST(Rnumcad, RedondeaDecHalfAwayFromZeroOnTheWrittenDigits) {
    const std::tuple<double, int, double> casos[] = {{2.675, 2, 2.68}, {-0.5, 0, -1},    {0.5, 0, 1},
                                                     {1.005, 2, 1.01}, {9.995, 2, 10},   {1.234, 5, 1.234},
                                                     {0.004, 2, 0},    {123.4, -2, 123}, {2.5, 0, 3}};
    for (const auto& [x, decimales, esperado] : casos)
        EXPECT_DOUBLE_EQ(RedondeaDec(x, decimales), esperado) << x << ' ' << decimales;
    EXPECT_TRUE(std::isnan(RedondeaDec(kNan, 2)));
}

TEST(Rnumcad, ParteEnteraDecimal) {
    const std::tuple<const char*, const char*, const char*> casos[] = {
        {"1234,05", "1234", "05"}, {"21", "21", ""}, {"-0,25", "-0", "25"},
        {"3.5", "3", "5"},         {"", "", ""},     {",5", "", "5"}};
    for (const auto& [numero, entera, decimal] : casos) {
        QString e = QStringLiteral("x"), d = QStringLiteral("x");
        ParteEnteraDecimal(QString::fromLatin1(numero), e, d);
        EXPECT_EQ(e, QString::fromLatin1(entera)) << numero;
        EXPECT_EQ(d, QString::fromLatin1(decimal)) << numero;
    }
}

TEST(Rnumcad, TextToNumbers) {
    const std::tuple<const char*, qint64> enteros[] = {
        {" -42 ", -42},    {"+7", 7},  {"4a", 0}, {"", 0}, {"2147483647", 2147483647},
        {"2147483648", 0}, {"1.5", 0}, {"ñ", 0}};
    for (const auto& [texto, entero] : enteros)
        EXPECT_EQ(Cad_Int(u8(texto)), entero) << texto;
    EXPECT_EQ(Cad_Int64(QStringLiteral("2147483648")), 2147483648LL);
    EXPECT_EQ(Cad_Int64(QStringLiteral("-9223372036854775808")), std::numeric_limits<qint64>::min());
    EXPECT_EQ(Cad_Int64(QStringLiteral("9223372036854775808")), 0);

    const std::tuple<const char*, double> reales[] = {
        {"1.234,5", 1234.5}, {"2.5", 2.5}, {"2,5", 2.5}, {" 1 234,5 ", 1234.5},
        {"-0,25", -0.25},    {"abc", 0},   {"", 0},      {"1e400", 0},
        {"nan", 0}};
    for (const auto& [texto, valor] : reales)
        EXPECT_DOUBLE_EQ(Cad_Float(QString::fromLatin1(texto)), valor) << texto;
}

TEST(Rnumcad, CutsAndZeros) {
    const QString s = QStringLiteral("ABCDE");
    EXPECT_EQ(StrLeft(s, 2), QStringLiteral("AB"));
    EXPECT_EQ(StrLeft(s, 9), s);
    EXPECT_EQ(StrLeft(s, -1), QString());
    EXPECT_EQ(StrRight(s, 2), QStringLiteral("DE"));
    EXPECT_EQ(StrRight(s, 0), QString());
    const std::tuple<qint64, int, const char*> ceros[] = {
        {7, 3, "007"},
        {-7, 3, "-07"},
        {1234, 2, "1234"},
        {0, 0, "0"},
        {7, kAnchoMaximoTexto + 1, "7"},
        {-7, std::numeric_limits<int>::max(), "-7"},
        {std::numeric_limits<qint64>::min(), 2, "-9223372036854775808"}};
    for (const auto& [valor, ancho, esperado] : ceros)
        EXPECT_EQ(StrCeros(valor, ancho), QString::fromLatin1(esperado)) << valor;
    EXPECT_EQ(StrCeros(7, kAnchoMaximoTexto).size(), kAnchoMaximoTexto);
}

// Fault 14: a cut through the middle of a character outside the Basic Multilingual Plane left half of it,
// which reaches a UTF-8 reader as "?". A cut never splits such a pair; the result stays within the count.
TEST(Rnumcad, Fault14CutsNeverSplitASurrogatePair) {
    const QString s = QString::fromUtf8("a\xF0\x9F\x98\x80"
                                        "b"); // a, U+1F600 (two units), b
    const std::tuple<QString (*)(const QString&, int), const char*, int, QString> casos[] = {
        {&StrLeft, "StrLeft", 1, QStringLiteral("a")}, {&StrLeft, "StrLeft", 2, QStringLiteral("a")},
        {&StrLeft, "StrLeft", 3, s.left(3)},           {&StrRight, "StrRight", 2, QStringLiteral("b")},
        {&StrRight, "StrRight", 3, s.right(3)},        {&StrLeft, "StrLeft", 4, s}};
    for (const auto& [rutina, nombre, n, esperado] : casos)
        EXPECT_EQ(rutina(s, n), esperado) << nombre << ' ' << n;
}

TEST(Rnumcad, CaseKeepsTheLength) {
    EXPECT_EQ(UpperCase(u8("camión ñandú çà")), u8("CAMIÓN ÑANDÚ ÇÀ"));
    EXPECT_EQ(lowerCase(u8("CAMIÓN ÑANDÚ ÇÀ DIECISÉIS")), u8("camión ñandú çà dieciséis"));
    EXPECT_EQ(UpperCase(u8("straße µ")), u8("STRAßE µ"));
    EXPECT_EQ(UpperCase(u8("ÿ")), u8("Ÿ"));
}

TEST(Rnumcad, Digits) {
    for (char c = '0'; c <= '9'; ++c)
        EXPECT_TRUE(EsUnNumero(QLatin1Char(c)));
    for (QChar c : u8("a /:½²٣"))
        EXPECT_FALSE(EsUnNumero(c)) << int(c.unicode());
    EXPECT_EQ(DejaSoloNumeros(QStringLiteral("B-12.3")), QStringLiteral("123"));
    EXPECT_EQ(DejaSoloNumeros(QStringLiteral("abc")), QString());
    EXPECT_EQ(DejaSoloNumeros(QStringLiteral("1.234,5 m"), true), QStringLiteral("1.234,5"));
    for (auto [texto, numero] :
         {std::pair{"0123", true}, {"7", true}, {"", false}, {"12.3", false}, {" 12", false}})
        EXPECT_EQ(EsUnNumero(QString::fromLatin1(texto)), numero) << texto;
}

TEST(Rnumcad, AgrupaMilesKeepsTheSignOutsideTheGroups) {
    const std::pair<const char*, const char*> casos[] = {{"1234567", "1.234.567"},
                                                         {"-123456", "-123.456"},
                                                         {"-1234", "-1.234"},
                                                         {"999", "999"},
                                                         {"1000", "1.000"},
                                                         {"-1", "-1"},
                                                         {"", ""},
                                                         {"-", "-"}};
    for (auto [cifras, agrupadas] : casos)
        EXPECT_EQ(AgrupaMiles(QString::fromLatin1(cifras)), QString::fromLatin1(agrupadas)) << cifras;
}

TEST(Fechas, CompletaAnnoCentury) {
    const std::tuple<const char*, const char*> casos[] = {
        {"05", "2005"},   {"5", "2005"},    {"49", "2049"}, {"50", "1950"}, {"98", "1998"},
        {" 07 ", "2007"}, {"2005", "2005"}, {"123", "123"}, {"ab", "ab"},   {"", ""}};
    for (const auto& [anno, esperado] : casos)
        EXPECT_EQ(CompletaAnno(QString::fromLatin1(anno)), QString::fromLatin1(esperado)) << anno;
}

TEST(Fechas, MonthAndWeekdayNames) {
    EXPECT_EQ(MesToStr(3, 1, 0), u8("març"));
    EXPECT_EQ(MesToStr(9, 0, 1), u8("Septiembre"));
    EXPECT_EQ(MesToStr(8, 1, 2), u8("AGOST"));
    EXPECT_EQ(MesToStr(12, 0, 7), u8("diciembre"));
    EXPECT_EQ(MesToStr(0, 0, 0), QString());
    EXPECT_EQ(MesToStr(13, 1, 0), QString());
    const TDateTime jueves = EncodeDate(2010, 4, 15);
    EXPECT_EQ(DiaTexto(jueves, 1, 1), u8("Dijous"));
    EXPECT_EQ(DiaTexto(jueves + 6, 0, 0), u8("miércoles"));
    EXPECT_EQ(DiaTexto(jueves + 2, 0, 2), u8("SÁBADO"));
    EXPECT_EQ(DiaTexto(kNan, 0, 0), QString());
}

TEST(LetrasEnCatalan, FormsGenderAndCase) {
    const std::tuple<qint64, char, char, bool, const char*> casos[] = {
        {0, 'M', 'N', false, "ZERO"},
        {0, 'M', 'S', false, "zero"},
        {1, 'M', 'S', false, "u"},
        {1, 'M', 'S', true, "un"},
        {1, 'F', 'S', false, "una"},
        {2, 'F', 'S', false, "dues"},
        {17, 'M', 'S', false, "disset"},
        {21, 'M', 'N', false, "VINT-I-U"},
        {22, 'F', 'S', false, "vint-i-dues"},
        {31, 'M', 'S', true, "trenta-un"},
        {45, 'M', 'S', false, "quaranta-cinc"},
        {100, 'M', 'S', false, "cent"},
        {200, 'M', 'S', false, "dos-cents"},
        {221, 'F', 'S', false, "dues-centes vint-i-una"},
        {1000, 'M', 'S', false, "mil"},
        {2010, 'M', 'S', false, "dos mil deu"},
        {2000, 'F', 'S', false, "dues mil"},
        {21000, 'M', 'S', false, "vint-i-un mil"},
        {101001, 'M', 'S', false, "cent un mil u"},
        {1000000, 'M', 'N', false, "UN MILIÓ"},
        {1000000, 'M', 'S', false, "un milió"},
        {2000002, 'F', 'S', false, "dos milions dues"},
        {21000000, 'M', 'S', false, "vint-i-un milions"},
        {1000000000, 'M', 'S', false, "mil milions"},
        {999999999999, 'M', 'S', false,
         "nou-cents noranta-nou mil nou-cents noranta-nou milions nou-cents noranta-nou mil nou-cents "
         "noranta-nou"},
        {1000000000000, 'M', 'S', false, ""},
        {-5, 'M', 'S', false, ""}};
    for (const auto& [n, genero, caso, corto, esperado] : casos)
        EXPECT_EQ(letrasEnCatalan(n, QLatin1Char(genero), QLatin1Char(caso), corto), u8(esperado)) << n;
}
