// The mobile-and-mail prompt and the e-mail editor, driven with real keys; the editor sends to a real SMTP
// server on 127.0.0.1. MuestraEmail filling in the editor is checked in test_formularios_comms.
#include "comms/editormail.h"
#include "comms/preguntadatosmovilcorreo.h"
#include "companion/mensajes.h"
#include "frame/shell.h"
#include "tests/comms/apoyo.h"
#include "tests/comms/servidor_correo.h"
#include "tests/support/modal.h"
#include "tests/support/oficina_prueba.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace nod {
namespace {

TEST(PreguntaDatosMovilCorreo, ShowsItsTextsAndTheNameAsTyped) {
    TFPreguntaDatosMovilCorreo f(nullptr, QStringLiteral("Pérez & Cía <S.L.>"), {}, {});
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Datos del Cliente, Movil y Correo"));
    EXPECT_EQ(f.LCliente->text(), QStringLiteral("Pérez & Cía <S.L.>"));
    EXPECT_EQ(f.LCliente->textFormat(), Qt::PlainText);
    EXPECT_EQ(f.BBAceptar->text(), QStringLiteral("&Aceptar"));
    EXPECT_EQ(f.BBAceptar->toolTip(),
              QStringLiteral("Pulse el botón para modificar los datos de movil y correo"));
    EXPECT_EQ(f.BBCancelar->text(), QStringLiteral("&Cancelar"));
    EXPECT_EQ(f.BBCancelar->toolTip(), QStringLiteral("Pulse el botón para cancelar la operación"));
    QStringList etiquetas;
    for (const QLabel* l : f.findChildren<QLabel*>())
        if (l->buddy()) etiquetas.append(l->text() + u'>' + l->buddy()->objectName());
    etiquetas.sort();
    EXPECT_EQ(etiquetas, QStringList({QStringLiteral("Dirección de correo electrónico:>ECorreo"),
                                      QStringLiteral("Número de teléfono móvil:>MEMovil")}));
}

TEST(PreguntaDatosMovilCorreo, FocusGoesToWhatIsMissing) {
    const struct {
        const char *movil, *correo, *foco;
    } casos[] = {
        {"", "", "MEMovil"},
        {"", "ana@example.es", "MEMovil"},
        {"600111222", "", "ECorreo"},
        {"600111222", "ana@example.es", "MEMovil"},
    };
    for (const auto& c : casos) {
        TFPreguntaDatosMovilCorreo f(nullptr, QStringLiteral("Cliente"), QString::fromUtf8(c.movil),
                                     QString::fromUtf8(c.correo));
        f.show();
        ASSERT_NE(f.focusWidget(), nullptr);
        EXPECT_EQ(f.focusWidget()->objectName(), QString::fromUtf8(c.foco)) << c.movil << " / " << c.correo;
    }
}

TEST(PreguntaDatosMovilCorreo, MobileTakesDigitsAndPointsOnly) {
    TFPreguntaDatosMovilCorreo f(nullptr, QStringLiteral("Cliente"), QStringLiteral("6a0-0"), {});
    EXPECT_EQ(f.MEMovil->text(), QStringLiteral("600")) << "a text set by the caller is filtered too";
    f.show();
    f.MEMovil->setFocus();
    QTest::keyClicks(f.MEMovil, QStringLiteral("1 2+3.4x5"));
    EXPECT_EQ(f.MEMovil->text(), QStringLiteral("600123.45"));
    QTest::keyClick(f.MEMovil, Qt::Key_Backspace);
    QTest::keyClick(f.MEMovil, Qt::Key_Home);
    QTest::keyClick(f.MEMovil, Qt::Key_Delete);
    QTest::keyClick(f.MEMovil, Qt::Key_Right);
    QTest::keyClicks(f.MEMovil, QStringLiteral("9"));
    EXPECT_EQ(f.MEMovil->text(), QStringLiteral("090123.4"));
    f.MEMovil->clear();
    f.MEMovil->insert(QStringLiteral("(+34) 91-555.12.12 ñ٣"));
    EXPECT_EQ(f.MEMovil->text(), QStringLiteral("3491555.12.12")) << "pasted text is filtered";
    QTest::keyClicks(f.ECorreo, QStringLiteral("ana+1@example.es"));
    EXPECT_EQ(f.ECorreo->text(), QStringLiteral("ana+1@example.es")) << "the e-mail field takes anything";
}

TEST(PreguntaDatosMovilCorreo, AceptarHandsBackBothAndCancelNothing) {
    ServicioMensajesGuionado guion;
    ServicioMensajesInstalado instalado(guion);
    QString movil = QStringLiteral("600111222"), correo;
    prueba::AlAbrirseModal([](QWidget* w) {
        auto* f = static_cast<TFPreguntaDatosMovilCorreo*>(w);
        EXPECT_EQ(QApplication::focusWidget(), f->ECorreo);
        QTest::keyClicks(f->ECorreo, QStringLiteral("ana@example.es"));
        QTest::keyClick(f->ECorreo, Qt::Key_Return); // Enter moves on to "&Aceptar"
        EXPECT_EQ(QApplication::focusWidget(), f->BBAceptar);
        QTest::keyClick(f->BBAceptar, Qt::Key_Space);
    });
    EXPECT_TRUE(PreguntaDatosMovilCorreo(nullptr, QStringLiteral("Cliente"), movil, correo));
    EXPECT_EQ(movil, QStringLiteral("600111222"));
    EXPECT_EQ(correo, QStringLiteral("ana@example.es"));

    for (const bool escape : {true, false}) {
        prueba::AlAbrirseModal([escape](QWidget* w) {
            auto* f = static_cast<TFPreguntaDatosMovilCorreo*>(w);
            f->MEMovil->setText(QStringLiteral("699"));
            if (escape)
                QTest::keyClick(w, Qt::Key_Escape);
            else
                QTest::mouseClick(f->BBCancelar, Qt::LeftButton);
        });
        EXPECT_FALSE(PreguntaDatosMovilCorreo(nullptr, QStringLiteral("Cliente"), movil, correo));
        EXPECT_EQ(movil, QStringLiteral("600111222"));
        EXPECT_EQ(correo, QStringLiteral("ana@example.es"));
    }
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
    EXPECT_TRUE(guion.mostrados().isEmpty());
}

class EditorMailTest : public ::testing::Test {
protected:
    void apunta(const prueba::ServidorCorreo& s) {
        ASSERT_NE(s.puerto(), 0) << s.error().toStdString();
        s.apunta();
        Config.SetEsperaCorreoMs(3000);
    }
    void rellena(TFEditorMail& e) {
        e.EPara->setText(QStringLiteral("ana@example.es; luis@example.es"));
        e.ECC->setText(QStringLiteral("gestor@example.es"));
        e.EAsunto->setText(QStringLiteral("Copia simple"));
        e.MCuerpo->setPlainText(QStringLiteral("Adjuntamos la copia."));
    }
    prueba::OficinaPrueba oficina;
    ServicioMensajesGuionado guion;
    ServicioMensajesInstalado instalado{guion};
};

TEST_F(EditorMailTest, EnviarSendsWhatTheEditorHoldsAndCloses) {
    prueba::ServidorCorreo servidor;
    apunta(servidor);
    QTemporaryDir carpeta;
    const QString adjunto =
        prueba::EscribeFichero(QDir(carpeta.path()).filePath(QStringLiteral("copia.pdf")), "%PDF copia");

    TFEditorMail e(nullptr);
    rellena(e);
    e.AgregaAdjuntos({adjunto, adjunto, {}});
    EXPECT_EQ(e.LBAdjuntos->count(), 1);
    e.show();
    QTest::mouseClick(e.BBEnviar, Qt::LeftButton);
    EXPECT_EQ(e.result(), 1);
    EXPECT_FALSE(e.isVisible());
    EXPECT_TRUE(guion.mostrados().isEmpty() || guion.mostrados().front().kind == u"MuestraMensaje");
    ASSERT_EQ(servidor.mensajes().size(), 1);
    const QJsonObject m = servidor.mensajes().front();
    EXPECT_EQ(m[u"to"].toArray().size(), 2);
    EXPECT_EQ(m[u"cc"].toArray().at(0).toString(), QStringLiteral("gestor@example.es"));
    EXPECT_EQ(m[u"subject"].toString(), QStringLiteral("Copia simple"));
    EXPECT_EQ(m[u"attachments"].toArray().at(0)[u"filename"].toString(), QStringLiteral("copia.pdf"));
}

TEST_F(EditorMailTest, AMessageNotSentKeepsTheEditorOpenAsItWas) {
    TFEditorMail e(nullptr);
    rellena(e);
    e.show();
    QTest::mouseClick(e.BBEnviar, Qt::LeftButton); // no server configured
    ASSERT_EQ(guion.mostrados().size(), 1);
    EXPECT_TRUE(prueba::Dialogos(guion)[0].startsWith(
        QStringLiteral("Mensaje_Error|Correo no enviado|No se ha configurado el servidor de correo")));
    EXPECT_TRUE(e.isVisible());
    EXPECT_EQ(e.EAsunto->text(), QStringLiteral("Copia simple"));
    EXPECT_TRUE(e.BBEnviar->isEnabled());

    guion.limpia();
    e.EAsunto->clear();
    guion.respuestas({7});
    QTest::mouseClick(e.BBEnviar, Qt::LeftButton);
    ASSERT_EQ(guion.mostrados().size(), 1) << "declining the question is no error";
    EXPECT_EQ(guion.mostrados()[0].kind, QStringLiteral("Mensaje_SiNo"));
    EXPECT_TRUE(e.isVisible());
}

TEST_F(EditorMailTest, EscapeWhileSendingAbandonsItQuietly) {
    prueba::ServidorCorreo servidor({QStringLiteral("--modo"), QStringLiteral("calla-saludo")});
    apunta(servidor);
    Config.SetEsperaCorreoMs(20000);
    TFEditorMail e(nullptr);
    rellena(e);
    e.show();
    QTimer::singleShot(300, &e, [&e] { QTest::keyClick(&e, Qt::Key_Escape); });
    EXPECT_FALSE(e.Envia());
    EXPECT_TRUE(e.isVisible()) << "Escape abandoned the sending, not the editor";
    EXPECT_TRUE(e.BBEnviar->isEnabled());
    for (const DialogoMostrado& d : guion.mostrados())
        EXPECT_NE(d.kind, QStringLiteral("Mensaje_Error")) << d.text.toStdString();
}

TEST_F(EditorMailTest, EnviarMailOpensTheSupportLinkOrSaysWhyNot) {
    QList<QUrl> abiertos;
    bool abre = true;
    const AbridorShell anterior = FijaAbridorShell([&](const QUrl& u) {
        abiertos.append(u);
        return abre;
    });
    Config.SetCorreoFabricante(QStringLiteral("soporte@example.com"));
    EnviarMail(0);
    abre = false;
    EnviarMail(0);
    FijaAbridorShell(anterior);
    ASSERT_EQ(abiertos.size(), 2);
    EXPECT_EQ(abiertos[0].toEncoded(), "mailto:soporte@example.com?subject=Notario%20rectificaci%C3%B3n");
    ASSERT_EQ(guion.mostrados().size(), 1);
    EXPECT_EQ(guion.mostrados()[0].kind, QStringLiteral("Mensaje_Error"));
}

} // namespace
} // namespace nod
