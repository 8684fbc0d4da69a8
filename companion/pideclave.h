#pragma once
// The configuration's password dialog: it asks for one of the suite's passwords (a module's password,
// kept by the configuration) and says whether the clerk typed it. The typed text is masked, never
// logged, never shown back and dropped as soon as it has been compared.
//
// Keys: Enter moves to the next control (Space or the accelerator presses a button), Escape cancels.
// Modal results: 1 "&Aceptar", 2 "&Cancelar" or Escape.

#include "nod_widgets_export.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

class TFPideClave : public QDialog {
    Q_OBJECT
public:
    explicit TFPideClave(QWidget* owner = nullptr);

    QLabel* LPregunta = nullptr;
    QLineEdit* EClave = nullptr; ///< masked
    QPushButton *BBAceptar = nullptr, *BBCancelar = nullptr;

    /// Whether the typed text is exactly `esperada` (case counts). The whole text is always compared,
    /// so the time taken does not tell how much of it was right.
    bool Coincide(const QString& esperada) const;
};

/// Shows the dialog with the caption `titulo` and the prompt `pregunta` and returns true exactly when
/// the clerk accepted having typed `esperada`; Cancel, Escape or another text give false. A module
/// whose password is empty is opened by accepting an empty field.
/// Example: PideClave("Facturación", "Clave de acceso:", "ZEB") is true when "ZEB" is typed and accepted.
bool PideClave(const QString& titulo, const QString& pregunta, const QString& esperada,
               QWidget* owner = nullptr);

} // namespace nod
