#include "frame/notarios.h"
#include "frame/unidades.h"
#include "tests/support/oficina_prueba.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace nod;
using nod::prueba::OficinaPrueba;

TEST(Notarios, AliasNotario) {
    OficinaPrueba o(QStringLiteral("[GENERAL]\nAliasNotario=DBNOT\n"));
    const std::tuple<int, const char*> casos[] = {
        {0, "DBNOT1"}, {1, "DBNOT1"}, {2, "DBNOT2"}, {12, "DBNOT12"}, {-3, "DBNOT-3"}};
    for (const auto& [numero, alias] : casos)
        EXPECT_EQ(AliasNotario(numero), QLatin1String(alias)) << numero;
}

TEST(Notarios, AliasNotarioActualFollowsTheSelectedNotary) {
    OficinaPrueba o(QStringLiteral("[GENERAL]\nNotario=2\n"));
    EXPECT_EQ(AliasNotarioActual(), QStringLiteral("DBNOTARIO2"));
    for (auto [notario, alias] : {std::pair{"3", "DBNOTARIO3"}, {"0", "DBNOTARIO1"}, {"x", "DBNOTARIO1"}}) {
        Config.SetsNotario(QLatin1String(notario));
        EXPECT_EQ(AliasNotarioActual(), QLatin1String(alias)) << notario;
    }
}

TEST(Notarios, NumeroDeNotariosNeverBelowOne) {
    OficinaPrueba o;
    for (auto [configurado, esperado] : {std::pair{0, 1}, {-3, 1}, {1, 1}, {4, 4}}) {
        Config.SetnCuantos(configurado);
        EXPECT_EQ(NumeroDeNotarios(), esperado) << configurado;
    }
}

TEST(Unidades, StartAndStopOnlyCount) {
    const int antes = VecesIniciada(QStringLiteral("Rut"));
    {
        NodRutinasCargada cargada;
        EXPECT_EQ(VecesIniciada(QStringLiteral("Rut")), antes + 1);
        EXPECT_EQ(VecesIniciada(QStringLiteral("Clasificardocumentos")),
                  VecesIniciada(QStringLiteral("Mensajenod")));
    }
    EXPECT_EQ(VecesFinalizada(QStringLiteral("Rut")), antes + 1);
    EXPECT_EQ(UnidadesNodRutinas().size(), 42);
    EXPECT_EQ(VecesIniciada(QStringLiteral("NoEsUnidad")), 0);
}
