// NIF formatting, courtesy titles and written rustic surfaces: the routines built on the text helpers.
#include "ident/catastro.h"
#include "ident/nif.h"
#include "ident/tratamiento.h"

#include <gtest/gtest.h>

namespace nod {
namespace {

QString q(const char16_t* s) {
    return QString::fromUtf16(s);
}

TEST(NIF, FormatsBareNumbersOnly) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {{u"0", u"00.000.000-T"},
                                                                 {u"12345678", u"12.345.678-Z"},
                                                                 {u"123", u"00.000.123-P"},
                                                                 {u"00000022", u"00.000.022-E"}};
    for (const auto& [entrada, salida] : casos)
        EXPECT_EQ(NIF(q(entrada)), q(salida)) << qPrintable(q(entrada));
    // Left as they are: nothing, 9 digits, not all digits, a blank, beyond 32 bits, and the digits of another
    // script.
    for (const char16_t* otro :
         {u"", u"123456789", u"1.234", u"12345678Z", u" 123", u"9999999999", u"X1234567L", u"١٢٣"})
        EXPECT_EQ(NIF(q(otro)), q(otro)) << qPrintable(q(otro));
}

TEST(RecalculaNIF, RecomputesTheLetterOfWrittenNifs) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"12.345.678-A", u"12.345.678-Z"}, {u"12345678z", u"12.345.678-Z"}, {u"1-T", u"00.000.001-R"},
        {u"X1234567L", u"X1234567L"},       {u"B58818501", u"B58818501"},    {u"", u""},
        {u"123456789A", u"123456789"}};
    for (const auto& [entrada, salida] : casos)
        EXPECT_EQ(RecalculaNIF(q(entrada)), q(salida)) << qPrintable(q(entrada));
}

TEST(Tratamiento, SexOfTitlesAndDonByLanguageSexAndCase) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"DON", u"H"}, {u"don", u"H"}, {u"Dº", u"H"}, {u"Dº.", u"H"}, {u"D.", u"H"}, {u"Doña", u"M"},
        {u"dª", u"M"},  {u"Dª.", u"M"}, {u"Sr.", u""}, {u" DON", u""}, {u"", u""},    {u"DONA", u""}};
    for (const auto& [titulo, sexo] : casos)
        EXPECT_EQ(DeterminaSexo(q(titulo)), q(sexo)) << qPrintable(q(titulo));
    struct Caso {
        const char* sexo;
        char16_t caso;
        int idioma;
        const char16_t* titulo;
    };
    const Caso dones[] = {{"H", u'N', 0, u"DON"},
                          {"M", u'N', 0, u"DOÑA"},
                          {"M", u'C', 0, u"Doña"},
                          {"H", u'S', 0, u"don"},
                          {"M", u'S', 0, u"doña"},
                          {"H", u'X', 1, u"EL SENYOR"},
                          {"M", u'C', 1, u"la Senyora"},
                          {"H", u'C', 1, u"el Senyor"},
                          {"M", u'S', 1, u"la senyora"},
                          {"h", u'N', 0, u""},
                          {"", u'C', 1, u""}};
    for (const Caso& c : dones)
        EXPECT_EQ(Don(QString::fromLatin1(c.sexo), QChar(c.caso), c.idioma), q(c.titulo))
            << c.sexo << char(c.caso);
}

TEST(ExtraeSuperficiesRustica, WordsAreSearchedInOrderOnWhatIsLeft) {
    const std::pair<const char16_t*, double> casos[] = {
        {u"2 HECTAREAS 12 CENTIAREAS", 21200}, // "AREAS" found inside "CENTIAREAS"
        {u"1 HECTAREA 50 AREAS 25 CENTIAREAS", 15025},
        {u"3 HECTAREAS, 2 AREAS Y 7 CENTIAREAS", 30207},
        {u"1.234 HECTAREAS", 12340000},
        {u"40 AREAS", 4000},
        {u"0 HECTAREAS 5 AREAS", 500},
        {u"1234,56", 1234.56},
        {u"1234.5 metros", 1234.5},
        {u"1234.5 m2", 1234.52}, // every digit counts, the square of "m2" too
        {u"2 hectareas", 2},     // the words are looked for in upper case only
        {u"", 0},
        {u"HECTAREAS", 0}};
    for (const auto& [texto, metros] : casos) {
        double superficie = -1;
        ExtraeSuperficiesRustica(q(texto), superficie);
        EXPECT_DOUBLE_EQ(superficie, metros) << qPrintable(q(texto));
    }
}

} // namespace
} // namespace nod
