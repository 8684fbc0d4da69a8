#pragma once
// The area calculator: rustic land is described in deeds in hectares, ares and centiares, and the clerk
// needs the square metres. A small form the suite's programs create themselves.
//
// Keys: Enter moves to the next control, from a button too; Escape cancels (`BBCancelarClick`).
// Outcome: `Tag` is 1 after "&Aceptar" and 0 after "Cancelar" or Escape; `MetrosCuadrados` keeps the last
// surface computed with "=". Modal results: 1 "&Aceptar", 2 "Cancelar" or Escape.

#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>

class QLineEdit;
class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

/// The surface of hectares, ares and centiares in square metres, as the suite has always computed it:
/// hundredths of a square metre summed from three 32-bit products (hectares × 1,000,000, ares × 10,000,
/// centiares × 100), each product wrapping as 32-bit arithmetic does, then divided by 100.
/// MetrosDeHectareas(2, 35, 12) == 23512; MetrosDeHectareas(2148, 0, 0) == -21469672.96 (above 2,147
/// hectares the product wraps, and that limit is kept).
double MetrosDeHectareas(qint32 hectareas, qint32 areas, qint32 centiareas);

class TFCalculaMetrosCuadrados : public QDialog {
    Q_OBJECT
public:
    /// The form with the three edits preset to the given texts (the caller's figures, as typed).
    TFCalculaMetrosCuadrados(QWidget* owner, const QString& hectareas, const QString& areas,
                             const QString& centiareas);
    explicit TFCalculaMetrosCuadrados(QWidget* owner = nullptr)
        : TFCalculaMetrosCuadrados(owner, {}, {}, {}) {}

    QLineEdit *EHectareas = nullptr, *EAreas = nullptr, *ECentiAreas = nullptr;
    QLineEdit* EMetros = nullptr; ///< the result, read-only
    QPushButton *BBCalcula = nullptr, *BBAceptar = nullptr, *BBCancelar = nullptr;

    /// The last surface computed, in square metres.
    double MetrosCuadrados = 0;
    /// 1 accepted, 0 cancelled.
    int Tag = 0;

    /// "=": each edit trimmed and read as a whole number (anything else counts as 0), the surface by
    /// `MetrosDeHectareas` kept in `MetrosCuadrados` and shown in `EMetros` with thousands points
    /// ("23.512"); then the focus moves on.
    void BBCalculaClick();
    void BBAceptarClick();
    void BBCancelarClick();
    void reject() override; ///< Escape: as "Cancelar"
};

/// The form while it exists.
extern QPointer<TFCalculaMetrosCuadrados> FCalculaMetrosCuadrados;

} // namespace nod
