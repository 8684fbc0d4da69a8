// The frame's routines as scripts call them through `nodrim batch`.
#include "apps/nodrim/lote.h"

#include <gtest/gtest.h>

using namespace nod::lote;

namespace {
json pide(const char* linea) {
    return AtiendeLinea(linea, 1);
}
} // namespace

TEST(LoteFrame, MensajePersonAnsweredFromTheScript) {
    const json r = pide(R"({"fn":"Mensaje_Person","args":[1,"¿Desea continuar?",1,"Atención",)"
                        R"("Se va a borrar la escritura","","",0,255,16777215,0],"answers":[1]})");
    ASSERT_FALSE(r.contains("error")) << r.dump();
    EXPECT_EQ(r["result"], 1);
    ASSERT_EQ(r["dialogs"].size(), 1u);
    EXPECT_EQ(r["dialogs"][0]["kind"], "Mensaje_Person");
    EXPECT_EQ(r["dialogs"][0]["title"], "Atención");
    EXPECT_EQ(r["dialogs"][0]["text"], "Se va a borrar la escritura\n¿Desea continuar?");
}

// Boxes without an answer give Escape's result.
TEST(LoteFrame, RoutinesAnswerFromTheScriptOrWithEscape) {
    const std::pair<const char*, int> casos[] = {
        {R"({"fn":"GetMaxColor","args":[1]})", 0x8C0000},
        {R"({"fn":"GetMinColorMen","args":[1]})", 0xFFB546},
        {R"({"fn":"GetMaxColorMen","args":[5]})", 0xC0C0C0},
        {R"({"fn":"Mensaje_Person","args":[0,"",0,"T","x","","",0,0,0,0]})", 2},
        {R"({"fn":"Mensaje_ActivosFinancieros","args":[1]})", 6},
        {R"({"fn":"Mensaje_ActivosFinancieros","args":[1],"answers":[7]})", 7}};
    for (auto [peticion, resultado] : casos)
        EXPECT_EQ(pide(peticion)["result"], resultado) << peticion;
}

TEST(LoteFrame, CallsThatDoNotFitNameTheSignatureAndShowNothing) {
    const std::pair<const char*, const char*> casos[] = {
        {R"({"fn":"GetMinColor","args":[1.5]})", "GetMinColor(integer)"},
        {R"({"fn":"Mensaje_Person","args":[1,"abajo",1,"T","arriba"],"answers":[1]})",
         "Mensaje_Person(integer, string, integer, string, string, string, string, integer, integer, "
         "integer, integer)"}};
    for (auto [peticion, firma] : casos) {
        const json e = pide(peticion);
        ASSERT_TRUE(e.contains("error")) << peticion;
        EXPECT_NE(e["error"].get<std::string>().find(firma), std::string::npos) << e.dump();
        EXPECT_TRUE(e["dialogs"].empty()) << peticion;
    }
}
