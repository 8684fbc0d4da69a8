// The screen and printer side of TQRListaRevisionCodCliente (Qt Widgets and Qt Print Support).
#include "companion/dialogo.h"
#include "companion/modal.h"
#include "maintenance/listarevisioncodclienteqr.h"

#include <QGuiApplication>
#include <QPageLayout>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>

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
    // Large enough to read a page: most of the screen's height, a page's proportion in width.
    if (const QScreen* pantalla = owner ? owner->screen() : QGuiApplication::primaryScreen()) {
        const QRect zona = pantalla->availableGeometry();
        const int alto = zona.height() * 9 / 10;
        vista.resize(std::min(zona.width() * 9 / 10, alto * 4 / 5), alto);
    }
    QObject::connect(&vista, &QPrintPreviewDialog::paintRequested, &vista,
                     [this](QPrinter* p) { Dibuja(*p); });
    AplicaConvencionesDialogo(&vista);
    EjecutaModal(vista);
}

bool TQRListaRevisionCodCliente::Print(QPrinter& impresora) const {
    preparaPagina(impresora);
    return Dibuja(impresora) > 0;
}

} // namespace nod
