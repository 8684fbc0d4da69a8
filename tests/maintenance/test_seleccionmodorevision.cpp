// The revision's form over the sample office: list and radio behaviour, captions and hints, a run of all
// tables and of one table ending in the preview of the list, and the ways out.
#include "companion/mensajes.h"
#include "maintenance/seleccionmodorevisioncodcliente.h"
#include "tests/maintenance/ayudas.h"
#include "tests/support/modal.h"
#include "tests/support/oficina_prueba.h"

#include <QComboBox>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace nod;

namespace {

class Seleccion : public ::testing::Test {
protected:
    Seleccion()
        : instalado(mensajes) {
        Config.Carga(prueba::OficinaMuestra());
    }
    // Closes the list's preview when it opens, noting its caption and pages.
    void alVerListado() {
        prueba::AlAbrirseModal([this](QWidget* w) {
            tituloListado = w->windowTitle();
            if (auto* vista = w->findChild<QPrintPreviewWidget*>()) paginasListado = vista->pageCount();
            QTest::keyClick(w, Qt::Key_Escape);
        });
    }
    prueba::OficinaPrueba oficina;
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado;
    QString tituloListado;
    int paginasListado = 0;
};

TEST_F(Seleccion, OpensOnAllTablesWithTheListDisabledAndEmpty) {
    TFSeleccionModoRevisionCodCliente f;
    EXPECT_EQ(f.windowTitle(), u"Indique los parámetros de Revisión"_s);
    EXPECT_EQ(f.RBTodasTablas->text(), u"Revisión en todas las tablas"_s);
    EXPECT_EQ(f.RBUnaTabla->text(), u"Revisión en la tabla"_s);
    EXPECT_EQ(f.BBAceptar->text(), u"&Aceptar"_s);
    EXPECT_EQ(f.BBAceptar->toolTip(), u"Acepta los cambios y cierra esta ventana"_s);
    EXPECT_EQ(f.BBSalir->text(), u"&Salir"_s);
    EXPECT_EQ(f.BBSalir->toolTip(), u"Cancela los cambios y cierra esta ventana"_s);
    EXPECT_TRUE(f.RBTodasTablas->isChecked());
    EXPECT_FALSE(f.CBTablas->isEnabled());
    EXPECT_EQ(f.CBTablas->currentIndex(), -1);
    ASSERT_EQ(f.CBTablas->count(), 30);
    EXPECT_EQ(f.CBTablas->itemText(0), u"ACTIVOS"_s);
    EXPECT_EQ(f.CBTablas->itemText(29), u"VALORES"_s);
}

TEST_F(Seleccion, OneTableEnablesTheListOnItsFirstItemAndAllTablesEmptiesIt) {
    TFSeleccionModoRevisionCodCliente f;
    f.show();
    QTest::mouseClick(f.RBUnaTabla, Qt::LeftButton);
    EXPECT_TRUE(f.CBTablas->isEnabled());
    EXPECT_EQ(f.CBTablas->currentText(), u"ACTIVOS"_s);
    f.CBTablas->setCurrentIndex(4);
    QTest::mouseClick(f.RBTodasTablas, Qt::LeftButton);
    EXPECT_FALSE(f.CBTablas->isEnabled());
    EXPECT_EQ(f.CBTablas->currentIndex(), -1);
    EXPECT_TRUE(f.CBTablas->currentText().isEmpty());
    QTest::mouseClick(f.RBUnaTabla, Qt::LeftButton);
    EXPECT_EQ(f.CBTablas->currentIndex(), 0);
}

TEST_F(Seleccion, AcceptingAllTablesPreviewsTheListAndClosesWithOne) {
    TFSeleccionModoRevisionCodCliente f;
    alVerListado();
    f.BBAceptar->click();
    EXPECT_EQ(f.result(), 1);
    EXPECT_EQ(tituloListado, u"Listado Clientes Repetidos"_s);
    EXPECT_EQ(paginasListado, 1);
    EXPECT_EQ(f.Revision().Mensajes().size(), 24); // the sample office's dangling codes, notary 1
    EXPECT_TRUE(f.BBAceptar->isEnabled()) << "the form is given back after the run";
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

TEST_F(Seleccion, AcceptingOneTableRevisesThatTableOnly) {
    TFSeleccionModoRevisionCodCliente f;
    f.RBUnaTabla->setChecked(true);
    f.CBTablas->setCurrentText(u"CLAVES"_s);
    alVerListado();
    f.BBAceptar->click();
    EXPECT_EQ(f.result(), 1);
    ASSERT_EQ(f.Revision().Mensajes().size(), 4);
    for (const auto& m : f.Revision().Mensajes())
        EXPECT_TRUE(m.TABLA.startsWith(u"En la Tabla CLAVES"_s)) << m.TABLA.toStdString();
}

TEST_F(Seleccion, SalirAndEscapeGiveTwoAndRunNothing) {
    for (const bool escape : {false, true}) {
        prueba::AlAbrirseModal([escape](QWidget* w) {
            auto* f = qobject_cast<TFSeleccionModoRevisionCodCliente*>(w);
            ASSERT_NE(f, nullptr);
            EXPECT_EQ(FSeleccionModoRevisionCodCliente, f);
            if (escape)
                QTest::keyClick(f, Qt::Key_Escape);
            else
                f->BBSalir->click();
        });
        EXPECT_FALSE(SeleccionModoRevisionCodCliente());
        EXPECT_EQ(FSeleccionModoRevisionCodCliente, nullptr);
    }
    EXPECT_TRUE(mensajes.mostrados().isEmpty()) << "no progress window: nothing ran";
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

TEST_F(Seleccion, WithoutClientsTheClerkIsToldAndNoListOpens) {
    prueba::OficinaPrueba vacia(u"[ALIAS]\nDB=DATOS\n"_s);
    TFSeleccionModoRevisionCodCliente f;
    f.BBAceptar->click(); // no list opens: nothing to close
    EXPECT_EQ(f.result(), 2);
    ASSERT_FALSE(mensajes.mostrados().isEmpty());
    EXPECT_EQ(mensajes.mostrados()[0].kind, u"Mensaje_Error"_s);
}

} // namespace
