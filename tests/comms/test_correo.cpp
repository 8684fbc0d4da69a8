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
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace nod {
namespace {

using prueba::ServidorCorreo;

QStringList lista(const QJsonValue& v) {
    QStringList r;
    for (const QJsonValue& e : v.toArray())
        r.append(e.toString());
    return r;
}

class CorreoTest : public ::testing::Test {
protected:
    void apunta(const ServidorCorreo& s) {
        ASSERT_NE(s.puerto(), 0) << s.error().toStdString();
        s.apunta();
        Config.SetNombreRemitenteCorreo(QStringLiteral("Notaría de Pruebas"));
    }
    QString fichero(const QString& nombre, const QByteArray& contenido) {
        return prueba::EscribeFichero(QDir(adjuntos.path()).filePath(nombre), contenido);
    }
    // A message "a" / "b" to `destinatarios`.
    static TMAPIMail correo(const QStringList& destinatarios = {QStringLiteral("smtp:ana@example.es")}) {
        TMAPIMail m;
        m.Subject = QStringLiteral("a");
        m.Body = QStringLiteral("b");
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
    const QString pdf = fichero(QStringLiteral("Poder notarial Núñez.pdf"), binario);
    const QString txt = fichero(QStringLiteral("minuta.txt"), "Primera línea\r\nsegunda\n");
    const QString asunto = QStringLiteral("Escritura de compraventa: Sr. Núñez — 1.500 € (ÀÇÏÑÜ)");
    const QString cuerpo = QStringLiteral("Estimado cliente:\nLe adjuntamos la copia simple.\r\nUn saludo, "
                                          "la notaría.\n\n-- \nCalle Mayor, 1 · Madrid");

    ASSERT_TRUE(EnviarEmail(nullptr, QStringLiteral("ana@example.es;luis@example.es;"), asunto, cuerpo,
                            {pdf, txt}, QStringLiteral("gestor@example.es"),
                            QStringLiteral("archivo@example.es"), true));
    EXPECT_TRUE(guion.mostrados().isEmpty());
    const QList<QJsonObject> mensajes = servidor.mensajes();
    ASSERT_EQ(mensajes.size(), 1);
    const QJsonObject& m = mensajes.front();
    EXPECT_EQ(lista(m[u"to"]),
              QStringList({QStringLiteral("ana@example.es"), QStringLiteral("luis@example.es")}));
    EXPECT_EQ(lista(m[u"cc"]), QStringList{QStringLiteral("gestor@example.es")});
    EXPECT_FALSE(m[u"bcc_header"].toBool());
    EXPECT_FALSE(m[u"raw"].toString().contains(QStringLiteral("archivo@"))) << "a hidden copy shows nowhere";
    EXPECT_EQ(lista(m[u"rcpt_tos"]),
              QStringList({QStringLiteral("ana@example.es"), QStringLiteral("luis@example.es"),
                           QStringLiteral("gestor@example.es"), QStringLiteral("archivo@example.es")}));
    EXPECT_EQ(m[u"mail_from"].toString(), QStringLiteral("notaria@example.es"));
    EXPECT_EQ(m[u"from"].toString(), QStringLiteral("Notaría de Pruebas <notaria@example.es>"));
    EXPECT_EQ(m[u"subject"].toString(), asunto);
    EXPECT_EQ(m[u"receipt_to"].toString(), QStringLiteral("<notaria@example.es>"));
    // Every line break arrives as one, whichever way it was typed.
    const auto lineas = [](QString t) {
        return t.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).split(u'\n');
    };
    EXPECT_EQ(lineas(m[u"body"].toString()), lineas(cuerpo));
    EXPECT_EQ(m[u"body_charset"].toString(), QStringLiteral("utf-8"));

    const QJsonArray adj = m[u"attachments"].toArray();
    ASSERT_EQ(adj.size(), 2);
    EXPECT_EQ(adj[0][u"filename"].toString(), QStringLiteral("Poder notarial Núñez.pdf"));
    EXPECT_EQ(adj[0][u"content_type"].toString(), QStringLiteral("application/pdf"));
    EXPECT_EQ(QByteArray::fromBase64(adj[0][u"data"].toString().toLatin1()), binario);
    EXPECT_EQ(adj[1][u"filename"].toString(), QStringLiteral("minuta.txt"));
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
        QStringLiteral("Factura 12/2024 (copia)"),
        QStringLiteral("Cita en la notaría"),
        QString(QStringLiteral("ÑÁÉÍÓÚ € ")).repeated(30),
        QStringLiteral("Firma 😀✍ mañana"),
        QStringLiteral("=?UTF-8?B?no es una palabra codificada?="),
        QString(QStringLiteral("a")).repeated(1200),
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
        for (const QString& linea : mensajes[i][u"raw"].toString().split(QStringLiteral("\r\n")))
            EXPECT_LE(linea.size(), 998) << "line too long in message " << i;
    }
}

TEST_F(CorreoTest, RecipientEntriesAreReadByTheirPrefixes) {
    ServidorCorreo servidor;
    apunta(servidor);
    ASSERT_EQ(envia(correo({QStringLiteral("SMTP: ana@example.es "), QStringLiteral("smtp:"),
                            QStringLiteral("luis@example.es"), QStringLiteral("cc:gestor@example.es"),
                            QStringLiteral("Bcc:oculta@example.es"), QStringLiteral("smtp:pepe@ñandú.es")})),
              QString());
    const QJsonObject r = servidor.mensajes().value(0);
    EXPECT_EQ(lista(r[u"to"]),
              QStringList({QStringLiteral("ana@example.es"), QStringLiteral("luis@example.es"),
                           QStringLiteral("pepe@xn--and-6ma2c.es")}));
    EXPECT_EQ(lista(r[u"cc"]), QStringList{QStringLiteral("gestor@example.es")});
    EXPECT_TRUE(lista(r[u"rcpt_tos"]).contains(QStringLiteral("oculta@example.es")));
    EXPECT_FALSE(r[u"raw"].toString().contains(QStringLiteral("oculta")));
}

TEST_F(CorreoTest, EnviarEmailAsksBeforeSendingWithoutSubjectOrBody) {
    const QString titulo = QStringLiteral("Atención, faltan datos");
    // The questions each case shows, in order: P no recipient, A no subject, C no body.
    const QHash<QChar, QString> dialogos = {
        {u'P', QStringLiteral("Mensaje_Info|") + titulo +
                   QStringLiteral("|Debe indicar un destinatario en el cuadro Para")},
        {u'A', QStringLiteral("Mensaje_SiNo|") + titulo +
                   QStringLiteral("|Mensaje sin asunto\n¿Desea enviarlo de todas formas?")},
        {u'C', QStringLiteral("Mensaje_SiNo|") + titulo +
                   QStringLiteral("|Mensaje con  el cuerpo vacío\n¿Desea enviarlo de todas formas?")},
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
        {"ana@example.es;luis@example.es;",
         {QStringLiteral("smtp:ana@example.es"), QStringLiteral("smtp:luis@example.es")}},
        {"ana@example.es", {QStringLiteral("smtp:ana@example.es")}},
        {"", {}},
        {";", {QStringLiteral("smtp:")}},
        {"a@x.es;;b@y.es",
         {QStringLiteral("smtp:a@x.es"), QStringLiteral("smtp:"), QStringLiteral("smtp:b@y.es")}},
        {" a@x.es ; b@y.es", {QStringLiteral("smtp: a@x.es "), QStringLiteral("smtp: b@y.es")}},
    };
    for (const auto& c : casos)
        EXPECT_EQ(PartesDestinatarios(QString::fromUtf8(c.lista), QStringLiteral("smtp:")), c.partes)
            << c.lista;
    EXPECT_EQ(PartesDestinatarios(QStringLiteral("gestor@example.es"), QStringLiteral("CC:")),
              QStringList{QStringLiteral("CC:gestor@example.es")});
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
        {ana, "", [] { Config.SetServidorCorreo(QStringLiteral("smtp://x/y")); }, "no es un nombre"},
        {ana, "", [] { Config.SetPuertoCorreo(70000); }, "puerto"},
        {ana, "", [] { Config.SetRemitenteCorreo({}); }, "dirección del remitente"},
        {ana, "", [] { Config.SetRemitenteCorreo(QStringLiteral("notaria")); }, "«notaria» no es válida"},
        {ana, "", [] { Config.SetSeguridadCorreo(QStringLiteral("SSL")); }, "«SSL»"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(std::string(c.destinatarios) + " " + c.adjunto + " " + c.mensaje);
        apunta(servidor);
        if (c.configura) c.configura();
        TMAPIMail m = correo(QString::fromUtf8(c.destinatarios).split(u'|'));
        if (*c.adjunto) m.Attachments = {QString::fromUtf8(c.adjunto)};
        const QString error = envia(m);
        EXPECT_TRUE(error.contains(QString::fromUtf8(c.mensaje))) << error.toStdString();
        EXPECT_TRUE(error.contains(QStringLiteral("no se ha enviado"), Qt::CaseInsensitive));
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
        const TMAPIMail m =
            correo({QStringLiteral("smtp:ana@example.es"), QStringLiteral("CC:luis@example.es")});
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
    ServidorCorreo servidor({QStringLiteral("--modo"), QStringLiteral("calla-saludo")});
    apunta(servidor);
    Config.SetEsperaCorreoMs(20000);
    bool cancelar = false;
    QTimer::singleShot(200, [&] { cancelar = true; });
    QElapsedTimer reloj;
    reloj.start();
    QString error;
    try {
        EnviarEmail(nullptr, QStringLiteral("ana@example.es"), QStringLiteral("a"), QStringLiteral("b"), {},
                    {}, {}, false, [&] { return cancelar; });
    } catch (const ErrorEnvio& e) {
        error = e.mensaje();
    }
    EXPECT_LT(reloj.elapsed(), 10000);
    EXPECT_EQ(error, QStringLiteral("Envío cancelado. El correo no se ha enviado."));
}

TEST_F(CorreoTest, AuthenticatesWithoutEverLoggingThePassword) {
    const QString password = QStringLiteral("clave-ñ-Secreta-2024");
    ServidorCorreo servidor({QStringLiteral("--usuario"), QStringLiteral("notaria@example.es"),
                             QStringLiteral("--password"), password});
    apunta(servidor);
    Config.SetUsuarioCorreo(QStringLiteral("notaria@example.es"));
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
    EXPECT_TRUE(mal.contains(QStringLiteral("no acepta el usuario o la contraseña"))) << mal.toStdString();
    EXPECT_FALSE(mal.contains(password));
    EXPECT_FALSE(todo.isEmpty());
    EXPECT_FALSE(todo.contains(password));
    EXPECT_FALSE(todo.contains(QString::fromLatin1(password.toUtf8().toBase64().left(12))));
    ASSERT_EQ(servidor.mensajes().size(), 1);
    EXPECT_EQ(servidor.mensajes().front()[u"mail_from"].toString(), QStringLiteral("notaria@example.es"));
}

// With a support desk configured the link carries its address too (test_comms_ui).
TEST(EnviarMail, WithoutASupportDeskTheLinkCarriesTheSubjectOnly) {
    prueba::OficinaPrueba oficina;
    EXPECT_EQ(EnlaceEnviarMail().toEncoded(), "mailto:?subject=Notario%20rectificaci%C3%B3n");
}

} // namespace
} // namespace nod
