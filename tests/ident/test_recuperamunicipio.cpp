// The cadastre consultation against a real HTTP server on 127.0.0.1: the request's bytes, and the codes
// read (or not) from realistic answers, error replies, broken XML, silence and refused connections.
#include "ident/recuperamunicipio.h"
#include "tests/ident/servidor_http.h"
#include "tests/support/oficina_prueba.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace nod {
namespace {

// The answer the service gives for an urban property of Madrid (trimmed to the parts that matter, in the
// service's own layout: control block first, then the property with its identification and data).
QByteArray respuestaMadrid(const QByteArray& dt = "<loine><cp>28</cp><cm>79</cm></loine><cmc>900</cmc>"
                                                  "<np>MADRID</np><nm>MADRID</nm>") {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
           "<soap:Envelope xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\" "
           "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
           "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\">\r\n"
           "  <soap:Body>\r\n"
           "    <Consulta_DNPRC_CodigosResponse xmlns=\"http://tempuri.org/OVCServWeb/OVCCallejeroID\">\r\n"
           "      <consulta_dnp xmlns=\"http://www.catastro.meh.es/\">\r\n"
           "        <control><cudnp>1</cudnp><cucons>1</cucons><cucul>0</cucul></control>\r\n"
           "        <bico><bi>\r\n"
           "          <idbi><cn>UR</cn><rc><pc1>9872023</pc1><pc2>VH5797S</pc2><car>0001</car>"
           "<cc1>W</cc1><cc2>X</cc2></rc></idbi>\r\n"
           "          <dt>" +
           dt +
           "</dt>\r\n"
           "          <ldt>CL PRUEBA 1 MADRID (MADRID)</ldt>\r\n"
           "          <debi><luso>Residencial</luso><sfc>90</sfc></debi>\r\n"
           "        </bi></bico>\r\n"
           "      </consulta_dnp>\r\n"
           "    </Consulta_DNPRC_CodigosResponse>\r\n"
           "  </soap:Body>\r\n"
           "</soap:Envelope>\r\n";
}

class RecuperaMunicipioTest : public ::testing::Test {
protected:
    void SetUp() override {
        Config.SetServidorCatastro(servidor.base());
        Config.SetEsperaCatastroMs(1500);
    }
    ConsultaCatastro consulta() { return ConsultaCodigosCatastro(QStringLiteral(" 9872023VH5797S0001WX ")); }

    prueba::OficinaPrueba oficina;
    prueba::ServidorHttp servidor;
};

TEST_F(RecuperaMunicipioTest, RequestIsSentByteForByteAndAnswersGiveTheirCodes) {
    servidor.respondeCon(respuestaMadrid());
    QString provincia, municipio;
    RecuperaMunicipio(QStringLiteral(" 9872023VH5797S0001WX "), provincia, municipio);
    ASSERT_EQ(servidor.peticiones().size(), 1);
    const prueba::PeticionHttp& p = servidor.peticiones().front();
    EXPECT_EQ(p.metodo, "POST");
    EXPECT_EQ(p.ruta, "/ovcservweb/OVCSWLocalizacionRC/OVCCallejeroCodigos.asmx");
    EXPECT_EQ(p.cabeceras.value("soapaction"),
              "http://tempuri.org/OVCServWeb/OVCCallejeroID/Consulta_DNPRC_Codigos");
    EXPECT_EQ(p.cabeceras.value("content-type"), "text/xml; charset=utf-8");
    const QByteArray esperado =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r"
        "<soap:Envelope xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
        "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" "
        "xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\">\r"
        "  <soap:Body>\r"
        "    <CodigoProvincia xmlns=\"http://www.catastro.meh.es/\" />\r"
        "    <CodigoMunicipio xmlns=\"http://www.catastro.meh.es/\" />\r"
        "    <CodigoMunicipioINE xmlns=\"http://www.catastro.meh.es/\" />\r"
        "    <RefCat xmlns=\"http://www.catastro.meh.es/\">9872023VH5797S0001WX</RefCat>\r"
        "  </soap:Body>\r"
        "</soap:Envelope>\r";
    EXPECT_EQ(p.cuerpo, esperado);
    EXPECT_FALSE(p.cuerpo.contains('\n'));
    using enum ResultadoCatastro;
    struct Caso {
        const char* nombre;
        QByteArray cuerpo;
        ResultadoCatastro resultado;
        const char16_t* provincia = u"";
        const char16_t* municipio = u"";
        int estado = 200;
    };
    const QByteArray conEntidad = respuestaMadrid().mid(40).replace("<cp>28", "<cp>&x;");
    const Caso casos[] = {
        {"realistic", respuestaMadrid(), Encontrada, u"28", u"900"},
        {"upper-case names", respuestaMadrid("<LOINE><CP>51</CP></LOINE><CMC>101</CMC><np>CEUTA</np>"),
         Encontrada, u"51", u"101"},
        {"no municipality", respuestaMadrid("<loine><cp>28</cp></loine><np>MADRID</np><nm>MADRID</nm>"),
         Encontrada, u"28"},
        {"no province", respuestaMadrid("<loine><cm>79</cm></loine><cmc>900</cmc><np>MADRID</np>"),
         NoEncontrada},
        {"empty province", respuestaMadrid("<loine><cp></cp></loine><cmc>900</cmc><np>MADRID</np>"),
         NoEncontrada, u"", u"900"},
        {"no loine", respuestaMadrid("<cmc>900</cmc><np>MADRID</np><nm>MADRID</nm>"), NoEncontrada},
        {"data with two children only", respuestaMadrid("<loine><cp>28</cp></loine><cmc>900</cmc>"),
         NoEncontrada},
        {"error reply",
         "<consulta_dnp><lerr><err><cod>11</cod><des>LA REFERENCIA NO "
         "EXISTE</des></err></lerr></consulta_dnp>",
         NoEncontrada},
        {"error reply, lower case", respuestaMadrid() + "<!-- <err> -->", NoEncontrada},
        {"empty body", "", NoEncontrada},
        {"truncated XML", respuestaMadrid().left(700), NoEncontrada},
        {"not XML", "Service Unavailable", NoEncontrada},
        {"HTTP error", respuestaMadrid(), SinConexion, u"", u"", 500},
        // A doctype takes the place of the XML declaration among the document's children.
        {"internal entity", "<!DOCTYPE d [<!ENTITY x \"28\">]>" + conEntidad, Encontrada, u"28", u"900"},
        // Nothing is read from outside: an empty province.
        {"external entity", "<!DOCTYPE d [<!ENTITY x SYSTEM \"file:///etc/hostname\">]>" + conEntidad,
         NoEncontrada, u"", u"900"},
        {"huge answer", QByteArray(3 << 20, ' ') + respuestaMadrid(), SinConexion},
        {"deep nesting", QByteArray(100000, 'x').replace("x", "<a>"), NoEncontrada}};
    for (const Caso& c : casos) {
        servidor.respondeCon(c.cuerpo, c.estado);
        const ConsultaCatastro r = consulta();
        EXPECT_EQ(r.resultado, c.resultado) << c.nombre;
        EXPECT_EQ(r.provincia, QString::fromUtf16(c.provincia)) << c.nombre;
        EXPECT_EQ(r.municipio, QString::fromUtf16(c.municipio)) << c.nombre;
    }
}

TEST_F(RecuperaMunicipioTest, CancellingSilenceClosedConnectionAndRefusalLeaveBothEmpty) {
    servidor.calla();
    Config.SetEsperaCatastroMs(20000);
    int sondeos = 0;
    const ConsultaCatastro r =
        ConsultaCodigosCatastro(QStringLiteral("9872023VH5797S0001WX"), [&] { return ++sondeos >= 3; });
    EXPECT_EQ(r.resultado, ResultadoCatastro::Cancelada);
    EXPECT_GE(sondeos, 3);

    Config.SetEsperaCatastroMs(1500);
    QElapsedTimer reloj;
    reloj.start();
    EXPECT_EQ(consulta().resultado, ResultadoCatastro::SinConexion);
    EXPECT_LT(reloj.elapsed(), 30000) << "the transfer timeout must end a silent server's wait";

    servidor.cierra();
    EXPECT_EQ(consulta().resultado, ResultadoCatastro::SinConexion);

    Config.SetServidorCatastro(
        QStringLiteral("http://127.0.0.1:%1").arg(prueba::ServidorHttp::puertoCerrado()));
    QString provincia = QStringLiteral("x"), municipio = QStringLiteral("y");
    RecuperaMunicipio(QStringLiteral("9872023VH5797S0001WX"), provincia, municipio);
    EXPECT_TRUE(provincia.isEmpty());
    EXPECT_TRUE(municipio.isEmpty());
}

TEST(DireccionConsultaCatastro, ProvinceRemappingAndKind) {
    prueba::OficinaPrueba oficina;
    EXPECT_EQ(DireccionConsultaCatastro(QStringLiteral("9872023VH5797S0001WX"), QStringLiteral("28"),
                                        QStringLiteral("900"), true)
                  .toString(),
              QStringLiteral("https://www1.sedecatastro.gob.es/CYCBienInmueble/OVCConCiud.aspx?UrbRus=U&RefC="
                             "9872023VH5797S0001WX&del=28&mun=900"));
    const std::pair<const char*, const char*> provincias[] = {
        {"51", "55"}, {"52", "56"}, {"50", "50"}, {"5", "5"}};
    for (const auto& [de, a] : provincias) {
        const QUrl u = DireccionConsultaCatastro(QStringLiteral("28079A000000001001AB"),
                                                 QString::fromLatin1(de), QStringLiteral("1"), false);
        EXPECT_TRUE(u.toString().contains(
            QStringLiteral("UrbRus=R&RefC=28079A000000001001AB&del=%1&mun=1").arg(QString::fromLatin1(a))))
            << qPrintable(u.toString());
    }
}

} // namespace
} // namespace nod
