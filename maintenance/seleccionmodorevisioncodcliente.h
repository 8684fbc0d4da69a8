#pragma once
// TFSeleccionModoRevisionCodCliente: the form of the client-code revision (unit
// Seleccionmodorevisioncodcliente). The clerk chooses between all tables and one table of the list,
// accepts, and gets the printed list "DOCUMENTOS CON CÓDIGOS DE CLIENTES ERRÓNEOS" in a preview window.
//
// Keys: Enter moves to the next control, from a button too (Space or Alt and the underlined letter press
// a button); Escape and "&Salir" give 2. "&Aceptar" runs the revision (busy cursor, the form's controls
// blocked, the progress window naming each table), previews the list and closes the form with 1.

#include "maintenance/revisioncodcliente.h"
#include "nod_widgets_export.h"

#include <QDialog>
#include <QPointer>
#include <functional>

class QComboBox;
class QPushButton;
class QRadioButton;

namespace nod NOD_WIDGETS_EXPORT {

class TFSeleccionModoRevisionCodCliente : public QDialog {
    Q_OBJECT
public:
    /// Captioned "Indique los parámetros de Revisión", "Revisión en todas las tablas" checked and the list
    /// filled (`RellenaTablasConCodCliente`) and disabled.
    explicit TFSeleccionModoRevisionCodCliente(QWidget* owner = nullptr);

    QRadioButton* RBTodasTablas = nullptr; ///< "Revisión en todas las tablas"
    QRadioButton* RBUnaTabla = nullptr;    ///< "Revisión en la tabla"
    QComboBox* CBTablas = nullptr;         ///< the tables, for a one-table run
    QPushButton* BBAceptar = nullptr;      ///< "&Aceptar", hint "Acepta los cambios y cierra esta ventana"
    QPushButton* BBSalir = nullptr;        ///< "&Salir", hint "Cancela los cambios y cierra esta ventana"

    /// Fills `CBTablas` with the thirty tables that store a client code, sorted (`TablasConCodCliente`).
    void RellenaTablasConCodCliente();
    /// All tables checked: the list disabled, showing no item. One table: enabled, showing its first item.
    void RBTodasTablasClick();
    /// Runs the revision chosen, previews the list and closes the form with 1 (with 2 when the clients
    /// table could not be read: the clerk has been told).
    void BBAceptarClick();

    /// The all-tables run and the one-table run of `tabla`, each followed by the list's preview. False
    /// when the revision could not run.
    bool MuestraCodClienteIncorrectoEnTodasTablas();
    bool MuestraCodClienteIncorrectoEnTabla(const QString& tabla);

    /// The checks and their result set, from the last run.
    const TRevisionCodCliente& Revision() const { return m_revision; }

private:
    bool corre(const std::function<bool()>& revisa, const QString& subtitulo);
    TRevisionCodCliente m_revision;
};

/// The form while it is open through `SeleccionModoRevisionCodCliente` (null otherwise).
extern QPointer<TFSeleccionModoRevisionCodCliente> FSeleccionModoRevisionCodCliente;

/// Shows the form modally over `owner` (through the modal seam, as the list's preview is shown); true
/// when the clerk accepted and the revision ran.
bool SeleccionModoRevisionCodCliente(QWidget* owner = nullptr);

} // namespace nod
