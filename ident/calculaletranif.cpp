#include "ident/calculaletranif.h"

#include "companion/dialogo.h"
#include "companion/documentos.h"
#include "companion/filtroteclas.h"
#include "companion/foco.h"
#include "companion/modal.h"
#include "ident/nif.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QVBoxLayout>

namespace nod {

namespace {

constexpr TColor kVerde = 0x008000;
constexpr TColor kRojo = 0x0000FF;

template <typename W> W* crea(QWidget* padre, const char* nombre, const QString& texto = {}) {
    auto* w = new W(padre);
    w->setObjectName(QString::fromLatin1(nombre));
    if constexpr (std::is_same_v<W, QLineEdit>)
        w->setMaxLength(17);
    else
        w->setText(texto);
    return w;
}

// A control that keeps its room while hidden: the dialog is fixed, and switching the mode or showing a
// verdict shows and hides controls in place, moving nothing.
template <typename W> W* enSuSitio(W* w) {
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
    return w;
}

QFrame* panel(QWidget* padre, const char* nombre) {
    auto* p = enSuSitio(new QFrame(padre));
    p->setObjectName(QString::fromLatin1(nombre));
    return p;
}

// A verdict label as wide as its longest word, so that the edit beside it keeps its width.
QLabel* veredicto(QWidget* padre, const char* nombre) {
    auto* l = enSuSitio(crea<QLabel>(padre, nombre, QStringLiteral("Incorrecto")));
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    l->setFixedWidth(l->fontMetrics().horizontalAdvance(QStringLiteral("Incorrecto")) + 8);
    return l;
}

} // namespace

TFCalculaLetraNIF::TFCalculaLetraNIF(QWidget* owner)
    : QDialog(owner) {
    setObjectName(QStringLiteral("FCalculaLetraNIF"));
    setWindowTitle(QStringLiteral("Calculo de la letra del N.I.F."));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);

    auto* GBTipoDocumento = new QGroupBox(QStringLiteral("  Tipo de Documento  "), this);
    GBTipoDocumento->setObjectName(QStringLiteral("GBTipoDocumento"));
    RBDNI = crea<QRadioButton>(GBTipoDocumento, "RBDNI", QStringLiteral("DNI"));
    RBCIF = crea<QRadioButton>(GBTipoDocumento, "RBCIF", QStringLiteral("CIF"));
    RBNIE = crea<QRadioButton>(GBTipoDocumento, "RBNIE", QStringLiteral("NIE"));
    auto* tipos = new QHBoxLayout(GBTipoDocumento);
    for (QRadioButton* rb : {RBDNI, RBCIF, RBNIE}) {
        tipos->addWidget(rb);
        connect(rb, &QRadioButton::toggled, this, [this, rb] { eligeTipo(rb); });
    }

    PDNI = panel(this, "PDNI");
    auto* LDNI_ =
        crea<QLabel>(PDNI, "LDNI_", QStringLiteral("Introduzca el D.N.I. sin puntos y sin guiones:"));
    ENIF = crea<QLineEdit>(PDNI, "ENIF");
    LDNI_->setBuddy(ENIF);
    auto* LGuion_ = crea<QLabel>(PDNI, "LGuion_", QStringLiteral("-"));
    PLETRA = crea<QLabel>(PDNI, "PLETRA");
    PLETRA->setFrameShape(QFrame::Panel);
    PLETRA->setFrameShadow(QFrame::Sunken);
    PLETRA->setAlignment(Qt::AlignCenter);
    PLETRA->setFixedWidth(PLETRA->fontMetrics().horizontalAdvance(QStringLiteral("WW")) + 8);
    auto* filaDNI = new QHBoxLayout;
    filaDNI->addWidget(ENIF);
    filaDNI->addWidget(LGuion_);
    filaDNI->addWidget(PLETRA);
    auto* capaDNI = new QVBoxLayout(PDNI);
    capaDNI->addWidget(LDNI_);
    capaDNI->addLayout(filaDNI);

    PCIF = panel(this, "PCIF");
    auto* LCIF_ =
        crea<QLabel>(PCIF, "LCIF_", QStringLiteral("Introduzca el C.I.F. sin puntos y sin guiones:"));
    ECIF = crea<QLineEdit>(PCIF, "ECIF");
    LCIF_->setBuddy(ECIF);
    LResultadoCIF_ = veredicto(PCIF, "LResultadoCIF_");
    auto* filaCIF = new QHBoxLayout;
    filaCIF->addWidget(ECIF);
    filaCIF->addWidget(LResultadoCIF_);
    auto* capaCIF = new QVBoxLayout(PCIF);
    capaCIF->addWidget(LCIF_);
    capaCIF->addLayout(filaCIF);

    PNIE = panel(this, "PNIE");
    auto* LNIE_ =
        crea<QLabel>(PNIE, "LNIE_", QStringLiteral("Introduzca el N.I.E. sin puntos y sin guiones:"));
    ENIE = crea<QLineEdit>(PNIE, "ENIE");
    LNIE_->setBuddy(ENIE);
    LResultadoNIE_ = veredicto(PNIE, "LResultadoNIE_");
    auto* lblAyuda = crea<QLabel>(
        PNIE, "lblAyuda",
        QStringLiteral(
            "Para calcular letra del NIE: elegir DNI y sustituir 1ªletra tal que (X=0) (Y=1) (Z=2)"));
    lblAyuda->setWordWrap(true);
    auto* filaNIE = new QHBoxLayout;
    filaNIE->addWidget(ENIE);
    filaNIE->addWidget(LResultadoNIE_);
    auto* capaNIE = new QVBoxLayout(PNIE);
    capaNIE->addWidget(LNIE_);
    capaNIE->addLayout(filaNIE);
    capaNIE->addWidget(lblAyuda);
    SoloDigitos(ENIF); // "0" to "9"; Delete, arrows, Home and End always work
    EscribeEnMayusculas(ECIF);
    EscribeEnMayusculas(ENIE);

    BBCalculaLetra = enSuSitio(crea<QPushButton>(this, "BBCalculaLetra", QStringLiteral("&Letra")));
    BBValidaCIF = enSuSitio(crea<QPushButton>(this, "BBValidaCIF", QStringLiteral("&Valida")));
    BBSalir = crea<QPushButton>(this, "BBSalir", QStringLiteral("&Salir"));
    // The two mode buttons share one place; "&Salir" never moves.
    auto* accion = new QGridLayout;
    accion->addWidget(BBCalculaLetra, 0, 0);
    accion->addWidget(BBValidaCIF, 0, 0);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addLayout(accion);
    botones->addWidget(BBSalir);

    // The three panels share one place, as large as the largest.
    auto* paneles = new QGridLayout;
    for (QFrame* p : {PDNI, PCIF, PNIE})
        paneles->addWidget(p, 0, 0, Qt::AlignTop);

    auto* capa = new QVBoxLayout(this);
    capa->addWidget(GBTipoDocumento);
    capa->addLayout(paneles);
    capa->addLayout(botones);
    capa->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(ENIF, ECIF);
    setTabOrder(ECIF, ENIE);
    setTabOrder(ENIE, BBCalculaLetra);
    setTabOrder(BBCalculaLetra, BBValidaCIF);
    setTabOrder(BBValidaCIF, BBSalir);

    connect(BBCalculaLetra, &QPushButton::clicked, this, &TFCalculaLetraNIF::CalculaLetra);
    connect(BBValidaCIF, &QPushButton::clicked, this, &TFCalculaLetraNIF::Valida);
    connect(BBSalir, &QPushButton::clicked, this, &QDialog::reject);
    connect(ENIF, &QLineEdit::textChanged, PLETRA, &QLabel::clear);
    // One change handler serves both edits and hides only the CIF verdict: a changed NIE keeps showing
    // the verdict of the previous one, as the office has always seen it.
    for (QLineEdit* e : {ECIF, ENIE})
        connect(e, &QLineEdit::textChanged, LResultadoCIF_, &QLabel::hide);

    // "&Letra" and "&Valida" are the design's default buttons, one per mode: Enter in the edit presses
    // the mode's one, Enter on a button presses that button. Radios and edits wear the focus mark.
    OpcionesDialogo o;
    o.enter = ReglaEnter::BotonPorDefecto;
    o.marcaFoco = MarcaFoco::Campos;
    AplicaConvencionesDialogo(this, o);
}

void TFCalculaLetraNIF::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (e->spontaneous()) return;
    if (RBDNI->isChecked())
        eligeTipo(RBDNI);
    else
        RBDNI->setChecked(true);
}

void TFCalculaLetraNIF::eligeTipo(QRadioButton* rb) {
    if (!rb->isChecked()) return;
    ENIF->clear();
    ECIF->clear();
    ENIE->clear();
    const bool dni = rb == RBDNI, cif = rb == RBCIF, nie = rb == RBNIE;
    PDNI->setVisible(dni);
    BBCalculaLetra->setVisible(dni);
    PCIF->setVisible(cif);
    PNIE->setVisible(nie);
    BBValidaCIF->setVisible(!dni);
    if (cif) LResultadoCIF_->hide();
    if (nie) LResultadoNIE_->hide();
    (dni ? BBCalculaLetra : BBValidaCIF)->setDefault(true);
}

void TFCalculaLetraNIF::CalculaLetra() {
    const QString r = NIF(ENIF->text());
    if (r.isEmpty()) {
        PLETRA->clear();
        return;
    }
    PLETRA->setText(r.right(1));
    ENIF->selectAll();
}

void TFCalculaLetraNIF::muestraVeredicto(QLabel* etiqueta, bool correcto) {
    etiqueta->show();
    etiqueta->setText(correcto ? QStringLiteral("Correcto") : QStringLiteral("Incorrecto"));
    QPalette p = etiqueta->palette();
    p.setColor(QPalette::WindowText, ColorQt(correcto ? kVerde : kRojo));
    etiqueta->setPalette(p);
}

void TFCalculaLetraNIF::Valida() {
    // The panel's own visibility flag, as the mode left it, whether or not the form is on screen.
    if (!PCIF->isHidden())
        muestraVeredicto(LResultadoCIF_, EsUnCif(ECIF->text(), true));
    else
        muestraVeredicto(LResultadoNIE_, EsUnNie(ENIE->text(), true));
}

void ICalculaLetraNif(QWidget* owner) {
    TFCalculaLetraNIF f(owner);
    EjecutaModal(f);
}

} // namespace nod
