#pragma once
// A dialog waiting on the network or on a long task, as the clerk must see it: the busy cursor over the
// window, the wait message, the controls blocked so that the action cannot start twice, Escape and the
// cancel button abandoning the wait, and nothing of a late answer shown once the wait was abandoned.
//
// The wait lives for the scope of the call that waits (in a local event loop, which keeps the window
// painting):
//
//     void TFMiDialogo::Consulta() {
//         TEsperaDialogo espera(this, QStringLiteral("Consultando ... Escape para Cancelar"), BBCancelar);
//         if (!espera.Empieza()) return;                 // a wait of this window is already running
//         const Respuesta r = PreguntaAlServidor(espera.Vigia()); // polls the vigía, aborts when true
//         if (espera.Cancelada()) return;                // abandoned: drop whatever came back
//         ... show r ...
//     }

#include "nod_widgets_export.h"

#include <QPointer>
#include <QString>
#include <functional>

class QAbstractButton;
class QObject;
class QWidget;

namespace nod NOD_WIDGETS_EXPORT {

class TEsperaDialogo {
public:
    /// Prepares a wait of the window `ventana` (a dialog, or the window of a control) with the wait message
    /// `mensaje` (none when empty). `cancelar`, when given, is the button that abandons the wait: it stays
    /// enabled (with the normal cursor) and its own action runs as usual (a "&Cancelar" closes the dialog).
    TEsperaDialogo(QWidget* ventana, const QString& mensaje = {}, QAbstractButton* cancelar = nullptr);

    /// Ends the wait if it is running (`Termina`).
    ~TEsperaDialogo();

    TEsperaDialogo(const TEsperaDialogo&) = delete;
    TEsperaDialogo& operator=(const TEsperaDialogo&) = delete;

    /// Starts the wait: busy cursor, the wait message (`MuestraMensaje`), every control of the window but
    /// `cancelar` disabled. Returns false, changing nothing, when the window is already waiting (a second
    /// click that slipped through) or is gone.
    bool Empieza();

    /// Ends the wait now, before the scope does (to tell the clerk the result with the dialog usable again):
    /// the wait message closes, the controls, the cursor and the focus come back as they were. `Cancelada`
    /// keeps its answer.
    void Termina();

    /// True once the clerk abandoned the wait: Escape pressed anywhere in the program, `cancelar` pressed,
    /// or the window closed or destroyed.
    bool Cancelada() const;

    /// A function that answers `Cancelada()`, for routines that poll while they wait.
    std::function<bool()> Vigia() const;

    /// Whether `ventana` (or the window of that control) is in a wait now.
    static bool EnEspera(const QWidget* ventana);

private:
    struct Estado;
    std::shared_ptr<Estado> m_estado;
};

} // namespace nod
