#include "maintenance/clasecierranodrims.h"

#include "companion/config.h"
#include "companion/errores.h"
#include "companion/hoy.h"
#include "companion/mensajes.h"
#include "companion/registro.h"
#include "maintenance/conexiontcp.h"
#include "maintenance/direccionpropia.h"
#include "tables/tablas.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTime>
#include <QTimer>

namespace nod {

namespace {

const QString kTabla = QStringLiteral("CONEXION");
const QString kIndice = QStringLiteral("EQUIPO");
const QString kHayUsuarios = QStringLiteral("HAY USUARIOS CONECTADOS A NODRIM, ESPERANDO ...");
const QString kInformando = QStringLiteral("INFORMANDO A USUARIO: ");
const QString kTiempoEspera = QStringLiteral("TIEMPO DE ESPERA PARA NUEVA COMPROBACIÓN: ");

// A workstation that fails this many contacts in a row loses its row.
constexpr int kFallosMaximos = 5;
// A row of today is stale once its time plus this much is not later than now.
constexpr qint64 kVigenciaMs = 3 * 60 * 1000;
// Passes between two abort questions.
constexpr int kPasadasPorPregunta = 5;

std::unique_ptr<TTabla> abreConexion() {
    auto tb = CreaTablaSinExcepcion(Config.GetAliasNodrim(), kTabla, kIndice, true);
    if (tb && (tb->IndiceCampo(QStringLiteral("EQUIPO")) < 0 ||
               tb->IndiceCampo(QStringLiteral("FECHA")) < 0 || tb->IndiceCampo(QStringLiteral("HORA")) < 0)) {
        qCWarning(lcTablas).noquote()
            << "CONEXION lacks one of its fields EQUIPO, FECHA, HORA:" << tb->Ruta();
        return nullptr;
    }
    return tb;
}

// Runs the event loop for `ms` milliseconds (at least once through the pending events).
void esperaConEventos(int ms) {
    if (ms <= 0) {
        QCoreApplication::processEvents();
        return;
    }
    QEventLoop bucle;
    QTimer::singleShot(ms, &bucle, &QEventLoop::quit);
    bucle.exec();
}

// Milliseconds since midnight of a text "HH:MM:SS" (also "H:MM:SS" and "HH:MM"); -1 when it is none.
int horaEnMs(const QString& texto) {
    const QString t = texto.trimmed();
    for (const QString& formato : {QStringLiteral("h:mm:ss"), QStringLiteral("h:mm")}) {
        const QTime hora = QTime::fromString(t, formato);
        if (hora.isValid()) return hora.msecsSinceStartOfDay();
    }
    return -1;
}

// A row nobody refreshes any more: written another day, or today three minutes ago or more. A row of
// today whose time cannot be read is not stale: its workstation is contacted, and five failures remove it.
bool caducada(const TTabla& tb, int campoFecha, int campoHora) {
    const TDateTime ahora = Now();
    if (DiaDe(tb.AsDateTime(campoFecha)) != DiaDe(ahora)) return true;
    const int hora = horaEnMs(tb.AsString(campoHora));
    if (hora < 0) return false;
    const qint64 ahoraMs = std::llround((ahora - std::trunc(ahora)) * 86400000.0);
    return hora + kVigenciaMs <= ahoraMs;
}

// Deletes the current row and stands on the next one, or past the end when it was the last (the table
// layer would stand on the previous row then, which this walk has already served).
void borraFila(TTabla& tb) {
    tb.Next();
    const bool ultima = tb.Eof();
    if (!ultima) tb.Prior();
    TBDelete(tb);
    if (ultima) {
        tb.Last();
        tb.Next();
    }
}

} // namespace

TClaseCierraNodrims::TClaseCierraNodrims(QObject* owner, int modo)
    : m_owner(owner)
    , m_modo(modo)
    , m_socket(std::make_unique<TConexionTcp>())
    , m_pregunta(modo == 1 ? QStringLiteral("¿Desea abortar la actualización?")
                           : QStringLiteral("¿Desea abortar la operación?")) {}

TClaseCierraNodrims::~TClaseCierraNodrims() = default; // the socket closes with it

bool TClaseCierraNodrims::CierraNodrims() {
    // The result stays true whatever happens below, the operator's abort included: the callers carry on
    // with their update after it, as they always have.
    const bool resultado = true;
    auto tb = abreConexion();
    if (!tb) {
        Mensaje_Error(QStringLiteral("No se puede abrir la tabla de conexiones CONEXION: no se sabe qué "
                                     "puestos tienen Nodrim abierto."));
        return resultado;
    }
    TBPackDbf(*tb);
    MuestraMensaje(QString());
    try {
        int pasadas = 0;
        while (!TablaConexionCorrecta(*tb)) {
            CambiaMensaje(kHayUsuarios);
            EnviaMensajes(*tb);
            if (!TablaConexionCorrecta(*tb)) TiempoDeEspera();
            tb.reset(); // the other workstations' programs change the table meanwhile: read it again
            tb = abreConexion();
            if (!tb) break;
            ++pasadas;
            if (!TablaConexionCorrecta(*tb) && pasadas == kPasadasPorPregunta) {
                if (Mensaje_NoSi(m_pregunta, QStringLiteral(" ATENCIÓN:"), QStringLiteral("Atención")) == 1)
                    break;
                pasadas = 0;
            }
        }
    } catch (const ErrorNod& e) {
        qCWarning(lcTablas).noquote() << "closing the suite's programs:" << e.mensaje();
    }
    CierraMensaje();
    return resultado;
}

void TClaseCierraNodrims::EnviaMensajes(TTabla& tb) {
    const int campoEquipo = tb.IndiceCampo(QStringLiteral("EQUIPO"));
    const int campoFecha = tb.IndiceCampo(QStringLiteral("FECHA"));
    const int campoHora = tb.IndiceCampo(QStringLiteral("HORA"));
    m_fallos = 0;
    while (!TablaConexionCorrecta(tb) && !tb.Eof()) {
        const QString equipo = tb.AsString(campoEquipo).trimmed();
        const QString noResponde = QStringLiteral("USUARIO ") + equipo + QStringLiteral(" NO RESPONDE");
        if (caducada(tb, campoFecha, campoHora)) {
            borraFila(tb);
            m_fallos = 0;
            CambiaMensaje(noResponde);
            pausa();
            continue;
        }
        if (contacta(equipo)) {
            tb.Next();
            m_fallos = 0;
        } else if (++m_fallos >= kFallosMaximos) {
            borraFila(tb);
            m_fallos = 0;
            CambiaMensaje(noResponde);
            pausa();
        }
        m_socket->Cierra();
    }
}

bool TClaseCierraNodrims::TablaConexionCorrecta(const TTabla& tb) const {
    switch (m_modo) {
    case 1:
        return tb.RecordCount() == 0;
    case 2: {
        // With one row in view the cursor stands on it (also past it, at the end).
        const int equipo = tb.IndiceCampo(QStringLiteral("EQUIPO"));
        return tb.RecordCount() == 1 && equipo >= 0 && tb.AsString(equipo) == DameIP();
    }
    default:
        return true;
    }
}

void TClaseCierraNodrims::TiempoDeEspera() {
    for (int i = Config.GetTiempoEsperaActualiz(); i >= 1; --i) {
        CambiaMensaje(kTiempoEspera + QString::number(i) + QStringLiteral(" seg."));
        pausa();
    }
}

// Opens a connection to the workstation's update port: the connection is the message. Nothing needs
// silencing here (on Windows the system's critical-error boxes are turned off around this call). The
// event loop keeps running while the connection is made, for at most `GetEsperaConexionActualizMs`.
bool TClaseCierraNodrims::contacta(const QString& equipo) {
    const int puerto = Config.GetPuertoActualiz();
    const bool conectado = puerto >= 1 && puerto <= 65535 &&
                           m_socket->Conecta(equipo, quint16(puerto), Config.GetEsperaConexionActualizMs());
    CambiaMensaje(kInformando + equipo);
    pausa();
    return conectado;
}

void TClaseCierraNodrims::pausa() const {
    esperaConEventos(Config.GetPausaCierreMs());
}

bool NodrimsCerrados(QObject* owner, int modo) {
    TClaseCierraNodrims cierre(owner, modo);
    return cierre.CierraNodrims();
}

} // namespace nod
