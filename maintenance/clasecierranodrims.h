#pragma once
// Closing the suite's programs on every other workstation before an update or a maintenance operation on
// the shared database (unit Clasecierranodrims).
//
// Every running program of the suite has one row in the table "CONEXION" of the suite's database
// (alias `GetAliasNodrim`): "EQUIPO" its workstation's address or host name, "FECHA" and "HORA" when it
// wrote the row last. `CierraNodrims` walks that table and contacts each workstation on the update port
// (`GetPuertoActualiz`): a TCP connection arriving there tells the program to close (see escuchacierre.h),
// and the program removes its own row as it leaves. Rows that are stale (not of today, or of today but
// three minutes old or more) are deleted without contact; a workstation that does not answer five times
// in a row loses its row. Between passes the operator sees a countdown, and every fifth pass is asked
// whether to stop waiting.
//
// The texts of the message window, in the order a pass shows them:
//   "HAY USUARIOS CONECTADOS A NODRIM, ESPERANDO ..."
//   "USUARIO 192.168.1.7 NO RESPONDE"                      (a stale row, or the fifth failure in a row)
//   "INFORMANDO A USUARIO: 192.168.1.8"                    (each contact)
//   "TIEMPO DE ESPERA PARA NUEVA COMPROBACIÓN: 30 seg."   (the countdown, down to 1)
//
// Every wait keeps the program's event loop running (a pause of `GetPausaCierreMs` after each message about
// a workstation and each step of the countdown; at most `GetEsperaConexionActualizMs` per contact, name
// lookup included), so windows repaint and the contacted programs of this same process are served.
// Runs on the user-interface thread.

#include "nod_core_export.h"

#include <QString>
#include <memory>

class QObject;

namespace nod NOD_CORE_EXPORT {

class TConexionTcp;
class TTabla;

class TClaseCierraNodrims {
public:
    /// `modo` 1: an update, the table must end empty; 2: an operation, the table must end with this
    /// workstation's row alone (`DameIP`); any other mode: nothing to wait for.
    TClaseCierraNodrims(QObject* owner, int modo);
    /// Closes and frees the socket.
    ~TClaseCierraNodrims();
    TClaseCierraNodrims(const TClaseCierraNodrims&) = delete;
    TClaseCierraNodrims& operator=(const TClaseCierraNodrims&) = delete;

    /// Opens (creating it when missing) and packs "CONEXION", then, until it is correct: shows
    /// "HAY USUARIOS CONECTADOS A NODRIM, ESPERANDO ...", contacts the workstations (`EnviaMensajes`),
    /// counts down (`TiempoDeEspera`) when still needed, rereads the table, and on every fifth pass asks
    /// "¿Desea abortar la actualización?" (mode 1) or "¿Desea abortar la operación?" (mode 2): Yes stops
    /// waiting, No starts the count of five again.
    /// Returns true, also after the operator stopped waiting: the callers carry on with their update in
    /// either case, and the suite has always answered so. When "CONEXION" cannot be opened or created the
    /// operator is told and true is returned at once.
    bool CierraNodrims();

    /// One walk of the table from its current row while it is not correct: stale rows are deleted,
    /// the others contacted; a row whose workstation fails five contacts in a row is deleted.
    void EnviaMensajes(TTabla& tabla);

    /// Mode 1: the table has no row; mode 2: it has exactly one, whose "EQUIPO" is `DameIP()`; any other
    /// mode: true.
    bool TablaConexionCorrecta(const TTabla& tabla) const;

    /// "TIEMPO DE ESPERA PARA NUEVA COMPROBACIÓN: " + i + " seg." for i from `GetTiempoEsperaActualiz`
    /// down to 1, one pause each; nothing when that value is below 1.
    void TiempoDeEspera();

    int Modo() const { return m_modo; }
    /// The abort question of the mode.
    const QString& PreguntaAbortar() const { return m_pregunta; }

private:
    bool contacta(const QString& equipo);
    void pausa() const;

    [[maybe_unused]] QObject* m_owner; // the caller's form; the windows shown here belong to the program
    int m_modo;
    std::unique_ptr<TConexionTcp> m_socket;
    int m_fallos = 0;
    QString m_pregunta;
};

/// Closes the suite's programs on the other workstations (see `TClaseCierraNodrims`): creates the object
/// of the mode, runs `CierraNodrims` and returns its result (true, also when the operator stopped
/// waiting).
bool NodrimsCerrados(QObject* owner, int modo);

} // namespace nod
