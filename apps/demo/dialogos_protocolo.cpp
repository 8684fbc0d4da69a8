// The protocol family in the demo: the invoice-number form, the fee calculator page, the mortgage
// liability, currency and area calculators and the registered properties of an entry.
#include "apps/demo/catalogo.h"
#include "companion/dialogo.h"
#include "companion/editimporte.h"
#include "companion/modal.h"
#include "protocol/calculadorahonorarios.h"
#include "protocol/calculametros.h"
#include "protocol/conversormoneda.h"
#include "protocol/masdatosfincasregistrales.h"
#include "protocol/preguntanumerofactura.h"
#include "protocol/responsabilidadhipotecaria.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace nod::demo {

namespace {

QString preguntaNumeroFactura(QWidget* owner) {
    QString serie = QStringLiteral("A"), bis;
    int ano = 0, numero = 0;
    if (!PreguntaNumeroFacturaForm(serie, ano, numero, bis, {}, owner)) return QStringLiteral("cancelado");
    return QStringLiteral("serie \"%1\", año %2, número %3, bis \"%4\"")
        .arg(serie)
        .arg(ano)
        .arg(numero)
        .arg(bis);
}

// The page lives inside a window of its own here; in the suite it is one page of a larger form.
QString calculadoraHonorarios(QWidget* owner) {
    QDialog d(owner);
    d.setWindowTitle(QStringLiteral("Calculadora de honorarios"));
    auto* pagina = new TCalculadoraHonorarios(&d);
    pagina->ECuantia->setText(QStringLiteral("150.000,00"));
    pagina->ECuantiaPoliza->setText(QStringLiteral("2.000.000"));
    auto* botones = new QDialogButtonBox(&d);
    botones->addButton(QStringLiteral("Ce&rrar"), QDialogButtonBox::RejectRole);
    QObject::connect(botones, &QDialogButtonBox::rejected, &d, &QDialog::reject);
    auto* capa = new QVBoxLayout(&d);
    capa->addWidget(pagina);
    capa->addWidget(botones);
    AplicaConvencionesDialogo(&d);
    d.exec();
    return QStringLiteral("escritura %1, póliza %2, total con IVA %3")
        .arg(pagina->LHonorarioEscritura->text(), pagina->LHonorarioPoliza->text(), pagina->LTotal->text());
}

QString respHipotec(QWidget* owner) {
    TFRespHipotec f(owner);
    f.Principal_E = 150000;
    if (EjecutaModal(f) != 1) return QStringLiteral("salir");
    return QStringLiteral("total %1 € (%2 pts.)").arg(f.ETotal_E->text(), f.ETotal->text());
}

QString fincasRegistrales(QWidget* owner) {
    TFMasDatosFincasRegistrales f(owner, 202401234.1, QStringLiteral("COMPRAVENTA DE VIVIENDA Y GARAJE"),
                                  QStringLiteral("28079-12345|28079-12346|Madrid 4, finca 7.001"));
    if (EjecutaModal(f) != 1) return QStringLiteral("cancelado");
    return QStringLiteral("fincas \"%1\"").arg(f.Fincas);
}

QString conversorMoneda(QWidget* owner) {
    TFConversorMoneda f(owner);
    EjecutaModal(f);
    return QStringLiteral("%1 pts. = %2 €").arg(f.ePesetas->text(), f.eEuros->text());
}

QString calculaMetros(QWidget* owner) {
    TFCalculaMetrosCuadrados f(owner, QStringLiteral("2"), QStringLiteral("35"), QStringLiteral("12"));
    EjecutaModal(f);
    return f.Tag == 1 ? QStringLiteral("%1 m2").arg(f.EMetros->text()) : QStringLiteral("cancelado");
}

} // namespace

void RegistraDialogosProtocolo(CatalogoDemo& c) {
    c.agrega("Protocolo", "pregunta_numero_factura", "TFPreguntaNumeroFactura: número de factura",
             preguntaNumeroFactura);
    c.agrega("Protocolo", "calculadora_honorarios", "Calculadora de honorarios (aranceles e IVA)",
             calculadoraHonorarios);
    c.agrega("Protocolo", "resp_hipotec", "TFRespHipotec: responsabilidad hipotecaria", respHipotec);
    c.agrega("Protocolo", "fincas_registrales", "TFMasDatosFincasRegistrales: fincas registrales",
             fincasRegistrales);
    c.agrega("Protocolo", "conversor_moneda", "TFConversorMoneda: calculadora de euros-pesetas",
             conversorMoneda);
    c.agrega("Protocolo", "calcula_metros", "TFCalculaMetrosCuadrados: metros cuadrados", calculaMetros);
}

} // namespace nod::demo
