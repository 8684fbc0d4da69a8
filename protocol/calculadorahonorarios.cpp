#include "protocol/calculadorahonorarios.h"

#include "companion/config.h"
#include "companion/editimporte.h"
#include "companion/hoy.h"
#include "companion/rnumcad.h"
#include "protocol/aranceles.h"
#include "protocol/iva.h"
#include "text/moneda.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace nod {

namespace {

template <typename W> W* crea(QWidget* padre, const char* nombre) {
    auto* w = new W(padre);
    w->setObjectName(QString::fromLatin1(nombre));
    return w;
}

QLabel* resultado(QWidget* padre, const char* nombre) {
    auto* l = crea<QLabel>(padre, nombre);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

TEditImporte* importe(QWidget* padre, const char* nombre, int decimales, const QString& pista) {
    auto* e = new TEditImporte(padre, decimales);
    e->setObjectName(QString::fromLatin1(nombre));
    e->setToolTip(pista);
    e->setMinimumWidth(e->fontMetrics().horizontalAdvance(QStringLiteral("000.000.000.000,00")) + 16);
    return e;
}

QString euros(double x) {
    return PuntosNod(QString::number(x, 'f', 2), true) + QStringLiteral(" €");
}

QString pesetas(qint64 x) {
    return PuntosNod(QString::number(x), false) + QStringLiteral(" pts");
}

QString escalaConfigurada() {
    return Config.GetsTipoArancel() == QStringLiteral("C")
               ? QStringLiteral("Escala C (tablas inferior y superior)")
               : QStringLiteral("Escala de cuatro tipos");
}

QString siNo(const QCheckBox* c) {
    return c->isChecked() ? QStringLiteral("SI") : QStringLiteral("NO");
}

} // namespace

TCalculadoraHonorarios::TCalculadoraHonorarios(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("CalculadoraHonorarios"));
    setWindowTitle(QStringLiteral("Calculadora de honorarios"));

    auto* GBEscritura = crea<QGroupBox>(this, "GBEscritura");
    GBEscritura->setTitle(QStringLiteral("Escritura (euros)"));
    ECuantia = importe(GBEscritura, "ECuantia", 2, QStringLiteral("Cuantía de la escritura en euros"));
    LHonorarioEscritura = resultado(GBEscritura, "LHonorarioEscritura");
    auto* capaEscritura = new QFormLayout(GBEscritura);
    capaEscritura->addRow(QStringLiteral("&Cuantía:"), ECuantia);
    capaEscritura->addRow(QStringLiteral("Honorarios:"), LHonorarioEscritura);

    auto* GBPoliza = crea<QGroupBox>(this, "GBPoliza");
    GBPoliza->setTitle(QStringLiteral("Póliza (pesetas)"));
    LEscala = crea<QLabel>(GBPoliza, "LEscala");
    ECuantiaPoliza =
        importe(GBPoliza, "ECuantiaPoliza", 0, QStringLiteral("Cuantía de la póliza en pesetas"));
    CBAval = crea<QCheckBox>(GBPoliza, "CBAval");
    CBAval->setText(QStringLiteral("Con a&val"));
    CBInferior = crea<QCheckBox>(GBPoliza, "CBInferior");
    CBInferior->setText(QStringLiteral("&Tabla inferior"));
    CBTipoDocumento = crea<QComboBox>(GBPoliza, "CBTipoDocumento");
    CBTipoDocumento->addItems({QStringLiteral("Factura"), QStringLiteral("Póliza")});
    LHonorarioPoliza = resultado(GBPoliza, "LHonorarioPoliza");
    auto* opciones = new QHBoxLayout;
    opciones->addWidget(CBAval);
    opciones->addWidget(CBInferior);
    opciones->addStretch();
    auto* capaPoliza = new QFormLayout(GBPoliza);
    capaPoliza->addRow(QStringLiteral("Escala:"), LEscala);
    capaPoliza->addRow(QStringLiteral("C&uantía:"), ECuantiaPoliza);
    capaPoliza->addRow(QString(), opciones);
    capaPoliza->addRow(QStringLiteral("&Documento:"), CBTipoDocumento);
    capaPoliza->addRow(QStringLiteral("Honorarios:"), LHonorarioPoliza);

    auto* GBIVA = crea<QGroupBox>(this, "GBIVA");
    GBIVA->setTitle(QStringLiteral("IVA sobre los honorarios de la escritura"));
    EFecha = crea<QDateEdit>(GBIVA, "EFecha");
    EFecha->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    EFecha->setCalendarPopup(true);
    EFecha->setDate(TDateTimeToQDate(Date()));
    EIVA = crea<QDoubleSpinBox>(GBIVA, "EIVA");
    EIVA->setRange(0, 100);
    EIVA->setDecimals(2);
    EIVA->setSuffix(QStringLiteral(" %"));
    // A percentage reads "21,00 %" whatever the machine's locale; no grouping is involved here.
    EIVA->setLocale(QLocale(QLocale::Spanish, QLocale::Spain));
    EIVA->setValue(21);
    BBCompruebaIVA = crea<QPushButton>(GBIVA, "BBCompruebaIVA");
    BBCompruebaIVA->setText(QStringLiteral("Comprobar &IVA"));
    BBCompruebaIVA->setToolTip(QStringLiteral("Comprobar que el porcentaje es el vigente en la fecha"));
    LResultadoIVA = crea<QLabel>(GBIVA, "LResultadoIVA");
    LCuotaIVA = resultado(GBIVA, "LCuotaIVA");
    LTotal = resultado(GBIVA, "LTotal");
    auto* comprobacion = new QHBoxLayout;
    comprobacion->addWidget(BBCompruebaIVA);
    comprobacion->addWidget(LResultadoIVA, 1);
    auto* capaIVA = new QFormLayout(GBIVA);
    capaIVA->addRow(QStringLiteral("&Fecha:"), EFecha);
    capaIVA->addRow(QStringLiteral("&Porcentaje:"), EIVA);
    capaIVA->addRow(QString(), comprobacion);
    capaIVA->addRow(QStringLiteral("Cuota:"), LCuotaIVA);
    capaIVA->addRow(QStringLiteral("Total:"), LTotal);

    auto* capa = new QVBoxLayout(this);
    capa->addWidget(GBEscritura);
    capa->addWidget(GBPoliza);
    capa->addWidget(GBIVA);
    capa->addStretch();

    for (TEditImporte* e : {ECuantia, ECuantiaPoliza})
        connect(e, &QLineEdit::textChanged, this, &TCalculadoraHonorarios::Calcula);
    for (QCheckBox* c : {CBAval, CBInferior})
        connect(c, &QCheckBox::toggled, this, &TCalculadoraHonorarios::Calcula);
    connect(CBTipoDocumento, &QComboBox::currentIndexChanged, this, &TCalculadoraHonorarios::Calcula);
    connect(EIVA, &QDoubleSpinBox::valueChanged, this, &TCalculadoraHonorarios::Calcula);
    // A verdict belongs to the date and percentage it was given for.
    connect(EIVA, &QDoubleSpinBox::valueChanged, LResultadoIVA, &QLabel::clear);
    connect(EFecha, &QDateEdit::dateChanged, LResultadoIVA, &QLabel::clear);
    connect(BBCompruebaIVA, &QPushButton::clicked, this, &TCalculadoraHonorarios::CompruebaIva);
    Calcula();
}

void TCalculadoraHonorarios::Calcula() {
    LEscala->setText(escalaConfigurada());
    // An amount still being typed ("1.234.5") has no fee yet: the result waits, it is never guessed.
    if (ECuantia->EsValido()) {
        const double honorario = Ges_Arancel_E(ECuantia->Valor());
        const double cuota = RedondeaDec(honorario * EIVA->value() / 100.0, 2);
        LHonorarioEscritura->setText(euros(honorario));
        LCuotaIVA->setText(euros(cuota));
        LTotal->setText(euros(RedondeaDec(honorario + cuota, 2)));
    } else {
        for (QLabel* l : {LHonorarioEscritura, LCuotaIVA, LTotal})
            l->clear();
    }
    const QString tipo = CBTipoDocumento->currentIndex() == 0 ? QStringLiteral("factura") : QString();
    if (ECuantiaPoliza->EsValido())
        LHonorarioPoliza->setText(
            pesetas(ARANCEL_C(ECuantiaPoliza->Valor(), siNo(CBAval), tipo, siNo(CBInferior))));
    else
        LHonorarioPoliza->clear();
}

bool TCalculadoraHonorarios::CompruebaIva() {
    const bool conforme = CompruebaIVA(QDateToTDateTime(EFecha->date()), EIVA->value());
    LResultadoIVA->setText(conforme ? QStringLiteral("Porcentaje aceptado")
                                    : QStringLiteral("Revise el porcentaje"));
    return conforme;
}

} // namespace nod
