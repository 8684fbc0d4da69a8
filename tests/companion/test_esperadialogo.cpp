// The wait of a dialog: blocked controls, busy cursor, the wait message, and every way to abandon it.
#include "companion/esperadialogo.h"
#include "companion/mensajes.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

namespace {

struct Dialogo : QDialog {
    QWidget* panel = new QWidget(this);
    QLineEdit* campo = new QLineEdit(panel);
    QPushButton* consulta = new QPushButton(QStringLiteral("&Consulta"), panel);
    QPushButton* desactivado = new QPushButton(QStringLiteral("&Otro"), panel);
    QPushButton* cancelar = new QPushButton(QStringLiteral("C&ancelar"), panel);
    Dialogo() {
        auto* l = new QHBoxLayout(panel);
        for (QWidget* w : std::initializer_list<QWidget*>{campo, consulta, desactivado, cancelar})
            l->addWidget(w);
        (new QHBoxLayout(this))->addWidget(panel);
        desactivado->setEnabled(false);
        connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
        show();
        QApplication::setActiveWindow(this);
        campo->setFocus();
    }
};

// Waits in a local event loop, as a network call does, until the vigía says so or 5 s pass.
bool esperaHastaCancelar(const std::function<bool()>& vigia) {
    QEventLoop bucle;
    QTimer sondeo;
    QObject::connect(&sondeo, &QTimer::timeout, &bucle, [&] {
        if (vigia()) bucle.quit();
    });
    sondeo.start(10);
    QTimer::singleShot(5000, &bucle, &QEventLoop::quit);
    bucle.exec();
    return vigia();
}

} // namespace

TEST(EsperaDialogo, BlocksShowsAndComesBackAsItWas) {
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado(mensajes);
    Dialogo d;
    {
        TEsperaDialogo espera(&d, QStringLiteral("Consultando..."), d.cancelar);
        ASSERT_TRUE(espera.Empieza());
        EXPECT_TRUE(TEsperaDialogo::EnEspera(d.campo));
        EXPECT_TRUE(mensajes.esperaVisible());
        EXPECT_EQ(d.cursor().shape(), Qt::WaitCursor);
        EXPECT_EQ(d.cancelar->cursor().shape(), Qt::ArrowCursor);
        EXPECT_FALSE(d.campo->isEnabled());
        EXPECT_FALSE(d.consulta->isEnabled());
        EXPECT_TRUE(d.cancelar->isEnabled()) << "the button that abandons the wait stays usable";
        TEsperaDialogo segunda(&d, QStringLiteral("otra"));
        EXPECT_FALSE(segunda.Empieza()) << "a second wait of the same window does not start";
        EXPECT_FALSE(espera.Cancelada());
    }
    EXPECT_FALSE(TEsperaDialogo::EnEspera(&d));
    EXPECT_FALSE(mensajes.esperaVisible());
    EXPECT_TRUE(d.campo->isEnabled());
    EXPECT_TRUE(d.consulta->isEnabled());
    EXPECT_FALSE(d.desactivado->isEnabled()) << "a control disabled before stays disabled";
    EXPECT_EQ(d.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(QApplication::focusWidget(), d.campo) << "the focus comes back where it was";
}

TEST(EsperaDialogo, EscapeTheCancelButtonOrClosingAbandonsTheWait) {
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado(mensajes);
    const std::tuple<const char*, std::function<void(Dialogo&)>, bool> casos[] = {
        {"Escape in the dialog", [](Dialogo& d) { QTest::keyClick(&d, Qt::Key_Escape); }, true},
        {"Escape elsewhere", [](Dialogo&) { QTest::keyClick(qApp->focusWidget(), Qt::Key_Escape); }, true},
        {"the cancel button", [](Dialogo& d) { QTest::mouseClick(d.cancelar, Qt::LeftButton); }, false},
        {"the window closed", [](Dialogo& d) { d.reject(); }, false}};
    for (const auto& [caso, accion, sigueAbierto] : casos) {
        Dialogo d;
        TEsperaDialogo espera(&d, QStringLiteral("Consultando..."), d.cancelar);
        ASSERT_TRUE(espera.Empieza());
        QTimer::singleShot(50, &d, [&] { accion(d); });
        EXPECT_TRUE(esperaHastaCancelar(espera.Vigia())) << caso;
        EXPECT_TRUE(espera.Cancelada()) << caso;
        EXPECT_EQ(d.isVisible(), sigueAbierto) << caso;
    }
}
