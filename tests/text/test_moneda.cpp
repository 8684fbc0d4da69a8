#include "companion/rnumcad.h"
#include "tests/support/oficina_prueba.h"
#include "text/moneda.h"

#include <gtest/gtest.h>
#include <limits>

using namespace nod;
using nod::prueba::OficinaPrueba;

TEST(Moneda, PesetasToEurosAsTextAndAsAFigureAndBack) {
    OficinaPrueba o;
    const struct {
        qint64 pesetas;
        const char* esperado;
    } casos[] = {{0, ""},
                 {1, "0,01"},
                 {100, "0,60"},
                 {166386, "1.000,00"},
                 {1663860, "10.000,00"},
                 {-166386, "-1.000,00"},
                 {1663860000000, "10.000.000.000,00"}};
    for (const auto& c : casos)
        EXPECT_EQ(PesetasEurosNod(c.pesetas), QString::fromLatin1(c.esperado)) << c.pesetas;
    // The figure is rounded through its text.
    const struct {
        qint64 pesetas;
        int decimales;
        double esperado;
    } redondeos[] = {{166386, 2, 1000.0},
                     {1, 2, 0.01},
                     {166, 2, 1.0}, // 0,9977 carries into the units
                     {500, 2, 3.01},
                     {500, 0, 500 / 166.386},
                     {500, -3, 500 / 166.386},
                     {500, 4, 3.0051},
                     {-166386, 2, -1000.0},
                     {-500, 2, -3.01},
                     {0, 2, 0.0},
                     {500, 400, 500 / 166.386}};
    for (const auto& c : redondeos)
        EXPECT_DOUBLE_EQ(PesetasEurosNod(c.pesetas, c.decimales), c.esperado)
            << c.pesetas << ' ' << c.decimales;
    const struct {
        double euros;
        qint64 pesetas;
    } aPesetas[] = {
        {1000.0, 166386}, {0.01, 2},  {1.0, 166}, {0, 0}, {std::numeric_limits<double>::quiet_NaN(), 0},
        {1e300, 0},       {-1e300, 0}};
    for (const auto& c : aPesetas)
        EXPECT_EQ(EurosPesetasNod(c.euros), c.pesetas) << c.euros;
}

TEST(Moneda, RateIsReadOnEveryCall) {
    OficinaPrueba o(QStringLiteral("[MONEDA]\nPesetasPorEuro=200\n"));
    EXPECT_EQ(PesetasEurosNod(200000), QStringLiteral("1.000,00"));
    EXPECT_EQ(EurosPesetasNod(1.0), 200);
    Config.SetPesetasPorEuro(100);
    EXPECT_EQ(PesetasEurosNod(100), QStringLiteral("1,00"));
    EXPECT_DOUBLE_EQ(PesetasEurosNod(150, 2), 1.5);
    for (double sinSentido : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
        Config.SetPesetasPorEuro(sinSentido);
        EXPECT_EQ(PesetasEurosNod(100), QString());
        EXPECT_EQ(PesetasEurosNod(100, 2), 0.0);
        EXPECT_EQ(EurosPesetasNod(1.0), 0);
    }
}

TEST(Moneda, PuntosNodGroupsDigitsAndStaysBoundedWithManyPoints) {
    const struct {
        const char* numero;
        bool decimal;
        const char* esperado;
    } casos[] = {{"123", false, "123"},
                 {"1 234", false, "1.234"},
                 {"1234567", false, "1.234.567"},
                 {"-1234", false, "-1.234"},
                 {"-123456", false, "-123.456"},
                 {"-123", false, "-123"},
                 {"", false, ""},
                 {"1234567.89", true, "1.234.567,89"},
                 {"1234", true, "1.234"},
                 {"1234.5", true, "1.234,5"},
                 {".5", true, ",5"},
                 {"-1234.5", true, "-1.234,5"},
                 {"", true, ""},
                 {"1234,5", true, "1234,5"}, // a "," and no "." is left as it stands
                 {"1234.", true, "1.234,"},
                 // Every "." regroups what has been written so far, the "," included.
                 {"1.234.567", true, "1,.234,567"},
                 {"1234.5.6", true, "1..23.4,5,6"},
                 {"1234567.8901.2", true, "1..234..56.7,8.901,2"}};
    for (const auto& c : casos)
        EXPECT_EQ(PuntosNod(QString::fromLatin1(c.numero), c.decimal), QString::fromLatin1(c.esperado))
            << c.numero << ' ' << c.decimal;
    // Each "." regroups the whole text written before it, which grows by a third every time: a text made of
    // many points stops being regrouped once it is wider than any column instead of growing without bound.
    const QString r = PuntosNod(QStringLiteral("1234567890") + QString(400, QLatin1Char('.')), true);
    EXPECT_LE(r.size(), 2 * kAnchoMaximoTexto);
    EXPECT_GE(r.size(), kAnchoMaximoTexto);
}
