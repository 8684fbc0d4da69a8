#pragma once
// The small form that asks for the number of an invoice: its series, year and number, and the bis letter
// of an invoice repeated under the same number. The suite's billing programs use it to find or reissue an
// invoice.
//
// Keys: Enter moves to the next control, from a button too (Space or Alt and the underlined letter
// press a button), Escape cancels.
// Modal results: 1 "&Aceptar", 2 "&Cancelar" or Escape. Entering a control shows its hint in the status
// bar `SBExplica`; fields also take the focus mark (`TomaFocoControl`). Leaving clears both.

#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>

class QLabel;
class QLineEdit;
class QPushButton;
class QStatusBar;

namespace nod NOD_WIDGETS_EXPORT {

class TFPreguntaNumeroFactura : public QDialog {
    Q_OBJECT
public:
    explicit TFPreguntaNumeroFactura(QWidget* owner = nullptr);

    /// Series: up to two characters, kept in capitals ("A", "R1").
    QLineEdit* ESerie = nullptr;
    /// Year: four digits; one or two typed digits become a full year on leaving the field ("24" → "2024").
    QLineEdit* EAno = nullptr;
    /// Number within series and year: up to six digits. "&Aceptar" is enabled only while it holds one.
    QLineEdit* ENumero = nullptr;
    /// Bis letter: one letter, or empty for an invoice that is not repeated.
    QLineEdit* EBis = nullptr;
    QPushButton *BBAceptar = nullptr, *BBCancelar = nullptr;
    QStatusBar* SBExplica = nullptr;

    /// The values as typed, and the values shown when the form opens.
    QString Serie() const;
    int Ano() const;     ///< 0 when the field is empty
    int Numero() const;  ///< 0 when the field is empty
    QString Bis() const; ///< the letter, or empty
    void PonValores(const QString& serie, int ano, int numero, const QString& bis);

protected:
    bool eventFilter(QObject* o, QEvent* e) override;
};

/// The form while it is open through `PreguntaNumeroFacturaForm` (null otherwise).
extern QPointer<TFPreguntaNumeroFactura> FPreguntaNumeroFactura;

/// Shows the form modally over `owner` with `titulo` (the form's own title when empty) and the values
/// given; on "&Aceptar" copies the typed values back and returns true. On cancel returns false and leaves
/// the values as they came. Example: a user who types "a", "2024", "15" and accepts gets serie "A",
/// ano 2024, numero 15 and an empty bis.
bool PreguntaNumeroFacturaForm(QString& serie, int& ano, int& numero, QString& bis,
                               const QString& titulo = {}, QWidget* owner = nullptr);

} // namespace nod
