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
using namespace Qt::StringLiterals;
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
            EXPECT_EQ(f.windowTitle(), u"Profesión jurídica"_s);
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
    prueba::OficinaPrueba oficina(u"[GENERAL]\nNotario=2\n"_s);
    Hoy hoy(2024, 3, 1);
    struct Caso {
        const char *serie, *numero, *bis;
        const char* salida; // series|number|bis
        const char* prefijo = nullptr;
        int anoFacturas = 0;
    } casos[] = {
        {"A", "23", "", "2A|202400023 | "},
        {"a", "23b", "t", "2A|202400023B|T"},
        {"1B", "199800010a", "c", "1B|199800010a|C"},
        {"", "", "", "  |202400000 | "},
        {"A", "", "", "2A|202400000 | "},
        {"A", "123456", "", "2A|2024123456| "},
        {"A", "23", "", "7A|200900023 | ", "7", 2009},
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
        EXPECT_EQ(serie + u'|' + numero + u'|' + bis, QString::fromUtf8(c.salida)) << c.numero;
    }
}

TEST(Preguntas, SerieGastosAndMonedaShowNothingWhenTheOfficeSaysSo) {
    prueba::OficinaPrueba oficina(u"[FACTURACION]\nSerieGastos=S\n"_s);
    Responde r([](TFPreguntaDatos& f) {
        if (f.rbSerieP) f.rbSerieP->setChecked(true);
        acepta(f);
    });
    // Not asked: true at once, the configured series stays; euros only: "E" without a form.
    for (int ajuste : {0, 2}) {
        Config.SetnPreguntaSerieGastos(ajuste);
        EXPECT_TRUE(PreguntaSerieGastos());
    }
    QString moneda = u"P"_s;
    EXPECT_TRUE(PreguntaMoneda(moneda, 0, 0, u"Listado"_s));
    EXPECT_EQ(moneda, u"E"_s);
    EXPECT_EQ(r.veces, 0);
    EXPECT_EQ(Config.GetSerieGastos(), u"S"_s);
    // Asked: the clerk's choice (the currency's form is answered through `nodrim batch`).
    Config.SetnPreguntaSerieGastos(1);
    EXPECT_TRUE(PreguntaSerieGastos());
    EXPECT_EQ(Config.GetSerieGastos(), u"P"_s);
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
            EXPECT_EQ(f.lblCantidad->text(), u"Importe:"_s);
            f.FECantidad->setFocus();
            f.FECantidad->selectAll();
            QTest::keyClicks(f.FECantidad, QString::fromUtf8(c.tecleado));
            acepta(f);
        });
        ASSERT_TRUE(PreguntaCantidad(cantidad, u"Importe:"_s, QString::fromUtf8(c.moneda)));
        EXPECT_DOUBLE_EQ(cantidad, c.salida) << c.tecleado;
    }
}

TEST(Preguntas, YearAndMinuteStartValues) {
    Hoy hoy(2025, 6, 1);
    Responde r([](TFPreguntaDatos& f) { acepta(f); });
    int ano = 0;
    ASSERT_TRUE(PreguntaAno(ano, u"Año"_s, {}, 0, 0));
    EXPECT_EQ(ano, 2025);
    QString anoTexto = u"1999"_s;
    ASSERT_TRUE(PreguntaAno(anoTexto, u"Año"_s, u"Ejercicio:"_s, 0, 0));
    EXPECT_EQ(anoTexto, u"1999"_s);
    // A year of 0 starts the minute number at 0, on purpose.
    int numero = 77, anoMinuta = 0;
    ASSERT_TRUE(PreguntaNumeroMinuta(numero, anoMinuta, u"Minuta"_s, {}, false));
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
    EXPECT_EQ(series, u"ABCDEF"_s);
    EXPECT_TRUE(todas);
    EXPECT_EQ(Config.GetsComunDocumentosCliente(), u"ABCDEF"_s);
    series = u"AD"_s;
    todas = false;
    ASSERT_TRUE(PreguntaSerieInteresado(todas, series, {}));
    EXPECT_EQ(series, u"A"_s);
    EXPECT_FALSE(todas);
    EXPECT_EQ(Config.GetsComunDocumentosCliente(), u"ABCDEF"_s);
}

TEST(Preguntas, CancelLeavesEveryOutputAsItCameIn) {
    prueba::OficinaPrueba oficina(u"[MONEDA]\nSoloEuros=0\n[FACTURACION]\nPreguntaSerieGastos=1\n"_s);
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
                e->setText(u"12"_s);
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
    QString s1 = u"s1"_s, s2 = u"s2"_s, s3 = u"s3"_s;
    TDateTime t1 = d0, t2 = d0, t3 = d0;
    QChar c = u'C';
    const Llamada llamadas[] = {
        {"PreguntaTexto", [&] { return PreguntaTexto(u"t"_s, s1); }},
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
        {"PreguntaCantidad", [&] { return PreguntaCantidad(x, {}, u"E"_s); }},
        {"PreguntaCantidadMaxMin", [&] { return PreguntaCantidadMaxMin(x, y, u"E"_s); }},
        {"PreguntaCuantia", [&] { return PreguntaCuantia(x, u"E"_s); }},
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
        EXPECT_EQ(std::tie(n, a, m, x, y, b1, b2, b3, t1, t2, t3),
                  std::make_tuple(5, 1990, 3, 4.5, 6.5, true, false, true, d0, d0, d0))
            << l.rutina;
        EXPECT_EQ(QStringList({s1, s2, s3, c}), QStringList({u"s1"_s, u"s2"_s, u"s3"_s, u"C"_s})) << l.rutina;
    }
    EXPECT_EQ(Config.GetSerieGastos(), u"R"_s);
    EXPECT_EQ(Config.GetsComunDocumentosCliente(), u"ABCEF"_s);
}

TEST(Preguntas, AnExceptionThroughTheFormFreesItAndCopiesNothing) {
    EjecutorModalInstalado lanza([](QDialog& d) -> int {
        d.show();
        throw std::runtime_error("fallo del programa");
    });
    int mes = 4, ano = 2010;
    EXPECT_THROW(PreguntaMesAno(mes, ano, u"Mes"_s, 0, 0), std::runtime_error);
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
        EXPECT_EQ(f.lblTexto->toolTip(), largo + u"\n<b>"_s);
        EXPECT_LE(f.width(), 800);
        f.eTexto->setText(f.eTexto->text() + u" & Cía <S.L.>"_s);
        acepta(f);
    });
    QString texto = u"Pérez"_s;
    ASSERT_TRUE(PreguntaTexto(largo + u"\r<b>"_s, texto));
    EXPECT_EQ(texto, u"Pérez & Cía <S.L.>"_s);
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
            EXPECT_EQ(f->windowTitle(), u"Facturación"_s);
            EXPECT_EQ(f->LPregunta->text(), u"Clave de acceso:"_s);
            EXPECT_EQ(f->EClave->echoMode(), QLineEdit::Password);
            QTest::keyClicks(f->EClave, QString::fromUtf8(c.tecleada));
            (c.boton == 1 ? f->BBAceptar : f->BBCancelar)->click();
            return d.result();
        });
        EXPECT_EQ(PreguntaClave(u"Facturación"_s, u"Clave de acceso:"_s, QString::fromUtf8(c.esperada)),
                  c.resultado)
            << c.tecleada << " " << c.boton;
    }
}

TEST(Preguntas, FicheroOpensOnTheModelsFolderUnderTheDriveRoot) {
    prueba::OficinaPrueba oficina;
    oficina.escribe(u"C/MODELOS/carta.doc"_s, u"x"_s);
    EjecutorModalInstalado e([&](QDialog& d) {
        auto* f = qobject_cast<QFileDialog*>(&d);
        EXPECT_NE(f, nullptr);
        EXPECT_EQ(QDir(f->directory()).canonicalPath(), QDir(oficina.ruta(u"C/MODELOS"_s)).canonicalPath());
        EXPECT_EQ(f->nameFilters().size(), 3);
        f->selectFile(u"carta.doc"_s);
        QMetaObject::invokeMethod(f, "accept");
        return f->result();
    });
    QString fichero;
    ASSERT_TRUE(PreguntaFichero(u"Plantilla"_s, fichero, {}));
    EXPECT_EQ(QFileInfo(fichero).canonicalFilePath(),
              QFileInfo(oficina.ruta(u"C/MODELOS/carta.doc"_s)).canonicalFilePath());
}

TEST(Preguntas, RealModalLoopClosesWithEscapeAndLeavesNoWindow) {
    // The one test that runs the real exec(): Escape from the first field gives cancel.
    int mes = 2, ano = 2020;
    prueba::AlAbrirseModal([](QWidget* w) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : w, Qt::Key_Escape);
    });
    EXPECT_FALSE(PreguntaMesAno(mes, ano, u"Mes"_s, 0, 0));
    EXPECT_EQ(mes, 2);
    EXPECT_EQ(prueba::VentanasVisibles(), 0);
}

} // namespace
