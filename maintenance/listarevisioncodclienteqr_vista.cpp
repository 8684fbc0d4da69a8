// The screen and printer side of TQRListaRevisionCodCliente (Qt Widgets and Qt Print Support).
#include "companion/dialogo.h"
#include "maintenance/listarevisioncodclienteqr.h"

#include <QPageLayout>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace nod {

namespace {
void preparaPagina(QPrinter& impresora) {
    impresora.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                        QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter));
    impresora.setDocName(TQRListaRevisionCodCliente::Caption());
}
} // namespace

void TQRListaRevisionCodCliente::Preview(QWidget* owner) const {
    QPrinter impresora(QPrinter::HighResolution);
    preparaPagina(impresora);
    QPrintPreviewDialog vista(&impresora, owner);
    vista.setObjectName(QStringLiteral("QRListaRevisionCodCliente"));
    vista.setWindowTitle(Caption());
    QObject::connect(&vista, &QPrintPreviewDialog::paintRequested, &vista,
                     [this](QPrinter* p) { Dibuja(*p); });
    AplicaConvencionesDialogo(&vista);
    vista.exec();
}

bool TQRListaRevisionCodCliente::Print(QPrinter& impresora) const {
    preparaPagina(impresora);
    return Dibuja(impresora) > 0;
}

} // namespace nod
