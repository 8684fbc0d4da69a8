#pragma once
// TFEsperaListado: the small progress window shown while a long list or process runs
// (unit Esperalistado), and the three routines that drive it.

#include "nod_widgets_export.h"

#include <QDialog>

class QProgressBar;

namespace nod NOD_WIDGETS_EXPORT {

class TFEsperaListado : public QDialog {
    Q_OBJECT
public:
    /// A single-border window titled `caption` (design title "Generando el Listado."), centred on the
    /// program's main window (`VentanaPrincipal`, or on the screen while none is visible) whatever its
    /// owner, holding the bar `PbListado` with range 0 to 100. It cannot be cancelled: Escape and the close
    /// button leave it on screen while the work goes on.
    explicit TFEsperaListado(QWidget* owner = nullptr,
                             const QString& caption = QStringLiteral("Generando el Listado."));

    /// Sets the bar's position and repaints the window.
    void DibujaEstado(int posicion);

    int posicion() const;

private:
    QProgressBar* m_barra;
};

/// Creates the progress window without owner and with `caption` as its title, lets it paint and returns
/// it. It is not shown: the caller shows it (non-modally) and frees it with `CierraProgreso`.
TFEsperaListado* MuestraProgreso(const QString& caption);

/// Sets the window's title and the bar's position and lets it paint. A null form is ignored.
void CambiaProgreso(const QString& caption, int posicion, TFEsperaListado* forma);

/// Frees the window; a null form is ignored.
void CierraProgreso(TFEsperaListado* forma);

} // namespace nod
