// Mail against a real SMTP server on 127.0.0.1 (aiosmtpd), read back with Python's own mail parser: who
// receives what, the headers a reader sees, attachments byte for byte, texts beyond ASCII; the questions of
// EnviarEmail; and every way a sending fails, each with a clear message and nothing delivered.
#include "comms/correo.h"
#include "comms/sendmail.h"
#include "companion/errores.h"
#include "companion/mensajes.h"
#include "tests/comms/apoyo.h"
#include "tests/comms/servidor_correo.h"
#include "tests/ident/servidor_http.h"
#include "tests/support/oficina_prueba.h"

#include <QDir>
#include <QElapsedTimer>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace nod {
namespace {

using prueba::ServidorCorreo;

// The addresses of a header or of the envelope, separated by blanks.
QString lista(const QJsonValue& v) {
    QStringList r;
    for (const QJsonValue& e : v.toArray())
        r.append(e.toString());
    return r.join(u' ');
}

class CorreoTest : public ::testing::Test {
protected:
    void apunta(const ServidorCorreo& s) {
        ASSERT_NE(s.puerto(), 0) << s.error().toStdString();
        s.apunta();
        Config.SetNombreRemitenteCorreo(u"Notaría de Pruebas"_s);
    }
    QString fichero(const QString& nombre, const QByteArray& contenido) {
        return prueba::EscribeFichero(QDir(adjuntos.path()).filePath(nombre), contenido);
    }
    // A message "a" / "b" to `destinatarios`.
    static TMAPIMail correo(const QStringList& destinatarios = {u"smtp:ana@example.es"_s}) {
        TMAPIMail m;
        m.Subject = u"a"_s;
        m.Body = u"b"_s;
        m.Recipients = destinatarios;
        return m;
    }
    // Sends through TMAPIMail and gives the error's message, empty when it was sent.
    static QString envia(const TMAPIMail& m) {
        try {
            m.Send();
            return {};
        } catch (const ErrorEnvio& e) {
            return e.mensaje();
        }
    }

    prueba::OficinaPrueba oficina;
    ServicioMensajesGuionado guion;
    ServicioMensajesInstalado instalado{guion};
    QTemporaryDir adjuntos;
};

TEST_F(CorreoTest, MessageArrivesWithItsRecipientsTextsAndAttachmentsIntact) {
    ServidorCorreo servidor;
    apunta(servidor);
    QByteArray binario;
    for (int i = 0; i < 3 * 256; ++i)
        binario += char(i % 256);
    const QString pdf = fichero(u"Poder notarial Núñez.pdf"_s, binario);
    const QString txt = fichero(u"minuta.txt"_s, "Primera línea\r\nsegunda\n");
    const QString asunto = u"Escritura de compraventa: Sr. Núñez — 1.500 € (ÀÇÏÑÜ)"_s;
    const QString cuerpo = u"Estimado cliente:\nLe adjuntamos la copia simple.\r\nUn saludo, "
                           "la notaría.\n\n-- \nCalle Mayor, 1 · Madrid"_s;

    ASSERT_TRUE(EnviarEmail(nullptr, u"ana@example.es;luis@example.es;"_s, asunto, cuerpo, {pdf, txt},
                            u"gestor@example.es"_s, u"archivo@example.es"_s, true));
    EXPECT_TRUE(guion.mostrados().isEmpty());
    const QList<QJsonObject> mensajes = servidor.mensajes();
    ASSERT_EQ(mensajes.size(), 1);
    const QJsonObject& m = mensajes.front();
    EXPECT_EQ(lista(m[u"to"]), u"ana@example.es luis@example.es"_s);
    EXPECT_EQ(lista(m[u"cc"]), u"gestor@example.es"_s);
    EXPECT_FALSE(m[u"bcc_header"].toBool());
    EXPECT_FALSE(m[u"raw"].toString().contains(u"archivo@"_s)) << "a hidden copy shows nowhere";
    EXPECT_EQ(lista(m[u"rcpt_tos"]),
              u"ana@example.es luis@example.es gestor@example.es archivo@example.es"_s);
    EXPECT_EQ(m[u"mail_from"].toString(), u"notaria@example.es"_s);
    EXPECT_EQ(m[u"from"].toString(), u"Notaría de Pruebas <notaria@example.es>"_s);
    EXPECT_EQ(m[u"subject"].toString(), asunto);
    EXPECT_EQ(m[u"receipt_to"].toString(), u"<notaria@example.es>"_s);
    // Every line break arrives as one, whichever way it was typed.
    const auto lineas = [](QString t) { return t.replace(u"\r\n"_s, u"\n"_s).split(u'\n'); };
    EXPECT_EQ(lineas(m[u"body"].toString()), lineas(cuerpo));
    EXPECT_EQ(m[u"body_charset"].toString(), u"utf-8"_s);

    const QJsonArray adj = m[u"attachments"].toArray();
    ASSERT_EQ(adj.size(), 2);
    EXPECT_EQ(adj[0][u"filename"].toString(), u"Poder notarial Núñez.pdf"_s);
    EXPECT_EQ(adj[0][u"content_type"].toString(), u"application/pdf"_s);
    EXPECT_EQ(QByteArray::fromBase64(adj[0][u"data"].toString().toLatin1()), binario);
    EXPECT_EQ(adj[1][u"filename"].toString(), u"minuta.txt"_s);
    EXPECT_EQ(QByteArray::fromBase64(adj[1][u"data"].toString().toLatin1()),
              QByteArray("Primera línea\r\nsegunda\n"));
    EXPECT_TRUE(m[u"defects"].toArray().isEmpty())
        << QJsonDocument(m[u"defects"].toArray()).toJson().toStdString();
}

// Subjects that take the header encoding through its cases: plain ASCII left alone, one encoded word,
// many folded ones (a character never split between two), characters outside the Basic Multilingual Plane,
// and a text that looks like an encoded word itself.
TEST_F(CorreoTest, SubjectsComeBackAsTyped) {
    ServidorCorreo servidor;
    apunta(servidor);
    const QString asuntos[] = {
        u"Factura 12/2024 (copia)"_s,
        u"Cita en la notaría"_s,
        QString(u"ÑÁÉÍÓÚ € "_s).repeated(30),
        u"Firma 😀✍ mañana"_s,
        u"=?UTF-8?B?no es una palabra codificada?="_s,
        QString(u"a"_s).repeated(1200),
    };
    for (const QString& asunto : asuntos) {
        TMAPIMail m = correo();
        m.Subject = asunto;
        EXPECT_EQ(envia(m), QString());
    }
    const QList<QJsonObject> mensajes = servidor.mensajes();
    ASSERT_EQ(mensajes.size(), qsizetype(std::size(asuntos)));
    for (qsizetype i = 0; i < mensajes.size(); ++i) {
        EXPECT_EQ(mensajes[i][u"subject"].toString(), asuntos[i]) << i;
        for (const QString& linea : mensajes[i][u"raw"].toString().split(u"\r\n"_s))
            EXPECT_LE(linea.size(), 998) << "line too long in message " << i;
    }
}

TEST_F(CorreoTest, RecipientEntriesAreReadByTheirPrefixes) {
    ServidorCorreo servidor;
    apunta(servidor);
    ASSERT_EQ(envia(correo({u"SMTP: ana@example.es "_s, u"smtp:"_s, u"luis@example.es"_s,
                            u"cc:gestor@example.es"_s, u"Bcc:oculta@example.es"_s, u"smtp:pepe@ñandú.es"_s})),
              QString());
    const QJsonObject r = servidor.mensajes().value(0);
    EXPECT_EQ(lista(r[u"to"]), u"ana@example.es luis@example.es pepe@xn--and-6ma2c.es"_s);
    EXPECT_EQ(lista(r[u"cc"]), u"gestor@example.es"_s);
    EXPECT_TRUE(lista(r[u"rcpt_tos"]).contains(u"oculta@example.es"_s));
    EXPECT_FALSE(r[u"raw"].toString().contains(u"oculta"_s));
}

TEST_F(CorreoTest, EnviarEmailAsksBeforeSendingWithoutSubjectOrBody) {
    const QString titulo = u"Atención, faltan datos"_s;
    // The questions each case shows, in order: P no recipient, A no subject, C no body.
    const QHash<QChar, QString> dialogos = {
        {u'P', u"Mensaje_Info|"_s + titulo + u"|Debe indicar un destinatario en el cuadro Para"_s},
        {u'A', u"Mensaje_SiNo|"_s + titulo + u"|Mensaje sin asunto\n¿Desea enviarlo de todas formas?"_s},
        {u'C',
         u"Mensaje_SiNo|"_s + titulo + u"|Mensaje con  el cuerpo vacío\n¿Desea enviarlo de todas formas?"_s},
    };
    const struct {
        const char *nombre, *para, *asunto, *cuerpo;
        std::deque<int> respuestas;
        bool enviado;
        const char* preguntas;
    } casos[] = {
        {"no recipient", "", "a", "b", {}, false, "P"},
        {"no subject, declined", "ana@example.es", "", "b", {7}, false, "A"},
        {"no subject, confirmed", "ana@example.es", "", "b", {6}, true, "A"},
        {"no body, declined", "ana@example.es", "a", "", {7}, false, "C"},
        {"neither, both confirmed", "ana@example.es", "", "", {6, 6}, true, "AC"},
        {"neither, Escape on the first", "ana@example.es", "", "", {}, false, "A"},
    };
    ServidorCorreo servidor;
    apunta(servidor);
    for (const auto& c : casos) {
        const qsizetype antes = servidor.mensajes().size();
        guion.limpia();
        guion.respuestas(c.respuestas);
        EXPECT_EQ(EnviarEmail(nullptr, QString::fromUtf8(c.para), QString::fromUtf8(c.asunto),
                              QString::fromUtf8(c.cuerpo), {}, {}, {}, false),
                  c.enviado)
            << c.nombre;
        QStringList esperados;
        for (const QChar p : QString::fromLatin1(c.preguntas))
            esperados.append(dialogos.value(p));
        EXPECT_EQ(prueba::Dialogos(guion), esperados) << c.nombre;
        EXPECT_EQ(servidor.mensajes().size() - antes, c.enviado ? 1 : 0) << c.nombre;
    }
}

TEST_F(CorreoTest, RecipientStringsSplitAtEachSemicolon) {
    const struct {
        const char* lista;
        QStringList partes;
    } casos[] = {
        {"ana@example.es;luis@example.es;", {u"smtp:ana@example.es"_s, u"smtp:luis@example.es"_s}},
        {"ana@example.es", {u"smtp:ana@example.es"_s}},
        {"", {}},
        {";", {u"smtp:"_s}},
        {"a@x.es;;b@y.es", {u"smtp:a@x.es"_s, u"smtp:"_s, u"smtp:b@y.es"_s}},
        {" a@x.es ; b@y.es", {u"smtp: a@x.es "_s, u"smtp: b@y.es"_s}},
    };
    for (const auto& c : casos)
        EXPECT_EQ(PartesDestinatarios(QString::fromUtf8(c.lista), u"smtp:"_s), c.partes) << c.lista;
    EXPECT_EQ(PartesDestinatarios(u"gestor@example.es"_s, u"CC:"_s), QStringList{u"CC:gestor@example.es"_s});
}

// Everything wrong on this side is found before the server is contacted: nothing reaches it.
TEST_F(CorreoTest, BadSettingsAddressesAndAttachmentsSendNothing) {
    ServidorCorreo servidor;
    struct Caso {
        const char* destinatarios; // entries separated by '|'
        const char* adjunto;
        std::function<void()> configura;
        const char* mensaje;
    };
    const char* const ana = "smtp:ana@example.es";
    const Caso casos[] = {
        {"smtp:ana maria@example.es", "", {}, "La dirección de correo «ana maria@example.es» no es válida"},
        {"smtp:ana.example.es", "", {}, "«ana.example.es» no es válida"},
        {"CC:a@b@example.es", "", {}, "«a@b@example.es» no es válida"},
        {"BCC:ana@", "", {}, "«ana@» no es válida"},
        {"smtp:núñez@example.es", "", {}, "«núñez@example.es» no es válida"},
        {"smtp:Ana <ana@example.es>", "", {}, "no es válida"},
        {"smtp:ana@example.es|smtp:luis", "", {}, "«luis» no es válida"},
        {"smtp: |CC:", "", {}, "no tiene ningún destinatario"},
        {ana, "/no/existe/escritura.pdf", {}, "«/no/existe/escritura.pdf»"},
        {ana, NOD_SOURCE_DIR "/tests", {}, "fichero adjunto"},
        {ana, "", [] { Config.SetServidorCorreo({}); }, "No se ha configurado el servidor de correo"},
        {ana, "", [] { Config.SetServidorCorreo(u"smtp://x/y"_s); }, "no es un nombre"},
        {ana, "", [] { Config.SetPuertoCorreo(70000); }, "puerto"},
        {ana, "", [] { Config.SetRemitenteCorreo({}); }, "dirección del remitente"},
        {ana, "", [] { Config.SetRemitenteCorreo(u"notaria"_s); }, "«notaria» no es válida"},
        {ana, "", [] { Config.SetSeguridadCorreo(u"SSL"_s); }, "«SSL»"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(std::string(c.destinatarios) + " " + c.adjunto + " " + c.mensaje);
        apunta(servidor);
        if (c.configura) c.configura();
        TMAPIMail m = correo(QString::fromUtf8(c.destinatarios).split(u'|'));
        if (*c.adjunto) m.Attachments = {QString::fromUtf8(c.adjunto)};
        const QString error = envia(m);
        EXPECT_TRUE(error.contains(QString::fromUtf8(c.mensaje))) << error.toStdString();
        EXPECT_TRUE(error.contains(u"no se ha enviado"_s, Qt::CaseInsensitive));
    }
    EXPECT_TRUE(servidor.mensajes().isEmpty());
}

// Failures of the server or the connection: each a clear message naming what failed, within the
// configured wait (one second here, against a default of thirty), and nothing delivered.
TEST_F(CorreoTest, TransportFailuresAreClearAndBounded) {
    struct Caso {
        const char* nombre;
        const char* opciones; // of the server, split at blanks; null: no server listening at all
        const char* seguridad;
        const char* mensaje;
    };
    const Caso casos[] = {
        {"refused connection", nullptr, "NINGUNA",
         "No se puede conectar con el servidor de correo 127.0.0.1:"},
        {"rejected recipient", "--rechaza luis@example.es", "NINGUNA",
         "ha rechazado al destinatario luis@example.es (550 5.1.1"},
        {"never greets", "--modo calla-saludo", "NINGUNA", "no responde"},
        {"never confirms the message", "--modo calla-datos", "NINGUNA",
         "no ha confirmado el envío en 1 s. No consta que el correo se haya enviado."},
        {"STARTTLS required, not offered", "", "STARTTLS", "no ofrece una conexión segura (STARTTLS)"},
        {"implicit TLS against plain text", "", "TLS", "conexión segura"},
        {"authentication required, none configured", "--usuario u --password p", "NINGUNA", "rechazado"},
    };
    for (const Caso& c : casos) {
        ServidorCorreo servidor(QString::fromUtf8(c.opciones).split(u' ', Qt::SkipEmptyParts));
        apunta(servidor);
        if (!c.opciones) Config.SetPuertoCorreo(prueba::ServidorHttp::puertoCerrado());
        Config.SetSeguridadCorreo(QString::fromUtf8(c.seguridad));
        const TMAPIMail m = correo({u"smtp:ana@example.es"_s, u"CC:luis@example.es"_s});
        QElapsedTimer reloj;
        reloj.start();
        const QString error = envia(m);
        EXPECT_LT(reloj.elapsed(), 15000) << c.nombre;
        EXPECT_TRUE(error.contains(QString::fromUtf8(c.mensaje))) << c.nombre << ": " << error.toStdString();
        EXPECT_TRUE(servidor.mensajes().isEmpty()) << c.nombre;
    }
}

// The program's events go on while a message goes out: a timer fires, and the clerk's cancel is heard
// long before the server's wait would end.
TEST_F(CorreoTest, SendingKeepsTheEventLoopAliveAndCanBeCancelled) {
    ServidorCorreo servidor({u"--modo"_s, u"calla-saludo"_s});
    apunta(servidor);
    Config.SetEsperaCorreoMs(20000);
    bool cancelar = false;
    QTimer::singleShot(200, [&] { cancelar = true; });
    QElapsedTimer reloj;
    reloj.start();
    QString error;
    try {
        EnviarEmail(nullptr, u"ana@example.es"_s, u"a"_s, u"b"_s, {}, {}, {}, false,
                    [&] { return cancelar; });
    } catch (const ErrorEnvio& e) {
        error = e.mensaje();
    }
    EXPECT_LT(reloj.elapsed(), 10000);
    EXPECT_EQ(error, u"Envío cancelado. El correo no se ha enviado."_s);
}

TEST_F(CorreoTest, AuthenticatesWithoutEverLoggingThePassword) {
    const QString password = u"clave-ñ-Secreta-2024"_s;
    ServidorCorreo servidor({u"--usuario"_s, u"notaria@example.es"_s, u"--password"_s, password});
    apunta(servidor);
    Config.SetUsuarioCorreo(u"notaria@example.es"_s);
    Config.SetPasswordCorreo(password);
    Config.SetRemitenteCorreo({}); // the user name stands in for the sender

    const TMAPIMail m = correo();
    QString bien, mal, todo;
    {
        prueba::RegistroCapturado registro;
        bien = envia(m);
        Config.SetPasswordCorreo(password + u'x');
        mal = envia(m);
        todo = registro.texto();
    }

    EXPECT_EQ(bien, QString()) << "with the right password it is sent: " << bien.toStdString();
    EXPECT_TRUE(mal.contains(u"no acepta el usuario o la contraseña"_s)) << mal.toStdString();
    EXPECT_FALSE(mal.contains(password));
    EXPECT_FALSE(todo.isEmpty());
    EXPECT_FALSE(todo.contains(password));
    EXPECT_FALSE(todo.contains(QString::fromLatin1(password.toUtf8().toBase64().left(12))));
    ASSERT_EQ(servidor.mensajes().size(), 1);
    EXPECT_EQ(servidor.mensajes().front()[u"mail_from"].toString(), u"notaria@example.es"_s);
}

} // namespace
} // namespace nod
