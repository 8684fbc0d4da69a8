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

namespace {

QVariant valor(const FormularioMostrado& m, const char* control) {
    for (const ValorControl& v : m.valores)
        if (v.control == QLatin1String(control)) return v.valor;
    return {};
}

// What the form reports is its visible panel with the values as shown; what goes in passes its handlers.
TEST(RespuestaFormulario, DescribesTheVisiblePanelAndValuesGoInThroughTheHandlers) {
    Hoy hoy(2024, 3, 10);
    FormularioVisible f(QStringLiteral("TrimestralSinNif"));
    const FormularioMostrado m = DescribeFormulario(f);
    EXPECT_EQ(m.titulo, QStringLiteral("Indique el trimestre y el año."));
    EXPECT_EQ(m.panel, QStringLiteral("pnlTrimestralSinNif"));
    EXPECT_EQ(valor(m, "cbTrimestre2"), QVariant(QStringLiteral("CUARTO")));
    EXPECT_EQ(valor(m, "seAno12"), QVariant(QStringLiteral("2023")));
    EXPECT_EQ(valor(m, "rbModeloApaisado"), QVariant(true));
    EXPECT_EQ(valor(m, "CBExclusion"), QVariant(true));
    EXPECT_EQ(valor(m, "ELetraNIF"), QVariant(QString()));
    EXPECT_FALSE(valor(m, "seAno").isValid()); // controls of other panels do not exist
    EXPECT_EQ(m.valores.size(), 6);
    const QString e = RespondeFormulario(f, {{{QStringLiteral("cbTrimestre2"), 1},
                                              {QStringLiteral("seAno12"), QStringLiteral("05")},
                                              {QStringLiteral("CBExclusion"), false},
                                              {QStringLiteral("ELetraNIF"), QStringLiteral("x9")}},
                                             {}});
    EXPECT_TRUE(e.isEmpty()) << e.toStdString();
    EXPECT_EQ(f.result(), 1);
    EXPECT_EQ(f.cbTrimestre2->currentText(), QStringLiteral("SEGUNDO"));
    EXPECT_EQ(f.seAno12->value(), 2005);                 // completed on leaving the field
    EXPECT_EQ(f.ELetraNIF->text(), QStringLiteral("x")); // one character: the second key is refused
}

TEST(RespuestaFormulario, ValuesGoInInTabOrderSoAFieldIsEnabledBeforeItIsFilled) {
    QDialog d;
    auto* todas = new QRadioButton(QStringLiteral("Todas"), &d);
    auto* una = new QRadioButton(QStringLiteral("Una"), &d);
    auto* tablas = new QComboBox(&d);
    auto* aceptar = new QPushButton(QStringLiteral("&Aceptar"), &d);
    todas->setObjectName(QStringLiteral("RBTodas"));
    una->setObjectName(QStringLiteral("RBUna"));
    tablas->setObjectName(QStringLiteral("CBTablas"));
    tablas->addItems({QStringLiteral("ACTIVOS"), QStringLiteral("CLIENTES")});
    todas->setChecked(true);
    tablas->setEnabled(false);
    QObject::connect(una, &QRadioButton::toggled, tablas, &QComboBox::setEnabled);
    QObject::connect(aceptar, &QPushButton::clicked, &d, [&] { d.done(1); });
    auto* capa = new QVBoxLayout(&d);
    for (QWidget* w : std::initializer_list<QWidget*>{todas, una, tablas, aceptar})
        capa->addWidget(w);
    muestra(d);
    // The list first, as a JSON object's sorted keys would give it: it is still entered after the radio.
    const QString e = RespondeFormulario(
        d, {{{QStringLiteral("CBTablas"), QStringLiteral("CLIENTES")}, {QStringLiteral("RBUna"), true}}, {}});
    EXPECT_TRUE(e.isEmpty()) << e.toStdString();
    EXPECT_EQ(d.result(), 1);
    EXPECT_EQ(tablas->currentText(), QStringLiteral("CLIENTES"));
}

TEST(RespuestaFormulario, AnswersThatDoNotFitAreRefusedNamingTheControl) {
    prueba::OficinaPrueba oficina; // no invoice table: "&Aceptar" of the invoice number is disabled
    // An unknown control, a boolean for a year, an item not in the list and a disabled "&Aceptar" are
    // refused the same way through `nodrim batch` (tests/nodrim/test_formularios.cpp).
    const auto fija = [](const char* control, const QVariant& v) {
        return RespuestaFormulario{{{QString::fromUtf8(control), v}}, {}};
    };
    struct Caso {
        const char* tipo;
        RespuestaFormulario r;
        const char* error;
    } casos[] = {
        {"MesAño", fija("cbMes", 12), "control \"cbMes\" has no item 12"},
        {"MesAño",
         {{}, QStringLiteral("btnNada")},
         "the form \"Indique el mes y el año.\" has no button \"btnNada\""},
        {"MesAño", fija("btnAceptar", true), "control \"btnAceptar\" takes no value"},
        {"SerieGastos", fija("rbSerieR", false),
         "radio button \"rbSerieR\" is cleared by choosing another one"},
        {"DesdeDia", fija("dtpDesdeFecha", QStringLiteral("15/03/2024")),
         "control \"dtpDesdeFecha\" takes a date \"YYYY-MM-DD\", not a string"},
        {"Texto", fija("eTexto", 12), "control \"eTexto\" takes a string, not an integer"},
        {"PideNumeroFactura", fija("ENUMEROFAC", 7), "control \"ENUMEROFAC\" is disabled"},
        {"CantidadMaxMin", fija("lblCantidad", QStringLiteral("1")),
         "control \"lblCantidad\" takes no value"},
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
    f.setWindowTitle(QStringLiteral("Facturación"));
    muestra(f);
    ASSERT_TRUE(RespondeFormulario(
                    f, {{{QStringLiteral("EClave"), QStringLiteral("ZEB")}}, QStringLiteral("BBCancelar")})
                    .isEmpty());
    EXPECT_EQ(f.EClave->text(), QStringLiteral("ZEB"));
    EXPECT_EQ(valor(DescribeFormulario(f), "EClave"), QVariant(QString()));
    EXPECT_EQ(f.result(), 2);
}

} // namespace
