// Fax jobs against a real HTTP server on 127.0.0.1 standing for the fax service: what is posted (numbers,
// account, documents, the job options of the initialisation file), which account and file are used, and
// how refusals, dropped connections and silence are reported.
#include "comms/correo.h"
#include "comms/maininterfax.h"
#include "companion/errores.h"
#include "tests/comms/apoyo.h"
#include "tests/ident/servidor_http.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace nod {
namespace {

using prueba::RespuestaHttp;

RespuestaHttp aceptado(const QByteArray& id) {
    return {.estado = 201,
            .tipo = "application/json",
            .cabeceras = {{"Location", "https://rest.interfax.net/outbound/faxes/" + id}}};
}

RespuestaHttp rechazado(int estado, const QByteArray& json) {
    return {.estado = estado, .cuerpo = json, .tipo = "application/json"};
}

class FaxTest : public ::testing::Test {
protected:
    void SetUp() override {
        Config.SetServidorFAX(servidor.base());
        Config.SetEsperaFAXMs(1000);
        Config.SetsUsuarioFAX(u"notaria_cfg"_s);
        Config.SetsPasswordFAX(u"clave_cfg"_s);
        servidor.respondeCon(aceptado("1"));
    }
    QString documento(const QString& nombre, const QByteArray& contenido) {
        return prueba::EscribeFichero(QDir(carpeta.path()).filePath(nombre), contenido);
    }
    QString fax(const QStringList& docs, const QStringList& numeros, const QString& usuario = {},
                const QString& password = {}, const QString& ini = {}, QStringList* ids = nullptr) {
        try {
            const QStringList r = EnviarFAXInterFax(nullptr, docs, numeros, password, usuario, ini);
            if (ids) *ids = r;
            return {};
        } catch (const ErrorEnvio& e) {
            return e.mensaje();
        }
    }

    prueba::OficinaPrueba oficina;
    prueba::ServidorHttp servidor;
    QTemporaryDir carpeta;
};

TEST_F(FaxTest, EachRecipientGetsTheDocumentsWithTheGivenAccount) {
    QByteArray pdf = "%PDF-1.4\n";
    for (int i = 0; i < 256; ++i)
        pdf += char(i);
    const QString a = documento(u"escritura.pdf"_s, pdf);
    const QString b = documento(u"anexo Núñez.txt"_s, "Anexo\r\n");
    servidor.encola(aceptado("1001"));
    servidor.encola(aceptado("1002"));
    QStringList ids;
    ASSERT_EQ(
        fax({a, b}, {u"+34 91 555-12-12"_s, u"(0034) 93.555.00.00"_s}, u"usuario"_s, u"clave ñ"_s, {}, &ids),
        QString());
    EXPECT_EQ(ids, QStringList({u"1001"_s, u"1002"_s}));

    ASSERT_EQ(servidor.peticiones().size(), 2);
    const QByteArray rutas[] = {"/outbound/faxes?faxNumber=%2B34915551212",
                                "/outbound/faxes?faxNumber=0034935550000"};
    for (int i = 0; i < 2; ++i) {
        const prueba::PeticionHttp& p = servidor.peticiones()[i];
        EXPECT_EQ(p.metodo, "POST");
        EXPECT_EQ(p.ruta, rutas[i]);
        EXPECT_EQ(p.cabeceras.value("authorization"), "Basic " + QByteArray("usuario:clave ñ").toBase64());
        EXPECT_TRUE(p.cabeceras.value("content-type").startsWith("multipart/mixed; boundary="));
        EXPECT_TRUE(p.cuerpo.contains(pdf)) << "the document byte for byte";
        EXPECT_TRUE(p.cuerpo.contains("Content-Type: application/pdf"));
        EXPECT_TRUE(p.cuerpo.contains("filename=\"escritura.pdf\""));
        EXPECT_TRUE(p.cuerpo.contains("filename=\"anexo N__ez.txt\"")) << "names beyond ASCII are replaced";
        EXPECT_TRUE(p.cuerpo.contains("Anexo\r\n"));
        EXPECT_LT(p.cuerpo.indexOf(pdf), p.cuerpo.indexOf("Anexo\r\n")) << "documents in order";
    }
}

// Without a user the office's account and "CONFIG\VARIOS.INI" are used; a file given is read instead.
TEST_F(FaxTest, AccountAndInitialisationFileFollowTheirRules) {
    oficina.escribe(u"CONFIG/VARIOS.INI"_s,
                    u"[INTERFAX]\nCSID=NOTARIA MADRID\nCabecera=Notaría de Pruebas\nReintentos=3\n"_s);
    oficina.escribe(u"otro.ini"_s, u"[interfax]\ncsid=OTRA\nReintentos=9\n"_s);
    oficina.escribe(u"C/FAX.INI"_s, u"[INTERFAX]\nCSID=UNIDAD C\n"_s);
    const QString doc = documento(u"a.pdf"_s, "%PDF");
    struct Caso {
        const char* nombre;
        QString usuario, password, ini;
        const char *cuenta, *consulta; // cuenta: "user:password" of the authorisation
    };
    const char* const varios = "faxNumber=915551212&csid=NOTARIA%20MADRID&pageHeader=Notar%C3%ADa%20de%20"
                               "Pruebas&retriesToPerform=3";
    const Caso casos[] = {
        {"no user, no file", u""_s, u"ignorada"_s, u""_s, "notaria_cfg:clave_cfg", varios},
        {"a user of its own", u"otro"_s, u"x"_s, u""_s, "otro:x", varios},
        {"a file given, retries out of range", u""_s, u""_s, oficina.ruta(u"otro.ini"_s),
         "notaria_cfg:clave_cfg", "faxNumber=915551212&csid=OTRA"},
        {"a drive-C file", u""_s, u""_s, u"C:\\FAX.INI"_s, "notaria_cfg:clave_cfg",
         "faxNumber=915551212&csid=UNIDAD%20C"},
        {"a file that does not exist", u""_s, u""_s, u"CONFIG\\NOEXISTE.INI"_s, "notaria_cfg:clave_cfg",
         "faxNumber=915551212"},
    };
    for (const Caso& c : casos) {
        const qsizetype antes = servidor.peticiones().size();
        EXPECT_EQ(fax({doc}, {u"915551212"_s}, c.usuario, c.password, c.ini), QString()) << c.nombre;
        ASSERT_EQ(servidor.peticiones().size(), antes + 1) << c.nombre;
        const prueba::PeticionHttp& p = servidor.peticiones().last();
        EXPECT_EQ(p.cabeceras.value("authorization"), "Basic " + QByteArray(c.cuenta).toBase64()) << c.nombre;
        EXPECT_EQ(p.ruta, "/outbound/faxes?" + QByteArray(c.consulta)) << c.nombre;
    }
}

TEST_F(FaxTest, WrongInputSendsNothing) {
    const QString doc = documento(u"a.pdf"_s, "%PDF");
    struct Caso {
        const char* nombre;
        const char *docs, *numeros; // entries separated by '|'; "D" in docs: a document that exists
        std::function<void()> prepara;
        const char* mensaje;
    };
    const Caso casos[] = {
        {"a number with letters", "D", "915551212|91-ABC", {}, "«91-ABC» no es un número de fax válido"},
        {"a number too short", "D", "12", {}, "«12» no es un número de fax válido"},
        {"a plus inside", "D", "91+5551212", {}, "no es un número de fax válido"},
        {"missing document", "D|/no/existe.pdf", "915551212", {}, "«/no/existe.pdf»"},
        {"no documents", "", "915551212", {}, "ningún documento"},
        {"no recipients", "D", "", {}, "ningún número"},
        {"no account", "D", "915551212", [] { Config.SetsUsuarioFAX({}); },
         "No se ha configurado la cuenta del servicio de fax"},
        {"no service address", "D", "915551212", [] { Config.SetServidorFAX(u"rest"_s); },
         "«rest» no es válida"},
    };
    for (const Caso& c : casos) {
        SetUp();
        if (c.prepara) c.prepara();
        QStringList docs = QString::fromUtf8(c.docs).split(u'|', Qt::SkipEmptyParts);
        docs.replaceInStrings(QRegularExpression(u"^D$"_s), doc);
        const QString error = fax(docs, QString::fromUtf8(c.numeros).split(u'|', Qt::SkipEmptyParts));
        EXPECT_TRUE(error.contains(QString::fromUtf8(c.mensaje))) << c.nombre << ": " << error.toStdString();
    }
    EXPECT_TRUE(servidor.peticiones().isEmpty());
}

// A job stops at the first recipient that fails; the message names what went, what failed and why, and
// what was not tried.
TEST_F(FaxTest, FailuresSayWhatWasSentAndWhatWasNot) {
    const QString doc = documento(u"a.pdf"_s, "%PDF");
    const QStringList tres = {u"911111111"_s, u"922222222"_s, u"933333333"_s};
    struct Caso {
        const char* nombre;
        char luego; // after the queued answers: 'a' accepted, 'c' closed, 's' silence, 'x' no server
        qsizetype peticiones;
        const char* mensaje;
        QList<RespuestaHttp> respuestas = {};
    };
    const Caso casos[] = {
        {"account refused",
         'a',
         1,
         "No se ha podido enviar el fax al 911111111 (HTTP 401: Authentication error). No se ha enviado a: "
         "922222222, 933333333.",
         {rechazado(401, R"({"code":-1003,"message":"Authentication error"})")}},
        {"second number refused",
         'a',
         2,
         "No se ha podido enviar el fax al 922222222 (HTTP 400: Invalid fax number). Sí se ha enviado a: "
         "911111111. No se ha enviado a: 933333333.",
         {aceptado("7"), rechazado(400, R"({"code":-112,"message":"Invalid fax number"})")}},
        {"last one answers an error page",
         'a',
         3,
         "al 933333333 (HTTP 503: <html><body>Service Unavailable</body></html>). Sí se ha enviado a: "
         "911111111, 922222222.",
         {aceptado("7"), aceptado("8"), rechazado(503, "<html><body>Service Unavailable</body></html>")}},
        // Qt's HTTP client sends a request once more when the connection closes without an answer.
        {"dropped connection", 'c', 2,
         "No se ha podido enviar el fax al 911111111 (el servidor ha cerrado la conexión sin responder). "
         "No se ha enviado a: 922222222, 933333333."},
        {"silence", 's', 1, "No se ha podido enviar el fax al 911111111 (sin respuesta en 1 s)"},
        {"nobody listening", 'x', 0, "No se ha podido enviar el fax al 911111111 (conexión rechazada)"},
    };
    prueba::RegistroCapturado registro;
    for (const Caso& c : casos) {
        prueba::ServidorHttp propio;
        Config.SetServidorFAX(propio.base());
        propio.respondeCon(aceptado("1"));
        for (const RespuestaHttp& r : c.respuestas)
            propio.encola(r);
        if (c.luego == 'c') propio.cierra();
        if (c.luego == 's') propio.calla();
        if (c.luego == 'x')
            Config.SetServidorFAX(u"http://127.0.0.1:%1"_s.arg(prueba::ServidorHttp::puertoCerrado()));
        const QString error = fax({doc}, tres);
        EXPECT_TRUE(error.contains(QString::fromUtf8(c.mensaje))) << c.nombre << ": " << error.toStdString();
        EXPECT_FALSE(error.contains(u"clave_cfg"_s)) << c.nombre;
        EXPECT_EQ(propio.peticiones().size(), c.peticiones) << c.nombre;
    }
    // Neither the account's password nor its encoded form reaches the log.
    const QString todo = registro.texto();
    EXPECT_TRUE(todo.contains(u"922222222"_s));
    EXPECT_FALSE(todo.contains(u"clave_cfg"_s));
    EXPECT_FALSE(todo.contains(QString::fromLatin1(QByteArray("notaria_cfg:clave_cfg").toBase64())));
}

} // namespace
} // namespace nod
