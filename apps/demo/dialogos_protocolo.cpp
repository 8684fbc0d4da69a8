// The protocol family in the demo: the invoice-number form and the fee calculator page.
#include "apps/demo/catalogo.h"
#include "companion/dialogo.h"
#include "companion/editimporte.h"
#include "protocol/calculadorahonorarios.h"
#include "protocol/preguntanumerofactura.h"

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

} // namespace

void RegistraDialogosProtocolo(CatalogoDemo& c) {
    c.agrega("Protocolo", "pregunta_numero_factura", "TFPreguntaNumeroFactura: número de factura",
             preguntaNumeroFactura);
    c.agrega("Protocolo", "calculadora_honorarios", "Calculadora de honorarios (aranceles e IVA)",
             calculadoraHonorarios);
}

} // namespace nod::demo
