#pragma once
// The registered properties ("fincas registrales") of a protocol entry: the clerk adds, deletes and
// modifies the registry identifiers of the properties a deed concerns. The suite stores them with the
// entry as one string, the identifiers joined by "|" and nothing else (no escaping, no count, no final
// separator), so an identifier cannot hold "|".
//
// The form browses (list and buttons) or edits one identifier (the edit and its accept and cancel
// buttons). Keys, seen by the form before its controls:
//   Insert  "A&ñadir" while browsing, accept the identifier while editing
//   Delete  "B&orrar" while browsing
//   Space   "&Modificar" while browsing (while editing it types a blank)
//   Enter   the next control
//   Escape  cancel the identifier while editing, otherwise close with Cancel (2)
// Modal results: 1 "&Aceptar" (the list stored in `Fincas`), 2 "&Cancelar" (`Fincas` unchanged).

#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>
#include <QStringList>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace nod NOD_WIDGETS_EXPORT {

class TFMasDatosFincasRegistrales : public QDialog {
    Q_OBJECT
public:
    /// Shows entry `codigo` (its number and year by `DecodeCod`, its bis mark by `CodToBis`), its
    /// `concepto`, and the list decoded from `fincas` (trimmed first), browsing.
    TFMasDatosFincasRegistrales(QWidget* owner, double codigo, const QString& concepto,
                                const QString& fincas);
    explicit TFMasDatosFincasRegistrales(QWidget* owner = nullptr)
        : TFMasDatosFincasRegistrales(owner, 0, {}, {}) {}

    /// The stored string: trimmed on creation, the new encoding after "&Aceptar".
    QString Fincas;

    QLabel *STNumero = nullptr, *STAno = nullptr, *LBis = nullptr, *STConcepto = nullptr;
    /// The identifiers, always in sorted order (without regard to case and accents, as Spanish sorts).
    QListWidget* LBFincasRegistrales = nullptr;
    QPushButton *BBAnadir = nullptr, *BBBorrar = nullptr, *BBModificar = nullptr;
    QLineEdit* EFincaRegistral = nullptr;
    QPushButton *BBAceptarCambios = nullptr, *BBCancelarCambios = nullptr;
    QPushButton *BBAceptar = nullptr, *BBCancelar = nullptr;

    /// The identifiers of a stored string: each text before a "|" (empty ones too), then what is left
    /// after the last "|" when it is not empty. "A|B|" gives A, B; "|A" gives "", A; "A||B" gives A, "", B;
    /// "" gives none.
    static QStringList DescodificaFincasRegistrales(const QString& fincas);
    /// The stored string of a list: each item preceded by "|" unless nothing has been written yet, so an
    /// empty first item leaves no trace: ("", "A") gives "A"; (A, "", B) gives "A||B".
    static QString CodificaFincasRegistrales(const QStringList& lista);

    /// The trimmed edit as a new identifier, in its sorted place; false with a message box ("Finca
    /// Registral no válida") when it is empty or already in the list exactly (a difference of case is a
    /// different identifier).
    bool AnadeFincaRegistral();
    /// Removes the selected identifier, after the messages of an empty list or no selection.
    void BorraFincaRegistral();
    /// Editing: the edit and its two buttons enabled, the rest disabled, the focus in the edit.
    void ActivaBotonesAceptaCancelaCambios();
    /// Browsing: the edit emptied and disabled with its two buttons, the rest enabled.
    void DesactivaBotonesAceptaCancelaCambios();

    void BBAnadirClick();
    void BBBorrarClick();
    /// The selected identifier moves into the edit (it leaves the list, and cancelling does not put it
    /// back).
    void BBModificarClick();
    void BBAceptarCambiosClick();
    void BBCancelarCambiosClick();
    void BBAceptarClick();
    void BBCancelarClick();
    /// The key table above; true when the key was used.
    bool FormKeyDown(QKeyEvent* tecla);

    /// The identifiers in the order shown.
    QStringList Lista() const;
    void reject() override; ///< as "&Cancelar"

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override;

private:
    bool listaUtil(); // the messages of an empty list or no selection
    void inserta(const QString& finca);
};

/// The form while it exists.
extern QPointer<TFMasDatosFincasRegistrales> FMasDatosFincasRegistrales;

} // namespace nod
