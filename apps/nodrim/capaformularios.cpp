#include "apps/nodrim/capaformularios.h"

#include "apps/nodrim/auxiliares.h"

#include <QProcess>
#include <QProcessEnvironment>

namespace nod::lote {

namespace {

json falloCapa(const json& peticion, const std::string& motivo) {
    const json* fn = peticion.is_object() && peticion.contains("fn") ? &peticion["fn"] : nullptr;
    const std::string nombre = fn && fn->is_string() ? fn->get<std::string>() : std::string("?");
    return {{"result", nullptr},
            {"out", json::array()},
            {"dialogs", json::array()},
            {"error", nombre + ": the form layer (nodrim-formularios) " + motivo}};
}

// Without a display the forms are drawn offscreen.
QProcessEnvironment entorno() {
    QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
    if (!e.contains(QStringLiteral("QT_QPA_PLATFORM")) && !e.contains(QStringLiteral("DISPLAY")) &&
        !e.contains(QStringLiteral("WAYLAND_DISPLAY")))
        e.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return e;
}

} // namespace

QString ProgramaCapaFormularios() {
    return RutaAuxiliar(QStringLiteral("nodrim-formularios"));
}

CapaFormularios::CapaFormularios(QString programa, QString oficina)
    : m_programa(std::move(programa))
    , m_oficina(std::move(oficina)) {}

CapaFormularios::~CapaFormularios() {
    if (m_proceso && m_proceso->state() != QProcess::NotRunning) {
        m_proceso->closeWriteChannel(); // its input ends: it finishes on its own
        if (!m_proceso->waitForFinished(5000)) m_proceso->kill();
    }
}

bool CapaFormularios::arranca(std::string& motivo) {
    if (m_proceso && m_proceso->state() == QProcess::Running) return true;
    m_proceso = std::make_unique<QProcess>();
    m_proceso->setProcessEnvironment(entorno());
    m_proceso->setProcessChannelMode(QProcess::ForwardedErrorChannel); // its log joins nodrim's
    m_proceso->start(m_programa, {QStringLiteral("batch"), QStringLiteral("--office"), m_oficina});
    if (m_proceso->waitForStarted(30000)) return true;
    motivo = "could not be started (" + m_proceso->errorString().toStdString() +
             "); it holds the routines that show forms, else the routine is unknown";
    m_proceso.reset();
    return false;
}

json CapaFormularios::Atiende(const json& peticion) {
    std::string motivo;
    if (!arranca(motivo)) return falloCapa(peticion, motivo);
    const std::string linea = peticion.dump(-1, ' ', false, json::error_handler_t::replace) + '\n';
    m_proceso->write(linea.data(), qint64(linea.size()));
    // It answers every request, a form never waits for a clerk there: wait for the line as long as the
    // routine takes, and stop only when the process has ended.
    while (!m_proceso->canReadLine()) {
        if (!m_proceso->waitForReadyRead(-1) && m_proceso->state() == QProcess::NotRunning) {
            m_proceso.reset();
            return falloCapa(peticion, "ended before answering");
        }
    }
    const QByteArray respuesta = m_proceso->readLine();
    json r = json::parse(respuesta.constData(), respuesta.constData() + respuesta.size(), nullptr, false);
    return r.is_discarded() ? falloCapa(peticion, "answered with a line that is not JSON") : r;
}

QString CapaFormularios::Ayuda() const {
    QProcess p;
    p.setProcessEnvironment(entorno());
    p.start(m_programa, {QStringLiteral("--help")});
    if (!p.waitForFinished(30000)) return {};
    return QString::fromUtf8(p.readAllStandardOutput());
}

} // namespace nod::lote
