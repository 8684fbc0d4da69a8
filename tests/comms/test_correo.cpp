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
        TMAPIMail m;
        m.Subject = asunto;
        m.Body = QStringLiteral("texto");
        m.Recipients = {QStringLiteral("smtp:ana@example.es")};
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
    TMAPIMail m;
    m.Subject = QStringLiteral("Prefijos");
    m.Body = QStringLiteral("texto");
    m.Recipients = {QStringLiteral("SMTP: ana@example.es "), QStringLiteral("smtp:"),
                    QStringLiteral("luis@example.es"),       QStringLiteral("cc:gestor@example.es"),
                    QStringLiteral("Bcc:oculta@example.es"), QStringLiteral("smtp:pepe@ñandú.es")};
    ASSERT_EQ(envia(m), QString());
    const QJsonObject r = servidor.mensajes().value(0);
    EXPECT_EQ(lista(r[u"to"]),
              QStringList({QStringLiteral("ana@example.es"), QStringLiteral("luis@example.es"),
                           QStringLiteral("pepe@xn--and-6ma2c.es")}));
    EXPECT_EQ(lista(r[u"cc"]), QStringList{QStringLiteral("gestor@example.es")});
    EXPECT_TRUE(lista(r[u"rcpt_tos"]).contains(QStringLiteral("oculta@example.es")));
    EXPECT_FALSE(r[u"raw"].toString().contains(QStringLiteral("oculta")));
}

TEST_F(CorreoTest, EnviarEmailAsksBeforeSendingWithoutSubjectOrBody) {
    struct Caso {
        const char* nombre;
        QString para, asunto, cuerpo;
        std::deque<int> respuestas;
        bool enviado;
        QStringList dialogos; // kind, title and text of each
    };
    const QString titulo = QStringLiteral("Atención, faltan datos");
    const QString sinAsunto = QStringLiteral("Mensaje sin asunto\n¿Desea enviarlo de todas formas?");
    const QString sinCuerpo =
        QStringLiteral("Mensaje con  el cuerpo vacío\n¿Desea enviarlo de todas formas?");
    const Caso casos[] = {
        {"no recipient",
         {},
         QStringLiteral("a"),
         QStringLiteral("b"),
         {},
         false,
         {QStringLiteral("Mensaje_Info|") + titulo +
          QStringLiteral("|Debe indicar un destinatario en el cuadro Para")}},
        {"no subject, declined",
         QStringLiteral("ana@example.es"),
         {},
         QStringLiteral("b"),
         {7},
         false,
         {QStringLiteral("Mensaje_SiNo|") + titulo + u'|' + sinAsunto}},
        {"no subject, confirmed",
         QStringLiteral("ana@example.es"),
         {},
         QStringLiteral("b"),
         {6},
         true,
         {QStringLiteral("Mensaje_SiNo|") + titulo + u'|' + sinAsunto}},
        {"no body, declined",
         QStringLiteral("ana@example.es"),
         QStringLiteral("a"),
         {},
         {7},
         false,
         {QStringLiteral("Mensaje_SiNo|") + titulo + u'|' + sinCuerpo}},
        {"neither, both confirmed",
         QStringLiteral("ana@example.es"),
         {},
         {},
         {6, 6},
         true,
         {QStringLiteral("Mensaje_SiNo|") + titulo + u'|' + sinAsunto,
          QStringLiteral("Mensaje_SiNo|") + titulo + u'|' + sinCuerpo}},
        {"neither, Escape on the first",
         QStringLiteral("ana@example.es"),
         {},
         {},
         {},
         false,
         {QStringLiteral("Mensaje_SiNo|") + titulo + u'|' + sinAsunto}},
    };
    ServidorCorreo servidor;
    apunta(servidor);
    for (const Caso& c : casos) {
        const qsizetype antes = servidor.mensajes().size();
        guion.limpia();
        guion.respuestas(c.respuestas);
        EXPECT_EQ(EnviarEmail(nullptr, c.para, c.asunto, c.cuerpo, {}, {}, {}, false), c.enviado) << c.nombre;
        QStringList vistos;
        for (const DialogoMostrado& d : guion.mostrados())
            vistos.append(d.kind + u'|' + d.title + u'|' + d.text);
        EXPECT_EQ(vistos, c.dialogos) << c.nombre;
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
        const char* nombre;
        std::function<void(TMAPIMail&)> prepara;
        const char* mensaje;
    };
    const Caso casos[] = {
        {"blank inside an address",
         [](TMAPIMail& m) { m.Recipients = {QStringLiteral("smtp:ana maria@example.es")}; },
         "La dirección de correo «ana maria@example.es» no es válida"},
        {"no @", [](TMAPIMail& m) { m.Recipients = {QStringLiteral("smtp:ana.example.es")}; },
         "«ana.example.es» no es válida"},
        {"two @", [](TMAPIMail& m) { m.Recipients = {QStringLiteral("CC:a@b@example.es")}; },
         "«a@b@example.es» no es válida"},
        {"nothing after @", [](TMAPIMail& m) { m.Recipients = {QStringLiteral("BCC:ana@")}; },
         "«ana@» no es válida"},
        {"accent before @", [](TMAPIMail& m) { m.Recipients = {QStringLiteral("smtp:núñez@example.es")}; },
         "«núñez@example.es» no es válida"},
        {"angle brackets", [](TMAPIMail& m) { m.Recipients = {QStringLiteral("smtp:Ana <ana@example.es>")}; },
         "no es válida"},
        {"a good and a bad one",
         [](TMAPIMail& m) {
             m.Recipients = {QStringLiteral("smtp:ana@example.es"), QStringLiteral("smtp:luis")};
         },
         "«luis» no es válida"},
        {"only blanks",
         [](TMAPIMail& m) {
             m.Recipients = {QStringLiteral("smtp: "), QStringLiteral("CC:")};
         },
         "no tiene ningún destinatario"},
        {"missing attachment",
         [](TMAPIMail& m) { m.Attachments = {QStringLiteral("/no/existe/escritura.pdf")}; },
         "«/no/existe/escritura.pdf»"},
        {"a folder as attachment", [](TMAPIMail& m) { m.Attachments = {QDir::tempPath()}; },
         "fichero adjunto"},
        {"no server", [](TMAPIMail&) { Config.SetServidorCorreo({}); },
         "No se ha configurado el servidor de correo"},
        {"server with a path", [](TMAPIMail&) { Config.SetServidorCorreo(QStringLiteral("smtp://x/y")); },
         "no es un nombre"},
        {"port out of range", [](TMAPIMail&) { Config.SetPuertoCorreo(70000); }, "puerto"},
        {"no sender", [](TMAPIMail&) { Config.SetRemitenteCorreo({}); }, "dirección del remitente"},
        {"bad sender", [](TMAPIMail&) { Config.SetRemitenteCorreo(QStringLiteral("notaria")); },
         "«notaria» no es válida"},
        {"unknown security", [](TMAPIMail&) { Config.SetSeguridadCorreo(QStringLiteral("SSL")); }, "«SSL»"},
    };
    for (const Caso& c : casos) {
        apunta(servidor);
        TMAPIMail m;
        m.Subject = QStringLiteral("a");
        m.Body = QStringLiteral("b");
        m.Recipients = {QStringLiteral("smtp:ana@example.es")};
        c.prepara(m);
        const QString error = envia(m);
        EXPECT_TRUE(error.contains(QString::fromUtf8(c.mensaje))) << c.nombre << ": " << error.toStdString();
        EXPECT_TRUE(error.contains(QStringLiteral("no se ha enviado"), Qt::CaseInsensitive)) << c.nombre;
    }
    EXPECT_TRUE(servidor.mensajes().isEmpty());
}

// Failures of the server or the connection: each a clear message naming what failed, within the
// configured wait (one second here, against a default of thirty), and nothing delivered.
TEST_F(CorreoTest, TransportFailuresAreClearAndBounded) {
    struct Caso {
        const char* nombre;
        QStringList opciones; // of the server; empty with `cerrado` true: no server at all
        bool cerrado;
        const char* seguridad;
        const char* mensaje;
    };
    const Caso casos[] = {
        {"refused connection",
         {},
         true,
         "NINGUNA",
         "No se puede conectar con el servidor de correo 127.0.0.1:"},
        {"rejected recipient",
         {QStringLiteral("--rechaza"), QStringLiteral("luis@example.es")},
         false,
         "NINGUNA",
         "ha rechazado al destinatario luis@example.es (550 5.1.1"},
        {"never greets",
         {QStringLiteral("--modo"), QStringLiteral("calla-saludo")},
         false,
         "NINGUNA",
         "no responde"},
        {"never confirms the message",
         {QStringLiteral("--modo"), QStringLiteral("calla-datos")},
         false,
         "NINGUNA",
         "no ha confirmado el envío en 1 s. No consta que el correo se haya enviado."},
        {"STARTTLS required, not offered", {}, false, "STARTTLS", "no ofrece una conexión segura (STARTTLS)"},
        {"implicit TLS against plain text", {}, false, "TLS", "conexión segura"},
        {"authentication required, none configured",
         {QStringLiteral("--usuario"), QStringLiteral("u"), QStringLiteral("--password"),
          QStringLiteral("p")},
         false,
         "NINGUNA",
         "rechazado"},
    };
    for (const Caso& c : casos) {
        ServidorCorreo servidor(c.opciones);
        apunta(servidor);
        if (c.cerrado) Config.SetPuertoCorreo(prueba::ServidorHttp::puertoCerrado());
        Config.SetSeguridadCorreo(QString::fromUtf8(c.seguridad));
        TMAPIMail m;
        m.Subject = QStringLiteral("a");
        m.Body = QStringLiteral("b");
        m.Recipients = {QStringLiteral("smtp:ana@example.es"), QStringLiteral("CC:luis@example.es")};
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

    QString todo;
    TMAPIMail m;
    m.Subject = QStringLiteral("a");
    m.Body = QStringLiteral("b");
    m.Recipients = {QStringLiteral("smtp:ana@example.es")};
    QString bien, mal;
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

TEST(EnviarMail, SupportLinkCarriesTheConfiguredAddressAndTheSubject) {
    prueba::OficinaPrueba oficina;
    // Without a configured support desk the clerk's mail program opens with the subject only.
    EXPECT_EQ(EnlaceEnviarMail().toEncoded(), "mailto:?subject=Notario%20rectificaci%C3%B3n");
    Config.SetCorreoFabricante(QStringLiteral("ayuda@fabricante.example"));
    EXPECT_EQ(EnlaceEnviarMail().toEncoded(),
              "mailto:ayuda@fabricante.example?subject=Notario%20rectificaci%C3%B3n");
}

} // namespace
} // namespace nod
