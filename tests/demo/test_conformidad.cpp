// Every dialog of the demo's catalogue, opened over an owner at the screen's edge, keeps the conventions all
// dialogs share: conventions applied, unique accelerators, plain-text labels, every input named, the window
// inside the screen, Escape's result (none for a window that cannot be cancelled), Enter per its rule.
#include "apps/demo/catalogo.h"
#include "companion/config.h"
#include "companion/dialogo.h"
#include "frame/qtmensajes.h"
#include "frame/shell.h"
#include "tests/ident/servidor_http.h"
#include "tests/support/oficina_prueba.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>

namespace nod {
namespace {

const demo::CatalogoDemo& Catalogo() {
    static const demo::CatalogoDemo c = demo::RegistraTodos();
    return c;
}

bool esEntrada(const QWidget* w) {
    return qobject_cast<const QLineEdit*>(w) || qobject_cast<const QAbstractSpinBox*>(w) ||
           qobject_cast<const QComboBox*>(w) || qobject_cast<const QTextEdit*>(w) ||
           qobject_cast<const QPlainTextEdit*>(w) || qobject_cast<const QAbstractItemView*>(w);
}

// The pieces of a spin box, combo box or grid are not inputs of their own.
bool dentroDeOtraEntrada(const QWidget* w, const QWidget* ventana) {
    for (const QWidget* p = w->parentWidget(); p && p != ventana; p = p->parentWidget())
        if (esEntrada(p)) return true;
    return false;
}

QList<QPushButton*> botones(QWidget* ventana) {
    QList<QPushButton*> r;
    for (QPushButton* b : ventana->findChildren<QPushButton*>())
        if (b->window() == ventana && b->isVisibleTo(ventana) && b->isEnabled()) r.append(b);
    return r;
}

class Conformidad : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override {
        Config.SetServidorCatastro(
            QStringLiteral("http://127.0.0.1:%1").arg(prueba::ServidorHttp::puertoCerrado()));
        m_abridor = FijaAbridorShell([](const QUrl&) { return true; });
        // The owner stands at the bottom right corner of the screen, partly off it.
        const QRect zona = QGuiApplication::primaryScreen()->availableGeometry();
        m_duena.setWindowTitle(QStringLiteral("Programa"));
        m_duena.setGeometry(zona.right() - 250, zona.bottom() - 180, 500, 360);
        m_duena.show();
        QApplication::setActiveWindow(&m_duena);
    }
    void TearDown() override { FijaAbridorShell(m_abridor); }

    const demo::EntradaDemo& entrada() const { return Catalogo().entradas()[GetParam()]; }

    // Opens the entry, runs `accion` once on the window it shows (a modal dialog, or a window of its own
    // such as a progress window), and closes whatever modal window is left so that the entry returns.
    bool abre(const std::function<void(QWidget*)>& accion) {
        QSet<QWidget*> antes;
        for (QWidget* t : QApplication::topLevelWidgets())
            if (t->isVisible()) antes.insert(t);
        bool hecho = false;
        QTimer reloj;
        reloj.setInterval(10);
        QObject::connect(&reloj, &QTimer::timeout, [&] {
            QWidget* w = QApplication::activeModalWidget();
            if (hecho) {
                if (auto* d = qobject_cast<QDialog*>(w)) d->done(2); // a dialog that did not close
                return;
            }
            if (!w)
                for (QWidget* t : QApplication::topLevelWidgets())
                    if (t->isVisible() && !antes.contains(t) && !t->inherits("QMenu")) w = t;
            if (!w) return;
            hecho = true;
            w->activateWindow();
            if (!QTest::qWaitForWindowActive(w, 2000)) qWarning("the dialog never became the active window");
            accion(w);
        });
        reloj.start();
        entrada().abre(&m_duena);
        return hecho;
    }

    prueba::OficinaPrueba m_oficina;
    ServicioMensajesQt m_mensajes;
    ServicioMensajesInstalado m_instalado{m_mensajes};
    AbridorShell m_abridor;
    QWidget m_duena;
};

TEST_P(Conformidad, SharedConventions) {
    const std::string nombre = entrada().nombre.toStdString();
    int cuantosBotones = 0;
    const OpcionesDialogo* opciones = nullptr;
    OpcionesDialogo copia; // the defaults unless the dialog says otherwise
    const bool visto = abre([&](QWidget* w) {
        // A dialog without the conventions is still held to the defaults, so each broken rule shows.
        opciones = ConvencionesDe(w);
        EXPECT_NE(opciones, nullptr) << nombre << ": the dialog does not apply AplicaConvencionesDialogo";
        if (opciones) copia = *opciones;
        EXPECT_TRUE(AceleradoresRepetidos(w).isEmpty())
            << nombre << ": repeated accelerators " << AceleradoresRepetidos(w).join(u' ').toStdString();
        for (QLabel* l : w->findChildren<QLabel*>())
            EXPECT_TRUE(l->window() != w || l->textFormat() == Qt::PlainText ||
                        l->property("nodTextoRico").toBool())
                << nombre << ": label " << l->objectName().toStdString() << " may read its text as markup";
        for (QWidget* c : w->findChildren<QWidget*>()) {
            if (c->window() != w || !esEntrada(c) || !c->isVisibleTo(w) || dentroDeOtraEntrada(c, w))
                continue;
            QAccessibleInterface* a = QAccessible::queryAccessibleInterface(c);
            ASSERT_NE(a, nullptr);
            EXPECT_FALSE(a->text(QAccessible::Name).isEmpty())
                << nombre << ": input " << c->objectName().toStdString() << " has no label buddy and no name";
        }
        const QRect zona = w->screen()->availableGeometry();
        EXPECT_TRUE(zona.contains(w->frameGeometry()))
            << nombre << ": the window leaves the screen next to an owner at the screen's edge "
            << w->frameGeometry().x() << "," << w->frameGeometry().y() << " " << w->frameGeometry().width()
            << "x" << w->frameGeometry().height() << " in " << zona.width() << "x" << zona.height();
        cuantosBotones = int(botones(w).size());

        auto* dialogo = qobject_cast<QDialog*>(w);
        QTest::keyClick(w->focusWidget() ? w->focusWidget() : w, Qt::Key_Escape);
        if (copia.escapeCierra) {
            EXPECT_FALSE(w->isVisible()) << nombre << ": Escape does not close it";
            if (dialogo) {
                EXPECT_EQ(dialogo->result(), copia.resultadoEscape) << nombre << ": result of Escape";
            }
        } else {
            EXPECT_TRUE(w->isVisible()) << nombre << ": a window that cannot be cancelled closed on Escape";
            EXPECT_FALSE(w->close()) << nombre << ": ... or on its close button";
        }
    });
    ASSERT_TRUE(visto) << nombre << ": no window appeared";
    if (HasFatalFailure()) return;

    for (int i = 0; i < cuantosBotones; ++i) {
        abre([&](QWidget* w) {
            const QList<QPushButton*> lista = botones(w);
            ASSERT_LT(i, lista.size()) << nombre;
            QPushButton* b = lista[i];
            b->setFocus(Qt::TabFocusReason);
            if (QApplication::focusWidget() != b) return; // not a control the focus reaches
            QSignalSpy pulsado(b, &QPushButton::clicked);
            const QPointer<QPushButton> vivo(b);
            QTest::keyClick(b, Qt::Key_Return);
            const std::string boton = nombre + " / " + b->text().toStdString();
            if (copia.enter == ReglaEnter::SiguienteControl) {
                EXPECT_EQ(pulsado.size(), 0) << boton << ": Enter pressed the button";
                EXPECT_TRUE(w->isVisible()) << boton << ": Enter closed the dialog";
                // A form left with one control that takes the focus (the others disabled) has nowhere to go.
                const bool otroControl = std::ranges::any_of(w->findChildren<QWidget*>(), [&](QWidget* c) {
                    return c != b && c->window() == w && c->isEnabled() && c->isVisibleTo(w) &&
                           (c->focusPolicy() & Qt::TabFocus);
                });
                EXPECT_TRUE(!otroControl || QApplication::focusWidget() != b)
                    << boton << ": Enter did not move the focus";
            } else {
                EXPECT_EQ(pulsado.size(), 1) << boton << ": Enter did not press the focused button";
            }
            if (vivo && w->isVisible()) QTest::keyClick(w, Qt::Key_Escape);
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogo, Conformidad, ::testing::Range(0, int(Catalogo().entradas().size())),
                         [](const ::testing::TestParamInfo<int>& i) {
                             return Catalogo().entradas()[i.param].nombre.toStdString();
                         });

} // namespace
} // namespace nod
