// The revision's form answered through `nodrim batch` on the sample office, as a script answers it: the
// choice of all tables or one, the list's preview reported with its lines, and a button the form lacks (the
// other ways out and answers that do not fit are the forms layer's own, tested with the batch forms).
#include "tests/support/lote_proceso.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using json = nlohmann::json;

namespace {

json pide(json respuestas) {
    return {{"fn", "SeleccionModoRevisionCodCliente"},
            {"args", json::array()},
            {"answers", std::move(respuestas)}};
}

// One `nodrim batch` over the sample office (notary 1 selected); one response per request.
std::vector<json> ejecuta(const std::vector<json>& peticiones) {
    return nod::prueba::EjecutaLote(QStringLiteral(NODRIM_EXE),
                                    QStringLiteral(NOD_SOURCE_DIR "/sample-office"), peticiones);
}

// The dialogs of a response of one kind, in order.
std::vector<json> deTipo(const json& r, const char* tipo) {
    std::vector<json> d;
    for (const json& x : r["dialogs"])
        if (x["kind"] == tipo) d.push_back(x);
    return d;
}

TEST(FormularioRevision, AnsweredThroughBatch) {
    const std::vector<json> r = ejecuta({
        pide({json::object()}),                    // 0: Aceptar, all tables
        pide({{{"set", {{"RBUnaTabla", true}}}}}), // 1: one table
        pide({{{"press", "BBNoExiste"}}}),         // 2: no such button
    });
    ASSERT_EQ(r.size(), 3u);

    // All tables: the form as it opened, the progress window, then the preview with every line.
    {
        SCOPED_TRACE("all tables");
        EXPECT_FALSE(r[0].contains("error")) << r[0].dump();
        EXPECT_EQ(r[0]["result"], true);
        const auto formas = deTipo(r[0], "form");
        ASSERT_EQ(formas.size(), 1u);
        EXPECT_EQ(formas[0]["title"], "Indique los parámetros de Revisión");
        EXPECT_EQ(formas[0]["values"],
                  json({{"RBTodasTablas", true}, {"RBUnaTabla", false}, {"CBTablas", ""}}));
        EXPECT_EQ(formas[0]["result"], 1);
        EXPECT_FALSE(deTipo(r[0], "MuestraMensaje").empty()) << "the progress window";
        const auto vistas = deTipo(r[0], "preview");
        ASSERT_EQ(vistas.size(), 1u);
        EXPECT_EQ(vistas[0]["title"], "Listado Clientes Repetidos");
        const json& lineas = vistas[0]["lines"];
        ASSERT_EQ(lineas.size(), 24u); // the sample office's dangling codes, notary 1
        EXPECT_NE(
            std::find(lineas.begin(), lineas.end(),
                      json({{"TABLA", "En la Tabla CLIENTES de COMUN"},
                            {"MENSAJE", "El cliente  CASTRO CASTRO, IÑAKI (295) referencia al cliente 318"},
                            {"CODCLIENTE", 318}})),
            lineas.end())
            << lineas.dump();
    }
    // One table: only its lines.
    {
        SCOPED_TRACE("one table");
        EXPECT_EQ(r[1]["result"], true) << r[1].dump();
        const auto vistas = deTipo(r[1], "preview");
        ASSERT_EQ(vistas.size(), 1u);
        // The list opens on its first table, ACTIVOS. (The values of "set" are entered in the order of
        // their names, so CBTablas, still disabled, cannot be chosen in the same answer.)
        ASSERT_EQ(vistas[0]["lines"].size(), 1u);
        EXPECT_EQ(vistas[0]["lines"][0]["TABLA"], "En la Tabla ACTIVOS de COMUN");
    }
    // A button the form does not have: an error naming it, the form closed as cancelled, nothing run.
    ASSERT_TRUE(r[2].contains("error")) << r[2].dump();
    EXPECT_NE(r[2]["error"].get<std::string>().find("BBNoExiste"), std::string::npos) << r[2]["error"];
    EXPECT_TRUE(deTipo(r[2], "preview").empty());
}

} // namespace
