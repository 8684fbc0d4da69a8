#include "protocol/responsabilidadhipotecaria.h"

#include "companion/dialogo.h"
#include "companion/rnumcad.h"
#include "text/moneda.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

namespace nod {

QPointer<TFRespHipotec> FRespHipotec;

namespace {

// Whole pesetas of an amount, 0 for a figure no peseta amount reaches.
qint64 pesetasEnteras(double pesetas) {
    return std::isfinite(pesetas) && std::fabs(pesetas) < 9e15 ? std::llround(pesetas) : 0;
}

double aEuros(double pesetas) {
    return PesetasEurosNod(pesetasEnteras(pesetas), 2);
}

double aPesetas(double euros) {
    return double(EurosPesetasNod(euros));
}

bool esEnter(const QKeyEvent* k) {
    return k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter;
}

} // namespace

// ---------------------------------------------------------------------------------------------------

TEditFlotante::TEditFlotante(QWidget* parent, int decimales, int tag)
    : TEditImporte(parent, decimales)
    , Tag(tag) {
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_escribiendo) compruebaCambio();
    });
}

double TEditFlotante::ValorExacto() const {
    const double v = Valor();
    return m_hayExacto && v == m_escrito ? m_exacto : v;
}

void TEditFlotante::PonValorExacto(double valor) {
    m_escribiendo = true;
    m_exacto = valor;
    PonValor(valor);
    m_escrito = Valor();
    m_hayExacto = true;
    m_escribiendo = false;
    compruebaCambio();
}

void TEditFlotante::compruebaCambio() {
    const double v = ValorExacto();
    if (v == m_ultimo) return;
    m_ultimo = v;
    emit CambiaValor();
}

// ---------------------------------------------------------------------------------------------------

TFRespHipotec::TFRespHipotec(QWidget* owner)
    : QDialog(owner) {
    FRespHipotec = this;
    setObjectName(QStringLiteral("FRespHipotec"));
    setWindowTitle(QStringLiteral("Responsabilidad Hipotecaria"));

    const auto campo = [this](const char* nombre, int decimales, int cifras, const QString& pista,
                              int tag = 0) {
        auto* e = new TEditFlotante(this, decimales, tag);
        e->setObjectName(QLatin1String(nombre));
        e->SetMaximoCifras(cifras);
        e->setToolTip(pista);
        // Wide enough for the figures of a usual amount (up to a thousand million), grouped.
        const double ancho = std::pow(10.0, qMin(cifras, 12)) - 1;
        e->setFixedWidth(e->fontMetrics().horizontalAdvance(FormateaImporte(ancho, decimales)) + 16);
        return e;
    };
    constexpr int kCifrasImporte = 15;
    EPrincipal = campo("EPrincipal", 0, kCifrasImporte, QStringLiteral("Principal en pesetas"));
    EPrincipal_E = campo("EPrincipal_E", 2, kCifrasImporte, QStringLiteral("Principal en euros"));
    ETotal = campo("ETotal", 0, kCifrasImporte, QStringLiteral("Total en pesetas"));
    ETotal_E = campo("ETotal_E", 2, kCifrasImporte, QStringLiteral("Total en euros"));

    struct Concepto {
        const char* rotulo;
        const char *interes, *anos, *dias, *pesetas, *euros;
        TEditFlotante **eInteres, **eAnos, **eDias, **ePesetas, **eEuros;
    };
    const Concepto conceptos[] = {
        {"Intereses ordinarios:", "EInteresesOrd", "EAno1", "EDias1", "ERes1", "ERes1_E", &EInteresesOrd,
         &EAno1, &EDias1, &ERes1, &ERes1_E},
        {"Intereses de demora:", "EInteresDemora", "EAno2", "EDias2", "ERes2", "ERes2_E", &EInteresDemora,
         &EAno2, &EDias2, &ERes2, &ERes2_E},
        {"Costes / Gastos:", "ECostesGastos", "EAno3", "EDias3", "ERes3", "ERes3_E", &ECostesGastos, &EAno3,
         &EDias3, &ERes3, &ERes3_E},
        {"Otros:", "EInteresOtros", "EAno4", "EDias4", "EOtros", "EOtros_E", &EInteresOtros, &EAno4, &EDias4,
         &EOtros, &EOtros_E},
    };

    auto* rejilla = new QGridLayout;
    rejilla->setHorizontalSpacing(6);
    const auto texto = [this](const char* t) { return new QLabel(QString::fromUtf8(t), this); };
    constexpr int kColPesetas = 7, kColEuros = 9;
    rejilla->addWidget(texto("Pesetas"), 0, kColPesetas, Qt::AlignCenter);
    rejilla->addWidget(texto("Euros"), 0, kColEuros, Qt::AlignCenter);
    auto* lPrincipal = texto("Principal:");
    lPrincipal->setBuddy(EPrincipal_E);
    rejilla->addWidget(lPrincipal, 1, 0);
    rejilla->addWidget(EPrincipal, 1, kColPesetas);
    rejilla->addWidget(texto("pts."), 1, kColPesetas + 1);
    rejilla->addWidget(EPrincipal_E, 1, kColEuros);
    for (int i = 0; i < 4; ++i) {
        const Concepto& c = conceptos[i];
        const QString rotulo = QString::fromUtf8(c.rotulo).chopped(1);
        Fila& f = m_filas[size_t(i)];
        f.interes = *c.eInteres =
            campo(c.interes, 2, 3, rotulo + QStringLiteral(": tanto por ciento"), i + 1);
        f.anos = *c.eAnos = campo(c.anos, 1, 3, rotulo + QStringLiteral(": años"), i + 1);
        f.dias = *c.eDias = campo(c.dias, 0, 6, rotulo + QStringLiteral(": días"), i + 1);
        f.pesetas = *c.ePesetas = campo(c.pesetas, 0, kCifrasImporte, rotulo + QStringLiteral(" en pesetas"));
        f.euros = *c.eEuros = campo(c.euros, 2, kCifrasImporte, rotulo + QStringLiteral(" en euros"));
        auto* l = texto(c.rotulo);
        l->setBuddy(f.interes);
        const int r = i + 2;
        rejilla->addWidget(l, r, 0);
        rejilla->addWidget(f.interes, r, 1);
        rejilla->addWidget(texto("%   x"), r, 2);
        rejilla->addWidget(f.anos, r, 3);
        rejilla->addWidget(texto("años = "), r, 4);
        rejilla->addWidget(f.dias, r, 5);
        rejilla->addWidget(texto("dias"), r, 6);
        rejilla->addWidget(f.pesetas, r, kColPesetas);
        rejilla->addWidget(texto("pts."), r, kColPesetas + 1);
        rejilla->addWidget(f.euros, r, kColEuros);
    }
    auto* lTotal = texto("Total:");
    lTotal->setBuddy(ETotal_E);
    rejilla->addWidget(lTotal, 6, 0);
    rejilla->addWidget(ETotal, 6, kColPesetas);
    rejilla->addWidget(texto("pts."), 6, kColPesetas + 1);
    rejilla->addWidget(ETotal_E, 6, kColEuros);

    IBMONEDAS = new QComboBox(this);
    IBMONEDAS->setObjectName(QStringLiteral("IBMONEDAS"));
    IBMONEDAS->addItems({QStringLiteral("Pesetas"), QStringLiteral("Euros")});
    auto* lMoneda = new QLabel(QStringLiteral("&Moneda:"), this);
    lMoneda->setBuddy(IBMONEDAS);
    auto* moneda = new QHBoxLayout;
    moneda->addWidget(lMoneda);
    moneda->addWidget(IBMONEDAS);
    moneda->addStretch();

    BACEPTAR = new QPushButton(QStringLiteral("&Aceptar"), this);
    BACEPTAR->setObjectName(QStringLiteral("BACEPTAR"));
    BCancelar = new QPushButton(QStringLiteral("&Salir"), this);
    BCancelar->setObjectName(QStringLiteral("BCancelar"));
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(BACEPTAR);
    botones->addWidget(BCancelar);

    auto* capa = new QVBoxLayout(this);
    capa->addLayout(moneda);
    capa->addLayout(rejilla);
    capa->addLayout(botones);
    capa->setSizeConstraint(QLayout::SetFixedSize);

    // Reading order: the currency, the principal, each row from left to right, the total, the buttons.
    QList<QWidget*> orden = {IBMONEDAS, EPrincipal, EPrincipal_E};
    for (const Fila& f : m_filas)
        orden << f.interes << f.anos << f.dias << f.pesetas << f.euros;
    orden << ETotal << ETotal_E << BACEPTAR << BCancelar;
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);

    for (int i = 0; i < 4; ++i) {
        const Fila& f = m_filas[size_t(i)];
        connect(f.interes, &TEditFlotante::CambiaValor, this, [this, i] { cambiaInteres(i); });
        connect(f.anos, &TEditFlotante::CambiaValor, this, [this, i] { cambiaAnos(i); });
        connect(f.dias, &TEditFlotante::CambiaValor, this, [this, i] { cambiaDias(i); });
        connect(f.pesetas, &TEditFlotante::CambiaValor, this, [this, e = f.pesetas] { EChangePTAS(e); });
        connect(f.euros, &TEditFlotante::CambiaValor, this, [this, e = f.euros] { EChangeEuros(e); });
        // Enter on these fields is the form's own (FormKeyPress), not "next control".
        TomaEnterPropio(f.dias);
    }
    TomaEnterPropio(EOtros);
    TomaEnterPropio(EOtros_E);
    connect(EPrincipal, &TEditFlotante::CambiaValor, this, &TFRespHipotec::EPrincipalChange);
    connect(EPrincipal_E, &TEditFlotante::CambiaValor, this, &TFRespHipotec::EPrincipal_EChange);
    connect(ETotal, &TEditFlotante::CambiaValor, this, &TFRespHipotec::ETotalChange);
    connect(ETotal_E, &TEditFlotante::CambiaValor, this, &TFRespHipotec::ETotal_EChange);
    connect(IBMONEDAS, &QComboBox::activated, this, &TFRespHipotec::IBMONEDASSelect);
    connect(BACEPTAR, &QPushButton::clicked, this, [this] { done(1); });
    connect(BCancelar, &QPushButton::clicked, this, &QDialog::reject);
    for (TEditFlotante* e : findChildren<TEditFlotante*>())
        e->installEventFilter(this);
    AplicaConvencionesDialogo(this, {.marcaFoco = MarcaFoco::Campos});
}

bool TFRespHipotec::enEuros() const {
    return IBMONEDAS->currentIndex() == 1;
}

bool TFRespHipotec::activa() const {
    return isActiveWindow();
}

TEditFlotante* TFRespHipotec::gemelo(const TEditFlotante* campo) const {
    const QString nombre = campo->objectName();
    const QString otro =
        nombre.endsWith(QLatin1String("_E")) ? nombre.chopped(2) : nombre + QStringLiteral("_E");
    return findChild<TEditFlotante*>(otro);
}

TEditFlotante* TFRespHipotec::importeDeFila(const Fila& f) const {
    return enEuros() ? f.euros : f.pesetas;
}

void TFRespHipotec::showEvent(QShowEvent* e) {
    if (!e->spontaneous()) FormShow();
    QDialog::showEvent(e);
}

void TFRespHipotec::FormShow() {
    HabilitaPesetasEuros(true);
    for (TEditFlotante* e : findChildren<TEditFlotante*>())
        e->PonValorExacto(0);
    IBMONEDAS->setCurrentIndex(1);
    EPrincipal_E->PonValorExacto(Principal_E);
    // The form is not active yet, so the principal's twin and the total are written here.
    EPrincipal->PonValorExacto(aPesetas(Principal_E));
    ActualizaTotal();
    EPrincipal_E->setFocus();
}

void TFRespHipotec::HabilitaPesetasEuros(bool euros) {
    for (TEditFlotante* e : {EPrincipal_E, ERes1_E, ERes2_E, ERes3_E, EOtros_E, ETotal_E})
        e->setEnabled(euros);
    for (TEditFlotante* e : {EPrincipal, ERes1, ERes2, ERes3, EOtros, ETotal})
        e->setEnabled(!euros);
}

void TFRespHipotec::IBMONEDASSelect() {
    HabilitaPesetasEuros(enEuros());
    (enEuros() ? EPrincipal_E : EPrincipal)->setFocus();
}

void TFRespHipotec::calculaFila(const Fila& f, double anos) {
    const double tanto = f.interes->ValorExacto();
    if (enEuros()) {
        const double importe = RedondeaDec(anos * (EPrincipal_E->ValorExacto() * tanto / 100), 2);
        f.euros->PonValorExacto(importe);
        f.pesetas->PonValorExacto(aPesetas(importe));
    } else {
        const double importe = EPrincipal->ValorExacto() * tanto / 100 * anos;
        f.pesetas->PonValorExacto(importe);
        f.euros->PonValorExacto(aEuros(importe));
    }
}

void TFRespHipotec::cambiaInteres(int fila) {
    const Fila& f = m_filas[size_t(fila)];
    if (!activa() || !f.interes->isEnabled()) return;
    calculaFila(f, f.anos->ValorExacto());
    ActualizaTotal();
}

void TFRespHipotec::cambiaAnos(int fila) {
    const Fila& f = m_filas[size_t(fila)];
    if (QApplication::focusWidget() != f.anos) return;
    const double anos = f.anos->ValorExacto();
    f.dias->PonValorExacto(std::round(anos * 365));
    calculaFila(f, anos);
    ActualizaTotal();
}

void TFRespHipotec::cambiaDias(int fila) {
    const Fila& f = m_filas[size_t(fila)];
    if (QApplication::focusWidget() != f.dias) return;
    const double anos = f.dias->ValorExacto() / 365;
    f.anos->PonValorExacto(RedondeaDec(anos, 1));
    calculaFila(f, anos);
    ActualizaTotal();
}

void TFRespHipotec::cambiaPrincipal(TEditFlotante* campo) {
    if (!activa() || !campo->isEnabled()) return;
    gemelo(campo)->PonValorExacto(campo == EPrincipal_E ? aPesetas(campo->ValorExacto())
                                                        : aEuros(campo->ValorExacto()));
    for (const Fila& f : m_filas)
        calculaFila(f, f.anos->ValorExacto());
    ActualizaTotal();
}

void TFRespHipotec::EPrincipalChange() {
    cambiaPrincipal(EPrincipal);
}
void TFRespHipotec::EPrincipal_EChange() {
    cambiaPrincipal(EPrincipal_E);
}
void TFRespHipotec::EInteresesOrdChange() {
    cambiaInteres(0);
}
void TFRespHipotec::EInteresDemoraChange() {
    cambiaInteres(1);
}
void TFRespHipotec::ECostesGastosChange() {
    cambiaInteres(2);
}
void TFRespHipotec::EInteresOtrosChange() {
    cambiaInteres(3);
}
void TFRespHipotec::EAno1Change() {
    cambiaAnos(0);
}
void TFRespHipotec::EAno2Change() {
    cambiaAnos(1);
}
void TFRespHipotec::EAno3Change() {
    cambiaAnos(2);
}
void TFRespHipotec::EAno4Change() {
    cambiaAnos(3);
}
void TFRespHipotec::EDias1Change() {
    cambiaDias(0);
}
void TFRespHipotec::EDias2Change() {
    cambiaDias(1);
}
void TFRespHipotec::EDias3Change() {
    cambiaDias(2);
}
void TFRespHipotec::EDias4Change() {
    cambiaDias(3);
}

void TFRespHipotec::EChangePTAS(TEditFlotante* campo) {
    if (!activa() || !campo->isEnabled()) return;
    gemelo(campo)->PonValorExacto(aEuros(campo->ValorExacto()));
    ActualizaTotal();
}

void TFRespHipotec::EChangeEuros(TEditFlotante* campo) {
    if (!activa() || !campo->isEnabled()) return;
    gemelo(campo)->PonValorExacto(aPesetas(campo->ValorExacto()));
    ActualizaTotal();
}

void TFRespHipotec::ETotalChange() {
    if (!ETotal->isEnabled() && !enEuros()) ETotal_E->PonValorExacto(aEuros(ETotal->ValorExacto()));
}

void TFRespHipotec::ETotal_EChange() {
    if (!ETotal_E->isEnabled() && enEuros()) ETotal->PonValorExacto(aPesetas(ETotal_E->ValorExacto()));
}

void TFRespHipotec::ActualizaTotal() {
    double pesetas = EPrincipal->ValorExacto(), euros = EPrincipal_E->ValorExacto();
    for (const Fila& f : m_filas) {
        pesetas += f.pesetas->ValorExacto();
        euros += f.euros->ValorExacto();
    }
    ETotal->PonValorExacto(pesetas);
    ETotal_E->PonValorExacto(RedondeaDec(euros, 2));
}

void TFRespHipotec::EInteresesOrdExit(TEditFlotante* campo) {
    if (campo->ValorExacto() != 0) return;
    const Fila& f = m_filas[size_t(campo->Tag - 1)];
    f.anos->PonValorExacto(0);
    f.dias->PonValorExacto(0);
    importeDeFila(f)->setFocus(Qt::TabFocusReason);
}

void TFRespHipotec::EAno1Exit(TEditFlotante* campo) {
    if (campo->ValorExacto() == 0) m_filas[size_t(campo->Tag - 1)].dias->setFocus(Qt::TabFocusReason);
}

void TFRespHipotec::DejaFocoActualiza(TEditFlotante*) {
    ActualizaTotal();
}

void TFRespHipotec::DejaFocoEuros(TEditFlotante* campo) {
    campo->PonValorExacto(RedondeaDec(campo->ValorExacto(), 2));
    ActualizaTotal();
}

bool TFRespHipotec::FormKeyPress(QWidget* control, QKeyEvent* tecla) {
    if (!esEnter(tecla)) return false;
    for (const Fila& f : m_filas)
        if (control == f.dias) {
            importeDeFila(f)->setFocus(Qt::TabFocusReason);
            return true;
        }
    if (control == EOtros || control == EOtros_E) {
        if (BACEPTAR->isVisible())
            BACEPTAR->click();
        else
            BCancelar->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

bool TFRespHipotec::eventFilter(QObject* objeto, QEvent* e) {
    auto* campo = qobject_cast<TEditFlotante*>(objeto);
    if (!campo) return QDialog::eventFilter(objeto, e);
    switch (e->type()) {
    case QEvent::KeyPress:
        if (FormKeyPress(campo, static_cast<QKeyEvent*>(e))) return true;
        break;
    case QEvent::FocusIn:
        m_conFoco = campo;
        break;
    case QEvent::FocusOut: {
        // Leaving a field is the clerk moving on, not the window losing the focus to another one; a field
        // passed over while a leave handler sends the focus elsewhere was never entered.
        const Qt::FocusReason razon = static_cast<QFocusEvent*>(e)->reason();
        if (campo != m_conFoco || razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason)
            break;
        m_conFoco = nullptr;
        for (const Fila& f : m_filas) {
            if (campo == f.interes) EInteresesOrdExit(campo);
            if (campo == f.anos) EAno1Exit(campo);
            if (campo == f.pesetas) DejaFocoActualiza(campo);
            if (campo == f.euros) DejaFocoEuros(campo);
        }
        break;
    }
    default:
        break;
    }
    return QDialog::eventFilter(objeto, e);
}

} // namespace nod
