// Cadastral references: shape tests and expansion of abbreviated references, the control letters on
// genuine references, and the reading of written rustic surfaces.
#include "ident/catastro.h"
#include "ident/controlcatastral.h"

#include <gtest/gtest.h>

namespace nod {
namespace {

struct CasoFormato {
    const char16_t* entrada;
    bool expandible;
    const char16_t* resultado;
};

QString q(const char16_t* s) {
    return QString::fromUtf16(s);
}

TEST(ReferenciaUrbana, ShapeAndExpansion) {
    const CasoFormato casos[] = {
        {u"123VH5797S1WX", true, u"0000123VH5797S0001WX"},
        {u"  123vh5797s1wx ", true, u"0000123VH5797S0001WX"},
        {u"VH5797S0001WX", true, u"0000000VH5797S0001WX"},
        {u"1VHS1WX", true, u"0000001VH0000S0001WX"},
        {u"1VH1S1WXYZ", true, u"0000001VH0001S0001WX"},       // what follows the last two letters is dropped
        {u"123456789VH1S1WX", true, u"3456789VH0001S0001WX"}, // an over-long group keeps its right end
        {u"9872023VH5797S0001WX", true, u"9872023VH5797S0001WX"},
        {u"9872023vh5797s0001wx0", true, u"9872023VH5797S0001WX0"}, // 20 or more: trimmed, upper case, as is
        {u"12345678901234567890", false, u"12345678901234567890"},
        {u"123-VH5797S1WX", false, u"123-VH5797S1WX"},
        {u"123 VH5797S1WX", false, u"123 VH5797S1WX"},
        {u"123V5797S1WX", false, u"123V5797S1WX"},
        {u"123VH5797S1W", false, u"123VH5797S1W"},
        {u"123VH5797", false, u"123VH5797"},
        {u"123VH", false, u"123VH"},
        {u"123", false, u"123"},
        {u"", false, u""},
        {u"   ", false, u""},
        {u"123\u00d1H5797S1WX", false, u"123\u00d1H5797S1WX"},
        {u"123VH5797S1W\u00df", false, u"123VH5797S1W\u00df"},   // "ß" is one character, not "SS"
        {u"\u00a0123VH5797S1WX", false, u"\u00a0123VH5797S1WX"}, // a no-break space is not trimmed
        {u"\t123VH5797S1WX\r\n", true, u"0000123VH5797S0001WX"}, // control characters are
    };
    for (const auto& c : casos) {
        EXPECT_EQ(SePuedeFormatearReferenciaCatastralUrbana(q(c.entrada)), c.expandible)
            << qPrintable(q(c.entrada));
        EXPECT_EQ(FormatearReferenciaCatastralUrbana(q(c.entrada)), q(c.resultado))
            << qPrintable(q(c.entrada));
    }
}

TEST(ReferenciaRustica, ShapeLooksAtTheEndWhileTheFormatterTakesTheNextTwo) {
    const CasoFormato casos[] = {{u"28079A1001AB", true, u"28079A000000001001AB"},
                                 {u"28079a1001ab ", true, u"28079A000000001001AB"},
                                 {u"1A2BCD", true, u"00001A000000000002BC"},
                                 {u"A1BC", true, u"00000A000000000001BC"},
                                 {u"28079A000000001001AB", true, u"28079A000000001001AB"},
                                 {u"28079A1001A1", false, u"28079A1001A1"},
                                 {u"28079A1001", false, u"28079A1001"},
                                 {u"28079A", false, u"28079A"},
                                 {u"28079", false, u"28079"},
                                 {u"28079A-1001AB", false, u"28079A-1001AB"},
                                 {u"28079A1001A\u00df", false, u"28079A1001A\u00df"},
                                 {u"", false, u""}};
    for (const auto& c : casos) {
        EXPECT_EQ(SePuedeFormatearReferenciaCatastralRustica(q(c.entrada)), c.expandible)
            << qPrintable(q(c.entrada));
        EXPECT_EQ(FormatearReferenciaCatastralRustica(q(c.entrada)), q(c.resultado))
            << qPrintable(q(c.entrada));
    }
}

TEST(ControlCatastral, GenuineReferences) {
    // Published references of real properties: urban ones of Madrid and Valencia and an urban one whose
    // plot code holds letters.
    const char16_t* genuinas[] = {u"9872023VH5797S0001WX", u"7837301VG8173B0001TT", u"4A08169P03PRAT0001LR"};
    for (const char16_t* r : genuinas) {
        EXPECT_TRUE(ControlCatastralCorrecto(q(r))) << qPrintable(q(r));
        EXPECT_EQ(LetrasControlCatastral(q(r).left(18)), q(r).right(2));
    }
}

TEST(ControlCatastral, WrongOrMalformedReferencesFail) {
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
