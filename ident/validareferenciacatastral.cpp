#include "ident/validareferenciacatastral.h"

#include "companion/config.h"
#include "companion/foco.h"
#include "companion/mensajes.h"
#include "companion/modal.h"
#include "frame/shell.h"
#include "ident/catastro.h"
#include "ident/editrefcatastral.h"
#include "ident/recuperamunicipio.h"
#include "text/recorte.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
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

    for (QWidget* w : std::initializer_list<QWidget*>{RBUrbana, RBRustica, ERCRefCatastral, BBValidar,
                                                      BBCatastro, BBAceptar, BBCancelar})
        w->installEventFilter(this);
    connect(BBAceptar, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Aceptar);
    connect(BBCancelar, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Cancelar);
    connect(BBValidar, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Validar);
    connect(BBCatastro, &QPushButton::clicked, this, &TFValidaReferenciaCatastral::Catastro);
}

void TFValidaReferenciaCatastral::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (e->spontaneous()) return;
    m_guardada = Trim(Config.GetRefCatastralActual());
    ERCRefCatastral->setText(m_guardada);
}

bool TFValidaReferenciaCatastral::eventFilter(QObject* o, QEvent* e) {
    auto* w = qobject_cast<QWidget*>(o);
    switch (e->type()) {
    case QEvent::FocusIn:
        SBExplica->showMessage(w->toolTip());
        TomaFocoControl(w);
        break;
    case QEvent::FocusOut:
        SBExplica->clearMessage();
        DejaFocoControl(w);
        break;
    case QEvent::KeyPress: {
        // The form sees every key first: Enter moves to the next control, Escape is "Cancelar".
        const int tecla = static_cast<QKeyEvent*>(e)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            focusNextChild();
            return true;
        }
        if (tecla == Qt::Key_Escape) {
            Cancelar();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QDialog::eventFilter(o, e);
}

void TFValidaReferenciaCatastral::Aceptar() {
    Config.SetRefCatastralActual(Trim(ERCRefCatastral->text()));
    done(1);
}

void TFValidaReferenciaCatastral::Cancelar() {
    Config.SetRefCatastralActual(m_guardada);
    done(2);
}

void TFValidaReferenciaCatastral::BloqueaPantalla() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_panel->setEnabled(false);
}

void TFValidaReferenciaCatastral::DesbloqueaPantalla() {
    QApplication::restoreOverrideCursor();
    m_panel->setEnabled(true);
    ERCRefCatastral->setFocus();
}

void TFValidaReferenciaCatastral::Validar() {
    BloqueaPantalla();
    MuestraMensaje(QStringLiteral("Espere mientras se valida la Referencia Catastral. Escape para Cancelar"));
    if (!RBUrbana->isChecked()) {
        ERCRefCatastral->SetTipoFinca(TTipoFinca::Rustica);
        ERCRefCatastral->setText(FormatearReferenciaCatastralRustica(ERCRefCatastral->text()));
    } else {
        ERCRefCatastral->SetTipoFinca(TTipoFinca::Urbana);
        ERCRefCatastral->setText(FormatearReferenciaCatastralUrbana(ERCRefCatastral->text()));
    }
    ERCRefCatastral->SetModoValidacion(Config.GetnValidacionRefCat());
    const int resultado = ERCRefCatastral->ValidaRefCatastral();
    CierraMensaje();
    if (const Mensaje* m = mensajeDeResultado(resultado)) {
        if (m->error)
            Mensaje_Error(QString::fromUtf16(m->texto), QStringLiteral("Error"));
        else
            Mensaje_Info(QString::fromUtf16(m->texto), QStringLiteral("Validación Positiva"));
    }
    DesbloqueaPantalla();
}

void TFValidaReferenciaCatastral::RecuperaMunicipio(const QString& ref, QString& provincia,
                                                    QString& municipio) {
    nod::RecuperaMunicipio(ref, provincia, municipio);
}

void TFValidaReferenciaCatastral::Catastro() {
    const QString ref = Trim(ERCRefCatastral->text());
    QString provincia, municipio;
    RecuperaMunicipio(ref, provincia, municipio);
    if (!provincia.isEmpty() && !municipio.isEmpty())
        AbreEnShell(DireccionConsultaCatastro(ref, provincia, municipio, RBUrbana->isChecked()));
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
