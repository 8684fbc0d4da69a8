#include "apps/nodrim/lote.h"

#include "companion/config.h"
#include "companion/errores.h"
#include "companion/hoy.h"
#include "companion/mensajes.h"

#include <QDate>
#include <istream>
#include <ostream>

namespace nod::lote {

namespace {

json error(std::string texto) {
    return json{
        {"result", nullptr}, {"out", json::array()}, {"dialogs", json::array()}, {"error", std::move(texto)}};
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
            if (!d) return "unknown configuration value \"" + clave + "\"";
            QVariant v;
            switch (d->tipo) {
            case TConfig::Tipo::Entero:
                if (!valor.is_number_integer())
                    return "configuration value \"" + clave + "\" takes an integer";
                v = valor.get<int>();
                break;
            case TConfig::Tipo::Real:
                if (!valor.is_number()) return "configuration value \"" + clave + "\" takes a number";
                v = valor.get<double>();
                break;
            case TConfig::Tipo::Logico:
                if (!valor.is_boolean()) return "configuration value \"" + clave + "\" takes a boolean";
                v = valor.get<bool>();
                break;
            case TConfig::Tipo::Texto:
                if (!valor.is_string()) return "configuration value \"" + clave + "\" takes a string";
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
    bool fija(const json& hoy) {
        if (!hoy.is_string()) return false;
        const QDate d = QDate::fromString(QString::fromStdString(hoy.get<std::string>()), Qt::ISODate);
        if (!d.isValid()) return false;
        FijaAhora(QDateToTDateTime(d));
        m_fijado = true;
        return true;
    }

private:
    bool m_fijado = false;
};

} // namespace

std::string Firmas(const std::string& nombre, const std::vector<Sobrecarga>& formas) {
    std::string s;
    for (const auto& f : formas)
        s += (s.empty() ? "" : " | ") + nombre + "(" + lista(f.parametros) + ")";
    return s;
}

json Atiende(const json& peticion, const Rutinas& rutinas) {
    if (!peticion.is_object() || !peticion.contains("fn") || !peticion["fn"].is_string())
        return error("a request is an object with \"fn\" naming a routine");
    const std::string fn = peticion["fn"].get<std::string>();
    const auto* formas = rutinas.busca(fn);
    if (!formas) return error("unknown routine \"" + fn + "\"");

    const json args = peticion.value("args", json::array());
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
    if (!elegida) {
        std::vector<std::string> dados;
        for (const auto& a : args)
            dados.push_back(tipoJson(a));
        return error(fn + ": arguments (" + lista(dados) + ") fit none of " + Firmas(fn, *formas));
    }

    ConfigTemporal config;
    if (peticion.contains("config")) {
        if (auto e = config.aplica(peticion["config"]); !e.empty()) return error(fn + ": " + e);
    }
    HoyTemporal hoy;
    if (peticion.contains("today") && !hoy.fija(peticion["today"]))
        return error(fn + ": \"today\" must be a date \"YYYY-MM-DD\"");
    std::deque<int> respuestas;
    if (peticion.contains("answers")) {
        const json& a = peticion["answers"];
        if (!a.is_array()) return error(fn + ": \"answers\" must be an array of modal results");
        for (const auto& r : a) {
            if (!r.is_number_integer()) return error(fn + ": \"answers\" must be an array of modal results");
            respuestas.push_back(r.get<int>());
        }
    }
    ServicioMensajesGuionado guion(std::move(respuestas));
    ServicioMensajesInstalado instalado(guion);

    json respuesta;
    json out = json::array();
    std::string fallo;
    try {
        respuesta["result"] = elegida->invoca(args, out);
    } catch (const std::exception& e) {
        fallo = fn + ": " + e.what();
    } catch (...) {
        fallo = fn + ": unexpected failure";
    }
    json dialogos = json::array();
    for (const auto& d : guion.mostrados())
        dialogos.push_back({{"kind", d.kind.toStdString()},
                            {"title", d.title.toStdString()},
                            {"text", d.text.toStdString()}});
    if (!fallo.empty()) {
        json r = error(fallo);
        r["dialogs"] = std::move(dialogos);
        return r;
    }
    respuesta["out"] = std::move(out);
    respuesta["dialogs"] = std::move(dialogos);
    return respuesta;
}

json AtiendeLinea(std::string_view linea, long numeroLinea, const Rutinas& rutinas) {
    json peticion = json::parse(std::string(linea), nullptr, false);
    if (peticion.is_discarded()) return error("line " + std::to_string(numeroLinea) + ": not valid JSON");
    return Atiende(peticion, rutinas);
}

void Procesa(std::istream& entrada, std::ostream& salida, const Rutinas& rutinas) {
    std::string linea;
    long numero = 0;
    while (std::getline(entrada, linea)) {
        ++numero;
        if (linea.find_first_not_of(" \t\r") == std::string::npos) continue;
        salida << AtiendeLinea(linea, numero, rutinas).dump(-1, ' ', false, json::error_handler_t::replace)
               << '\n';
        if (entrada.rdbuf()->in_avail() <= 0) salida.flush();
    }
    salida.flush();
}

} // namespace nod::lote
