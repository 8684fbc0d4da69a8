#include "companion/codepage.h"

#include <gtest/gtest.h>

using namespace nod;

TEST(CodePage, EveryByteRoundTripsInEveryPage) {
    QByteArray todos;
    for (int b = 0; b < 256; ++b)
        todos.append(char(b));
    for (CodePage cp : {CodePage::Windows1252, CodePage::Cp850, CodePage::Cp437}) {
        const QString texto = Decodifica(todos, cp);
        ASSERT_EQ(texto.size(), 256) << NombreCodePage(cp);
        EXPECT_EQ(Codifica(texto, cp), todos) << NombreCodePage(cp);
    }
}

TEST(CodePage, Windows1252IsNotLatin1AndCharactersOutsideThePageAreAnErrorNotAQuestionMark) {
    EXPECT_EQ(Decodifica("\x80"), QStringLiteral("€"));
    EXPECT_EQ(Decodifica("\xD1\xC7\xB7"), QStringLiteral("ÑÇ·"));
    EXPECT_EQ(Decodifica("\xA5", CodePage::Cp850), QStringLiteral("Ñ"));
    qsizetype fallo = -1;
    EXPECT_FALSE(Codifica(u"Ab\u4E2D", CodePage::Windows1252, &fallo).has_value());
    EXPECT_EQ(fallo, 2);
    EXPECT_FALSE(CabeEnCodePage(u"\u20AC", CodePage::Cp437));
    EXPECT_TRUE(CabeEnCodePage(u"A CORUÑA"));
}
