#include "ident/validareferenciacatastral.h"

#include "companion/config.h"
#include "companion/dialogo.h"
#include "companion/esperadialogo.h"
#include "companion/mensajes.h"
#include "companion/modal.h"
#include "frame/shell.h"
#include "ident/catastro.h"
#include "ident/editrefcatastral.h"
#include "ident/recuperamunicipio.h"
#include "text/recorte.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QStatusBar>
#include <QVBoxLayout>

namespace nod {

namespace {

template <typename W>
W* crea(QWidget* padre, const char* nombre, const QString& texto, const QString& pista = {}) {
    auto* w = new W(texto, padre);
    w->setObjectName(QString::fromLatin1(nombre));
    w->setToolTip(pista);
    return w;
}

struct Mensaje {
    bool error;
    const char16_t* texto;
};

// What the clerk is told for each validation result; other codes say nothing.
const Mensaje* mensajeDeResultado(int codigo) {
    static const Mensaje cancelado{true, u"El proceso de Validación ha sido cancelado."};
    static const Mensaje patron{true, u"La referencia Catastral NO es válida. Patrón incorrecto"};
    static const Mensaje conexion{true,
                                  u"No se ha podido establecer la conexión para comprobar la Referencia."};
    static const Mensaje catastro{true, u"La referencia Catastral NO es válida. Según Catastro"};
    static const Mensaje valida{false, u"La Referencia Catastral es Válida."};
    static const Mensaje validaCatastro{false, u"La Referencia Catastral es Válida. Según Catastro"};
    switch (codigo) {
    case -4:
    case 0:
        return &cancelado;
    case -3:
        return &patron;
    case -2:
        return &conexion;
    case -1:
        return &catastro;
    case 1:
        return &valida;
    case 2:
        return &validaCatastro;
    default:
        return nullptr;
    }
}

} // namespace

TFValidaReferenciaCatastral::TFValidaReferenciaCatastral(QWidget* owner)
    : QDialog(owner) {
    setObjectName(QStringLiteral("FValidaReferenciaCatastral"));
    setWindowTitle(QStringLiteral("Validación de Referencias Catastrales"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);

    m_panel = new QFrame(this);
    m_panel->setObjectName(QStringLiteral("PValidaRefCatastral"));
    m_panel->setFrameShape(QFrame::StyledPanel);
    auto* LTipo = crea<QLabel>(m_panel, "LTipo", QStringLiteral("Indique el Tipo de Finca:"));
    RBUrbana =
        crea<QRadioButton>(m_panel, "RBUrbana", QStringLiteral("Urbana"), QStringLiteral("Finca Urbana"));
    RBRustica =
        crea<QRadioButton>(m_panel, "RBRustica", QStringLiteral("Rústica"), QStringLiteral("Finca Rústica"));
    RBUrbana->setChecked(true);
    auto* LReferencia =
        crea<QLabel>(m_panel, "LReferencia", QStringLiteral("Introduzca la Referencia Catastral:"));
    ERCRefCatastral = new TEditRefCatastral(m_panel);
    ERCRefCatastral->setObjectName(QStringLiteral("ERCRefCatastral"));
    ERCRefCatastral->setToolTip(QStringLiteral("Escriba la referencia a Validar"));
    ERCRefCatastral->setMinimumWidth(ERCRefCatastral->fontMetrics().horizontalAdvance(QStringLiteral("W")) *
                                     22);
    LReferencia->setBuddy(ERCRefCatastral);
    BBValidar = crea<QPushButton>(m_panel, "BBValidar", QStringLiteral("&Validar"),
                                  QStringLiteral("Validar la Referencia"));
    BBValidar->setVisible(false);
    BBCatastro = crea<QPushButton>(m_panel, "BBCatastro", QStringLiteral("Cata&stro"),
                                   QStringLiteral("Oficina Virual del Catastro"));
    BBAceptar = crea<QPushButton>(m_panel, "BBAceptar", QStringLiteral("&Aceptar"),
                                  QStringLiteral("Salir y devolver la Referencia"));
    BBCancelar = crea<QPushButton>(m_panel, "BBCancelar", QStringLiteral("&Cancelar"),
                                   QStringLiteral("Salir sin devolver la Referencia"));

    auto* rejilla = new QGridLayout(m_panel);
    auto* tipos = new QHBoxLayout;
    tipos->addWidget(LTipo);
    tipos->addWidget(RBUrbana);
    tipos->addWidget(RBRustica);
    tipos->addStretch();
    rejilla->addLayout(tipos, 0, 0, 1, 2);
    rejilla->addWidget(LReferencia, 1, 0);
    rejilla->addWidget(ERCRefCatastral, 1, 1);
    auto* botones = new QHBoxLayout;
    for (QPushButton* b : {BBValidar, BBCatastro, BBAceptar, BBCancelar}) {
        b->setAutoDefault(false);
        botones->addWidget(b);
    }
    rejilla->addLayout(botones, 2, 0, 1, 2);

    SBExplica = new QStatusBar(this);
    SBExplica->setObjectName(QStringLiteral("SBExplica"));
    SBExplica->setSizeGripEnabled(false);
    auto* principal = new QVBoxLayout(this);
    principal->setContentsMargins(0, 0, 0, 0);
    principal->addWidget(m_panel);
    principal->addWidget(SBExplica);
    principal->setSizeConstraint(QLayout::SetFixedSize);

    connect(BBAceptar, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Aceptar);
    connect(BBCancelar, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Cancelar);
    connect(BBValidar, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Validar);
    connect(BBCatastro, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Catastro);

    // Entering a control shows its hint in the status bar and the focus mark; Enter moves on; Escape
    // and the close button act as "&Cancelar".
    OpcionesDialogo o;
    o.marcaFoco = MarcaFoco::Controles;
    o.barraAyuda = SBExplica;
    AplicaConvencionesDialogo(this, o);
}

void TFValidaReferenciaCatastral::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (e->spontaneous()) return;
    m_guardada = Trim(Config.GetRefCatastralActual());
    ERCRefCatastral->setText(m_guardada);
}

void TFValidaReferenciaCatastral::Aceptar() {
    Config.SetRefCatastralActual(Trim(ERCRefCatastral->text()));
    done(1);
}

void TFValidaReferenciaCatastral::Cancelar() {
    Config.SetRefCatastralActual(m_guardada);
    done(2);
}

void TFValidaReferenciaCatastral::Validar() {
    // BloqueaPantalla: busy cursor, the dialog blocked, the wait message; "&Cancelar" and Escape abandon
    // a consultation of the cadastre.
    TEsperaDialogo espera(
        this, QStringLiteral("Espere mientras se valida la Referencia Catastral. Escape para Cancelar"),
        BBCancelar);
    if (!espera.Empieza()) return;
    if (!RBUrbana->isChecked()) {
        ERCRefCatastral->SetTipoFinca(TTipoFinca::Rustica);
        ERCRefCatastral->setText(FormatearReferenciaCatastralRustica(ERCRefCatastral->text()));
    } else {
        ERCRefCatastral->SetTipoFinca(TTipoFinca::Urbana);
        ERCRefCatastral->setText(FormatearReferenciaCatastralUrbana(ERCRefCatastral->text()));
    }
    ERCRefCatastral->SetModoValidacion(Config.GetnValidacionRefCat());
    const int resultado = ERCRefCatastral->ValidaRefCatastral(espera.Vigia());
    espera.Termina();                               // DesbloqueaPantalla, before the verdict is told
    if (espera.Cancelada() && !isVisible()) return; // "&Cancelar" while waiting: the dialog has gone
    ERCRefCatastral->setFocus();
    if (const Mensaje* m = mensajeDeResultado(resultado)) {
        if (m->error)
            Mensaje_Error(QString::fromUtf16(m->texto), QStringLiteral("Error"));
        else
            Mensaje_Info(QString::fromUtf16(m->texto), QStringLiteral("Validación Positiva"));
    }
}

void TFValidaReferenciaCatastral::RecuperaMunicipio(const QString& ref, QString& provincia,
                                                    QString& municipio) {
    nod::RecuperaMunicipio(ref, provincia, municipio);
}

void TFValidaReferenciaCatastral::Catastro() {
    const QString ref = Trim(ERCRefCatastral->text());
    // While the cadastre is asked the dialog waits: busy cursor, the wait message, its controls blocked
    // so that the request cannot start twice. Escape abandons the request, "&Cancelar" abandons it and
    // closes; an answer that comes after either is dropped: no page opens, no message appears.
    TEsperaDialogo espera(
        this, QStringLiteral("Espere mientras se consulta el Catastro. Escape para Cancelar"), BBCancelar);
    if (!espera.Empieza()) return;
    const ConsultaCatastro c = ConsultaCodigosCatastro(ref, espera.Vigia());
    if (espera.Cancelada() || c.resultado == ResultadoCatastro::Cancelada) return;
    espera.Termina();
    if (!c.provincia.isEmpty() && !c.municipio.isEmpty())
        AbreEnShell(DireccionConsultaCatastro(ref, c.provincia, c.municipio, RBUrbana->isChecked()));
    else
        Mensaje_Info(
            QStringLiteral("No ha sido posible recuperar los datos de catastro de la referencia indicada"),
            QStringLiteral("No se han encontrado los datos asociados"));
}

void IValidaReferenciaCatastral(QWidget* owner) {
    TFValidaReferenciaCatastral f(owner);
    EjecutaModal(f);
}

} // namespace nod
