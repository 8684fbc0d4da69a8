// Mail, fax and the web gateway as a script drives them through `nodrim batch`: transports pointed at
// servers on 127.0.0.1 by the request's "config", questions answered by its "answers".
#include "apps/nodrim/lote.h"
#include "comms/pasarela.h"
#include "tests/comms/apoyo.h"
#include "tests/comms/servidor_correo.h"
#include "tests/ident/servidor_http.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace nod {
namespace {

using lote::json;

TEST(LoteComms, AScriptSendsAMailWithAttachments) {
    prueba::OficinaPrueba oficina;
    prueba::ServidorCorreo servidor;
    ASSERT_NE(servidor.puerto(), 0) << servidor.error().toStdString();
    QTemporaryDir carpeta;
    const QString adjunto =
        prueba::EscribeFichero(QDir(carpeta.path()).filePath(u"factura.pdf"_s), "%PDF-1.4 factura");

    const json r = lote::Atiende(
        {{"fn", "EnviarEmail"},
         {"args", {"ana@example.es;", "Factura 7/2024", "Adjunta.", {adjunto.toStdString()}, "", "", false}},
         {"config", servidor.configuracion()}});
    ASSERT_FALSE(r.contains("error")) << r.dump();
    EXPECT_EQ(r["result"], true);
    ASSERT_EQ(servidor.mensajes().size(), 1);
    const QJsonObject m = servidor.mensajes().front();
    EXPECT_EQ(m[u"subject"].toString(), u"Factura 7/2024"_s);
    EXPECT_EQ(m[u"attachments"].toArray().at(0)[u"filename"].toString(), u"factura.pdf"_s);

    json config = servidor.configuracion();
    config["PuertoCorreo"] = prueba::ServidorHttp::puertoCerrado();
    const json fallo = lote::Atiende({{"fn", "EnviarEmail"},
                                      {"args", {"ana@example.es", "a", "b", json::array(), "", "", false}},
                                      {"config", config}});
    ASSERT_TRUE(fallo.contains("error"));
    EXPECT_NE(fallo["error"].get<std::string>().find("No se puede conectar con el servidor de correo"),
              std::string::npos)
        << fallo.dump();
}

TEST(LoteComms, AScriptSendsAFaxAndChecksTheGateway) {
    prueba::OficinaPrueba oficina;
    prueba::ServidorHttp servidor;
    servidor.respondeCon({.estado = 201, .cabeceras = {{"Location", "/outbound/faxes/555"}}});
    QTemporaryDir programa;
    FijaCarpetaPrograma(programa.path());
    const QString doc = prueba::EscribeFichero(QDir(programa.path()).filePath(u"a.pdf"_s), "%PDF");

    const json fax =
        lote::Atiende({{"fn", "EnviarFAXInterFax"},
                       {"args", {{doc.toStdString()}, {"915551212", "935550000"}, "clave", "usuario", ""}},
                       {"config", {{"ServidorFAX", servidor.base().toStdString()}}}});
    ASSERT_FALSE(fax.contains("error")) << fax.dump();
    EXPECT_EQ(fax["result"], json({"555", "555"}));

    servidor.respondeCon("<xml/>");
    const json pasarela = lote::Atiende({{"fn", "CompruebaFicherosPasarelaParaEnviosUnicos"},
                                         {"args", json::array()},
                                         {"config", {{"PortalFabricante", servidor.base().toStdString()}}},
                                         {"answers", {6}}});
    FijaCarpetaPrograma({});
    ASSERT_FALSE(pasarela.contains("error")) << pasarela.dump();
    EXPECT_EQ(pasarela["result"], true);
    EXPECT_EQ(pasarela["dialogs"][1]["kind"], "MuestraMensaje");
    EXPECT_TRUE(QFile::exists(oficina.ruta(u"xsd/PARTE_NOTARIO-1.7dll.xsd"_s)));
}

TEST(LoteComms, PlainRoutinesAnswerWithTheirJsonTypes) {
    prueba::OficinaPrueba oficina(u"[ALIAS]\nDB="_s + prueba::OficinaMuestra() + u"/DATOS\n"_s);
    const std::pair<json, json> casos[] = {
        {{{"fn", "DameContenidoXML"}, {"args", {"<r><id>42</id></r>", "<id>", "</id>"}}}, "42"},
        {{{"fn", "PuedeActualizarEsteEquipo"},
          {"args", json::array()},
          {"config", {{"UsuarioParaActualizar", "todos"}}}},
         false},
        {{{"fn", "PuedeActualizarEsteEquipo"}, {"args", json::array()}}, true},
        {{{"fn", "EnviarMail"},
          {"args", json::array()},
          {"config", {{"CorreoFabricante", "soporte@example.com"}}}},
         "mailto:soporte@example.com?subject=Notario%20rectificaci%C3%B3n"},
        {{{"fn", "EnviarMail"}, {"args", json::array()}}, "mailto:?subject=Notario%20rectificaci%C3%B3n"},
        {{{"fn", "tbInteresadosCalcFields"}, {"args", {0}}}, ""},
    };
    for (const auto& [peticion, resultado] : casos) {
        const json r = lote::Atiende(peticion);
        ASSERT_FALSE(r.contains("error")) << r.dump();
        EXPECT_EQ(r["result"], resultado) << peticion.dump();
    }
    const json cliente = lote::Atiende({{"fn", "tbInteresadosCalcFields"}, {"args", {1}}});
    EXPECT_NE(cliente["result"].get<std::string>().find(", "), std::string::npos) << cliente.dump();
    const json ini = lote::Atiende({{"fn", "CompruebaPasarelaWebIni"}, {"args", json::array()}});
    EXPECT_EQ(ini["result"], oficina.ruta(u"C/PasarelaWeb.ini"_s).toStdString());
}

} // namespace
} // namespace nod
