// The identification routines as scripts call them through `nodrim batch`.
#include "apps/nodrim/lote.h"

#include <gtest/gtest.h>

using namespace nod::lote;

namespace {

json pide(const char* linea) {
    return AtiendeLinea(linea, 1);
}

TEST(LoteIdent, RoutinesAnswerWithTheirJsonTypesAndOutValues) {
    const std::pair<const char*, json> casos[] = {
        {R"({"fn":"NIF","args":["12345678"]})", "12.345.678-Z"},
        {R"({"fn":"EsCif","args":["A58818501"]})", true},
        {R"({"fn":"TipoDeDocumento","args":[3]})", "N.I.E."},
        {R"({"fn":"TipoDeDocumento","args":[" N.I.E. "]})", 3},
        {R"({"fn":"EsUnNie","args":["x-1234567-l",true]})", true},
        {R"({"fn":"FormatearReferenciaCatastralUrbana","args":["123VH5797S1WX"]})", "0000123VH5797S0001WX"},
        {R"({"fn":"LetrasControlCatastral","args":["9872023VH5797S0001"]})", "WX"},
        {R"({"fn":"DecodificaEstadoCivil","args":[6,"M",true]})", "vídua"},
        {R"({"fn":"CodificaTipoJuridico","args":["sociedad colectiva"]})", 1},
        {R"({"fn":"Don","args":["M","C",0]})", "Doña"}};
    for (const auto& [linea, resultado] : casos) {
        const json r = pide(linea);
        ASSERT_FALSE(r.contains("error")) << r.dump();
        EXPECT_EQ(r["result"], resultado) << linea;
    }
    const json r = pide(R"({"fn":"ExtraeSuperficiesRustica","args":["2 HECTAREAS 12 CENTIAREAS",0]})");
    ASSERT_FALSE(r.contains("error")) << r.dump();
    ASSERT_EQ(r["out"].size(), 1u);
    EXPECT_DOUBLE_EQ(r["out"][0].get<double>(), 21200.0);
}

} // namespace
