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

using namespace Qt::StringLiterals;

namespace nod {
namespace {

TEST(PreguntaDatosMovilCorreo, ShowsItsTextsAndTheNameAsTyped) {
    TFPreguntaDatosMovilCorreo f(nullptr, u"Pérez & Cía <S.L.>"_s, {}, {});
    EXPECT_EQ(f.windowTitle(), u"Datos del Cliente, Movil y Correo"_s);
    EXPECT_EQ(f.LCliente->text(), u"Pérez & Cía <S.L.>"_s);
    EXPECT_EQ(f.LCliente->textFormat(), Qt::PlainText);
    EXPECT_EQ(f.BBAceptar->text(), u"&Aceptar"_s);
    EXPECT_EQ(f.BBAceptar->toolTip(), u"Pulse el botón para modificar los datos de movil y correo"_s);
    EXPECT_EQ(f.BBCancelar->text(), u"&Cancelar"_s);
    EXPECT_EQ(f.BBCancelar->toolTip(), u"Pulse el botón para cancelar la operación"_s);
    QStringList etiquetas;
    for (const QLabel* l : f.findChildren<QLabel*>())
        if (l->buddy()) etiquetas.append(l->text() + u'>' + l->buddy()->objectName());
    etiquetas.sort();
    EXPECT_EQ(etiquetas, QStringList({u"Dirección de correo electrónico:>ECorreo"_s,
                                      u"Número de teléfono móvil:>MEMovil"_s}));
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
        TFPreguntaDatosMovilCorreo f(nullptr, u"Cliente"_s, QString::fromUtf8(c.movil),
                                     QString::fromUtf8(c.correo));
        f.show();
        ASSERT_NE(f.focusWidget(), nullptr);
        EXPECT_EQ(f.focusWidget()->objectName(), QString::fromUtf8(c.foco)) << c.movil << " / " << c.correo;
    }
}

TEST(PreguntaDatosMovilCorreo, MobileTakesDigitsAndPointsOnly) {
    TFPreguntaDatosMovilCorreo f(nullptr, u"Cliente"_s, u"6a0-0"_s, {});
    EXPECT_EQ(f.MEMovil->text(), u"600"_s) << "a text set by the caller is filtered too";
    f.show();
    f.MEMovil->setFocus();
    QTest::keyClicks(f.MEMovil, u"1 2+3.4x5"_s);
    EXPECT_EQ(f.MEMovil->text(), u"600123.45"_s);
    QTest::keyClick(f.MEMovil, Qt::Key_Backspace);
    QTest::keyClick(f.MEMovil, Qt::Key_Home);
    QTest::keyClick(f.MEMovil, Qt::Key_Delete);
    QTest::keyClick(f.MEMovil, Qt::Key_Right);
    QTest::keyClicks(f.MEMovil, u"9"_s);
    EXPECT_EQ(f.MEMovil->text(), u"090123.4"_s);
    f.MEMovil->clear();
    f.MEMovil->insert(u"(+34) 91-555.12.12 ñ٣"_s);
    EXPECT_EQ(f.MEMovil->text(), u"3491555.12.12"_s) << "pasted text is filtered";
    QTest::keyClicks(f.ECorreo, u"ana+1@example.es"_s);
    EXPECT_EQ(f.ECorreo->text(), u"ana+1@example.es"_s) << "the e-mail field takes anything";
}

TEST(PreguntaDatosMovilCorreo, AceptarHandsBackBothAndCancelNothing) {
    ServicioMensajesGuionado guion;
    ServicioMensajesInstalado instalado(guion);
    QString movil = u"600111222"_s, correo;
    prueba::AlAbrirseModal([](QWidget* w) {
        auto* f = static_cast<TFPreguntaDatosMovilCorreo*>(w);
        EXPECT_EQ(QApplication::focusWidget(), f->ECorreo);
        QTest::keyClicks(f->ECorreo, u"ana@example.es"_s);
        QTest::keyClick(f->ECorreo, Qt::Key_Return); // Enter moves on to "&Aceptar"
        EXPECT_EQ(QApplication::focusWidget(), f->BBAceptar);
        QTest::keyClick(f->BBAceptar, Qt::Key_Space);
    });
    EXPECT_TRUE(PreguntaDatosMovilCorreo(nullptr, u"Cliente"_s, movil, correo));
    EXPECT_EQ(movil, u"600111222"_s);
    EXPECT_EQ(correo, u"ana@example.es"_s);

    // Escape after a change (the "&Cancelar" button is pressed through `nodrim batch`).
    prueba::AlAbrirseModal([](QWidget* w) {
        static_cast<TFPreguntaDatosMovilCorreo*>(w)->MEMovil->setText(u"699"_s);
        QTest::keyClick(w, Qt::Key_Escape);
    });
    EXPECT_FALSE(PreguntaDatosMovilCorreo(nullptr, u"Cliente"_s, movil, correo));
    EXPECT_EQ(movil, u"600111222"_s);
    EXPECT_EQ(correo, u"ana@example.es"_s);
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
        e.EPara->setText(u"ana@example.es; luis@example.es"_s);
        e.ECC->setText(u"gestor@example.es"_s);
        e.EAsunto->setText(u"Copia simple"_s);
        e.MCuerpo->setPlainText(u"Adjuntamos la copia."_s);
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
        prueba::EscribeFichero(QDir(carpeta.path()).filePath(u"copia.pdf"_s), "%PDF copia");

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
    EXPECT_EQ(m[u"subject"].toString(), u"Copia simple"_s);
    EXPECT_EQ(m[u"attachments"].toArray().at(0)[u"filename"].toString(), u"copia.pdf"_s);
}

TEST_F(EditorMailTest, AMessageNotSentKeepsTheEditorOpenAsItWas) {
    TFEditorMail e(nullptr);
    rellena(e);
    e.show();
    QTest::mouseClick(e.BBEnviar, Qt::LeftButton); // no server configured
    ASSERT_EQ(guion.mostrados().size(), 1);
    EXPECT_TRUE(prueba::Dialogos(guion)[0].startsWith(
        u"Mensaje_Error|Correo no enviado|No se ha configurado el servidor de correo"_s));
    EXPECT_TRUE(e.isVisible());
    EXPECT_EQ(e.EAsunto->text(), u"Copia simple"_s);
    EXPECT_TRUE(e.BBEnviar->isEnabled());

    guion.limpia();
    e.EAsunto->clear();
    guion.respuestas({7});
    QTest::mouseClick(e.BBEnviar, Qt::LeftButton);
    ASSERT_EQ(guion.mostrados().size(), 1) << "declining the question is no error";
    EXPECT_EQ(guion.mostrados()[0].kind, u"Mensaje_SiNo"_s);
    EXPECT_TRUE(e.isVisible());
}

TEST_F(EditorMailTest, EscapeWhileSendingAbandonsItQuietly) {
    prueba::ServidorCorreo servidor({u"--modo"_s, u"calla-saludo"_s});
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
        EXPECT_NE(d.kind, u"Mensaje_Error"_s) << d.text.toStdString();
}

TEST_F(EditorMailTest, EnviarMailOpensTheSupportLinkOrSaysWhyNot) {
    QList<QUrl> abiertos;
    bool abre = true;
    const AbridorShell anterior = FijaAbridorShell([&](const QUrl& u) {
        abiertos.append(u);
        return abre;
    });
    Config.SetCorreoFabricante(u"soporte@example.com"_s);
    EnviarMail(0);
    abre = false;
    EnviarMail(0);
    FijaAbridorShell(anterior);
    ASSERT_EQ(abiertos.size(), 2);
    EXPECT_EQ(abiertos[0].toEncoded(), "mailto:soporte@example.com?subject=Notario%20rectificaci%C3%B3n");
    ASSERT_EQ(guion.mostrados().size(), 1);
    EXPECT_EQ(guion.mostrados()[0].kind, u"Mensaje_Error"_s);
}

} // namespace
} // namespace nod
