#pragma once
// TFMensajeActivosFinancieros: the fixed help box on how the issuer of a financial asset is taken from
// the parties of a deed (unit Mensajeactivosfinancieros). It answers Yes/No or just OK.

#include "nod_widgets_export.h"

#include <QDialog>

class QPushButton;
class QTextEdit;

namespace nod NOD_WIDGETS_EXPORT {

class TFMensajeActivosFinancieros : public QDialog {
    Q_OBJECT
public:
    /// Caption "Información sobre los Activos Financieros", 495 × 344, the help text `RETexto` read-only
    /// with a vertical scroll bar and the buttons `BBSi` (6), `BBNo` (7) and `BBAceptar` (1), all three
    /// shown. The help text has the focus at first and scrolls with the keys; Tab reaches the buttons.
    explicit TFMensajeActivosFinancieros(QWidget* owner = nullptr);

    /// 0 shows `BBAceptar` alone; 1 shows `BBSi` and `BBNo` alone; other values change nothing.
    void CambiaTipoMensaje(int tipo);

    void BBSiClick();
    void BBNoClick();
    void BBAceptarClick();

    /// Escape sets the result to 7 and then runs the Yes handler, so Escape answers 6 (Yes), as the
    /// box always did. Enter moves the focus to the next control.
    void reject() override;

    /// The fixed help text (HTML).
    static QString TextoAyuda();
};

/// Builds the box, sets its type, shows it modally and returns 1, 6 or 7.
int MuestraActivosFinancieros(int tipo, QWidget* owner = nullptr);

} // namespace nod
