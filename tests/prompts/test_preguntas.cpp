// The prompt routines: what they put into the form, and what they copy out, only on acceptance.
// Forms are answered in place through the modal seam, as a clerk would answer them.
#include "companion/config.h"
#include "companion/editimporte.h"
#include "companion/modal.h"
#include "companion/pideclave.h"
#include "prompts/preguntas.h"
#include "tests/prompts/prueba_preguntas.h"
#include "tests/support/modal.h"
#include "tests/support/oficina_prueba.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
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

// Answers every form with `accion`, run on the form once it is shown; the clerk's press sets the result.
class Responde {
public:
    explicit Responde(std::function<void(TFPreguntaDatos&)> accion)
        : m_instalado([this, accion](QDialog& d) {
            ++veces;
            d.show();
            auto* f = qobject_cast<TFPreguntaDatos*>(&d);
            EXPECT_NE(f, nullptr);
            if (f) accion(*f);
            d.hide();
            return d.result();
        }) {}
    int veces = 0;

private:
    EjecutorModalInstalado m_instalado;
};

// The clerk presses "&Aceptar" (leaving the focused field first, as a click does).
void acepta(TFPreguntaDatos& f) {
    f.btnAceptar->setFocus(Qt::MouseFocusReason);
    f.btnAceptar->click();
}

TEST(Preguntas, ProfesionJuridica) {
    struct Caso {
        int codigo;
        int itemMostrado;
        int itemElegido; // -1: accepted as shown
        int resultado;
    } casos[] = {{5, -1, -1, 5}, {2, 1, -1, 2}, {9, 3, -1, 9}, {5, -1, 3, 9}, {1, 0, 2, 3}};
    for (const Caso& c : casos) {
        int codigo = c.codigo;
        Responde r([&](TFPreguntaDatos& f) {
            EXPECT_EQ(f.windowTitle(), QStringLiteral("Profesión jurídica"));
            EXPECT_EQ(f.cbNotario->currentIndex(), c.itemMostrado) << c.codigo;
            if (c.itemElegido >= 0) f.cbNotario->setCurrentIndex(c.itemElegido);
            acepta(f);
        });
        EXPECT_TRUE(PreguntaProfesionJuridica(nullptr, codigo));
        EXPECT_EQ(codigo, c.resultado) << c.codigo;
    }
}

// The series takes the notary's number (or the configured prefix), the number the year (today's or the
// configured one); then the series is padded to two, the number to ten and the bis to one.
TEST(Preguntas, NumeroFacturaComposesAndPads) {
    prueba::OficinaPrueba oficina(QStringLiteral("[GENERAL]\nNotario=2\n"));
    Hoy hoy(2024, 3, 1);
    struct Caso {
        const char *serie, *numero, *bis;
        const char *s, *n, *b;
        const char* prefijo = nullptr;
        int anoFacturas = 0;
    } casos[] = {
        {"A", "23", "", "2A", "202400023 ", " "},
        {"a", "23b", "t", "2A", "202400023B", "T"},
        {"1B", "199800010a", "c", "1B", "199800010a", "C"},
        {"", "", "", "  ", "202400000 ", " "},
        {"A", "", "", "2A", "202400000 ", " "},
        {"A", "123456", "", "2A", "2024123456", " "},
        {"A", "23", "", "7A", "200900023 ", " ", "7", 2009},
    };
    for (const Caso& c : casos) {
        if (c.prefijo) {
            Config.SetPrefijoFacturas(QString::fromUtf8(c.prefijo));
            Config.SetnAnoFacturas(c.anoFacturas);
        }
        Responde r([&](TFPreguntaDatos& f) {
            for (auto [campo, texto] :
                 {std::pair{f.ENOTARIOSERIE, c.serie}, {f.EANONUMEROBIS, c.numero}, {f.ENUMEROBIS, c.bis}}) {
                campo->setFocus(Qt::MouseFocusReason);
                QTest::keyClicks(campo, QString::fromUtf8(texto));
            }
            acepta(f);
        });
        QString serie, numero, bis;
        ASSERT_TRUE(PreguntaNumeroFactura(serie, numero, bis));
        EXPECT_EQ(serie, QString::fromUtf8(c.s)) << c.numero;
        EXPECT_EQ(numero, QString::fromUtf8(c.n)) << c.numero;
        EXPECT_EQ(bis, QString::fromUtf8(c.b)) << c.numero;
    }
}

TEST(Preguntas, SerieGastosAndMonedaShowNothingWhenTheOfficeSaysSo) {
    prueba::OficinaPrueba oficina(QStringLiteral("[FACTURACION]\nSerieGastos=S\n"));
    Responde r([](TFPreguntaDatos& f) {
        if (f.rbSerieP) f.rbSerieP->setChecked(true);
        acepta(f);
    });
    // Not asked: true at once, the configured series stays; euros only: "E" without a form.
    for (int ajuste : {0, 2}) {
        Config.SetnPreguntaSerieGastos(ajuste);
        EXPECT_TRUE(PreguntaSerieGastos());
    }
    QString moneda = QStringLiteral("P");
    EXPECT_TRUE(PreguntaMoneda(moneda, 0, 0, QStringLiteral("Listado")));
    EXPECT_EQ(moneda, QStringLiteral("E"));
    EXPECT_EQ(r.veces, 0);
    EXPECT_EQ(Config.GetSerieGastos(), QStringLiteral("S"));
    // Asked: the clerk's choice (the currency's form is answered through `nodrim batch`).
    Config.SetnPreguntaSerieGastos(1);
    EXPECT_TRUE(PreguntaSerieGastos());
    EXPECT_EQ(Config.GetSerieGastos(), QStringLiteral("P"));
    EXPECT_EQ(r.veces, 1);
}

TEST(Preguntas, AmountsByCurrency) {
    struct Caso {
        const char* moneda;
        double entrada;
        double mostrado;
        int decimales;
        const char* tecleado;
        double salida;
    } casos[] = {
        {"E", 1234.567, 1234.57, 2, "1500.50", 1500.5},
        {"P", 1234.567, 1235, 0, "1.500", 1500},
        {"E", 0, 0, 2, "150000.5", 150000.5},
    };
    for (const Caso& c : casos) {
        double cantidad = c.entrada;
        Responde r([&](TFPreguntaDatos& f) {
            EXPECT_EQ(f.FECantidad->Valor(), c.mostrado);
            EXPECT_EQ(f.FECantidad->Decimales(), c.decimales);
            EXPECT_EQ(f.lblCantidad->text(), QStringLiteral("Importe:"));
            f.FECantidad->setFocus();
            f.FECantidad->selectAll();
            QTest::keyClicks(f.FECantidad, QString::fromUtf8(c.tecleado));
            acepta(f);
        });
        ASSERT_TRUE(PreguntaCantidad(cantidad, QStringLiteral("Importe:"), QString::fromUtf8(c.moneda)));
        EXPECT_DOUBLE_EQ(cantidad, c.salida) << c.tecleado;
    }
}

TEST(Preguntas, YearAndMinuteStartValues) {
    Hoy hoy(2025, 6, 1);
    Responde r([](TFPreguntaDatos& f) { acepta(f); });
    int ano = 0;
    ASSERT_TRUE(PreguntaAno(ano, QStringLiteral("Año"), {}, 0, 0));
    EXPECT_EQ(ano, 2025);
    QString anoTexto = QStringLiteral("1999");
    ASSERT_TRUE(PreguntaAno(anoTexto, QStringLiteral("Año"), QStringLiteral("Ejercicio:"), 0, 0));
    EXPECT_EQ(anoTexto, QStringLiteral("1999"));
    // A year of 0 starts the minute number at 0, on purpose.
    int numero = 77, anoMinuta = 0;
    ASSERT_TRUE(PreguntaNumeroMinuta(numero, anoMinuta, QStringLiteral("Minuta"), {}, false));
    EXPECT_EQ(numero, 0);
}

// The client's series start from the configured ones and are stored; an interested party's are not.
TEST(Preguntas, ChoicesComeBackAsLettersInTheOrderOfTheBoxes) {
    prueba::OficinaPrueba oficina;
    Responde r([](TFPreguntaDatos& f) {
        if (f.cbClienteD) f.cbClienteD->click();
        acepta(f);
    });
    bool todas = false;
    QString series;
    ASSERT_TRUE(PreguntaSerieCliente(todas, series, {}));
    EXPECT_EQ(series, QStringLiteral("ABCDEF"));
    EXPECT_TRUE(todas);
    EXPECT_EQ(Config.GetsComunDocumentosCliente(), QStringLiteral("ABCDEF"));
    series = QStringLiteral("AD");
    todas = false;
    ASSERT_TRUE(PreguntaSerieInteresado(todas, series, {}));
    EXPECT_EQ(series, QStringLiteral("A"));
    EXPECT_FALSE(todas);
    EXPECT_EQ(Config.GetsComunDocumentosCliente(), QStringLiteral("ABCDEF"));
}

TEST(Preguntas, CancelLeavesEveryOutputAsItCameIn) {
    prueba::OficinaPrueba oficina(
        QStringLiteral("[MONEDA]\nSoloEuros=0\n[FACTURACION]\nPreguntaSerieGastos=1\n"));
    // The clerk changes every control of the panel, then leaves with "Sa&lir".
    Responde r([](TFPreguntaDatos& f) {
        for (QWidget* w : f.PanelActivo()->findChildren<QWidget*>()) {
            if (auto* s = qobject_cast<QSpinBox*>(w)) s->setValue(s->maximum());
            if (auto* c = qobject_cast<QComboBox*>(w); c && c->count()) c->setCurrentIndex(c->count() - 1);
            if (auto* b = qobject_cast<QCheckBox*>(w)) b->toggle();
            if (auto* b = qobject_cast<QRadioButton*>(w)) b->setChecked(true);
            if (auto* d = qobject_cast<QDateTimeEdit*>(w)) d->setDate(QDate(2001, 2, 3));
            if (auto* importe = qobject_cast<TEditImporte*>(w))
                importe->PonValor(987);
            else if (auto* e = qobject_cast<QLineEdit*>(w);
                     e && !e->parent()->inherits("QAbstractSpinBox") && !e->parent()->inherits("QComboBox"))
                e->setText(QStringLiteral("12"));
        }
        QTest::keyClick(f.btnCANCELAR, Qt::Key_Space);
    });
    const TDateTime d0 = 1000.5;
    struct Llamada {
        const char* rutina;
        std::function<bool()> llama;
    };
    int n = 5, a = 1990, m = 3;
    double x = 4.5, y = 6.5;
    bool b1 = true, b2 = false, b3 = true;
    QString s1 = QStringLiteral("s1"), s2 = QStringLiteral("s2"), s3 = QStringLiteral("s3");
    TDateTime t1 = d0, t2 = d0, t3 = d0;
    QChar c = u'C';
    const Llamada llamadas[] = {
        {"PreguntaTexto", [&] { return PreguntaTexto(QStringLiteral("t"), s1); }},
        {"PreguntaOficial", [&] { return PreguntaOficial(s1); }},
        {"PreguntaNotario", [&] { return PreguntaNotario(nullptr, s1); }},
        {"PreguntaProfesionJuridica", [&] { return PreguntaProfesionJuridica(nullptr, n); }},
        {"PreguntaDesdeElDia", [&] { return PreguntaDesdeElDia(t1, 0, 0, {}, {}); }},
        {"PreguntaDesdeHastaElDia", [&] { return PreguntaDesdeHastaElDia(1, t1, t2, 0); }},
        {"PreguntaDesdeHastaElDiaTitul", [&] { return PreguntaDesdeHastaElDiaTitul(t1, t2, 0, {}, 0); }},
        {"PreguntaNumAno", [&] { return PreguntaNumAno(n, a, {}, 0, true); }},
        {"PreguntaNumeroMinuta", [&] { return PreguntaNumeroMinuta(n, a, {}, {}, true); }},
        {"PreguntaNumeroFactura", [&] { return PreguntaNumeroFactura(s1, s2, s3); }},
        {"PreguntaReparacionCliente", [&] { return PreguntaReparacionCliente(s1); }},
        {"PreguntaTurnoPolizas", [&] { return PreguntaTurnoPolizas(a, m, x, y, {}, 0, 0); }},
        {"PreguntaSexoClientes", [&] { return PreguntaSexoClientes(s1, {}, 0, 0); }},
        {"PreguntaPorcentaje", [&] { return PreguntaPorcentaje(x, {}); }},
        {"PreguntaCheckBox", [&] { return PreguntaCheckBox(b1, {}, {}); }},
        {"PreguntaAno", [&] { return PreguntaAno(s1, {}, {}, 0, 0); }},
        {"PreguntaAno(int)", [&] { return PreguntaAno(a, {}, {}, 0, 0); }},
        {"PreguntaBalanMensaEspecial", [&] { return PreguntaBalanMensaEspecial(a, s1, b1, b2, b3, s2, {}); }},
        {"PreguntaBalanMensualCobro",
         [&] { return PreguntaBalanMensualCobro(m, a, b1, b2, s1, t1, t2, {}); }},
        {"PreguntaFecha", [&] { return PreguntaFecha(t1, 0, {}, {}, {}, 0); }},
        {"PreguntaMoneda", [&] { return PreguntaMoneda(s1, 0, 0, {}); }},
        {"PreguntaModeloCarta", [&] { return PreguntaModeloCarta(n); }},
        {"PreguntaMesAno", [&] { return PreguntaMesAno(m, a, {}, 0, 0); }},
        {"PreguntaMesAno(esquema)", [&] { return PreguntaMesAno(m, a, 2, QString()); }},
        {"PreguntaMesAnoSerie", [&] { return PreguntaMesAnoSerie(m, a, s1, {}, {}); }},
        {"PreguntaTrimAno", [&] { return PreguntaTrimAno(m, a, {}, 0, 0); }},
        {"PreguntaSemestreAno", [&] { return PreguntaSemestreAno(m, a, {}, 0, 0); }},
        {"PreguntaSerieAno", [&] { return PreguntaSerieAno(a, c); }},
        {"PreguntaSerieCliente", [&] { return PreguntaSerieCliente(b1, s1, {}); }},
        {"PreguntaSerieInteresado", [&] { return PreguntaSerieInteresado(b2, s1, {}); }},
        {"PreguntaNumFecha", [&] { return PreguntaNumFecha(n, t1, {}, 0, true); }},
        {"PreguntaDesdeHastaCuando", [&] { return PreguntaDesdeHastaCuando(t1, t2, t3, 0, {}, 0, 0); }},
        {"PreguntaDesdeHastaFactura", [&] { return PreguntaDesdeHastaFactura(t1, t2, s1, 0, {}, 0); }},
        {"PreguntaIndiceModeloAntiguo", [&] { return PreguntaIndiceModeloAntiguo(m, a, b1); }},
        {"PreguntaCantidad", [&] { return PreguntaCantidad(x, {}, QStringLiteral("E")); }},
        {"PreguntaCantidadMaxMin", [&] { return PreguntaCantidadMaxMin(x, y, QStringLiteral("E")); }},
        {"PreguntaCuantia", [&] { return PreguntaCuantia(x, QStringLiteral("E")); }},
        {"PreguntaCuantiaOtorgante", [&] { return PreguntaCuantiaOtorgante({}) != 0; }},
        {"PreguntaXDias", [&] { return PreguntaXDias(n, {}); }},
        {"PreguntaNumCopiasPlusvalia", [&] { return PreguntaNumCopiasPlusvalia(n); }},
        {"PreguntaSerieGastos", [&] { return PreguntaSerieGastos(); }},
        {"PreguntaRefCatastral", [&] { return PreguntaRefCatastral(s1); }},
    };
    for (const Llamada& l : llamadas) {
        const int antes = r.veces;
        EXPECT_FALSE(l.llama()) << l.rutina;
        EXPECT_EQ(r.veces, antes + 1) << l.rutina;
        EXPECT_EQ(std::tie(n, a, m), std::make_tuple(5, 1990, 3)) << l.rutina;
        EXPECT_EQ(std::tie(x, y), std::make_tuple(4.5, 6.5)) << l.rutina;
        EXPECT_EQ(std::tie(b1, b2, b3), std::make_tuple(true, false, true)) << l.rutina;
        EXPECT_EQ(std::tie(s1, s2, s3),
                  std::make_tuple(QStringLiteral("s1"), QStringLiteral("s2"), QStringLiteral("s3")))
            << l.rutina;
        EXPECT_EQ(std::tie(t1, t2, t3), std::make_tuple(d0, d0, d0)) << l.rutina;
        EXPECT_EQ(c, QChar(u'C')) << l.rutina;
    }
    EXPECT_EQ(Config.GetSerieGastos(), QStringLiteral("R"));
    EXPECT_EQ(Config.GetsComunDocumentosCliente(), QStringLiteral("ABCEF"));
}

TEST(Preguntas, AnExceptionThroughTheFormFreesItAndCopiesNothing) {
    EjecutorModalInstalado lanza([](QDialog& d) -> int {
        d.show();
        throw std::runtime_error("fallo del programa");
    });
    int mes = 4, ano = 2010;
    EXPECT_THROW(PreguntaMesAno(mes, ano, QStringLiteral("Mes"), 0, 0), std::runtime_error);
    EXPECT_EQ(mes, 4);
    EXPECT_EQ(ano, 2010);
    EXPECT_EQ(FPreguntaDatos, nullptr);
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

TEST(Preguntas, CallerTextsArePlainAndCut) {
    const QString largo(2000, u'x');
    Responde r([&](TFPreguntaDatos& f) {
        EXPECT_EQ(f.lblTexto->textFormat(), Qt::PlainText);
        EXPECT_LT(f.lblTexto->text().size(), 500);
        EXPECT_EQ(f.lblTexto->toolTip(), largo + QStringLiteral("\n<b>"));
        EXPECT_LE(f.width(), 800);
        f.eTexto->setText(f.eTexto->text() + QStringLiteral(" & Cía <S.L.>"));
        acepta(f);
    });
    QString texto = QStringLiteral("Pérez");
    ASSERT_TRUE(PreguntaTexto(largo + QStringLiteral("\r<b>"), texto));
    EXPECT_EQ(texto, QStringLiteral("Pérez & Cía <S.L.>"));
}

TEST(Preguntas, ClaveSaysWhetherTheTypedPasswordIsTheExpectedOne) {
    struct Caso {
        const char* tecleada;
        int boton; // 1 Aceptar, 2 Cancelar
        const char* esperada;
        bool resultado;
    } casos[] = {{"ZEB", 1, "ZEB", true},
                 {"zeb", 1, "ZEB", false},
                 {"ZEB", 2, "ZEB", false},
                 {"", 1, "", true},
                 {"ZEBX", 1, "ZEB", false}};
    for (const Caso& c : casos) {
        EjecutorModalInstalado e([&](QDialog& d) {
            auto* f = qobject_cast<TFPideClave*>(&d);
            EXPECT_NE(f, nullptr);
            EXPECT_EQ(f->windowTitle(), QStringLiteral("Facturación"));
            EXPECT_EQ(f->LPregunta->text(), QStringLiteral("Clave de acceso:"));
            EXPECT_EQ(f->EClave->echoMode(), QLineEdit::Password);
            QTest::keyClicks(f->EClave, QString::fromUtf8(c.tecleada));
            (c.boton == 1 ? f->BBAceptar : f->BBCancelar)->click();
            return d.result();
        });
        EXPECT_EQ(PreguntaClave(QStringLiteral("Facturación"), QStringLiteral("Clave de acceso:"),
                                QString::fromUtf8(c.esperada)),
                  c.resultado)
            << c.tecleada << " " << c.boton;
    }
}

TEST(Preguntas, FicheroOpensOnTheModelsFolderUnderTheDriveRoot) {
    prueba::OficinaPrueba oficina;
    oficina.escribe(QStringLiteral("C/MODELOS/carta.doc"), QStringLiteral("x"));
    EjecutorModalInstalado e([&](QDialog& d) {
        auto* f = qobject_cast<QFileDialog*>(&d);
        EXPECT_NE(f, nullptr);
        EXPECT_EQ(QDir(f->directory()).canonicalPath(),
                  QDir(oficina.ruta(QStringLiteral("C/MODELOS"))).canonicalPath());
        EXPECT_EQ(f->nameFilters().size(), 3);
        f->selectFile(QStringLiteral("carta.doc"));
        QMetaObject::invokeMethod(f, "accept");
        return f->result();
    });
    QString fichero;
    ASSERT_TRUE(PreguntaFichero(QStringLiteral("Plantilla"), fichero, {}));
    EXPECT_EQ(QFileInfo(fichero).canonicalFilePath(),
              QFileInfo(oficina.ruta(QStringLiteral("C/MODELOS/carta.doc"))).canonicalFilePath());
}

TEST(Preguntas, RealModalLoopClosesWithEscapeAndLeavesNoWindow) {
    // The one test that runs the real exec(): Escape from the first field gives cancel.
    int mes = 2, ano = 2020;
    prueba::AlAbrirseModal([](QWidget* w) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : w, Qt::Key_Escape);
    });
    EXPECT_FALSE(PreguntaMesAno(mes, ano, QStringLiteral("Mes"), 0, 0));
    EXPECT_EQ(mes, 2);
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

} // namespace
