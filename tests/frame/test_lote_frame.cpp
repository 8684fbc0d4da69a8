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

TEST(LoteFrame, ColourRoutinesAndTheirErrors) {
    EXPECT_EQ(pide(R"({"fn":"GetMaxColor","args":[1]})")["result"], 0x8C0000);
    EXPECT_EQ(pide(R"({"fn":"GetMinColorMen","args":[1]})")["result"], 0xFFB546);
    EXPECT_EQ(pide(R"({"fn":"GetMaxColorMen","args":[5]})")["result"], 0xC0C0C0);
    const json e = pide(R"({"fn":"GetMinColor","args":[1.5]})");
    ASSERT_TRUE(e.contains("error"));
    EXPECT_NE(e["error"].get<std::string>().find("GetMinColor(integer)"), std::string::npos) << e.dump();
}

TEST(LoteFrame, BoxesWithoutAnswersGiveEscapesAndAnAnswerIsTaken) {
    EXPECT_EQ(pide(R"({"fn":"Mensaje_Person","args":[0,"",0,"T","x","","",0,0,0,0]})")["result"], 2);
    EXPECT_EQ(pide(R"({"fn":"Mensaje_ActivosFinancieros","args":[1]})")["result"], 6);
    EXPECT_EQ(pide(R"({"fn":"Mensaje_ActivosFinancieros","args":[1],"answers":[7]})")["result"], 7);
}

TEST(LoteFrame, MensajePersonWithTooFewArgumentsNamesItsSignature) {
    const json e = pide(R"({"fn":"Mensaje_Person","args":[1,"abajo",1,"T","arriba"],"answers":[1]})");
    ASSERT_TRUE(e.contains("error"));
    EXPECT_NE(
        e["error"].get<std::string>().find("Mensaje_Person(integer, string, integer, string, string, string, "
                                           "string, integer, integer, integer, integer)"),
        std::string::npos)
        << e.dump();
    EXPECT_TRUE(e["dialogs"].empty()) << "nothing is shown for a call that does not fit";
}
