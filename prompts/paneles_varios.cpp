// Panels of the data prompt that ask for a person, a choice or a text: notaries, officials, the tone of
// a letter, repairs, references, a free text.
#include "companion/filtroteclas.h"
#include "ident/editrefcatastral.h"
#include "prompts/preguntadatos.h"
#include "prompts/preguntadatos_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

namespace nod {

using namespace pregunta;

QWidget* TFPreguntaDatos::construyeCheckBox() {
    pnlCheckBox = NuevoPanel(this, "pnlCheckBox", QStringLiteral("Seleccione lo que corresponda"),
                             QStringLiteral("CheckBox"));
    cbCheckBox = Casilla(pnlCheckBox, "cbCheckBox", QStringLiteral("(poner la etiqueta que corresponda)"));
    Filas(pnlCheckBox).ocupa(cbCheckBox);
    return pnlCheckBox;
}

QWidget* TFPreguntaDatos::construyeNotario() {
    pnlNotario =
        NuevoPanel(this, "pnlNotario", QStringLiteral("Seleccione un notario"), QStringLiteral("Notario"));
    cbNotario = Lista(pnlNotario, "cbNotario", {});
    cbNotario->setMinimumContentsLength(30);
    lblNotario = Filas(pnlNotario).fila(QStringLiteral("Notario:"), cbNotario, {}, "lblNotario");
    return pnlNotario;
}

QWidget* TFPreguntaDatos::construyeOficial() {
    pnlOficial =
        NuevoPanel(this, "pnlOficial", QStringLiteral("Seleccione un ofical"), QStringLiteral("Oficial"));
    CBOficial = Lista(pnlOficial, "CBOficial", {});
    CBOficial->setMinimumContentsLength(30);
    Filas(pnlOficial).fila(QStringLiteral("Oficial:"), CBOficial);
    return pnlOficial;
}

QWidget* TFPreguntaDatos::construyeModeloCarta() {
    gbModeloCarta = NuevoPanel(this, "gbModeloCarta", QStringLiteral("Indique el tono de la carta."),
                               QStringLiteral("ModeloCarta"), QStringLiteral(" Tono de la carta "));
    rbBlando = Radio(gbModeloCarta, "rbBlando", QStringLiteral("Blando"));
    rbMedio = Radio(gbModeloCarta, "rbMedio", QStringLiteral("Medio"));
    rbDuro = Radio(gbModeloCarta, "rbDuro", QStringLiteral("Duro"), true);
    Filas(gbModeloCarta).juntos({rbBlando, rbMedio, rbDuro});
    return gbModeloCarta;
}

QWidget* TFPreguntaDatos::construyeXDias() {
    pnlXDias = NuevoPanel(this, "pnlXDias", QStringLiteral("Indique desde hace cúantos días."),
                          QStringLiteral("XDias"));
    EDias = Edit(pnlXDias, "EDias", 0); // two characters at most, kept by EDiasChange
    EDias->setFixedWidth(EDias->fontMetrics().horizontalAdvance(QStringLiteral("000")) + 12);
    EDias->setAlignment(Qt::AlignRight);
    SoloDigitos(EDias);
    EDias->setText(QStringLiteral("30"));
    Filas(pnlXDias).juntos({Etiqueta(pnlXDias, QStringLiteral("Escrituras de cuantía firmadas hace"), EDias),
                            EDias, Etiqueta(pnlXDias, QStringLiteral("días"))});
    connect(EDias, &QLineEdit::textChanged, this, &TFPreguntaDatos::EDiasChange);
    return pnlXDias;
}

QWidget* TFPreguntaDatos::construyeReferenciaBancaria() {
    pnlReferenciaBancaria =
        NuevoPanel(this, "pnlReferenciaBancaria",
                   QStringLiteral("Indique la referencia indicada por la oficina bancaria"),
                   QStringLiteral("ReferenciaBancaria"));
    EReferencia = Edit(pnlReferenciaBancaria, "EReferencia", 10);
    Filas(pnlReferenciaBancaria).fila(QStringLiteral("Referencia:"), EReferencia);
    return pnlReferenciaBancaria;
}

QWidget* TFPreguntaDatos::construyeReferenciaCatastral() {
    pnlReferenciaCatastral =
        NuevoPanel(this, "pnlReferenciaCatastral", QStringLiteral("Indique la referencia catastral"),
                   QStringLiteral("ReferenciaCatastral"));
    eRefCatastral = new TEditRefCatastral(pnlReferenciaCatastral);
    eRefCatastral->setObjectName(QStringLiteral("eRefCatastral"));
    eRefCatastral->setFixedWidth(eRefCatastral->fontMetrics().horizontalAdvance(QStringLiteral("W")) * 21 +
                                 12);
    Filas(pnlReferenciaCatastral).fila(QStringLiteral("Referencía catastral:"), eRefCatastral);
    return pnlReferenciaCatastral;
}

QWidget* TFPreguntaDatos::construyeSexoClientes() {
    PnlSexoClientes =
        NuevoPanel(this, "PnlSexoClientes", QStringLiteral("El Cliente no tiene el campo Sexo relleno"),
                   QStringLiteral("SexoClientes"));
    CBSexo = Lista(
        PnlSexoClientes, "CBSexo",
        {QStringLiteral("H.- Hombre"), QStringLiteral("M.- Mujer"), QStringLiteral("S.- Sociedad")}, false);
    CBSexo->setCurrentIndex(0);
    Filas(PnlSexoClientes).fila(QStringLiteral("Indique el Sexo del Cliente:"), CBSexo);
    return PnlSexoClientes;
}

QWidget* TFPreguntaDatos::construyeReparacionClientes() {
    PnlReparacionClientes = NuevoPanel(
        this, "PnlReparacionClientes",
        QStringLiteral("Escrituras - 5.- Corrección de Datos, K.- Reparación completa"),
        QStringLiteral("ReparacionClientes"), QStringLiteral(" Seleccione el tipo de reparación a aplicar "));
    QWidget* p = PnlReparacionClientes;
    cbReparacion1 = Casilla(p, "cbReparacion1", QStringLiteral("&1.- Reparar tabla de clientes"), true);
    cbReparacion2 = Casilla(p, "cbReparacion2", QStringLiteral("&2.- Eliminar clientes idénticos"), true);
    cbReparacion3 =
        Casilla(p, "cbReparacion3", QStringLiteral("&3.- Eliminar códigos de cliente repetidos"), true);
    cbReparacion4 = Casilla(p, "cbReparacion4", QStringLiteral("&4.- Gestión de clientes sospechosos"), true);
    EnColumna(p, {cbReparacion1, cbReparacion2, cbReparacion3, cbReparacion4});
    return p;
}

QWidget* TFPreguntaDatos::construyeTexto() {
    pnlTexto = NuevoPanel(this, "pnlTexto", QStringLiteral("Indique un texto"), QStringLiteral("Texto"));
    eTexto = Edit(pnlTexto, "eTexto", 32767);
    eTexto->setMinimumWidth(eTexto->fontMetrics().averageCharWidth() * 40);
    Filas filas(pnlTexto);
    lblTexto = Etiqueta(pnlTexto, QStringLiteral("Texto:"), eTexto, "lblTexto");
    lblTexto->setWordWrap(true);
    filas.ocupa(lblTexto);
    filas.ocupa(eTexto);
    return pnlTexto;
}

QWidget* TFPreguntaDatos::construyeImpresionTestamentos() {
    pnlImpresionTestamentos =
        NuevoPanel(this, "pnlImpresionTestamentos", QStringLiteral("Impresión de testamentos"),
                   QStringLiteral("ImpresionTestamentos"));
    QWidget* p = pnlImpresionTestamentos;
    seAno15 = Ano(p, "seAno15", 2000);
    EDesde = Edit(p, "EDesde", 5);
    EHasta = Edit(p, "EHasta", 5);
    for (QLineEdit* e : {EDesde, EHasta}) {
        SoloDigitos(e); // EnteroPress: digits only, Backspace and the editing keys as always
        e->setText(QStringLiteral("0"));
        e->setAlignment(Qt::AlignRight);
    }
    rbTodosTestamentos = Radio(p, "rbTodosTestamentos", QStringLiteral("Todos los testamentos"), true);
    lblNotaTodos = Etiqueta(p, QStringLiteral("Imprime todos los testamentos directamente por impresora"),
                            nullptr, "lblNotaTodos");
    rbUnoAUno = Radio(p, "rbUnoAUno", QStringLiteral("Uno a uno"));
    lblNotaUnoAUno = Etiqueta(p, QStringLiteral("Previsualiza cada parte, posibilitando su impresión o no"),
                              nullptr, "lblNotaUnoAUno");
    for (QLabel* nota : {lblNotaTodos, lblNotaUnoAUno})
        nota->setIndent(20);
    Filas filas(p);
    filas.fila(QStringLiteral("Año:"), seAno15);
    filas.juntos({Etiqueta(p, QStringLiteral("Desde:"), EDesde), EDesde,
                  Etiqueta(p, QStringLiteral("Hasta:"), EHasta), EHasta});
    filas.ocupa(rbTodosTestamentos);
    filas.ocupa(lblNotaTodos);
    filas.ocupa(rbUnoAUno);
    filas.ocupa(lblNotaUnoAUno);
    return p;
}

} // namespace nod
