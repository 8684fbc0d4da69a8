// Answering a form without a clerk: what the form reports, values entered through its handlers, and a
// clear refusal naming the control for every answer that does not fit.
#include "companion/pideclave.h"
#include "companion/respuestaformulario.h"
#include "tests/prompts/prueba_preguntas.h"
#include "tests/support/oficina_prueba.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace nod;
using namespace nod::prueba;

using namespace Qt::StringLiterals;

namespace {

QVariant valor(const FormularioMostrado& m, const char* control) {
    for (const ValorControl& v : m.valores)
        if (v.control == QLatin1String(control)) return v.valor;
    return {};
}

// What the form reports is its visible panel with the values as shown; what goes in passes its handlers.
TEST(RespuestaFormulario, DescribesTheVisiblePanelAndValuesGoInThroughTheHandlers) {
    Hoy hoy(2024, 3, 10);
    FormularioVisible f(u"TrimestralSinNif"_s);
    const FormularioMostrado m = DescribeFormulario(f);
    EXPECT_EQ(m.titulo, u"Indique el trimestre y el año."_s);
    EXPECT_EQ(m.panel, u"pnlTrimestralSinNif"_s);
    EXPECT_EQ(valor(m, "cbTrimestre2"), QVariant(u"CUARTO"_s));
    EXPECT_EQ(valor(m, "seAno12"), QVariant(u"2023"_s));
    EXPECT_EQ(valor(m, "rbModeloApaisado"), QVariant(true));
    EXPECT_EQ(valor(m, "CBExclusion"), QVariant(true));
    EXPECT_EQ(valor(m, "ELetraNIF"), QVariant(QString()));
    EXPECT_FALSE(valor(m, "seAno").isValid()); // controls of other panels do not exist
    EXPECT_EQ(m.valores.size(), 6);
    const QString e = RespondeFormulario(f, {{{u"cbTrimestre2"_s, 1},
                                              {u"seAno12"_s, u"05"_s},
                                              {u"CBExclusion"_s, false},
                                              {u"ELetraNIF"_s, u"x9"_s}},
                                             {}});
    EXPECT_TRUE(e.isEmpty()) << e.toStdString();
    EXPECT_EQ(f.result(), 1);
    EXPECT_EQ(f.cbTrimestre2->currentText(), u"SEGUNDO"_s);
    EXPECT_EQ(f.seAno12->value(), 2005);    // completed on leaving the field
    EXPECT_EQ(f.ELetraNIF->text(), u"x"_s); // one character: the second key is refused
}

TEST(RespuestaFormulario, ValuesGoInInTabOrderSoAFieldIsEnabledBeforeItIsFilled) {
    QDialog d;
    auto* todas = new QRadioButton(u"Todas"_s, &d);
    auto* una = new QRadioButton(u"Una"_s, &d);
    auto* tablas = new QComboBox(&d);
    auto* aceptar = new QPushButton(u"&Aceptar"_s, &d);
    todas->setObjectName(u"RBTodas"_s);
    una->setObjectName(u"RBUna"_s);
    tablas->setObjectName(u"CBTablas"_s);
    tablas->addItems({u"ACTIVOS"_s, u"CLIENTES"_s});
    todas->setChecked(true);
    tablas->setEnabled(false);
    QObject::connect(una, &QRadioButton::toggled, tablas, &QComboBox::setEnabled);
    QObject::connect(aceptar, &QPushButton::clicked, &d, [&] { d.done(1); });
    auto* capa = new QVBoxLayout(&d);
    for (QWidget* w : std::initializer_list<QWidget*>{todas, una, tablas, aceptar})
        capa->addWidget(w);
    muestra(d);
    // The list first, as a JSON object's sorted keys would give it: it is still entered after the radio.
    const QString e = RespondeFormulario(d, {{{u"CBTablas"_s, u"CLIENTES"_s}, {u"RBUna"_s, true}}, {}});
    EXPECT_TRUE(e.isEmpty()) << e.toStdString();
    EXPECT_EQ(d.result(), 1);
    EXPECT_EQ(tablas->currentText(), u"CLIENTES"_s);
}

TEST(RespuestaFormulario, AnswersThatDoNotFitAreRefusedNamingTheControl) {
    prueba::OficinaPrueba oficina;
    // An unknown control, a boolean for a year, an item not in the list, a disabled field and a disabled
    // "&Aceptar" are refused the same way through `nodrim batch` (tests/nodrim/test_formularios.cpp).
    const auto fija = [](const char* control, const QVariant& v) {
        return RespuestaFormulario{{{QString::fromUtf8(control), v}}, {}};
    };
    struct Caso {
        const char* tipo;
        RespuestaFormulario r;
        const char* error;
    } casos[] = {
        {"MesAño", fija("cbMes", 12), "control \"cbMes\" has no item 12"},
        {"MesAño", {{}, u"btnNada"_s}, "the form \"Indique el mes y el año.\" has no button \"btnNada\""},
        {"MesAño", fija("btnAceptar", true), "control \"btnAceptar\" takes no value"},
        {"SerieGastos", fija("rbSerieR", false),
         "radio button \"rbSerieR\" is cleared by choosing another one"},
        {"DesdeDia", fija("dtpDesdeFecha", u"15/03/2024"_s),
         "control \"dtpDesdeFecha\" takes a date \"YYYY-MM-DD\", not a string"},
        {"Texto", fija("eTexto", 12), "control \"eTexto\" takes a string, not an integer"},
        {"CantidadMaxMin", fija("lblCantidad", u"1"_s), "control \"lblCantidad\" takes no value"},
        {"Cantidad", fija("FECantidadMaxima", 5), "control \"FECantidadMaxima\" is not shown"},
    };
    for (const Caso& c : casos) {
        FormularioVisible f(QString::fromUtf8(c.tipo));
        const QString e = RespondeFormulario(f, c.r);
        EXPECT_TRUE(e.startsWith(QString::fromUtf8(c.error))) << c.tipo << ": " << e.toStdString();
        EXPECT_TRUE(f.isVisible()) << c.tipo; // nothing pressed
    }
}

TEST(RespuestaFormulario, APasswordIsNeverReported) {
    TFPideClave f;
    f.setWindowTitle(u"Facturación"_s);
    muestra(f);
    ASSERT_TRUE(RespondeFormulario(f, {{{u"EClave"_s, u"ZEB"_s}}, u"BBCancelar"_s}).isEmpty());
    EXPECT_EQ(f.EClave->text(), u"ZEB"_s);
    EXPECT_EQ(valor(DescribeFormulario(f), "EClave"), QVariant(QString()));
    EXPECT_EQ(f.result(), 2);
}

} // namespace
