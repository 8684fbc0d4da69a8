// Marital status, regime and legal form in words and back.
#include "ident/atributos.h"

#include <gtest/gtest.h>

namespace nod {
namespace {

QString q(const char16_t* s) {
    return QString::fromUtf16(s);
}

TEST(EstadoCivil, WordsByLanguageAndSexAndEveryWordCodesBack) {
    struct Caso {
        int codigo;
        const char16_t *hombre, *mujer, *home, *dona;
    };
    const Caso casos[] = {{2, u"casado en segundas nupcias", u"casada en segundas nupcias",
                           u"casat en segones núpcies", u"casada en segones núpcies"},
                          {6, u"viudo", u"viuda", u"vidu", u"vídua"},
                          {7, u"pareja de hecho", u"pareja de hecho", u"parella de fet", u"parella de fet"}};
    for (const Caso& c : casos) {
        EXPECT_EQ(DecodificaEstadoCivil(c.codigo, QStringLiteral("H"), false), q(c.hombre));
        EXPECT_EQ(DecodificaEstadoCivil(c.codigo, QStringLiteral("M"), false), q(c.mujer));
        EXPECT_EQ(DecodificaEstadoCivil(c.codigo, QStringLiteral("H"), true), q(c.home));
        EXPECT_EQ(DecodificaEstadoCivil(c.codigo, QStringLiteral("M"), true), q(c.dona));
        // Only an exact "M" is a woman.
        EXPECT_EQ(DecodificaEstadoCivil(c.codigo, QStringLiteral("m"), false), q(c.hombre));
        EXPECT_EQ(DecodificaEstadoCivil(c.codigo, QString(), true), q(c.home));
    }
    for (int codigo : {0, 8, -1})
        EXPECT_TRUE(DecodificaEstadoCivil(codigo, QStringLiteral("M"), false).isEmpty());
    for (int codigo = 1; codigo <= 7; ++codigo)
        for (const char* sexo : {"H", "M"})
            EXPECT_EQ(CodificaEstadoCivil(DecodificaEstadoCivil(codigo, QString::fromLatin1(sexo), false)),
                      codigo);
    EXPECT_EQ(CodificaEstadoCivil(QStringLiteral("casado ")), 0);
    EXPECT_EQ(CodificaEstadoCivil(QStringLiteral("casat")), 0);
    EXPECT_EQ(CodificaEstadoCivil(QString()), 0);
}

TEST(Regimen, WordsAndCodes) {
    EXPECT_EQ(DecodificaRegimen(1, true), QStringLiteral("guanys"));
    EXPECT_EQ(DecodificaRegimen(2, true), q(u"separació de béns"));
    EXPECT_EQ(DecodificaRegimen(3, false), q(u"participación"));
    EXPECT_TRUE(DecodificaRegimen(4, false).isEmpty());
    const std::pair<const char16_t*, int> casos[] = {{u"Separación de bienes", 2},
                                                     {u"SEPARACION", 2},
                                                     {u"gananciales", 1},
                                                     {u"participacion en ganancias", 3},
                                                     {u"separación y participación", 3},
                                                     {u"guanys", 0},
                                                     {u"", 0}};
    for (const auto& [texto, codigo] : casos)
        EXPECT_EQ(CodificaRegimen(q(texto)), codigo) << qPrintable(q(texto));
}

TEST(TipoJuridico, RoundTripKeepsTheCollectiveCompanyDeparture) {
    for (int codigo = 1; codigo <= 26; ++codigo) {
        const QString texto = DecodificaTipoJuridico(codigo);
        ASSERT_FALSE(texto.isEmpty()) << codigo;
        EXPECT_EQ(CodificaTipoJuridico(texto), codigo == 10 ? 1 : codigo) << qPrintable(texto);
    }
    EXPECT_EQ(DecodificaTipoJuridico(10), QStringLiteral("SOCIEDAD COLECTIVA"));
    EXPECT_EQ(CodificaTipoJuridico(QStringLiteral("sociedad colectiva")), 1);
    EXPECT_EQ(CodificaTipoJuridico(q(u"sociedad anónima")), 8);
    EXPECT_EQ(CodificaTipoJuridico(QStringLiteral("SOCIEDAD ANONIMA")), 0);
    EXPECT_TRUE(DecodificaTipoJuridico(0).isEmpty());
    EXPECT_TRUE(DecodificaTipoJuridico(27).isEmpty());
}

TEST(Conyuge, CurrentAndFormerSpouse) {
    for (int codigo = -1; codigo <= 8; ++codigo) {
        EXPECT_EQ(PuedeTenerConyuge(codigo), codigo == 1 || codigo == 2 || codigo == 7) << codigo;
        EXPECT_EQ(PuedeTenerConyugeInactivo(codigo), codigo == 3 || codigo == 4 || codigo == 6) << codigo;
    }
}

} // namespace
} // namespace nod
