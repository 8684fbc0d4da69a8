// Cadastral references: shape tests and expansion of abbreviated references, the control letters on
// genuine references, and the reading of written rustic surfaces.
#include "ident/catastro.h"
#include "ident/controlcatastral.h"

#include <gtest/gtest.h>

namespace nod {
namespace {

QString q(const char16_t* s) {
    return QString::fromUtf16(s);
}

using Expansion = std::pair<const char16_t*, const char16_t*>;

// Each of `expandibles` passes the shape test and expands to its result; each of `malas` fails it and is
// given back as it stands.
void compruebaFormato(bool (*sePuede)(const QString&), QString (*formatea)(const QString&),
                      std::initializer_list<Expansion> expandibles,
                      std::initializer_list<const char16_t*> malas) {
    for (const auto& [entrada, resultado] : expandibles) {
        EXPECT_TRUE(sePuede(q(entrada))) << qPrintable(q(entrada));
        EXPECT_EQ(formatea(q(entrada)), q(resultado)) << qPrintable(q(entrada));
    }
    for (const char16_t* mala : malas) {
        EXPECT_FALSE(sePuede(q(mala))) << qPrintable(q(mala));
        EXPECT_EQ(formatea(q(mala)), q(mala)) << qPrintable(q(mala));
    }
}

// What follows the last two letters is dropped, an over-long group keeps its right end, 20 characters or
// more are only trimmed and upper-cased, and control characters are trimmed; a no-break space is not, and
// "ß" is one character, not "SS".
TEST(ReferenciaCatastral, ShapeAndExpansionOfUrbanAndRusticReferences) {
    compruebaFormato(&SePuedeFormatearReferenciaCatastralUrbana, &FormatearReferenciaCatastralUrbana,
                     {{u"123VH5797S1WX", u"0000123VH5797S0001WX"},
                      {u"  123vh5797s1wx ", u"0000123VH5797S0001WX"},
                      {u"VH5797S0001WX", u"0000000VH5797S0001WX"},
                      {u"1VHS1WX", u"0000001VH0000S0001WX"},
                      {u"1VH1S1WXYZ", u"0000001VH0001S0001WX"},
                      {u"123456789VH1S1WX", u"3456789VH0001S0001WX"},
                      {u"9872023VH5797S0001WX", u"9872023VH5797S0001WX"},
                      {u"9872023vh5797s0001wx0", u"9872023VH5797S0001WX0"},
                      {u"\t123VH5797S1WX\r\n", u"0000123VH5797S0001WX"}},
                     {u"12345678901234567890", u"123-VH5797S1WX", u"123 VH5797S1WX", u"123V5797S1WX",
                      u"123VH5797S1W", u"123VH5797", u"123VH", u"123", u"", u"123\u00d1H5797S1WX",
                      u"123VH5797S1W\u00df", u"\u00a0123VH5797S1WX"});
    EXPECT_FALSE(SePuedeFormatearReferenciaCatastralUrbana(QStringLiteral("   ")));
    EXPECT_EQ(FormatearReferenciaCatastralUrbana(QStringLiteral("   ")), QString());
    compruebaFormato(
        &SePuedeFormatearReferenciaCatastralRustica, &FormatearReferenciaCatastralRustica,
        {{u"28079A1001AB", u"28079A000000001001AB"},
         {u"28079a1001ab ", u"28079A000000001001AB"},
         {u"1A2BCD", u"00001A000000000002BC"},
         {u"A1BC", u"00000A000000000001BC"},
         {u"28079A000000001001AB", u"28079A000000001001AB"}},
        {u"28079A1001A1", u"28079A1001", u"28079A", u"28079", u"28079A-1001AB", u"28079A1001A\u00df", u""});
}

TEST(ControlCatastral, GenuineReferencesPassWrongOrMalformedOnesFail) {
    // Published references of real properties: urban ones of Madrid and Valencia and an urban one whose
    // plot code holds letters.
    const char16_t* genuinas[] = {u"9872023VH5797S0001WX", u"7837301VG8173B0001TT", u"4A08169P03PRAT0001LR"};
    for (const char16_t* r : genuinas) {
        EXPECT_TRUE(ControlCatastralCorrecto(q(r))) << qPrintable(q(r));
        EXPECT_EQ(LetrasControlCatastral(q(r).left(18)), q(r).right(2));
    }
    const char16_t* malas[] = {u"9872023VH5797S0001XW",  u"9872023VH5797S0002WX", u"9872023VH5797S0001W",
                               u"9872023VH5797S0001WXX", u"9872023VH5797S-001WX", u"",
                               u"9872023vh5797s0001wx"};
    for (const char16_t* r : malas)
        EXPECT_FALSE(ControlCatastralCorrecto(q(r))) << qPrintable(q(r));
    EXPECT_TRUE(LetrasControlCatastral(q(u"9872023VH5797S000")).isEmpty());
    EXPECT_TRUE(LetrasControlCatastral(q(u"9872023VH5797S-001")).isEmpty());
}

} // namespace
} // namespace nod
