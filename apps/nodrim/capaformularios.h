#pragma once
// nodrim's side of the form layer: the process nodrim-formularios, started when a request first names a
// routine nodrim does not hold, and fed those requests one line each. nodrim itself links the core
// libraries only, so that a batch of routines without forms starts as fast as ever.

#include "apps/nodrim/lote.h"

#include <QString>
#include <memory>

class QProcess;

namespace nod::lote {

class CapaFormularios {
public:
    /// `programa`: the path of nodrim-formularios; `oficina`: the office folder it loads.
    CapaFormularios(QString programa, QString oficina);
    ~CapaFormularios();
    CapaFormularios(const CapaFormularios&) = delete;
    CapaFormularios& operator=(const CapaFormularios&) = delete;

    /// The response of the form layer to `peticion`, starting it first when it is not running. When it
    /// cannot be started, or it ends before answering, an error response saying so (it is started again
    /// for the next request).
    json Atiende(const json& peticion);

    /// The signatures of the routines the form layer adds, one per line ("" when it cannot be started).
    QString Ayuda() const;

private:
    bool arranca(std::string& motivo);

    QString m_programa, m_oficina;
    std::unique_ptr<QProcess> m_proceso;
};

/// nodrim-formularios beside the running program.
QString ProgramaCapaFormularios();

} // namespace nod::lote
