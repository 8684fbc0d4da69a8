#include "ident/calculaletranif.h"

#include "companion/documentos.h"
#include "companion/editmayusculas.h"
#include "companion/foco.h"
#include "companion/modal.h"
#include "ident/nif.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
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

QFrame* panel(QWidget* padre, const char* nombre) {
    auto* p = new QFrame(padre);
    p->setObjectName(QString::fromLatin1(nombre));
    return p;
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
    auto* LGuion_ = crea<QLabel>(PDNI, "LGuion_", QStringLiteral("-"));
    PLETRA = crea<QLabel>(PDNI, "PLETRA");
    PLETRA->setFrameShape(QFrame::Panel);
    PLETRA->setFrameShadow(QFrame::Sunken);
    PLETRA->setAlignment(Qt::AlignCenter);
    PLETRA->setMinimumWidth(PLETRA->fontMetrics().horizontalAdvance(QStringLiteral("WW")) + 8);
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
    LResultadoCIF_ = crea<QLabel>(PCIF, "LResultadoCIF_", QStringLiteral("Incorrecto"));
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
    LResultadoNIE_ = crea<QLabel>(PNIE, "LResultadoNIE_", QStringLiteral("Incorrecto"));
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
    EscribeEnMayusculas(ECIF);
    EscribeEnMayusculas(ENIE);

    BBCalculaLetra = crea<QPushButton>(this, "BBCalculaLetra", QStringLiteral("&Letra"));
    BBValidaCIF = crea<QPushButton>(this, "BBValidaCIF", QStringLiteral("&Valida"));
    BBSalir = crea<QPushButton>(this, "BBSalir", QStringLiteral("&Salir"));
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    for (QPushButton* b : {BBCalculaLetra, BBValidaCIF, BBSalir})
        botones->addWidget(b);

    auto* capa = new QVBoxLayout(this);
    capa->addWidget(GBTipoDocumento);
    capa->addWidget(PDNI);
    capa->addWidget(PCIF);
    capa->addWidget(PNIE);
    capa->addLayout(botones);
    capa->setSizeConstraint(QLayout::SetFixedSize);

    for (QWidget* w : std::initializer_list<QWidget*>{RBDNI, RBCIF, RBNIE, ENIF, ECIF, ENIE})
        w->installEventFilter(this);
    connect(BBCalculaLetra, &QPushButton::clicked, this, &TFCalculaLetraNIF::CalculaLetra);
    connect(BBValidaCIF, &QPushButton::clicked, this, &TFCalculaLetraNIF::Valida);
    connect(BBSalir, &QPushButton::clicked, this, &QDialog::reject);
    connect(ENIF, &QLineEdit::textChanged, PLETRA, &QLabel::clear);
    // One change handler serves both edits and hides only the CIF verdict: a changed NIE keeps showing
    // the verdict of the previous one, as the office has always seen it.
    for (QLineEdit* e : {ECIF, ENIE})
        connect(e, &QLineEdit::textChanged, LResultadoCIF_, &QLabel::hide);
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

bool TFCalculaLetraNIF::eventFilter(QObject* o, QEvent* e) {
    auto* w = qobject_cast<QWidget*>(o);
    if (e->type() == QEvent::FocusIn)
        TomaFocoControl(w);
    else if (e->type() == QEvent::FocusOut)
        DejaFocoControl(w);
    else if (o == ENIF && e->type() == QEvent::KeyPress) {
        // The DNI edit takes only digits and backspace; the dialog keys (Enter, Escape, Tab) go on to the
        // form.
        auto* k = static_cast<QKeyEvent*>(e);
        const QString t = k->text();
        const bool teclaDeDialogo = k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter ||
                                    k->key() == Qt::Key_Escape || k->key() == Qt::Key_Tab ||
                                    k->key() == Qt::Key_Backtab;
        const bool admitida =
            t.size() == 1 && ((t[0] >= u'0' && t[0] <= u'9') || k->key() == Qt::Key_Backspace);
        if (!t.isEmpty() && !teclaDeDialogo && !admitida) return true;
        if (k->matches(QKeySequence::Paste)) return true;
    }
    return QDialog::eventFilter(o, e);
}

void ICalculaLetraNif(QWidget* owner) {
    TFCalculaLetraNIF f(owner);
    EjecutaModal(f);
}

} // namespace nod
