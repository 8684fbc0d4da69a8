#pragma once
// The one message service through which every message box and wait window of the library passes.
// Programs with a screen install the Qt service (frame/qtmensajes.h); tests and the command line
// install `ServicioMensajesGuionado`, which records each dialog and answers from a queue.
//
// Modal results keep the suite's numbers: 1 OK or first button (yes, continue), 2 cancel or second
// button (no), 6 yes and 7 no where a box says so.

#include "companion/tdatetime.h"
#include "nod_core_export.h"

#include <QString>
#include <QVector>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>

namespace nod NOD_CORE_EXPORT {

using TColor = std::uint32_t; // stored as the suite writes it: blue in the high byte, red in the low byte

/// What a `Mensaje_Person` box shows; the service decides how (a real TFMensajeNod or a script).
struct PeticionMensajePerson {
    int tipo = 0; // TMensaje
    QString mensaje1, mensaje2, titulo, boton1, boton2;
    int icono = 0; // TIcono
    TColor fondo = 0, letras = 0;
};

/// One dialog as the user saw it, for the record, with the answer the routine got from it.
struct DialogoMostrado {
    QString kind; // the routine that showed it: "Mensaje_Error", "Mensaje_NoSi", "Mensaje_Person" ...
    QString title;
    QString text;
    std::optional<int> respuesta; // the modal result returned; none for a box that asks nothing
    bool porDefecto = false;      // no answer was left for it: it answered as Escape would
};

class ServicioMensajes {
public:
    virtual ~ServicioMensajes();

    virtual void error(const QString& texto, const QString& titulo) = 0;
    virtual void info(const QString& texto, const QString& titulo) = 0;
    /// A Yes/No question; `focoEnSi` chooses the focused button. Returns 1 for yes, 2 for no or Escape.
    virtual int pregunta(const QString& kind, const QString& texto, const QString& titulo, bool focoEnSi) = 0;
    /// The modeless wait window: shown, changed, closed. Showing it again replaces its text.
    virtual void muestraEspera(const QString& texto) = 0;
    virtual void cambiaEspera(const QString& texto) = 0;
    virtual void cierraEspera() = 0;
    /// The suite's coloured message box. Returns its modal result (1 first button, 2 second or Escape).
    virtual int mensajePerson(const PeticionMensajePerson& p) = 0;
    /// The financial assets help box: 1 (Aceptar), 6 (Si, also Escape) or 7 (No).
    virtual int activosFinancieros(int tipo) = 0;
};

/// The installed service. Before any is installed, a silent one that logs each message and answers
/// as Escape would.
ServicioMensajes& Mensajes();

/// Installs a service (not owned); nullptr returns to the silent one.
void InstalaServicioMensajes(ServicioMensajes* servicio);

/// Records every dialog and answers the boxes that ask something (questions, `Mensaje_Person`, the
/// financial assets box) in order, from its own queue or from a source given by its owner; with no answer
/// left a box answers as Escape would (2 for questions and message boxes, 6 for the financial assets
/// box) and is recorded as defaulted. For questions an answer of 6 counts as yes (1) and 7 as no (2).
/// Error and information boxes and the wait window take no answer.
class ServicioMensajesGuionado : public ServicioMensajes {
public:
    /// Gives the answer for the next box of the given kind, nullopt when none is left. A script's
    /// answers may also serve other dialogs than message boxes, so the source keeps the one order.
    using FuenteRespuestas = std::function<std::optional<int>(const QString& kind)>;

    explicit ServicioMensajesGuionado(std::deque<int> respuestas = {})
        : m_respuestas(std::move(respuestas)) {}
    explicit ServicioMensajesGuionado(FuenteRespuestas fuente)
        : m_fuente(std::move(fuente)) {}

    void error(const QString& texto, const QString& titulo) override;
    void info(const QString& texto, const QString& titulo) override;
    int pregunta(const QString& kind, const QString& texto, const QString& titulo, bool focoEnSi) override;
    void muestraEspera(const QString& texto) override;
    void cambiaEspera(const QString& texto) override;
    void cierraEspera() override;
    int mensajePerson(const PeticionMensajePerson& p) override;
    int activosFinancieros(int tipo) override;

    const QVector<DialogoMostrado>& mostrados() const { return m_mostrados; }
    void respuestas(std::deque<int> r) { m_respuestas = std::move(r); }
    /// Answers of its own queue that no box has taken.
    qsizetype sinUsar() const { return qsizetype(m_respuestas.size()); }
    void limpia() {
        m_mostrados.clear();
        m_respuestas.clear();
    }
    bool esperaVisible() const { return m_esperaVisible; }

private:
    void anota(const QString& kind, const QString& titulo, const QString& texto);
    // Records a box that asks something and returns its answer (`escape` when none is left).
    int responde(const QString& kind, const QString& titulo, const QString& texto, int escape,
                 bool siNo = false);
    QVector<DialogoMostrado> m_mostrados;
    std::deque<int> m_respuestas;
    FuenteRespuestas m_fuente;
    bool m_esperaVisible = false;
};

/// Installs a service for the lifetime of a scope, restoring the previous one after.
class ServicioMensajesInstalado {
public:
    explicit ServicioMensajesInstalado(ServicioMensajes& s);
    ~ServicioMensajesInstalado();
    ServicioMensajesInstalado(const ServicioMensajesInstalado&) = delete;
    ServicioMensajesInstalado& operator=(const ServicioMensajesInstalado&) = delete;

private:
    ServicioMensajes* m_anterior;
};

// The companion library's message routines, as the suite's programs call them.
void Mensaje_Error(const QString& texto, const QString& titulo = QStringLiteral("Error"));
void Mensaje_Info(const QString& texto, const QString& titulo = QStringLiteral("Información"));
/// Yes/No with the focus on Yes: 1 when the user answers yes.
int Mensaje_SiNo(const QString& pregunta, const QString& texto, const QString& titulo);
/// No/Yes with the focus on No: 1 when the user answers yes (continue).
int Mensaje_NoSi(const QString& pregunta, const QString& texto, const QString& titulo);
/// One-line No/Yes question with the focus on No: true when the user answers yes.
bool NoSi(const QString& texto, const QString& titulo = QStringLiteral("Confirmación"));
void MuestraMensaje(const QString& texto);
void CambiaMensaje(const QString& texto);
void CierraMensaje();

} // namespace nod
