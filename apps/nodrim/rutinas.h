#pragma once
// The table of routines that `nodrim` offers to scripts. A routine is registered in one line, from its
// function pointer: the parameter types give the JSON types it takes, and every non-const reference
// parameter becomes an out value reported after the call.
//
//     rutinas.agrega("AliasNotario", &AliasNotario);
//     rutinas.agrega("PesetasEurosNod", qOverload<double>(&PesetasEurosNod)); // one overload of several
//
// JSON types: integer for int/qint64 and colours, number (integer or float) for double and date-times,
// boolean, string, a one-character string for a character, and an array of strings (or null for none) for
// a string list. Overloads are chosen by argument count, then by the best match of JSON types (an exact
// type beats an integer passed where a float is expected).

#include <QChar>
#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace nod::lote {

using json = nlohmann::json;

template <typename T> struct Conversor;

template <> struct Conversor<int> {
    static constexpr const char* nombre = "integer";
    static int puntua(const json& j) {
        if (!j.is_number_integer()) return 0;
        const auto v = j.get<long long>();
        return v >= INT32_MIN && v <= INT32_MAX &&
                       !(j.is_number_unsigned() && j.get<unsigned long long>() > INT32_MAX)
                   ? 2
                   : 0;
    }
    static int desde(const json& j) { return j.get<int>(); }
    static json hacia(int v) { return v; }
};

template <> struct Conversor<long long> {
    static constexpr const char* nombre = "integer";
    static int puntua(const json& j) {
        return j.is_number_integer() && !(j.is_number_unsigned() && j.get<unsigned long long>() > INT64_MAX)
                   ? 2
                   : 0;
    }
    static long long desde(const json& j) { return j.get<long long>(); }
    static json hacia(long long v) { return v; }
};
template <> struct Conversor<long> : Conversor<long long> {
    static long desde(const json& j) { return long(j.get<long long>()); }
};

/// A colour as the suite stores it (`TColor`): a whole number from 0 to 4294967295.
template <> struct Conversor<unsigned int> {
    static constexpr const char* nombre = "integer";
    static int puntua(const json& j) {
        if (!j.is_number_integer()) return 0;
        if (j.is_number_unsigned()) return j.get<unsigned long long>() <= UINT32_MAX ? 2 : 0;
        return j.get<long long>() >= 0 && j.get<long long>() <= UINT32_MAX ? 2 : 0;
    }
    static unsigned int desde(const json& j) { return unsigned(j.get<unsigned long long>()); }
    static json hacia(unsigned int v) { return v; }
};

template <> struct Conversor<double> {
    static constexpr const char* nombre = "number";
    static int puntua(const json& j) { return j.is_number_float() ? 2 : j.is_number_integer() ? 1 : 0; }
    static double desde(const json& j) { return j.get<double>(); }
    static json hacia(double v) { return v; }
};

template <> struct Conversor<bool> {
    static constexpr const char* nombre = "boolean";
    static int puntua(const json& j) { return j.is_boolean() ? 2 : 0; }
    static bool desde(const json& j) { return j.get<bool>(); }
    static json hacia(bool v) { return v; }
};

template <> struct Conversor<QString> {
    static constexpr const char* nombre = "string";
    static int puntua(const json& j) { return j.is_string() ? 2 : 0; }
    static QString desde(const json& j) { return QString::fromStdString(j.get_ref<const std::string&>()); }
    static json hacia(const QString& v) { return v.toStdString(); }
};

template <> struct Conversor<QStringList> {
    static constexpr const char* nombre = "array of strings";
    static int puntua(const json& j) {
        if (j.is_null()) return 1; // no list
        if (!j.is_array()) return 0;
        for (const auto& e : j)
            if (!e.is_string()) return 0;
        return 2;
    }
    static QStringList desde(const json& j) {
        QStringList r;
        if (j.is_array())
            for (const auto& e : j)
                r.append(QString::fromStdString(e.get<std::string>()));
        return r;
    }
    static json hacia(const QStringList& v) {
        json r = json::array();
        for (const QString& s : v)
            r.push_back(s.toStdString());
        return r;
    }
};

template <> struct Conversor<QChar> {
    static constexpr const char* nombre = "character";
    static int puntua(const json& j) {
        return j.is_string() && QString::fromStdString(j.get<std::string>()).size() == 1 ? 2 : 0;
    }
    static QChar desde(const json& j) { return QString::fromStdString(j.get<std::string>()).at(0); }
    static json hacia(QChar v) { return QString(v).toStdString(); }
};

/// One callable form of a routine.
struct Sobrecarga {
    std::vector<std::string> parametros;         // JSON type names, "&" appended for out parameters
    std::function<int(const json& args)> puntua; // 0 when the arguments do not fit
    std::function<json(const json& args, json& out)> invoca;
};

template <typename A>
constexpr bool esSalida = std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>;
template <typename A> using Valor = std::remove_cvref_t<A>;

class Rutinas {
public:
    template <typename R, typename... A> void agrega(const std::string& nombre, R (*fn)(A...)) {
        m_rutinas[nombre].push_back(crea(fn, std::index_sequence_for<A...>{}));
    }

    const std::vector<Sobrecarga>* busca(const std::string& nombre) const {
        auto it = m_rutinas.find(nombre);
        return it == m_rutinas.end() ? nullptr : &it->second;
    }
    const std::map<std::string, std::vector<Sobrecarga>>& todas() const { return m_rutinas; }

private:
    template <typename R, typename... A, std::size_t... I>
    static Sobrecarga crea(R (*fn)(A...), std::index_sequence<I...>) {
        Sobrecarga s;
        s.parametros = {(std::string(Conversor<Valor<A>>::nombre) + (esSalida<A> ? "&" : ""))...};
        s.puntua = [](const json& args) {
            if (args.size() != sizeof...(A)) return 0;
            const int puntos[] = {2, Conversor<Valor<A>>::puntua(args[I])...};
            int total = 0;
            for (int p : puntos) {
                if (p == 0) return 0;
                total += p;
            }
            return total;
        };
        s.invoca = [fn](const json& args, json& out) -> json {
            std::tuple<Valor<A>...> valores{Conversor<Valor<A>>::desde(args[I])...};
            json resultado;
            if constexpr (std::is_void_v<R>)
                std::apply(fn, valores);
            else
                resultado = Conversor<Valor<R>>::hacia(std::apply(fn, valores));
            out = json::array();
            (anotaSalida<A>(out, std::get<I>(valores)), ...);
            return resultado;
        };
        return s;
    }

    template <typename A> static void anotaSalida(json& out, const Valor<A>& v) {
        if constexpr (esSalida<A>) out.push_back(Conversor<Valor<A>>::hacia(v));
    }

    std::map<std::string, std::vector<Sobrecarga>> m_rutinas;
};

/// Every routine the command line offers, registered once.
const Rutinas& TodasLasRutinas();

// One registration function per subsystem (apps/nodrim/rutinas_*.cpp).
void RegistraRutinasFrame(Rutinas& r);
void RegistraRutinasTexto(Rutinas& r);
void RegistraRutinasIdent(Rutinas& r);
void RegistraRutinasGeo(Rutinas& r);
void RegistraRutinasProtocolo(Rutinas& r);
void RegistraRutinasDocumentos(Rutinas& r);
void RegistraRutinasPreguntas(Rutinas& r);
void RegistraRutinasComms(Rutinas& r);
void RegistraRutinasMantenimiento(Rutinas& r);

} // namespace nod::lote
