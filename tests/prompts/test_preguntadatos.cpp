// The data prompt form driven as a clerk drives it: real key codes into the controls, the handlers
// they reach, the panels' geometry and initial values.
#include "companion/config.h"
#include "companion/editimporte.h"
#include "companion/foco.h"
#include "companion/mensajes.h"
#include "tables/tablas.h"
#include "tests/prompts/prueba_preguntas.h"
#include "tests/support/oficina_prueba.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

using namespace nod;
using namespace nod::prueba;

namespace {

TEST(PreguntaDatos, EveryKindShowsItsPanelAtEightEightSizedAroundIt) {
    prueba::OficinaPrueba oficina;
    Hoy hoy(2024, 5, 20);
    for (const QString& tipo : TFPreguntaDatos::Tipos()) {
        SCOPED_TRACE(tipo.toStdString());
        TFPreguntaDatos f(nullptr, tipo);
        f.show();
        QWidget* p = f.PanelActivo();
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(p->isVisible());
        EXPECT_EQ(p->pos(), QPoint(8, 8));
        const int alto = 8 + 16 + p->height() + 7 + f.btnAceptar->height() + 8 + 7;
        EXPECT_EQ(f.size(), QSize(p->width() + 2 * 8 + 7, alto));
        EXPECT_EQ(f.windowTitle(), p->property("hint").toString());
        EXPECT_NE(f.windowTitle(), TFPreguntaDatos::kCaptionDiseno);
        // The buttons below the panel, inside the form; every label and control of the panel inside it.
        EXPECT_GE(f.btnAceptar->y(), p->geometry().bottom());
        EXPECT_TRUE(f.rect().contains(f.btnCANCELAR->geometry()));
        EXPECT_FALSE(f.btnAceptar->geometry().intersects(f.btnCANCELAR->geometry()));
        QList<QWidget*> vistos;
        for (QWidget* w : p->findChildren<QWidget*>()) {
            const bool control = qobject_cast<QAbstractButton*>(w) || qobject_cast<QComboBox*>(w) ||
                                 qobject_cast<QAbstractSpinBox*>(w) || qobject_cast<TEditImporte*>(w);
            // Every control a script can name carries a name.
            if (control || (qobject_cast<QLineEdit*>(w) && !w->parentWidget()->inherits("QAbstractSpinBox") &&
                            !w->parentWidget()->inherits("QComboBox"))) {
                EXPECT_FALSE(w->objectName().isEmpty()) << w->metaObject()->className();
            }
            if (w->window() != &f || !w->isVisibleTo(p)) continue; // lists and calendars pop up apart
            const QRect enPanel(w->mapTo(p, QPoint(0, 0)), w->size());
            EXPECT_TRUE(p->rect().contains(enPanel)) << w->objectName().toStdString();
            if (auto* l = qobject_cast<QLabel*>(w); l && !l->wordWrap()) {
                EXPECT_GE(l->width(), l->sizeHint().width()) << l->text().toStdString();
            }
            if (control || qobject_cast<QLabel*>(w)) vistos << w;
        }
        // No two labels or controls of the same group overlap.
        for (int i = 0; i < vistos.size(); ++i)
            for (int j = i + 1; j < vistos.size(); ++j)
                if (vistos[i]->parentWidget() == vistos[j]->parentWidget()) {
                    EXPECT_FALSE(vistos[i]->geometry().intersects(vistos[j]->geometry()))
                        << vistos[i]->objectName().toStdString() << " / "
                        << vistos[j]->objectName().toStdString();
                }
    }
}

TEST(PreguntaDatos, AnUnknownKindShowsTheTwoButtonsAloneAtDesignSizeAndCaption) {
    TFPreguntaDatos f(nullptr, QStringLiteral("xyz"));
    TFPreguntaDatos minusculas(nullptr, QStringLiteral("mesaño")); // kinds compare exactly
    for (TFPreguntaDatos* g : {&f, &minusculas}) {
        EXPECT_EQ(g->PanelActivo(), nullptr);
        EXPECT_EQ(g->windowTitle(), TFPreguntaDatos::kCaptionDiseno);
        EXPECT_EQ(g->size(), QSize(420, 120));
        EXPECT_TRUE(g->btnAceptar->isVisibleTo(g));
        EXPECT_TRUE(g->btnCANCELAR->isVisibleTo(g));
    }
}

TEST(PreguntaDatos, QuarterAndSemesterComeFromTodayShiftedBack) {
    struct Caso {
        const char* tipo;
        int a, m, d;
        const char* item;
        int ano;
    } casos[] = {
        {"TrimestreAño", 2024, 1, 15, "CUARTO", 2023},
        {"TrimestreAño", 2024, 4, 15, "PRIMERO", 2024},
        {"SemestreAño", 2024, 7, 3, "PRIMERO", 2024},
        {"SemestreAño", 2024, 6, 30, "SEGUNDO", 2023},
    };
    for (const Caso& c : casos) {
        Hoy hoy(c.a, c.m, c.d);
        TFPreguntaDatos f(nullptr, QString::fromUtf8(c.tipo));
        QComboBox* lista = f.cbSemestre ? f.cbSemestre : f.cbTrimestre;
        QSpinBox* ano = f.cbSemestre ? f.seAno6 : f.seAno5;
        EXPECT_EQ(lista->currentText(), QString::fromUtf8(c.item)) << c.tipo << " " << c.m;
        EXPECT_EQ(ano->value(), c.ano) << c.tipo << " " << c.m;
    }
}

TEST(PreguntaDatos, MonthKindsProposeThePreviousMonth) {
    Hoy hoy(2024, 1, 10);
    TFPreguntaDatos f(nullptr, QStringLiteral("MesAño"));
    EXPECT_EQ(f.cbMes->currentText(), QStringLiteral("DICIEMBRE"));
    EXPECT_EQ(f.seAno4->value(), 2023);
    TFPreguntaDatos g(nullptr, QStringLiteral("BalanMensualCobro"));
    EXPECT_EQ(g.cbMes16->currentText(), QStringLiteral("DICIEMBRE"));
    EXPECT_FALSE(g.seAno3->isVisibleTo(&g));
    EXPECT_FALSE(g.eIVA2->isEnabled());
    EXPECT_TRUE(g.gbBalanMensualCobroMes->isVisibleTo(&g));
}

TEST(PreguntaDatos, ALetterEndsAnInvoiceNumber) {
    FormularioVisible f(QStringLiteral("NumeroFactura"));
    teclea(f.EANONUMEROBIS, QStringLiteral("2x3y"));
    EXPECT_EQ(f.EANONUMEROBIS->text(), QStringLiteral("2x")); // the bis letter; nothing may follow it
    teclea(f.ENUMEROBIS, QStringLiteral("12b"));
    EXPECT_EQ(f.ENUMEROBIS->text(), QStringLiteral("B"));
}

// What -1 does in each kind is answered through `nodrim batch` (tests/nodrim/test_formularios.cpp).
TEST(PreguntaDatos, MinuteNumbersTakeZeroButNotASixthDigit) {
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado(mensajes);
    for (const char* tipo : {"NumeroMinuta", "NumeroMinuta2"}) {
        SCOPED_TRACE(tipo);
        FormularioVisible f(QString::fromUtf8(tipo));
        f.seNumero9->selectAll();
        teclea(f.seNumero9, QStringLiteral("100000"));
        EXPECT_EQ(f.seNumero9->value(), 10000);
        f.seNumero9->selectAll();
        teclea(f.seNumero9, QStringLiteral("0"));
        sale(f.seNumero9);
        f.btnAceptarClick();
        EXPECT_EQ(f.result(), 1);
        EXPECT_EQ(f.seNumero9->value(), 0);
    }
    EXPECT_TRUE(mensajes.mostrados().isEmpty());
}

// Every year field is built alike: letters and years past the range refused, two figures completed on
// leaving.
TEST(PreguntaDatos, YearFieldsCompleteTwoDigitYearsOnLeavingAndRefuseLetters) {
    struct Caso {
        const char* escrito;
        int ano;
    } casos[] = {{"05", 2005},   {"5", 2005},    {"98", 1998}, {"150", 150},
                 {"2024", 2024}, {"2a0x", 2020}, {"5000", 500}};
    for (const Caso& c : casos) {
        FormularioVisible f(QStringLiteral("NumeroAño"));
        f.seAno7->setFocus(Qt::TabFocusReason);
        f.seAno7->selectAll();
        QTest::keyClicks(f.seAno7, QString::fromUtf8(c.escrito));
        sale(f.seAno7);
        EXPECT_EQ(f.seAno7->value(), c.ano) << c.escrito;
        EXPECT_FALSE(f.seAno7->hasFocus());
    }
}

TEST(PreguntaDatos, MonthListDigitsAndLetters) {
    FormularioVisible f(QStringLiteral("MesAño"));
    struct Paso {
        const char* teclas;
        const char* texto;
    } pasos[] = {
        {"1", "ENERO"},      {"2", "DICIEMBRE"}, {"1", "ENERO"}, {"0", "OCTUBRE"}, {"0", "OCTUBRE"},
        {"9", "SEPTIEMBRE"}, {"m", "MARZO"},     {"a", "MARZO"}, {"y", "MAYO"},
    };
    f.cbMes->setFocus(Qt::TabFocusReason);
    for (const Paso& p : pasos) {
        QTest::keyClicks(f.cbMes, QString::fromUtf8(p.teclas));
        EXPECT_EQ(f.cbMes->currentText(), QString::fromUtf8(p.texto)) << p.teclas;
    }
    // What follows the typed prefix is selected, so the next letter continues the prefix.
    EXPECT_EQ(f.cbMes->lineEdit()->selectedText(), QStringLiteral("O"));
    QTest::keyClick(f.cbMes, Qt::Key_Backspace);
    EXPECT_EQ(f.cbMes->currentText(), QStringLiteral("MARZO"));
    QTest::keyClicks(f.cbMes, QStringLiteral("x")); // no month begins "MX": ignored
    EXPECT_EQ(f.cbMes->currentText(), QStringLiteral("MARZO"));
    f.cbMes->lineEdit()->selectAll();
    QTest::keyClick(f.cbMes, Qt::Key_Backspace);
    EXPECT_EQ(f.cbMes->currentText(), QString());
    EXPECT_EQ(TFPreguntaDatos::ItemIndex(f.cbMes), -1);
}

TEST(PreguntaDatos, DigitsPastTheEndOfAShortListLeaveItWithoutAnItem) {
    struct Caso {
        const char* tipo;
        const char* teclas;
    } casos[] = {{"TrimestreAño", "12"}, {"TrimestreAño", "5"}, {"SemestreAño", "12"}, {"SemestreAño", "3"}};
    for (const Caso& c : casos) {
        FormularioVisible f(QString::fromUtf8(c.tipo));
        QComboBox* lista = f.cbTrimestre ? f.cbTrimestre : f.cbSemestre;
        lista->setCurrentIndex(lista->count() - 1);
        lista->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(lista, QString::fromUtf8(c.teclas));
        EXPECT_EQ(TFPreguntaDatos::ItemIndex(lista), -1) << c.tipo << " " << c.teclas;
        EXPECT_TRUE(lista->currentText().isEmpty());
    }
}

TEST(PreguntaDatos, EnterMovesToTheNextControlAndEscapeCancels) {
    FormularioVisible f(QStringLiteral("MesAño"));
    EXPECT_TRUE(f.cbMes->hasFocus());
    for (QWidget* siguiente : std::initializer_list<QWidget*>{f.seAno4, f.btnAceptar, f.btnCANCELAR}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(siguiente->hasFocus()) << siguiente->objectName().toStdString();
    }
    EXPECT_TRUE(f.isVisible()); // Enter on a button moves on, it does not press it
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(f.result(), 2);
}

TEST(PreguntaDatos, GaragePricesInEuros) {
    TFPreguntaDatos f(nullptr, QStringLiteral("Garajes"));
    EXPECT_EQ(f.lblPrecioGarajes->text(), QStringLiteral("a 9,02 Euros (1.500 pts.):"));
    EXPECT_EQ(f.lblPrecioTrasteros->text(), QStringLiteral("a 6,01 Euros (1.000 pts.):"));
    EXPECT_EQ(f.lblPrecioAnejos->text(), QStringLiteral("a 6,01 Euros (1.000 pts.):"));
}

TEST(PreguntaDatos, HandlersOfTheOtherPanels) {
    // FENuevo1Change: the new range keeps the old one's length.
    {
        FormularioVisible f(QStringLiteral("Renumerar"));
        f.FEPoliza1->PonValor(100);
        f.FEPoliza2->PonValor(140);
        f.FENuevo1->clear();
        teclea(f.FENuevo1, QStringLiteral("500"));
        EXPECT_EQ(f.FENuevo2->Valor(), 540);
    }
    // CBExclusionClick: the letter only while nothing is excluded.
    {
        FormularioVisible f(QStringLiteral("TrimestralSinNif"));
        EXPECT_FALSE(f.ELetraNIF->isEnabled());
        QTest::mouseClick(f.CBExclusion, Qt::LeftButton);
        EXPECT_TRUE(f.ELetraNIF->isEnabled());
    }
    // EDiasChange: two figures move on to "&Aceptar"; a third is undone, pasted or typed.
    {
        FormularioVisible f(QStringLiteral("XDias"));
        f.EDias->clear();
        teclea(f.EDias, QStringLiteral("15"));
        EXPECT_TRUE(f.btnAceptar->hasFocus());
        f.EDias->setFocus();
        f.EDias->insert(QStringLiteral("12345"));
        EXPECT_EQ(f.EDias->text(), QStringLiteral("15"));
    }
    // EnteroPress: digits and Backspace only; Delete still deletes.
    {
        FormularioVisible f(QStringLiteral("ImpresionTestamentos"));
        f.EDesde->clear();
        teclea(f.EDesde, QStringLiteral("1a2-3"));
        EXPECT_EQ(f.EDesde->text(), QStringLiteral("123"));
        f.EDesde->setCursorPosition(0);
        QTest::keyClick(f.EDesde, Qt::Key_Delete);
        EXPECT_EQ(f.EDesde->text(), QStringLiteral("23"));
        QTest::keyClick(f.EDesde, Qt::Key_End);
        QTest::keyClick(f.EDesde, Qt::Key_Backspace);
        EXPECT_EQ(f.EDesde->text(), QStringLiteral("2"));
    }
    // gbBalanMensualCobroMesExit: the month chosen gives the deeds' dates on leaving the group.
    {
        Hoy hoy(2024, 6, 10);
        FormularioVisible f(QStringLiteral("BalanMensualCobro"));
        f.cbMes16->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(f.cbMes16, QStringLiteral("2"));
        f.seAno16->setValue(2024);
        sale(f.cbMes16);
        EXPECT_EQ(f.dtpDesde16->date(), QDate(2024, 6, 10)); // still inside the group: not yet
        sale(f.seAno16);
        EXPECT_EQ(f.dtpDesde16->date(), QDate(2024, 2, 1));
        EXPECT_EQ(f.dtpHasta16->date(), QDate(2024, 2, 29));
    }
    // The focus mark follows the focus.
    {
        FormularioVisible f(QStringLiteral("NumeroAño"));
        EXPECT_TRUE(TieneFocoMarcado(f.seNumero2));
        sale(f.seNumero2);
        EXPECT_FALSE(TieneFocoMarcado(f.seNumero2));
        EXPECT_TRUE(TieneFocoMarcado(f.seAno7));
    }
}

TEST(PreguntaDatos, VatRateTakesTwoFiguresAndTwoDecimals) {
    prueba::OficinaPrueba oficina(QStringLiteral("[NOTARIA]\nColegio=5\n[FACTURACION]\nTipoIva=21\n"));
    FormularioVisible f(QStringLiteral("BalanMensaEspecial"));
    EXPECT_EQ(f.lblIVA2->text(), QStringLiteral("Tipo de IGIC:"));
    EXPECT_EQ(f.eIVA2->text(), QStringLiteral("21,00"));
    f.eIVA2->clear();
    teclea(f.eIVA2, QStringLiteral("123.456x"));
    EXPECT_EQ(f.eIVA2->text(), QStringLiteral("12,45"));
}

// The series-A invoice table of notary 1 in a test office: rows with the given numbers, or none.
class FacturaA : public ::testing::Test {
protected:
    prueba::OficinaPrueba oficina{QStringLiteral("[ALIAS]\nDBNOTARIO1=N1\nDB=DATOS\n")};
    QString ruta() const { return oficina.ruta(QStringLiteral("N1/FACTURAA.DBF")); }
    void crea(std::initializer_list<int> numeros) {
        QDir().mkpath(oficina.ruta(QStringLiteral("N1")));
        CreaFicheroDbf(ruta(), {{QStringLiteral("CODNUMERO"), 'N', 12, 0},
                                {QStringLiteral("NUMEROFAC"), 'N', 8, 0},
                                {QStringLiteral("BIS"), 'C', 1, 0},
                                {QStringLiteral("FECHAPAGO"), 'D', 8, 0}});
        auto tb = TTabla::AbreRuta(ruta());
        for (int n : numeros) {
            tb->Append();
            tb->SetInteger(QStringLiteral("NUMEROFAC"), n);
            tb->Post();
        }
    }
};

TEST_F(FacturaA, TheNextNumberFollowsTheLastInvoice) {
    crea({7, 41, 12});
    TFPreguntaDatos fisico(nullptr, QStringLiteral("PideNumeroFactura"));
    EXPECT_EQ(fisico.ENUMEROFAC->value(), 13); // the last row written
    Config.SetCriterioFacturacion(2);
    TFPreguntaDatos porNumero(nullptr, QStringLiteral("PideNumeroFactura"));
    EXPECT_EQ(porNumero.ENUMEROFAC->value(), 42); // the highest number
    EXPECT_TRUE(porNumero.btnAceptar->isEnabled());
}

TEST_F(FacturaA, AnEmptyMissingOrDamagedTableLeavesOnlySalir) {
    const auto compruebaBloqueada = [] {
        TFPreguntaDatos f(nullptr, QStringLiteral("PideNumeroFactura"));
        EXPECT_FALSE(f.btnAceptar->isEnabled());
        EXPECT_FALSE(f.ENUMEROFAC->isEnabled());
        EXPECT_TRUE(f.btnCANCELAR->isEnabled());
    };
    compruebaBloqueada(); // missing
    crea({});
    compruebaBloqueada(); // empty
    crea({5});
    QFile f(ruta());
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    f.resize(40); // cut inside the header
    f.close();
    OlvidaTablasCargadas();
    compruebaBloqueada(); // damaged
}

TEST(PreguntaDatos, OfficialsComeFromTheStaffTableInItsOrder) {
    prueba::OficinaPrueba oficina(QStringLiteral("[ALIAS]\nDB=DATOS\n"));
    // No table, then an empty one: an empty list, no error.
    EXPECT_EQ(TFPreguntaDatos(nullptr, QStringLiteral("Oficial")).CBOficial->count(), 0);
    QDir().mkpath(oficina.ruta(QStringLiteral("DATOS")));
    const QString ruta = oficina.ruta(QStringLiteral("DATOS/EMPLEADO.DBF"));
    CreaFicheroDbf(ruta, {{QStringLiteral("CODUSER"), 'N', 4, 0}, {QStringLiteral("NOMBRE"), 'C', 40, 0}});
    EXPECT_EQ(TFPreguntaDatos(nullptr, QStringLiteral("Oficial")).CBOficial->count(), 0);
    auto tb = TTabla::AbreRuta(ruta);
    for (const char* n : {"ZAPATA RUIZ, ANA", "ÁLVAREZ PÉREZ, JOSÉ"}) {
        tb->Append();
        tb->SetString(QStringLiteral("NOMBRE"), QString::fromUtf8(n));
        tb->Post();
    }
    TFPreguntaDatos f(nullptr, QStringLiteral("Oficial"));
    ASSERT_EQ(f.CBOficial->count(), 2);
    EXPECT_EQ(f.CBOficial->itemText(0), QStringLiteral("ZAPATA RUIZ, ANA"));
    EXPECT_EQ(f.CBOficial->itemText(1), QStringLiteral("ÁLVAREZ PÉREZ, JOSÉ"));
}

TEST(PreguntaDatos, NotariesByNameAndTheSelectedOneUntouched) {
    prueba::OficinaPrueba oficina(QStringLiteral("[GENERAL]\nNumeroNotarios=3\nNotario=2\n[NOTARIO1]\nNombre="
                                                 "Dª. Ana Ruiz\n[NOTARIO2]\nNombre=D. Luis Gil\n"));
    Config.SetNombreNotario(QStringLiteral("cambiado en memoria"));
    TFPreguntaDatos f(nullptr, QStringLiteral("Notario"));
    ASSERT_EQ(f.cbNotario->count(), 3);
    EXPECT_EQ(f.cbNotario->itemText(0), QStringLiteral("Dª. Ana Ruiz"));
    EXPECT_EQ(f.cbNotario->itemText(2), QStringLiteral("Notario 3"));
    EXPECT_EQ(Config.GetsNotario(), QStringLiteral("2"));
    EXPECT_EQ(Config.GetNombreNotario(), QStringLiteral("cambiado en memoria"));
}

} // namespace
