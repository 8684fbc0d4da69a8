// Bis letters: both alphabets over their 80 positions and the asymmetries the suite keeps.
#include "protocol/bis.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace nod;

namespace {

TEST(BisSencillo, IdaYVueltaEnLas80Posiciones) {
    QSet<QChar> vistos;
    for (int p = 1; p <= 80; ++p) {
        const QChar c = DadoNumeroDevuelveBisMasdeUna(p);
        EXPECT_NE(c, QChar(0)) << p;
        EXPECT_FALSE(c == u'A' || c == u'B' || c == u'N') << p;
        EXPECT_EQ(DadoBisDevuelveNumeroMasdeUna(QString(c)), p) << p;
        vistos.insert(c);
    }
    EXPECT_EQ(vistos.size(), 80);
}

TEST(BisSencillo, LimitesYCaracteresAjenos) {
    const std::pair<int, char16_t> ida[] = {{1, u'a'},  {26, u'z'}, {27, u'C'}, {37, u'M'},
                                            {38, u'O'}, {49, u'Z'}, {50, u'!'}, {80, u'?'},
                                            {0, 0},     {81, 0},    {-5, 0}};
    for (const auto& [p, c] : ida)
        EXPECT_EQ(DadoNumeroDevuelveBisMasdeUna(p), QChar(c)) << p;

    const std::pair<const char16_t*, int> vuelta[] = {
        {u"@", 81}, // one beyond what the forward alphabet gives, kept so
        {u"A", 0},  {u"B", 0}, {u"N", 0}, {u"", 0},
        {u" ", 0},  {u"[", 0}, {u"Ñ", 0}, {u"cz", 3}, // only the first character counts
    };
    for (const auto& [s, p] : vuelta)
        EXPECT_EQ(DadoBisDevuelveNumeroMasdeUna(QString::fromUtf16(s)), p)
            << QString::fromUtf16(s).toStdString();
}

TEST(BisDoble, IdaYVueltaEnLas80Posiciones) {
    QSet<QString> vistos;
    for (int p = 1; p <= 80; ++p) {
        const QString s = DadoNumeroDevuelveBisDobleMasdeUna(p);
        EXPECT_EQ(DadoBisDobleDevuelveNumeroMasdeUna(s), p) << p;
        vistos.insert(s);
    }
    EXPECT_EQ(vistos.size(), 80);
    const std::pair<int, const char*> tabla[] = {{1, "a"},   {26, "z"},  {27, "AA"}, {52, "AZ"}, {53, "BA"},
                                                 {78, "BZ"}, {79, "CA"}, {80, "CB"}, {0, ""},    {81, ""}};
    for (const auto& [p, s] : tabla)
        EXPECT_EQ(DadoNumeroDevuelveBisDobleMasdeUna(p), QLatin1String(s)) << p;
    for (const char* otro : {"aa", "A", ""}) // "aa": the letters are case-sensitive
        EXPECT_EQ(DadoBisDobleDevuelveNumeroMasdeUna(QLatin1String(otro)), 0) << otro;
}

TEST(BisDoble, DesdeElSencillo) {
    const std::pair<const char*, const char*> casos[] = {
        {"C", "AA"}, {"A", "A"},  {"B", "B"},  {"N", ""}, {"", ""},
        {"a", "a"},  {"Z", "AW"}, {"?", "CB"}, {"@", ""}, // position 81 has no double-letter suffix
        {"AB", ""},
    };
    for (const auto& [sencillo, doble] : casos)
        EXPECT_EQ(DadoBisDevuelveBisDobleMasdeUna(QLatin1String(sencillo)), QLatin1String(doble)) << sencillo;
}

} // namespace
