#include "companion/foco.h"
#include "frame/mensajenod.h"
#include "frame/mensajeperson.h"
#include "frame/qtmensajes.h"
#include "tests/support/modal.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <tuple>

using namespace nod;

namespace {

struct Caja {
    std::unique_ptr<TFMensajeNod> forma = std::make_unique<TFMensajeNod>();
    QLabel* l1 = forma->findChild<QLabel*>(QStringLiteral("lmensaje"));
    QLabel* l2 = forma->findChild<QLabel*>(QStringLiteral("LMENSAJE2"));
    QPushButton* b1 = forma->findChild<QPushButton*>(QStringLiteral("BACEPTAR"));
    QPushButton* b2 = forma->findChild<QPushButton*>(QStringLiteral("BCANCELAR"));
    QLabel* stop = forma->findChild<QLabel*>(QStringLiteral("IconoStop"));
    QLabel* pregunta = forma->findChild<QLabel*>(QStringLiteral("IconoPregunta"));
};

} // namespace

TEST(MensajeNod, DesignValues) {
    Caja c;
    ASSERT_TRUE(c.l1 && c.l2 && c.b1 && c.b2);
    EXPECT_EQ(c.forma->windowTitle(), QStringLiteral("Mensaje"));
    EXPECT_EQ(c.forma->size(), QSize(590, 149));
    EXPECT_EQ(c.forma->palette().color(QPalette::Window), QColor(Qt::red));
    EXPECT_EQ(c.l2->geometry(), QRect(45, 72, 540, 19));
    EXPECT_EQ(c.l1->font().pixelSize(), 15);
    EXPECT_TRUE(c.l1->wordWrap());
    EXPECT_EQ(c.b1->text(), QStringLiteral("&Aceptar"));
    EXPECT_EQ(c.b2->text(), QStringLiteral("&Salir"));
    EXPECT_TRUE(c.b1->isDefault());
    EXPECT_EQ(c.l1->palette().color(QPalette::WindowText), QColor(Qt::white));
}

// One box shown again and again: the full layout comes back after a short one.
TEST(MensajeNod, FormShowLaysTheBoxOutByWhichLinesArePresent) {
    const std::tuple<const char*, const char*, int, int, int, bool, bool> casos[] = {
        {"", "abajo", 123, 21, 62, false, true},
        {"arriba", "abajo", 150, 56, 89, true, true},
        {"arriba", "", 123, 56, 62, true, false},
        {"", "", 123, 21, 62, false, false}, // no text at all: the short box with no line
    };
    Caja c;
    for (const auto& [m1, m2, alto, topLinea2, topBotones, ve1, ve2] : casos) {
        c.forma->hide();
        c.forma->CambiaTipoMensaje(3, {}, {});
        c.forma->CambiaMensaje1(QString::fromUtf8(m1));
        c.forma->CambiaMensaje2(QString::fromUtf8(m2));
        c.forma->show();
        EXPECT_EQ(c.forma->height(), alto) << m1 << "|" << m2;
        EXPECT_EQ(c.l2->y(), topLinea2) << m1 << "|" << m2;
        EXPECT_EQ(c.b1->y(), topBotones) << m1 << "|" << m2;
        EXPECT_EQ(c.b2->y(), topBotones) << m1 << "|" << m2;
        EXPECT_EQ(c.l1->isVisible(), ve1);
        EXPECT_EQ(c.l2->isVisible(), ve2);
        EXPECT_LE(c.b1->geometry().bottom(), c.forma->height()) << "buttons stay inside the box";
    }
}

TEST(MensajeNod, SecondLineLongerThanFortyCharactersIsDrawnAtTenPoints) {
    for (auto [largo, diezPuntos] : {std::pair{40, false}, {41, true}, {0, false}, {80, true}}) {
        Caja c;
        c.forma->CambiaMensaje2(QString(largo, QLatin1Char('x')));
        EXPECT_EQ(c.l2->font().pointSize() == 10, diezPuntos) << largo;
        EXPECT_EQ(c.l2->font().pixelSize(), diezPuntos ? -1 : 16) << largo;
    }
}

TEST(MensajeNod, ButtonSetsForEveryType) {
    // foco: 1 first, 2 second, 0 the box's default
    const std::tuple<int, const char*, const char*, bool, int, int> casos[] = {
        {0, "&Aceptar", "&Cancelar", false, 491, 0},
        {1, "&Si", "&No", true, 374, 1},
        {2, "&Si", "&No", true, 374, 2},
        {3, "&Aceptar", "&Cancelar", true, 374, 1},
        {4, "&Aceptar", "&Cancelar", true, 374, 2},
        {5, "Guardar", "Descartar", true, 374, 1},
        {6, "Guardar", "Descartar", true, 374, 2},
        {9, "&Aceptar", "&Cancelar", true, 374, 0}};
    for (const auto& [tipo, c1, c2, ve2, izquierda1, foco] : casos) {
        Caja c;
        const int puntos = c.b1->font().pointSize();
        c.forma->CambiaTipoMensaje(tipo, QStringLiteral("Guardar"), QStringLiteral("Descartar"));
        c.forma->CambiaMensaje1(QStringLiteral("texto"));
        c.forma->show();
        QApplication::setActiveWindow(c.forma.get());
        EXPECT_EQ(c.b1->text(), QLatin1String(c1)) << tipo;
        EXPECT_EQ(c.b2->text(), QLatin1String(c2)) << tipo;
        EXPECT_EQ(c.b2->isVisible(), ve2) << tipo;
        EXPECT_EQ(c.b1->x(), izquierda1) << tipo;
        EXPECT_EQ(c.b2->x(), 491) << tipo;
        const bool personalizado = tipo == 5 || tipo == 6;
        EXPECT_EQ(c.b1->font().pointSize(), puntos + (personalizado ? 2 : 0)) << tipo;
        EXPECT_EQ(c.b1->icon().isNull(), personalizado) << tipo;
        if (foco) { // the focus mark follows the buttons
            QPushButton* enfocado = foco == 1 ? c.b1 : c.b2;
            QPushButton* otro = foco == 1 ? c.b2 : c.b1;
            EXPECT_EQ(c.forma->focusWidget(), enfocado) << tipo;
            EXPECT_TRUE(TieneFocoMarcado(enfocado)) << tipo;
            otro->setFocus();
            EXPECT_FALSE(TieneFocoMarcado(enfocado)) << tipo;
            EXPECT_TRUE(TieneFocoMarcado(otro)) << tipo;
        }
        EXPECT_EQ(c.forma->tipoMensaje(), tipo);
    }
}

// With a visible owner near the screen's edge the box was placed partly off the screen.
TEST(MensajeNod, FormCreateCentresOnAVisibleOwnerWindowElseOnTheScreenAndStaysOnIt) {
    QWidget ventana;
    ventana.setGeometry(30, 40, 700, 500);
    auto* control = new QWidget(&ventana);
    control->setGeometry(0, 0, 50, 20);
    QWidget oculta;
    oculta.setGeometry(30, 40, 700, 500);
    const QRect zona = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint pantalla = zona.center();
    // enVentana: centred on `ventana`, else on the screen
    const std::tuple<const char*, QWidget*, bool> casos[] = {{"none", nullptr, false},
                                                             {"visible window", &ventana, true},
                                                             {"hidden window", &oculta, false},
                                                             {"control of a visible window", control, false}};
    ventana.show();
    ASSERT_NE(ventana.frameGeometry().center(), pantalla);
    for (const auto& [caso, owner, enVentana] : casos) {
        TFMensajeNod forma(owner);
        const QPoint esperado = enVentana ? ventana.frameGeometry().center() : pantalla;
        EXPECT_LE((forma.geometry().center() - esperado).manhattanLength(), 1) << caso;
    }
    for (const QPoint& p : {zona.bottomRight() - QPoint(100, 60), zona.topLeft() - QPoint(150, 40)}) {
        ventana.setGeometry(QRect(p, QSize(300, 200)));
        TFMensajeNod forma(&ventana);
        forma.show();
        EXPECT_TRUE(zona.contains(forma.frameGeometry())) << p.x() << "," << p.y();
    }
}

// Every way to answer the real box, reached through the Qt service. Escape answers 2 for every type, even
// when the second button is hidden (type 0), and Enter presses the focused button. Plain "s" and "n" did
// nothing while the standard Si/No boxes answered them: a plain letter presses its button, "x" (no button's
// letter) does nothing.
TEST(MensajeNod, ModalResultsOfTheRealBox) {
    // tecla: pressed after "x"; boton: clicked instead when there is no key
    const std::tuple<int, Qt::Key, const char*, int> casos[] = {
        {0, Qt::Key_Escape, nullptr, 2}, {1, Qt::Key_Escape, nullptr, 2}, {2, Qt::Key_Escape, nullptr, 2},
        {3, Qt::Key_Escape, nullptr, 2}, {4, Qt::Key_Escape, nullptr, 2}, {5, Qt::Key_Escape, nullptr, 2},
        {6, Qt::Key_Escape, nullptr, 2}, {0, {}, "BACEPTAR", 1},          {1, {}, "BACEPTAR", 1},
        {1, {}, "BCANCELAR", 2},         {6, {}, "BCANCELAR", 2},         {1, Qt::Key_Return, nullptr, 1},
        {2, Qt::Key_Return, nullptr, 2}, {1, Qt::Key_S, nullptr, 1},      {1, Qt::Key_N, nullptr, 2},
        {2, Qt::Key_S, nullptr, 1},      {3, Qt::Key_C, nullptr, 2},      {0, Qt::Key_A, nullptr, 1}};
    ServicioMensajesQt qt;
    ServicioMensajesInstalado instalado(qt);
    for (const auto& [tipo, tecla, boton, resultado] : casos) {
        QString titulo, arriba, abajo;
        QColor fondo;
        prueba::AlAbrirseModal([&](QWidget* w) {
            titulo = w->windowTitle();
            fondo = w->palette().color(QPalette::Window);
            arriba = w->findChild<QLabel*>(QStringLiteral("lmensaje"))->text();
            abajo = w->findChild<QLabel*>(QStringLiteral("LMENSAJE2"))->text();
            if (boton) {
                QTest::mouseClick(w->findChild<QPushButton*>(QLatin1String(boton)), Qt::LeftButton);
                return;
            }
            QTest::keyClick(w->focusWidget() ? w->focusWidget() : w, Qt::Key_X);
            QTest::keyClick(w->focusWidget() ? w->focusWidget() : w, tecla);
        });
        EXPECT_EQ(Mensaje_Person(tipo, QStringLiteral("abajo"), 1, QStringLiteral("Aviso"),
                                 QStringLiteral("arriba"), {}, {}, 0, 0x8C0000, 0xFFFFFF, 0),
                  resultado)
            << tipo << " " << (boton ? boton : "key") << " " << tecla;
        EXPECT_EQ(titulo, QStringLiteral("Aviso"));
        EXPECT_EQ(std::pair(arriba, abajo), std::pair(QStringLiteral("arriba"), QStringLiteral("abajo")));
        EXPECT_EQ(fondo, QColor(0, 0, 0x8C));
        EXPECT_EQ(prueba::VentanasVisibles(), 0);
        EXPECT_TRUE(FMensajeNod.isNull()) << "the box is freed after the call";
    }
}

// An upper text longer than three lines overflowed at both ends: a 2,000-character message showed only
// a middle slice. It keeps its beginning, aligned to the top and cut with "…", the whole text in the
// tooltip; a text that fits keeps the three centred lines.
TEST(MensajeNod, ALongUpperTextKeepsItsBeginning) {
    QString largo = QStringLiteral("Principio del aviso: ");
    while (largo.size() < 2000)
        largo += QStringLiteral("la copia no se ha podido firmar, ");
    const std::tuple<QString, bool> casos[] = {{QStringLiteral("No se ha encontrado el cliente."), true},
                                               {largo, false},
                                               {QString(100000, u'x'), false}};
    for (const auto& [texto, cabe] : casos) {
        Caja c;
        c.forma->CambiaMensaje1(texto);
        c.forma->show();
        EXPECT_TRUE(c.l1->text().startsWith(texto.left(10))) << texto.left(30).toStdString();
        EXPECT_EQ(c.l1->alignment() & Qt::AlignVertical_Mask, cabe ? Qt::AlignVCenter : Qt::AlignTop);
        EXPECT_EQ(c.l1->geometry(), QRect(59, 5, 526, 61)) << "the design's place, whatever the text";
        EXPECT_EQ(c.forma->height(), 123);
        if (!cabe) {
            EXPECT_TRUE(c.l1->text().endsWith(QStringLiteral("…")));
            EXPECT_TRUE(c.l1->toolTip().contains(texto.mid(100, 20))) << "the whole text in the tooltip";
        }
    }
}

// "\r" showed as a blank, "<b>" and "<no existe>" were read as markup.
TEST(MensajeNod, LineBreaksOfEveryKindAndMarkupAsTyped) {
    const std::tuple<const char16_t*, const char16_t*> casos[] = {
        {u"uno\rdos", u"uno\ndos"},
        {u"uno\r\ndos", u"uno\ndos"},
        {u"<b>Pérez & Cía</b>", u"<b>Pérez & Cía</b>"},
        {u"<no existe>", u"<no existe>"}};
    for (const auto& [dado, mostrado] : casos) {
        Caja c;
        c.forma->CambiaMensaje1(QString::fromUtf16(dado));
        c.forma->CambiaMensaje2(QString::fromUtf16(dado));
        c.forma->show();
        const QString visto = QString::fromUtf16(mostrado);
        EXPECT_EQ(c.l1->text(), visto);
        // The lower line holds one line: a second one is announced with "…" and carried in the tooltip.
        EXPECT_EQ(c.l2->text(),
                  visto.contains(u'\n') ? visto.section(u'\n', 0, 0) + QStringLiteral(" …") : visto);
        for (QLabel* l : {c.l1, c.l2})
            EXPECT_EQ(l->textFormat(), Qt::PlainText);
    }
}

// The stop icon was nearly invisible on the default red background.
TEST(MensajeNod, IconFollowsTheStopValueAndTheStopIconStandsOutOnRed) {
    Caja c;
    for (auto [icono, stop] : {std::pair{1, false}, {7, false}, {-1, false}, {0, true}}) {
        c.forma->CambiaIcono(icono);
        EXPECT_EQ(c.stop->isVisibleTo(c.forma.get()), stop) << icono;
        EXPECT_EQ(c.pregunta->isVisibleTo(c.forma.get()), !stop) << icono;
    }
    const QImage icono = c.stop->pixmap().toImage();
    ASSERT_FALSE(icono.isNull());
    int visibles = 0, opacos = 0;
    for (int y = 0; y < icono.height(); ++y)
        for (int x = 0; x < icono.width(); ++x) {
            const QColor px = icono.pixelColor(x, y);
            if (px.alpha() < 128) continue;
            ++opacos;
            // far from pure red: light, or dark, or of another hue
            visibles += (px.green() > 150 && px.blue() > 150) || px.red() < 150 ? 1 : 0;
        }
    ASSERT_GT(opacos, 0);
    EXPECT_GT(visibles * 2, opacos) << "most of the icon differs from the red background";
}
