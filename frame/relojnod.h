#pragma once
// TFRelojNod: the dialog that sets the computer's clock (unit Relojnod). Setting the clock needs a
// privilege the user may not have; the clock itself is reached through a seam that tests replace.

#include "nod_widgets_export.h"

#include <QDateTime>
#include <QDialog>
#include <functional>

class QDateEdit;
class QTimeEdit;

namespace nod NOD_WIDGETS_EXPORT {

/// Sets the system's local time; on failure returns false and says why in `motivo`.
using AjustadorReloj = std::function<bool(const QDateTime& local, QString& motivo)>;

/// The system's clock (needs the right to set the time); replaced by tests. Returns the previous one;
/// an empty function puts the system's back.
AjustadorReloj FijaAjustadorReloj(AjustadorReloj ajustador);

/// Sets the local time through the installed clock.
bool AjustaReloj(const QDateTime& local, QString& motivo);

class TFRelojNod : public QDialog {
    Q_OBJECT
public:
    /// The date picker `DTPFecha`, the time picker `DTPHora` and the buttons `BBAceptar` / `BBCancelar`.
    /// Enter moves the focus to the next control, on the buttons too; `BBCancelar`, Escape and the close
    /// button close without touching the clock, result 2.
    explicit TFRelojNod(QWidget* owner = nullptr);

    /// The pickers take today's date and the current time (the library's clock, `Now()`).
    void FormShow();

    /// Joins the date, a blank and the time into one local time and sets the system's clock to it; a
    /// refusal is reported as "No se ha podido cambiar la fecha y la hora del sistema." with the reason
    /// through the message service. The dialog closes either way (result 1).
    void BBAceptarClick();

    /// The date and time the pickers hold, joined as the clock will be set.
    QDateTime FechaHoraElegida() const;

protected:
    void showEvent(QShowEvent* e) override;

private:
    QDateEdit* m_fecha;
    QTimeEdit* m_hora;
};

} // namespace nod
