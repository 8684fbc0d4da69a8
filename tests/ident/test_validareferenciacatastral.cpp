// The cadastral reference dialog driven through its flows: hand-over of the reference, keys, hints,
// validation in every mode with its messages, and the consultation page.
#include "companion/config.h"
#include "companion/mensajes.h"
#include "frame/shell.h"
#include "ident/editrefcatastral.h"
#include "ident/validareferenciacatastral.h"
#include "tests/ident/servidor_http.h"
#include "tests/support/modal.h"
#include "tests/support/oficina_prueba.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace nod {
namespace {

const QByteArray kRespuestaCeuta =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?><soap:Envelope "
    "xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\">"
    "<soap:Body><Consulta_DNPRC_CodigosResponse><consulta_dnp><control><cudnp>1</cudnp></control><bico><bi>"
    "<idbi><cn>UR</cn></idbi><dt><loine><cp>51</cp><cm>1</cm></loine><cmc>101</cmc><np>CEUTA</np></dt>"
    "<ldt>CL REAL "
    "1</ldt></bi></bico></consulta_dnp></Consulta_DNPRC_CodigosResponse></soap:Body></soap:Envelope>";

class DialogoRefCatastral : public ::testing::Test {
protected:
    void SetUp() override {
        Config.SetServidorCatastro(servidor.base());
        Config.SetEsperaCatastroMs(1500);
        Config.SetRefCatastralActual(QStringLiteral("  0000123VH5797S0001AA "));
        anterior = FijaAbridorShell([this](const QUrl& u) {
            abiertas.append(u);
            return true;
        });
        f.show();
        QApplication::setActiveWindow(&f);
    }
    void TearDown() override { FijaAbridorShell(anterior); }
    QStringList textos() const {
        QStringList t;
        for (const DialogoMostrado& d : mensajes.mostrados())
            if (d.kind != u"MuestraMensaje") t << d.kind + u'|' + d.title + u'|' + d.text;
        return t;
    }
    void escribe(const QString& ref) {
        f.ERCRefCatastral->clear();
        QTest::keyClicks(f.ERCRefCatastral, ref);
    }

    prueba::OficinaPrueba oficina;
    prueba::ServidorHttp servidor;
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado{mensajes};
    AbridorShell anterior;
    QList<QUrl> abiertas;
    TFValidaReferenciaCatastral f;
};

TEST_F(DialogoRefCatastral, ShowsTheReferenceTrimmedInUpperCaseAndAceptarHandsBackTheTypedOne) {
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Validación de Referencias Catastrales"));
    EXPECT_EQ(f.ERCRefCatastral->text(), QStringLiteral("0000123VH5797S0001AA"));
    EXPECT_TRUE(f.RBUrbana->isChecked());
    EXPECT_FALSE(f.BBValidar->isVisible());
    // Pasted text is upper-cased too, and cut at 20 characters.
    QApplication::clipboard()->setText(QStringLiteral("9872023vh5797s0001wx "));
    f.ERCRefCatastral->selectAll();
    f.ERCRefCatastral->paste();
    EXPECT_EQ(f.ERCRefCatastral->text(), QStringLiteral("9872023VH5797S0001WX"));
    QTest::mouseClick(f.BBAceptar, Qt::LeftButton);
    EXPECT_EQ(f.result(), 1);
    EXPECT_EQ(Config.GetRefCatastralActual(), QStringLiteral("9872023VH5797S0001WX"));
    // Only typed text was upper-cased: a reference handed in lower case was shown and returned so.
    Config.SetRefCatastralActual(QStringLiteral(" 9872023vh5797s0001wx "));
    TFValidaReferenciaCatastral g;
    g.show();
    EXPECT_EQ(g.ERCRefCatastral->text(), QStringLiteral("9872023VH5797S0001WX"));
}

TEST_F(DialogoRefCatastral, TypedLettersTurnUpperCaseOneForOne) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"9872023vh5797s0001wx", u"9872023VH5797S0001WX"},
        {u"123\u00df\u00e1\u00f1", u"123\u00df\u00c1\u00d1"}, // "ß" stays one character
        {u"1234567890123456789\u00df", u"1234567890123456789\u00df"}};
    for (const auto& [tecleado, mostrado] : casos) {
        f.ERCRefCatastral->clear();
        // Key by key as a keyboard sends them (QTest's key helpers take ASCII only).
        for (const QChar c : QString::fromUtf16(tecleado)) {
            QKeyEvent pulsada(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(f.ERCRefCatastral, &pulsada);
        }
        EXPECT_EQ(f.ERCRefCatastral->text(), QString::fromUtf16(mostrado))
            << qPrintable(QString::fromUtf16(tecleado));
    }
}

TEST_F(DialogoRefCatastral, CancelarAndEscapeHandBackTheOriginalWhateverWasValidated) {
    escribe(QStringLiteral("9872023VH5797S0001WX"));
    f.BBValidar->click();
    QTest::keyClick(f.ERCRefCatastral, Qt::Key_Escape);
    EXPECT_EQ(f.result(), 2);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(Config.GetRefCatastralActual(), QStringLiteral("0000123VH5797S0001AA"));

    TFValidaReferenciaCatastral g;
    g.show();
    g.ERCRefCatastral->setText(QStringLiteral("OTRA"));
    Config.SetRefCatastralActual(QStringLiteral("X"));
    g.BBCancelar->click();
    EXPECT_EQ(g.result(), 2);
    EXPECT_EQ(Config.GetRefCatastralActual(), QStringLiteral("0000123VH5797S0001AA"));
}

TEST_F(DialogoRefCatastral, EnterMovesOnAndTheStatusBarExplainsTheFocusedControl) {
    f.ERCRefCatastral->setFocus();
    EXPECT_EQ(f.SBExplica->currentMessage(), QStringLiteral("Escriba la referencia a Validar"));
    QTest::keyClick(f.ERCRefCatastral, Qt::Key_Return);
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), f.BBCatastro);
    EXPECT_EQ(f.SBExplica->currentMessage(), QStringLiteral("Oficina Virual del Catastro"));
    QTest::keyClick(f.BBCatastro, Qt::Key_Enter);
    EXPECT_EQ(QApplication::focusWidget(), f.BBAceptar);
    EXPECT_EQ(f.SBExplica->currentMessage(), QStringLiteral("Salir y devolver la Referencia"));
}

TEST_F(DialogoRefCatastral, ValidationReportsEachResultWithItsMessage) {
    struct Caso {
        int modo;
        bool rustica;
        const char* entrada;
        QByteArray respuesta; // empty: the cadastre cannot be reached
        const char16_t* formateada;
        const char16_t* mensaje;
    };
    const char16_t* valida = u"Mensaje_Info|Validación Positiva|La Referencia Catastral es Válida.";
    const char16_t* patron = u"Mensaje_Error|Error|La referencia Catastral NO es válida. Patrón incorrecto";
    const char16_t* sinConexion =
        u"Mensaje_Error|Error|No se ha podido establecer la conexión para comprobar la Referencia.";
    const Caso casos[] = {
        {1, false, "9872023VH5797S0001WX", {}, u"9872023VH5797S0001WX", valida},
        {1, false, "9872023VH5797S0001XW", {}, u"9872023VH5797S0001XW", patron},
        {0, false, "123VH5797S1XW", {}, u"0000123VH5797S0001XW", valida},
        {1, true, "28079A1001AB", {}, u"28079A000000001001AB", patron},
        {0, true, "28079A1001AB", {}, u"28079A000000001001AB", valida},
        {2, false, "9872023VH5797S0001WX", kRespuestaCeuta, u"9872023VH5797S0001WX",
         u"Mensaje_Info|Validación Positiva|La Referencia Catastral es Válida. Según Catastro"},
        {2, false, "9872023VH5797S0001WX", "<ERR>", u"9872023VH5797S0001WX",
         u"Mensaje_Error|Error|La referencia Catastral NO es válida. Según Catastro"},
        {2, false, "9872023VH5797S0001WX", {}, u"9872023VH5797S0001WX", sinConexion},
        {2, false, "", {}, u"", patron}};
    const QString cerrado = QStringLiteral("http://127.0.0.1:%1").arg(prueba::ServidorHttp::puertoCerrado());
    for (const Caso& c : casos) {
        mensajes.limpia();
        Config.SetnValidacionRefCat(c.modo);
        Config.SetServidorCatastro(c.respuesta.isEmpty() ? cerrado : servidor.base());
        servidor.respondeCon(c.respuesta);
        (c.rustica ? f.RBRustica : f.RBUrbana)->setChecked(true);
        escribe(QString::fromLatin1(c.entrada));
        f.BBValidar->click();
        EXPECT_EQ(f.ERCRefCatastral->text(), QString::fromUtf16(c.formateada)) << c.entrada;
        ASSERT_EQ(textos().size(), 1) << c.entrada;
        EXPECT_EQ(textos().front(), QString::fromUtf16(c.mensaje)) << c.entrada;
        EXPECT_EQ(mensajes.mostrados().front().text,
                  QStringLiteral("Espere mientras se valida la Referencia Catastral. Escape para Cancelar"));
        EXPECT_FALSE(mensajes.esperaVisible());
        EXPECT_TRUE(f.findChild<QWidget*>(QStringLiteral("PValidaRefCatastral"))->isEnabled());
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_TRUE(f.isVisible());
    }
}

TEST_F(DialogoRefCatastral, EscapeWhileAskingTheCadastreCancelsTheValidation) {
    servidor.calla();
    Config.SetEsperaCatastroMs(20000);
    Config.SetnValidacionRefCat(2);
    escribe(QStringLiteral("9872023VH5797S0001WX"));
    QTimer::singleShot(200, [] {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : qApp->activeWindow(),
                        Qt::Key_Escape);
    });
    f.BBValidar->click();
    ASSERT_EQ(textos().size(), 1);
    EXPECT_EQ(textos().front(),
              QStringLiteral("Mensaje_Error|Error|El proceso de Validación ha sido cancelado."));
    EXPECT_TRUE(f.isVisible()) << "the Escape that cancels the consultation does not close the dialog";
}

TEST_F(DialogoRefCatastral, CatastroOpensTheConsultationPageOrSaysWhy) {
    servidor.respondeCon(kRespuestaCeuta);
    escribe(QStringLiteral("9872023VH5797S0001WX"));
    f.RBRustica->setChecked(true);
    f.BBCatastro->click();
    ASSERT_EQ(abiertas.size(), 1);
    EXPECT_EQ(abiertas.front().toString(),
              Config.GetWebConsultaCatastro() +
                  QStringLiteral(
                      "/CYCBienInmueble/OVCConCiud.aspx?UrbRus=R&RefC=9872023VH5797S0001WX&del=55&mun=101"));
    EXPECT_TRUE(textos().isEmpty());

    servidor.respondeCon("<ERR>no existe</ERR>");
    f.BBCatastro->click();
    EXPECT_EQ(abiertas.size(), 1);
    EXPECT_EQ(textos(), QStringList{QStringLiteral(
                            "Mensaje_Info|No se han encontrado los datos asociados|No ha sido "
                            "posible recuperar los datos de catastro de la referencia indicada")});
}

// While the cadastre was asked there was no busy cursor and no wait message, the dialog stayed live, a
// second click started a second request, and after Cancel both answers still came: two boxes, or the
// browser opening after the clerk had cancelled. The peer here answers, but only after 700 ms.
TEST_F(DialogoRefCatastral, CatastroWaitBlocksTheDialogAndAbandonedAnswersAreDropped) {
    for (bool cancelar : {true, false}) { // "&Cancelar" closes the dialog, Escape leaves it open
        const char* como = cancelar ? "Cancelar" : "Escape";
        TFValidaReferenciaCatastral g;
        g.show();
        QApplication::setActiveWindow(&g);
        mensajes.limpia();
        abiertas.clear();
        const qsizetype antes = servidor.peticiones().size();
        servidor.respondeCon(kRespuestaCeuta, 200, 700);
        g.ERCRefCatastral->setText(QStringLiteral("9872023VH5797S0001WX"));
        bool visto = false;
        QTimer::singleShot(200, &g, [&] {
            visto = true;
            EXPECT_EQ(g.cursor().shape(), Qt::WaitCursor) << como;
            EXPECT_TRUE(mensajes.esperaVisible()) << como;
            EXPECT_FALSE(g.ERCRefCatastral->isEnabled()) << como;
            EXPECT_FALSE(g.BBCatastro->isEnabled()) << como;
            EXPECT_TRUE(g.BBCancelar->isEnabled()) << como;
            QTest::mouseClick(g.BBCatastro, Qt::LeftButton); // the second click
            if (cancelar)
                QTest::mouseClick(g.BBCancelar, Qt::LeftButton);
            else
                QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &g,
                                Qt::Key_Escape);
        });
        QTest::mouseClick(g.BBCatastro, Qt::LeftButton);
        QTest::qWait(1200); // the answer has come and gone
        EXPECT_TRUE(visto) << como;
        EXPECT_EQ(servidor.peticiones().size() - antes, 1) << como;
        EXPECT_TRUE(abiertas.isEmpty()) << como;
        EXPECT_TRUE(textos().isEmpty()) << como << ": " << textos().join(u' ').toStdString();
        EXPECT_FALSE(mensajes.esperaVisible()) << como;
        EXPECT_EQ(g.isVisible(), !cancelar) << como;
        if (cancelar) {
            EXPECT_EQ(g.result(), 2);
            EXPECT_EQ(Config.GetRefCatastralActual(), QStringLiteral("0000123VH5797S0001AA"));
        } else {
            EXPECT_TRUE(g.BBCatastro->isEnabled()) << "the dialog is usable again";
            EXPECT_EQ(g.cursor().shape(), Qt::ArrowCursor);
        }
    }
}

TEST(IValidaReferenciaCatastral, EscapeClosesTheModalDialogAndLeavesNoWindow) {
    prueba::OficinaPrueba oficina;
    Config.SetRefCatastralActual(QStringLiteral("ORIGINAL"));
    prueba::AlAbrirseModal([](QWidget* w) {
        auto* f = qobject_cast<TFValidaReferenciaCatastral*>(w);
        ASSERT_NE(f, nullptr);
        f->ERCRefCatastral->setText(QStringLiteral("CAMBIADA"));
        QTest::keyClick(f->ERCRefCatastral, Qt::Key_Escape);
    });
    IValidaReferenciaCatastral(nullptr);
    EXPECT_EQ(Config.GetRefCatastralActual(), QStringLiteral("ORIGINAL"));
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

} // namespace
} // namespace nod
