#include "apps/nodrim/formularios.h"

#include "apps/nodrim/lote.h"
#include "companion/modal.h"
#include "companion/respuestaformulario.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>

namespace nod::lote {

namespace {

json aJson(const QVariant& v) {
    if (v.typeId() == QMetaType::Bool) return v.toBool();
    return v.toString().toStdString();
}

// A value of "set" as the control takes it; null when it is no value a control takes.
std::optional<QVariant> aVariante(const json& j) {
    if (j.is_string()) return QVariant(QString::fromStdString(j.get<std::string>()));
    if (j.is_boolean()) return QVariant(j.get<bool>());
    if (j.is_number_integer() && !j.is_number_unsigned()) return QVariant(qlonglong(j.get<long long>()));
    if (j.is_number_unsigned() && j.get<unsigned long long>() <= LLONG_MAX)
        return QVariant(qlonglong(j.get<unsigned long long>()));
    if (j.is_number_float()) return QVariant(j.get<double>());
    return std::nullopt;
}

json describe(const QDialog& d) {
    const FormularioMostrado m = DescribeFormulario(d);
    json valores = json::object();
    for (const ValorControl& v : m.valores)
        valores[v.control.toStdString()] = aJson(v.valor);
    return {{"kind", "form"},
            {"title", m.titulo.toStdString()},
            {"panel", m.panel.toStdString()},
            {"values", std::move(valores)}};
}

// Enters `respuesta` into the form; empty when it was entered and its button pressed.
std::string entra(QDialog& d, const json& respuesta) {
    RespuestaFormulario r;
    if (const auto it = respuesta.find("set"); it != respuesta.end())
        for (const auto& [control, valor] : it->items()) {
            const std::optional<QVariant> v = aVariante(valor);
            if (!v)
                return "control \"" + control + "\" takes a string, a number or a boolean, not " +
                       std::string(valor.type_name());
            r.fija.append({QString::fromStdString(control), *v});
        }
    if (const auto it = respuesta.find("press"); it != respuesta.end())
        r.pulsa = QString::fromStdString(it->get<std::string>());
    return RespondeFormulario(d, r).toStdString();
}

// Nothing may wait for a clerk in the form layer. A modal box that does not go through the modal seam
// (Qt's own "file not found" of a file dialog while a form is answered, or a form some routine shows with
// exec()) is closed as cancelled as soon as its event loop runs, and reported: by the form being answered,
// or as the failure of the running request.
class Vigilante {
public:
    static Vigilante& instala() {
        static Vigilante* v = new Vigilante; // lives as long as the application (its timer is qApp's child)
        return *v;
    }
    /// While `d` is answered (null: none is), the boxes it opens are its own: the first is reported
    /// through `cajaPropia()` until the next form is answered.
    void respondiendo(QDialog* d) {
        m_respondiendo = d;
        if (d) m_caja.clear();
    }
    const std::string& cajaPropia() const { return m_caja; }

private:
    Vigilante() {
        auto* reloj = new QTimer(qApp);
        reloj->setInterval(0); // it only fires inside a box's own event loop: no answer waits for it
        QObject::connect(reloj, &QTimer::timeout, [this] { revisa(); });
        reloj->start();
    }
    void revisa() {
        auto* caja = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!caja || caja == m_respondiendo) return;
        const auto* mensaje = qobject_cast<QMessageBox*>(caja);
        const std::string descrita =
            (caja->windowTitle() + (mensaje ? QStringLiteral(": ") + mensaje->text() : QString()))
                .toStdString();
        if (m_respondiendo) {
            if (m_caja.empty()) m_caja = descrita;
        } else if (PeticionEnCurso* p = PeticionEnCurso::Actual()) {
            p->falla("the form \"" + descrita +
                     "\" was shown without the modal seam (EjecutaModal) and closed as cancelled");
        } else {
            qWarning("a form was shown outside a request and closed as cancelled: %s", descrita.c_str());
        }
        caja->reject();
    }

    QDialog* m_respondiendo = nullptr;
    std::string m_caja;
};

int respondeFormulario(QDialog& d) {
    PeticionEnCurso* peticion = PeticionEnCurso::Actual();
    if (!peticion) {
        qWarning("a form was shown outside a request and closed as cancelled: %s",
                 qPrintable(d.windowTitle()));
        return 2;
    }
    // Shown and active as for a clerk, so that focus moves and every handler runs.
    d.show();
    QApplication::setActiveWindow(&d);
    const std::string titulo = d.windowTitle().toStdString();
    json& anotado = peticion->anotaFormulario(describe(d));
    const json* respuesta = peticion->siguienteParaFormulario();
    std::string fallo;
    json luego = json::array();
    if (!respuesta) {
        fallo = "the form \"" + titulo + "\" would wait for a clerk: no answer is left for it";
    } else {
        Vigilante& vigilante = Vigilante::instala();
        vigilante.respondiendo(&d);
        fallo = entra(d, *respuesta);
        // A button that leaves the form open (the registered properties' "A&ñadir") is followed by the
        // clerk's next step on the same form: the next answer, as long as it is a form's.
        while (fallo.empty() && d.isVisible() && vigilante.cajaPropia().empty()) {
            const json* otra = peticion->otraParaFormularioAbierto();
            if (!otra) break;
            luego.push_back(*otra);
            fallo = entra(d, *otra);
        }
        vigilante.respondiendo(nullptr);
        if (!vigilante.cajaPropia().empty())
            fallo = "the form \"" + titulo +
                    "\" opened a box of its own, closed as cancelled: " + vigilante.cajaPropia();
        else if (fallo.empty() && d.isVisible())
            fallo = "the form \"" + titulo +
                    "\" is still open after its button was pressed, and no form answer follows";
    }
    anotado["answer"] = respuesta ? *respuesta : json(nullptr);
    if (!luego.empty()) anotado["then"] = std::move(luego);
    anotado["defaulted"] = respuesta == nullptr;
    if (!fallo.empty()) {
        peticion->falla(fallo);
        d.done(2); // the form closes as cancelled: the routine copies nothing out
    }
    d.hide();
    anotado["result"] = d.result();
    return d.result();
}

} // namespace

void InstalaRespuestaFormularios() {
    // The offscreen platform lacks what a desktop has (raising a window, grabbing the keyboard, passing
    // size hints on) and says so each time a form asks for it: nothing a script should read as a
    // warning of its request.
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        FijaAvisosSinInteres([](const QString& mensaje) {
            return mensaje.startsWith(QLatin1String("This plugin does not support "));
        });
    Vigilante::instala();
    FijaEjecutorModal(&respondeFormulario);
}

const Rutinas& RutinasConFormularios() {
    static const Rutinas rutinas = [] {
        Rutinas r = TodasLasRutinas();
        RegistraRutinasFormularios(r);
        return r;
    }();
    return rutinas;
}

} // namespace nod::lote
