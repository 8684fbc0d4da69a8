// The mail forms answered through the real `nodrim batch` and its form layer, as a script answers them:
// the client's mobile and address (its key filter and what comes back out), and the mail editor sending
// to a real SMTP server on 127.0.0.1.
#include "tests/comms/servidor_correo.h"
#include "tests/support/lote_proceso.h"

#include <QJsonArray>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;

using json = nlohmann::json;

namespace nod {
namespace {

// One `nodrim batch` on the sample office for every request; one response per line.
std::vector<json> ejecuta(const std::vector<json>& peticiones) {
    return nod::prueba::EjecutaLote(QStringLiteral(NODRIM_EXE),
                                    QStringLiteral(NOD_SOURCE_DIR "/sample-office"), peticiones);
}

TEST(FormulariosComms, MobileAndMailFormAnsweredFromAScript) {
    const auto pide = [](json respuesta, const char* movil) {
        return json{{"fn", "PreguntaDatosMovilCorreo"},
                    {"args", {"GARCÍA LÓPEZ, ANA", movil, "ana@example.es"}},
                    {"answers", {std::move(respuesta)}}};
    };
    // Letters, blanks and the plus sign are swallowed by the mobile field as keys; digits and points stay.
    // Cancelled, both are left as they came.
    const std::vector<json> r =
        ejecuta({pide({{"set", {{"MEMovil", "+34 600a12.34"}, {"ECorreo", "ana.garcia@example.es"}}}}, ""),
                 pide({{"set", {{"MEMovil", "611"}}}, {"press", "BBCancelar"}}, "600123456")});
    ASSERT_EQ(r.size(), 2u);
    EXPECT_EQ(r[0]["result"], true) << r[0].dump();
    EXPECT_EQ(r[0]["out"], json({"3460012.34", "ana.garcia@example.es"}));
    EXPECT_EQ(r[1]["result"], false) << r[1].dump();
    EXPECT_EQ(r[1]["out"], json({"600123456", "ana@example.es"}));
    // What the form showed before the script typed.
    const json& f = r[0]["dialogs"][0];
    EXPECT_EQ(f["kind"], "form");
    EXPECT_EQ(f["values"]["MEMovil"], "");
    EXPECT_EQ(f["values"]["ECorreo"], "ana@example.es");
}

TEST(FormulariosComms, MailEditorSendsFromAScript) {
    prueba::ServidorCorreo servidor;
    ASSERT_NE(servidor.puerto(), 0) << servidor.error().toStdString();
    const auto editor = [&](json respuestas) {
        return json{{"fn", "MuestraEmail"},
                    {"args", {"ana@example.es"}},
                    {"config", servidor.configuracion()},
                    {"answers", std::move(respuestas)}};
    };
    const std::vector<json> r = ejecuta({
        editor({{{"set",
                  {{"ECC", "luis@example.es"}, {"EAsunto", "Copia simple nº 7"}, {"MCuerpo", "Adjunta."}}},
                 {"press", "BBEnviar"}}}),
        // Closed without sending.
        editor({{{"set", {{"EAsunto", "Borrador"}}}, {"press", "BBCerrar"}}}),
        // Without a subject the editor asks, and the script's next answer (6, yes) sends it anyway.
        editor({{{"set", {{"MCuerpo", "Sin asunto"}}}, {"press", "BBEnviar"}}, 6}),
    });
    ASSERT_EQ(r.size(), 3u);
    EXPECT_FALSE(r[0].contains("error")) << r[0].dump();
    EXPECT_EQ(r[0]["dialogs"][0]["values"]["EPara"], "ana@example.es");
    EXPECT_FALSE(r[1].contains("error")) << r[1].dump();
    ASSERT_FALSE(r[2].contains("error")) << r[2].dump();
    EXPECT_EQ(r[2]["dialogs"][1]["kind"], "Mensaje_SiNo");
    EXPECT_EQ(r[2]["dialogs"][1]["text"], "Mensaje sin asunto\n¿Desea enviarlo de todas formas?");
    EXPECT_EQ(r[2]["dialogs"][1]["answer"], 1); // Mensaje_SiNo answers 1 for yes

    const QList<QJsonObject> m = servidor.mensajes();
    ASSERT_EQ(m.size(), 2);
    EXPECT_EQ(m[1][u"subject"].toString(), QString());
    EXPECT_EQ(m[0][u"subject"].toString(), u"Copia simple nº 7"_s);
    EXPECT_EQ(m[0][u"to"].toArray(), QJsonArray{u"ana@example.es"_s});
    EXPECT_EQ(m[0][u"cc"].toArray(), QJsonArray{u"luis@example.es"_s});
}

} // namespace
} // namespace nod
