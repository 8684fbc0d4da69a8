#include "apps/nodrim/lote.h"

#include "companion/config.h"
#include "companion/hoy.h"
#include "companion/mensajes.h"

#include <QDate>
#include <QtGlobal>
#include <deque>
#include <istream>
#include <limits>
#include <memory>
#include <optional>
#include <ostream>
#include <utility>

namespace nod::lote {

namespace {

// What a message repeats of a request is cut, so that an error never grows with the request.
constexpr std::size_t kTextoCitado = 60;        // bytes of a routine name, a key or a value
constexpr std::size_t kArgumentosCitados = 6;   // argument types listed when none of the forms fits
constexpr std::size_t kLargoMensaje = 1000;     // bytes of a routine's own error or of a warning
constexpr std::size_t kAvisosPorPeticion = 100; // warnings reported with one response

json error(std::string texto) {
    return json{
        {"result", nullptr}, {"out", json::array()}, {"dialogs", json::array()}, {"error", std::move(texto)}};
}

// At most `maximo` bytes of `texto`, cut before a UTF-8 sequence, then "..." when something was cut.
std::string recorta(std::string_view texto, std::size_t maximo = kTextoCitado) {
    if (texto.size() <= maximo) return std::string(texto);
    std::size_t corte = maximo;
    while (corte > 0 && (static_cast<unsigned char>(texto[corte]) & 0xC0) == 0x80)
        --corte;
    return std::string(texto.substr(0, corte)) + "...";
}

std::string cita(const json& valor) {
    return recorta(valor.dump(-1, ' ', false, json::error_handler_t::replace));
}

std::string lista(const std::vector<std::string>& v) {
    std::string s;
    for (const auto& e : v)
        s += (s.empty() ? "" : ", ") + e;
    return s;
}

std::string tipoJson(const json& j) {
    if (j.is_number_integer()) return "integer";
    if (j.is_number_float()) return "float";
    return j.type_name();
}

// The JSON types of the first few arguments, for a message.
std::string tiposDe(const json& args) {
    std::string s;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (i == kArgumentosCitados) return s + ", ...";
        s += (i ? ", " : "") + tipoJson(args[i]);
    }
    return s;
}

// Applies "config" for one request and puts the previous values back afterwards.
class ConfigTemporal {
public:
    ~ConfigTemporal() {
        for (auto it = m_anteriores.rbegin(); it != m_anteriores.rend(); ++it)
            it->first->escribe(Config, it->second);
    }

    /// Empty on success, else what is wrong.
    std::string aplica(const json& valores) {
        if (!valores.is_object())
            return "\"config\" must be an object of values by getter name without \"Get\"";
        for (const auto& [clave, valor] : valores.items()) {
            const auto* d = TConfig::BuscaDescriptor(QString::fromStdString(clave));
            const std::string nombre = "configuration value \"" + recorta(clave) + "\"";
            if (!d) return "unknown " + nombre;
            QVariant v;
            switch (d->tipo) {
            case TConfig::Tipo::Entero:
                if (!valor.is_number_integer()) return nombre + " takes an integer";
                if (Conversor<int>::puntua(valor) == 0)
                    return nombre + " takes an integer from -2147483648 to 2147483647, not " + cita(valor);
                v = valor.get<int>();
                break;
            case TConfig::Tipo::Real:
                if (!valor.is_number()) return nombre + " takes a number";
                v = valor.get<double>();
                break;
            case TConfig::Tipo::Logico:
                if (!valor.is_boolean()) return nombre + " takes a boolean";
                v = valor.get<bool>();
                break;
            case TConfig::Tipo::Texto:
                if (!valor.is_string()) return nombre + " takes a string";
                v = QString::fromStdString(valor.get<std::string>());
                break;
            }
            m_anteriores.emplace_back(d, d->lee(Config));
            d->escribe(Config, v);
        }
        return {};
    }

private:
    std::vector<std::pair<const TConfig::Descriptor*, QVariant>> m_anteriores;
};

class HoyTemporal {
public:
    ~HoyTemporal() {
        if (m_fijado) FijaAhora(std::nullopt);
    }
    /// Only the very shape YYYY-MM-DD of a real date.
    bool fija(const json& hoy) {
        if (!hoy.is_string()) return false;
        const std::string& t = hoy.get_ref<const std::string&>();
        if (t.size() != 10 || t[4] != '-' || t[7] != '-') return false;
        for (int i : {0, 1, 2, 3, 5, 6, 8, 9})
            if (t[i] < '0' || t[i] > '9') return false;
        const QDate d = QDate::fromString(QString::fromLatin1(t.data(), 10), Qt::ISODate);
        if (!d.isValid()) return false;
        FijaAhora(QDateToTDateTime(d));
        m_fijado = true;
        return true;
    }

private:
    bool m_fijado = false;
};

bool esResultadoModal(const json& r) {
    if (!r.is_number_integer()) return false;
    return r.is_number_unsigned() ? r.get<std::uint64_t>() <= 11
                                  : r.get<std::int64_t>() >= 0 && r.get<std::int64_t>() <= 11;
}

// A form's answer: {"set": {...}, "press": "..."}, both optional, nothing else.
bool esRespuestaFormulario(const json& r) {
    if (!r.is_object()) return false;
    for (const auto& [clave, valor] : r.items())
        if (!(clave == "set" && valor.is_object()) && !(clave == "press" && valor.is_string())) return false;
    return true;
}

// The request's "answers", taken in order by the dialogs the routine shows: one queue for every kind of
// dialog, so that a script lists its answers in the order the clerk would give them. Message boxes take
// modal results and forms objects; an entry of the other kind where a dialog asks is an error of the
// request.
class Respuestas {
public:
    /// Empty when `lista` (the "answers" value, or null when there is none) can be used, else what is wrong.
    std::string carga(const json* lista) {
        if (!lista) return {};
        if (!lista->is_array())
            return "\"answers\" must be an array of modal results (0 to 11) and form answers";
        for (std::size_t i = 0; i < lista->size(); ++i)
            if (!esResultadoModal((*lista)[i]) && !esRespuestaFormulario((*lista)[i]))
                return "answers[" + std::to_string(i) + "]: " + cita((*lista)[i]) +
                       " is not a modal result (0 to 11) nor a form answer {\"set\": {...}, \"press\": "
                       "\"...\"}";
        m_lista = lista;
        return {};
    }

    /// The next answer, for a form; null when none is left (or the next one is for a message box).
    const json* paraFormulario() {
        if (sinUsar() == 0) return nullptr;
        const json& r = (*m_lista)[m_siguiente];
        if (!r.is_object()) {
            m_error = "answers[" + std::to_string(m_siguiente) +
                      "]: a form asks for {\"set\": {...}, \"press\": \"...\"}, not " + cita(r);
            m_siguiente = m_lista->size();
            return nullptr;
        }
        ++m_siguiente;
        return &r;
    }

    /// The next answer when it is a form's; null, and nothing taken, otherwise.
    const json* siguienteSiEsDeFormulario() {
        return sinUsar() > 0 && (*m_lista)[m_siguiente].is_object() ? &(*m_lista)[m_siguiente++] : nullptr;
    }

    /// The next answer, for a message box of the given kind; nullopt when none is left.
    std::optional<int> paraMensaje(const QString& kind) {
        if (sinUsar() == 0) return std::nullopt;
        const json& r = (*m_lista)[m_siguiente];
        if (!r.is_number_integer()) {
            m_error = "answers[" + std::to_string(m_siguiente) + "]: a " + kind.toStdString() +
                      " box asks for a modal result, not " + cita(r);
            m_siguiente = m_lista->size(); // the rest would answer the wrong dialogs
            return std::nullopt;
        }
        ++m_siguiente;
        return r.get<int>();
    }

    std::size_t sinUsar() const { return m_lista ? m_lista->size() - m_siguiente : 0; }
    const std::string& error() const { return m_error; }

private:
    const json* m_lista = nullptr;
    std::size_t m_siguiente = 0;
    std::string m_error;
};

bool (*g_avisoSinInteres)(const QString&) = nullptr; // set once at start-up

// Collects what the library logs as a warning (or worse) while one request runs, and passes every
// message on to the handler installed before (the log on standard error).
class CapturaAvisos {
public:
    CapturaAvisos()
        : m_exterior(t_actual) {
        t_actual = this;
        m_anterior = qInstallMessageHandler(&maneja);
    }
    ~CapturaAvisos() {
        qInstallMessageHandler(m_anterior);
        t_actual = m_exterior;
    }
    CapturaAvisos(const CapturaAvisos&) = delete;
    CapturaAvisos& operator=(const CapturaAvisos&) = delete;

    /// The warnings as a JSON array; null when there were none.
    json avisos() && {
        if (m_omitidos > 0) m_avisos.push_back("... and " + std::to_string(m_omitidos) + " more");
        return std::move(m_avisos);
    }

private:
    static void maneja(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto) {
        CapturaAvisos* c = t_actual;
        if (!c) return; // another thread, after the request: nothing to record and nowhere to pass
        if ((tipo == QtWarningMsg || tipo == QtCriticalMsg || tipo == QtFatalMsg) &&
            !(g_avisoSinInteres && g_avisoSinInteres(texto))) {
            if (c->m_avisos.size() < kAvisosPorPeticion)
                c->m_avisos.push_back(recorta(texto.toStdString(), kLargoMensaje));
            else
                ++c->m_omitidos;
        }
        if (c->m_anterior) c->m_anterior(tipo, contexto, texto);
    }

    static thread_local CapturaAvisos* t_actual;
    CapturaAvisos* m_exterior;
    QtMessageHandler m_anterior = nullptr;
    json m_avisos;
    std::size_t m_omitidos = 0;
};
thread_local CapturaAvisos* CapturaAvisos::t_actual = nullptr;

json dialogosDe(const ServicioMensajesGuionado& guion) {
    json dialogos = json::array();
    for (const auto& d : guion.mostrados())
        dialogos.push_back({{"kind", d.kind.toStdString()},
                            {"title", d.title.toStdString()},
                            {"text", d.text.toStdString()},
                            {"answer", d.respuesta ? json(*d.respuesta) : json(nullptr)},
                            {"defaulted", d.porDefecto}});
    return dialogos;
}

// The forms of a request in the order of the dialogs: each goes after the message boxes shown before it.
json dialogosConFormularios(json cajas, const std::deque<std::pair<std::size_t, json>>& formularios) {
    if (formularios.empty()) return cajas;
    json todos = json::array();
    std::size_t f = 0;
    for (std::size_t i = 0; i <= cajas.size(); ++i) {
        for (; f < formularios.size() && formularios[f].first == i; ++f)
            todos.push_back(formularios[f].second);
        if (i < cajas.size()) todos.push_back(std::move(cajas[i]));
    }
    return todos;
}

Reenvio& reenvio() {
    static Reenvio r;
    return r;
}

thread_local PeticionEnCurso* t_peticion = nullptr;

const json* miembro(const json& objeto, const char* nombre) {
    const auto it = objeto.find(nombre);
    return it == objeto.end() ? nullptr : &*it;
}

// Whether a JSON text nests arrays and objects deeper than `limite`, counted before it is parsed so that
// nothing deeper is ever built (copying or printing a value recurses). Brackets inside strings do not
// count; up to the first error, which ends the parse, the count is the parser's own. The parser's callback
// could stop it too, but the callback parser's handling of objects costs time proportional to the size of
// their parent.
bool anidaMasDe(std::string_view texto, int limite) {
    int profundidad = 0;
    bool enTexto = false, escapado = false;
    for (const char c : texto) {
        if (enTexto) {
            if (escapado)
                escapado = false;
            else if (c == '\\')
                escapado = true;
            else if (c == '"')
                enTexto = false;
        } else if (c == '"') {
            enTexto = true;
        } else if (c == '[' || c == '{') {
            if (++profundidad > limite) return true;
        } else if (c == ']' || c == '}') {
            --profundidad;
        }
    }
    return false;
}

// The parser's reason without its "last read" echo of the input, which may be as long as the line.
std::string motivo(const json::parse_error& e) {
    std::string_view m = e.what();
    if (const auto dos = m.find(": ", m.find("column")); dos != std::string_view::npos)
        m.remove_prefix(dos + 2);
    if (const auto leido = m.find("; last read"); leido != std::string_view::npos) m = m.substr(0, leido);
    return recorta(m, 120);
}

json demasiadoLarga(long numeroLinea) {
    return error("line " + std::to_string(numeroLinea) + ": longer than " + std::to_string(kLineaMaxima) +
                 " bytes, not read");
}

} // namespace

struct PeticionEnCurso::Estado {
    Respuestas& respuestas;
    const ServicioMensajesGuionado& guion;
    std::deque<std::pair<std::size_t, json>> formularios; // by the number of boxes shown before each
    std::string fallo;
};

PeticionEnCurso* PeticionEnCurso::Actual() {
    return t_peticion;
}

const json* PeticionEnCurso::siguienteParaFormulario() {
    return m_estado->respuestas.paraFormulario();
}

void FijaAvisosSinInteres(bool (*esRuido)(const QString& mensaje)) {
    g_avisoSinInteres = esRuido;
}

const json* PeticionEnCurso::otraParaFormularioAbierto() {
    return m_estado->respuestas.siguienteSiEsDeFormulario();
}

json& PeticionEnCurso::anotaFormulario(json entrada) {
    return m_estado->formularios
        .emplace_back(std::size_t(m_estado->guion.mostrados().size()), std::move(entrada))
        .second;
}

void PeticionEnCurso::falla(std::string motivo) {
    if (m_estado->fallo.empty()) m_estado->fallo = std::move(motivo);
}

Reenvio FijaReenvio(Reenvio r) {
    return std::exchange(reenvio(), std::move(r));
}

std::string Firmas(const std::string& nombre, const std::vector<Sobrecarga>& formas) {
    std::string s;
    for (const auto& f : formas)
        s += (s.empty() ? "" : " | ") + nombre + "(" + lista(f.parametros) + ")";
    return s;
}

json Atiende(const json& peticion, const Rutinas& rutinas) {
    const json* fnJson = peticion.is_object() ? miembro(peticion, "fn") : nullptr;
    if (!fnJson || !fnJson->is_string()) return error("a request is an object with \"fn\" naming a routine");
    const std::string& fn = fnJson->get_ref<const std::string&>();
    const auto* formas = rutinas.busca(fn);
    if (!formas) {
        if (const Reenvio& r = reenvio())
            if (std::optional<json> respuesta = r(peticion)) return std::move(*respuesta);
        return error("unknown routine \"" + recorta(fn) + "\"");
    }

    static const json sinArgumentos = json::array();
    const json* argsJson = miembro(peticion, "args");
    const json& args = argsJson ? *argsJson : sinArgumentos;
    if (!args.is_array()) return error(fn + ": \"args\" must be an array");
    const Sobrecarga* elegida = nullptr;
    int mejor = 0;
    for (const auto& f : *formas) {
        const int p = f.puntua(args);
        if (p > mejor) {
            mejor = p;
            elegida = &f;
        }
    }
    if (!elegida) return error(fn + ": arguments (" + tiposDe(args) + ") fit none of " + Firmas(fn, *formas));

    CapturaAvisos avisos; // from here on, what is logged belongs to this request
    ConfigTemporal config;
    if (const json* c = miembro(peticion, "config")) {
        if (auto e = config.aplica(*c); !e.empty()) return error(fn + ": " + e);
    }
    HoyTemporal hoy;
    if (const json* h = miembro(peticion, "today"); h && !hoy.fija(*h))
        return error(fn + ": \"today\" must be a date \"YYYY-MM-DD\"");
    Respuestas respuestas;
    if (auto e = respuestas.carga(miembro(peticion, "answers")); !e.empty()) return error(fn + ": " + e);
    ServicioMensajesGuionado guion(
        [&respuestas](const QString& kind) { return respuestas.paraMensaje(kind); });
    ServicioMensajesInstalado instalado(guion);

    PeticionEnCurso actual;
    PeticionEnCurso::Estado estado{respuestas, guion, {}, {}};
    actual.m_estado = &estado;
    PeticionEnCurso* const exterior = std::exchange(t_peticion, &actual);
    json resultado;
    json out = json::array();
    std::string fallo;
    try {
        resultado = elegida->invoca(args, out);
    } catch (const std::exception& e) {
        fallo = fn + ": " + recorta(e.what(), kLargoMensaje);
    } catch (...) {
        fallo = fn + ": unexpected failure";
    }
    t_peticion = exterior;
    // An answer of the wrong kind explains the form or box that then found none.
    if (fallo.empty() && !respuestas.error().empty()) fallo = fn + ": " + respuestas.error();
    if (fallo.empty() && !estado.fallo.empty()) fallo = fn + ": " + recorta(estado.fallo, kLargoMensaje);
    if (const auto n = respuestas.sinUsar(); fallo.empty() && n > 0)
        fallo = fn + ": " + std::to_string(n) + (n == 1 ? " answer" : " answers") + " left unused";

    json respuesta = fallo.empty() ? json{{"result", std::move(resultado)}, {"out", std::move(out)}}
                                   : error(std::move(fallo));
    respuesta["dialogs"] = dialogosConFormularios(dialogosDe(guion), estado.formularios);
    if (json a = std::move(avisos).avisos(); !a.is_null()) respuesta["warnings"] = std::move(a);
    return respuesta;
}

json AtiendeLinea(std::string_view linea, long numeroLinea, const Rutinas& rutinas) {
    if (linea.size() > kLineaMaxima) return demasiadoLarga(numeroLinea);
    const auto donde = [numeroLinea] { return "line " + std::to_string(numeroLinea) + ": "; };
    // The parser takes a NUL byte for the end of the text; in JSON it is never valid, even in a string.
    if (const auto nul = linea.find('\0'); nul != std::string_view::npos)
        return error(donde() + "not valid JSON at byte offset " + std::to_string(nul) + " (a NUL byte)");
    if (anidaMasDe(linea, kAnidamientoMaximo))
        return error(donde() + "nested deeper than " + std::to_string(kAnidamientoMaximo) + " levels");
    json peticion;
    try {
        peticion = json::parse(linea.begin(), linea.end());
    } catch (const json::parse_error& e) {
        return error(donde() + "not valid JSON at byte offset " +
                     std::to_string(e.byte > 0 ? e.byte - 1 : 0) + " (" + motivo(e) + ")");
    } catch (const json::exception& e) { // a number beyond a double, such as 1e999
        const std::string_view m = e.what();
        return error(donde() + "not valid JSON (" + recorta(m.substr(m.find("] ") + 2), 120) + ")");
    }
    return Atiende(peticion, rutinas);
}

FinLote Procesa(std::istream& entrada, std::ostream& salida, const Rutinas& rutinas) {
    // One buffer of the longest line for the whole stream: a longer line is skipped, never held whole.
    const auto linea = std::make_unique_for_overwrite<char[]>(kLineaMaxima + 1);
    long numero = 0;
    for (;;) {
        entrada.getline(linea.get(), kLineaMaxima + 1);
        if (entrada.bad()) return FinLote::FalloLectura;
        const auto leidos = std::size_t(entrada.gcount());
        json respuesta;
        if (entrada.fail() && !entrada.eof()) { // the buffer filled before the line ended
            entrada.clear();
            entrada.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
            if (entrada.bad()) return FinLote::FalloLectura;
            respuesta = demasiadoLarga(++numero);
        } else {
            if (leidos == 0 && entrada.eof()) break;
            ++numero;
            const std::string_view texto(linea.get(), entrada.eof() ? leidos : leidos - 1);
            if (texto.find_first_not_of(" \t\r") == std::string_view::npos) continue;
            respuesta = AtiendeLinea(texto, numero, rutinas);
        }
        const std::string r = respuesta.dump(-1, ' ', false, json::error_handler_t::replace);
        salida.write(r.data(), std::streamsize(r.size())).put('\n');
        if (salida && entrada.rdbuf()->in_avail() <= 0) salida.flush();
        if (!salida) return FinLote::FalloEscritura;
    }
    salida.flush();
    return salida ? FinLote::Completo : FinLote::FalloEscritura;
}

} // namespace nod::lote
