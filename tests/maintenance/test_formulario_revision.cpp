// The revision's form answered through `nodrim batch` on the sample office, as a script answers it: the
// form as it opens, the list's preview reported with its lines, and a button the form lacks (choosing one
// table, the other ways out and the answers that do not fit are the form's and the forms layer's own,
// tested in-process and with the batch forms).
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
        pide({json::object()}),            // 0: Aceptar, all tables
        pide({{{"press", "BBNoExiste"}}}), // 1: no such button
    });
    ASSERT_EQ(r.size(), 2u);

    // All tables: the form as it opened, the progress window, then the preview with every line.
    EXPECT_FALSE(r[0].contains("error")) << r[0].dump();
    EXPECT_EQ(r[0]["result"], true);
    const auto formas = deTipo(r[0], "form");
    ASSERT_EQ(formas.size(), 1u);
    EXPECT_EQ(formas[0]["title"], "Indique los parámetros de Revisión");
    EXPECT_EQ(formas[0]["values"], json({{"RBTodasTablas", true}, {"RBUnaTabla", false}, {"CBTablas", ""}}));
    EXPECT_EQ(formas[0]["result"], 1);
    EXPECT_FALSE(deTipo(r[0], "MuestraMensaje").empty()) << "the progress window";
    const auto vistas = deTipo(r[0], "preview");
    ASSERT_EQ(vistas.size(), 1u);
    EXPECT_EQ(vistas[0]["title"], "Listado Clientes Repetidos");
    const json& lineas = vistas[0]["lines"];
    ASSERT_EQ(lineas.size(), 24u); // the sample office's dangling codes, notary 1
    EXPECT_NE(std::find(lineas.begin(), lineas.end(),
                        json({{"TABLA", "En la Tabla CLIENTES de COMUN"},
                              {"MENSAJE", "El cliente  CASTRO CASTRO, IÑAKI (295) referencia al cliente 318"},
                              {"CODCLIENTE", 318}})),
              lineas.end())
        << lineas.dump();
    // A button the form does not have: an error naming it, the form closed as cancelled, nothing run.
    ASSERT_TRUE(r[1].contains("error")) << r[1].dump();
    EXPECT_NE(r[1]["error"].get<std::string>().find("BBNoExiste"), std::string::npos) << r[1]["error"];
    EXPECT_TRUE(deTipo(r[1], "preview").empty());
}

} // namespace
