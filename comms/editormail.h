#pragma once
// The e-mail editor (TFEditorMail): one message with its recipients, subject, text and attachments, sent
// with `EnviarEmail`; `MuestraEmail` opens it for an address. And `EnviarMail`, which opens the desktop's
// mail program on a message to the maker's support desk.
//
// Controls: "&Para:" `EPara`, "C&C:" `ECC`, "CC&O:" `ECCO` (hidden copies), "&Asunto:" `EAsunto`, the
// text `MCuerpo` (Enter makes a new line there), "Ad&juntos:" `LBAdjuntos` with "A&ñadir..." `BBAnadir`
// and "&Quitar" `BBQuitar`, "&Enviar" `BBEnviar` and "&Cerrar" `BBCerrar`. Addresses are separated by
// ";". "&Enviar" asks what `EnviarEmail` asks, sends with the wait of a dialog on the network (busy
// cursor, the controls blocked, Escape abandons it), and closes the editor with 1 once the message went
// out; a message that could not be sent is reported ("Correo no enviado") and the editor stays open with
// everything as it was. "&Cerrar" and Escape close it with 2.

#include "nod_widgets_export.h"

#include <QDialog>
#include <QString>
#include <QStringList>

class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

class TFEditorMail : public QDialog {
    Q_OBJECT
public:
    explicit TFEditorMail(QWidget* owner);

    /// Adds files to the attachments, skipping those already there.
    void AgregaAdjuntos(const QStringList& ficheros);
    QStringList Adjuntos() const;

    /// Sends the message as "&Enviar" does; true when it went out (the editor is then closed with 1).
    bool Envia();

    QLineEdit* EPara;
    QLineEdit* ECC;
    QLineEdit* ECCO;
    QLineEdit* EAsunto;
    QPlainTextEdit* MCuerpo;
    QListWidget* LBAdjuntos;
    QPushButton* BBAnadir;
    QPushButton* BBQuitar;
    QPushButton* BBEnviar;
    QPushButton* BBCerrar;
};

/// Creates the e-mail editor with `direccion` as its recipient, shows it modally and frees it.
void MuestraEmail(const QString& direccion);

/// Opens the desktop's mail program on a new message to the maker's support desk (`EnlaceEnviarMail`,
/// through the shell opener); says so when no program could open it. `ventana` is accepted for the
/// suite's callers.
void EnviarMail(unsigned ventana);

} // namespace nod
