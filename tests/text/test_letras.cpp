#include "companion/letrascatalan.h"
#include "text/formatos.h"
#include "text/lecturanumeros.h"
#include "text/letras.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace nod;

namespace {

struct CasoLetras {
    qint64 numero;
    char genero, caso;
    bool corto;
    const char* esperado;
};

QString u8(const char* s) {
    return QString::fromUtf8(s);
}

} // namespace

TEST(LetrasNod, GroupBoundariesGenderShortFormAndGroupsOfDigits) {
    const CasoLetras casos[] = {{0, 'N', 'N', false, "CERO"},
                                {0, 'N', 'S', false, "cero"},
                                {1, 'M', 'N', true, "UN"},
                                {1, 'M', 'N', false, "UNO"},
                                {1, 'F', 'N', true, "UN"},
                                {1, 'F', 'N', false, "UNA"},
                                {16, 'N', 'S', false, "dieciséis"},
                                {20, 'N', 'N', false, "VEINTE"},
                                {21, 'M', 'N', true, "VEINTIÚN"},
                                {21, 'M', 'N', false, "VEINTIUNO"},
                                {21, 'F', 'N', true, "VEINTIUNA"},
                                {21, 'N', 'N', true, "VEINTIUNO"},
                                {22, 'M', 'S', false, "veintidós"},
                                {31, 'M', 'N', true, "TREINTA Y UN"},
                                {31, 'F', 'N', false, "TREINTA Y UNA"},
                                {90, 'N', 'N', false, "NOVENTA"},
                                {100, 'F', 'N', false, "CIEN"},
                                {101, 'F', 'N', false, "CIENTO UNA"},
                                {101, 'M', 'N', true, "CIENTO UN"},
                                {121, 'M', 'N', true, "CIENTO VEINTIÚN"},
                                {200, 'F', 'N', false, "DOSCIENTAS"},
                                {200, 'M', 'N', false, "DOSCIENTOS"},
                                {777, 'M', 'S', false, "setecientos setenta y siete"},
                                {1000, 'N', 'N', false, "MIL"},
                                {1001, 'M', 'N', true, "MIL UN"},
                                {21000, 'M', 'N', true, "VEINTIUNO MIL"},
                                {21000, 'M', 'N', false, "VEINTIUNO MIL"},
                                {21500, 'M', 'N', false, "VEINTIÚN MIL QUINIENTOS"},
                                {21500, 'F', 'N', false, "VEINTIUNA MIL QUINIENTAS"},
                                {31001, 'M', 'N', false, "TREINTA Y UN MIL UNO"},
                                {100000, 'N', 'N', false, "CIEN MIL"},
                                {101000, 'N', 'N', false, "CIENTO UNO MIL"},
                                {200200, 'F', 'N', false, "DOSCIENTAS MIL DOSCIENTAS"},
                                {1000000, 'N', 'N', false, "UN MILLON DE"},
                                {1000001, 'M', 'N', true, "UN MILLON UN"},
                                {2000000, 'N', 'N', false, "DOS MILLONES DE"},
                                {2000000, 'N', 'S', false, "dos millones de"},
                                {21000000, 'M', 'N', false, "VEINTIÚN MILLONES DE"},
                                {1000000000, 'N', 'N', false, "MIL MILLONES DE"},
                                {1001000000, 'N', 'N', false, "MIL UN MILLONES DE"},
                                {999999999999, 'N', 'N', false,
                                 "NOVECIENTOS NOVENTA Y NUEVE MIL NOVECIENTOS NOVENTA Y NUEVE MILLONES "
                                 "NOVECIENTOS NOVENTA Y NUEVE MIL NOVECIENTOS NOVENTA Y NUEVE"}};
    for (const auto& c : casos)
        EXPECT_EQ(LetrasNod(c.numero, QLatin1Char(c.genero), QLatin1Char(c.caso), c.corto), u8(c.esperado))
            << c.numero << ' ' << c.genero << c.caso << c.corto;
    for (qint64 fuera : {qint64(1000000000000), qint64(-1), std::numeric_limits<qint64>::min()})
        EXPECT_EQ(LetrasNod(fuera, QLatin1Char('N'), QLatin1Char('N'), false), QString()) << fuera;
    // Blanks count as zeros, a short group is right-aligned, and the words go after what the text held.
    for (const auto& [cifras, genero, esperado] : {std::tuple{"021500", 'M', "X VEINTIÚN MIL QUINIENTOS "},
                                                   {"  1  1", 'F', "X MIL UNA "},
                                                   {"7", 'N', "X SIETE "}}) {
        QString r = QStringLiteral("X ");
        SeisCifrasNod(QString::fromLatin1(cifras), r, QLatin1Char(genero), false);
        EXPECT_EQ(r, u8(esperado)) << cifras;
    }
    QString r;

    const struct {
        int u, t, h;
        bool corto;
        int grupo;
        const char* esperado;
    } cientos[] = {{1, 0, 0, true, 1, ""},          {1, 0, 0, true, 2, "UN "},
                   {1, 0, 0, false, 2, "UNO "},     {0, 0, 1, false, 2, "CIEN "},
                   {1, 2, 0, true, 2, "VEINTIÚN "}, {1, 2, 0, false, 2, "VEINTIUNO "},
                   {0, 0, 0, true, 2, ""},          {10, 0, 0, true, 2, ""}};
    for (const auto& c : cientos) {
        r.clear();
        CientosNod(c.u, c.t, c.h, c.corto, QLatin1Char('M'), r, c.grupo);
        EXPECT_EQ(r, u8(c.esperado)) << c.h << c.t << c.u << ' ' << c.grupo;
    }
}

TEST(LetrasDecimalNod, DecimalDigitsReadAsAWholeNumberOrNamedByTheirCount) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        double x;
        int decimales;
        char caso;
        const char* esperado;
    } casos[] = {{2.5, 2, 'N', "DOS CON CINCUENTA"},
                 {2.05, 2, 'N', "DOS CON CINCO"},
                 {2.567, 2, 'N', "DOS CON CINCUENTA Y SEIS"},
                 {2.5, 1, 'S', "dos con cinco"},
                 {2.5, 0, 'N', "DOS"},
                 {3, 2, 'N', "TRES"},
                 {0.25, 3, 'N', "CERO CON DOSCIENTOS CINCUENTA"}};
    for (const auto& c : casos)
        EXPECT_EQ(LetrasDecimalNod(c.x, c.decimales, QLatin1Char('N'), QLatin1Char(c.caso)), u8(c.esperado))
            << c.x << ' ' << c.decimales;
    for (auto [x, decimales] : {std::pair{-2.5, 2}, {1e12, 2}, {nan, 2}, {0.1234567890123456, 16}})
        EXPECT_EQ(LetrasDecimalNod(x, decimales, QLatin1Char('N'), QLatin1Char('N')), QString()) << x;
    const struct {
        double x;
        char genero, caso;
        const char* esperado;
    } porCiento[] = {{3.25, 'M', 'N', "TRES ENTEROS CON VEINTICINCO CENTÉSIMAS"},
                     {3.5, 'F', 'N', "TRES ENTEROS CON CINCO DÉCIMAS"},
                     {3.125, 'N', 'S', "tres enteros con ciento veinticinco milésimas"},
                     {21.1234, 'F', 'N', "VEINTIUNO ENTEROS CON MIL DOSCIENTAS TREINTA Y CUATRO"},
                     {3, 'N', 'N', "TRES"},
                     {0.5, 'N', 'N', "CERO ENTEROS CON CINCO DÉCIMAS"},
                     {-1, 'N', 'N', ""}};
    for (const auto& c : porCiento)
        EXPECT_EQ(LetrasPorCientoNod(c.x, QLatin1Char(c.genero), QLatin1Char(c.caso)), u8(c.esperado)) << c.x;
}

TEST(EurosEnLetra, PluralUnitAndCents) {
    const struct {
        double importe;
        const char* caso;
        const char* esperado;
    } casos[] = {{21.5, "N", "VEINTIÚN EUROS CON CINCUENTA CENTIMOS"},
                 {21.5, "S", "veintiún euros con cincuenta céntimos"},
                 {21.5, "", "VEINTIÚN EUROS CON CINCUENTA CENTIMOS"},
                 {1, "N", "UN EUROS"},
                 // Only the whole text "S" lowers the unit words; the numbers take its first character.
                 {1, "SN", "un EUROS"},
                 {21.5, "SI", "veintiún EUROS CON cincuenta CENTIMOS"},
                 {21.5, "s", "VEINTIÚN EUROS CON CINCUENTA CENTIMOS"},
                 {0.05, "N", "CERO EUROS CON CINCO CENTIMOS"},
                 {21.01, "N", "VEINTIÚN EUROS CON UN CENTIMOS"},
                 {21000, "N", "VEINTIUNO MIL EUROS"},
                 {1000000, "N", "UN MILLON DE EUROS"},
                 {std::numeric_limits<double>::infinity(), "N", ""},
                 {-3, "N", ""}};
    for (const auto& c : casos)
        EXPECT_EQ(EurosEnLetra(c.importe, QString::fromLatin1(c.caso)), u8(c.esperado)) << c.importe;
    EXPECT_EQ(Letras_Pesetas(5, QLatin1Char('N')), QString());
    EXPECT_EQ(Letras_Euros(5, 2, QLatin1Char('N')), QString());
}

// Numbers by FormateaNumero ("N" codes) and amounts in euros by FormateaCantidad ("M" codes).
TEST(FormateaNumeroYCantidad, EveryModeAndPicture) {
    const struct {
        const char* formato;
        double x;
        const char* esperado;
        bool cantidad = false;
    } casos[] = {
        {"N1MN", 1234.5, "1.234,5"},
        {"N2MN", 1234.5, "MIL DOSCIENTOS TREINTA Y CUATRO CON CINCO"},
        {"N3MN", 1234.5, "MIL DOSCIENTOS TREINTA Y CUATRO ENTEROS CON CINCO DÉCIMAS"},
        {"N4MN", 1234.5, "1.234,5 (MIL DOSCIENTOS TREINTA Y CUATRO CON CINCO)"},
        {"N5FS", 21, "veintiuno (21)"},
        {"N6NN", 3.25, "3,25 (TRES ENTEROS CON VEINTICINCO CENTÉSIMAS)"},
        {"N7FS", 3.25, "tres enteros con veinticinco centésimas (3,25)"},
        {"XXMN", 1234567, "UN MILLON DOSCIENTOS TREINTA Y CUATRO MIL QUINIENTOS SESENTA Y SIETE"},
        {"N1", 1234567.125, "1.234.567,125"},
        {"N1", 0, ""},
        {"N1", 0.5, ",5"},
        {"N1", -1234, "-1.234"},
        {"N2", 0, "CERO"},
        {"", 2, "DOS"},
        {"M1N", 1234.5, "1.234,50 €", true},
        {"M2N", 1234.5, "MIL DOSCIENTOS TREINTA Y CUATRO EUROS CON CINCUENTA CENTIMOS", true},
        {"M3N", 1234.5, "1.234,50 € (MIL DOSCIENTOS TREINTA Y CUATRO EUROS CON CINCUENTA CENTIMOS)", true},
        {"M4S", 21.5, "veintiún euros con cincuenta céntimos (21,50 € )", true},
        {"ZZN", 1234.5, "1.234,50 €", true},
        {"M1N", 1234, "1.234 €", true},
        {"M1N", 1234.05, "1.234,05 €", true},
        {"M1N", 1234.125, "1.234,125 €", true},
        {"M1N", 0.5, ",50 €", true},
        {"M3", 1, "1 € (UN EUROS)", true}};
    for (const auto& c : casos)
        EXPECT_EQ((c.cantidad ? FormateaCantidad : FormateaNumero)(QString::fromLatin1(c.formato), c.x),
                  u8(c.esperado))
            << c.formato << ' ' << c.x;
}

TEST(ConvierteNumeroDeCadenaAEnteroNod, ReadsBackTheWritersWithinItsDeliberateLimits) {
    const struct {
        const char* texto;
        bool catalan;
        int esperado;
    } casos[] = {
        // What the writers produce reads back (below); these are the texts they never write.
        {"veinte mil", false, 0}, // the multiplier of "mil" is one unit word
        {"veinte mil tres", false, 3},
        {"treinta y brumario", false, 0}, // an unknown last word spoils everything
        {"", false, 0},
        {"   ", false, 0},
        {"dos mil veintidós", true, 0}, // Spanish tens are not Catalan words
    };
    for (const auto& c : casos)
        EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNod(QString::fromUtf8(c.texto), c.catalan), c.esperado)
            << c.texto;
    // Every number the writers produce from 1 to 9 999 reads back: the Spanish one's full masculine form in
    // any case, and the Catalan one's with blanks for the hyphens it joins tens and units with, except the
    // forms whose last word is the one-letter "u".
    for (qint64 n = 1; n <= 9999; ++n) {
        const QString mayusculas = LetrasNod(n, QLatin1Char('N'), QLatin1Char('N'), false);
        ASSERT_EQ(ConvierteNumeroDeCadenaAEnteroNod(mayusculas, false), n) << mayusculas.toStdString();
        const QString femenino = LetrasNod(n, QLatin1Char('F'), QLatin1Char('S'), false);
        // Feminine hundreds ("doscientas") are not among the reader's words.
        if (n % 1000 < 200) {
            ASSERT_EQ(ConvierteNumeroDeCadenaAEnteroNod(femenino, false), n) << femenino.toStdString();
        }
        QString t = letrasEnCatalan(n, QLatin1Char('M'), QLatin1Char('S'), false);
        t.replace(QLatin1Char('-'), QLatin1Char(' '));
        const bool ultimaEsU = t == u"u" || (t.endsWith(u" u") && !t.endsWith(u"vint i u"));
        ASSERT_EQ(ConvierteNumeroDeCadenaAEnteroNod(t, true), ultimaEsU ? n - 1 : n) << t.toStdString();
    }
}

TEST(ConvierteUnidadesDeCadenaAEnteroNod, EveryUnitWord) {
    const char* es[] = {"uno", "dos", "tres", "cuatro", "cinco", "seis", "siete", "ocho", "nueve", "diez"};
    const char* ca[] = {"u", "dos", "tres", "quatre", "cinc", "sis", "set", "vuit", "nou", "deu"};
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(ConvierteUnidadesDeCadenaAEnteroNod(QString::fromLatin1(es[i]), false), i + 1) << es[i];
        EXPECT_EQ(ConvierteUnidadesDeCadenaAEnteroNod(QString::fromLatin1(ca[i]), true), i + 1) << ca[i];
    }
    for (const char* uno : {"una", "un"}) {
        EXPECT_EQ(ConvierteUnidadesDeCadenaAEnteroNod(QString::fromLatin1(uno), false), 1);
        EXPECT_EQ(ConvierteUnidadesDeCadenaAEnteroNod(QString::fromLatin1(uno), true), 1);
    }
    for (const char* otro : {"u", "quatre", "Dos", " dos", "once", ""})
        EXPECT_EQ(ConvierteUnidadesDeCadenaAEnteroNod(QString::fromLatin1(otro), false), 0) << otro;
    EXPECT_EQ(ConvierteUnidadesDeCadenaAEnteroNod(QStringLiteral("uno"), true), 0);
}
