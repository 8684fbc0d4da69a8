#include "tables/tablafiltro.h"

#include "companion/registro.h"

#include <vector>

namespace nod {

namespace {

enum class Op { Igual, Distinto, Menor, Mayor, MenorIgual, MayorIgual };

class Comparacion : public FiltroTabla {
public:
    Comparacion(int campo, Op op, ValorPreparado valor)
        : m_campo(campo)
        , m_op(op)
        , m_valor(std::move(valor)) {}
    bool cumple(const DatosDbf& datos, int fila) const override {
        if (m_valor.clase == ValorPreparado::Clase::Imposible) return m_op == Op::Distinto;
        const int c = ComparaCampo(datos, fila, m_campo, m_valor, false);
        switch (m_op) {
        case Op::Igual:
            return c == 0;
        case Op::Distinto:
            return c != 0;
        case Op::Menor:
            return c < 0;
        case Op::Mayor:
            return c > 0;
        case Op::MenorIgual:
            return c <= 0;
        case Op::MayorIgual:
            return c >= 0;
        }
        return false;
    }

private:
    int m_campo;
    Op m_op;
    ValorPreparado m_valor;
};

// A chain of comparisons joined by one operator ("A OR B OR C") is one node with a list, not a nest of
// pairs: evaluating a long chain does not go deeper into the stack.
class Logica : public FiltroTabla {
public:
    Logica(bool y, std::vector<std::unique_ptr<FiltroTabla>> partes)
        : m_y(y)
        , m_partes(std::move(partes)) {}
    bool cumple(const DatosDbf& datos, int fila) const override {
        for (const auto& p : m_partes)
            if (p->cumple(datos, fila) != m_y) return !m_y;
        return m_y;
    }

private:
    bool m_y;
    std::vector<std::unique_ptr<FiltroTabla>> m_partes;
};

class Negacion : public FiltroTabla {
public:
    explicit Negacion(std::unique_ptr<FiltroTabla> a)
        : m_a(std::move(a)) {}
    bool cumple(const DatosDbf& datos, int fila) const override { return !m_a->cumple(datos, fila); }

private:
    std::unique_ptr<FiltroTabla> m_a;
};

struct Pieza {
    enum class Tipo { Nombre, Texto, Numero, Operador, Abre, Cierra, Fin } tipo;
    QString texto;
    qsizetype posicion;
};

class Analizador {
public:
    Analizador(const DatosDbf& datos, const QString& texto)
        : m_datos(datos)
        , m_texto(texto) {}

    std::unique_ptr<FiltroTabla> analiza() {
        if (m_texto.size() > kLongitudMaximaFiltro)
            falla(QStringLiteral("tiene %1 caracteres y un filtro no puede tener más de %2")
                      .arg(m_texto.size())
                      .arg(kLongitudMaximaFiltro),
                  kLongitudMaximaFiltro);
        trocea();
        auto f = disyuncion();
        if (actual().tipo != Pieza::Tipo::Fin) falla(QStringLiteral("sobra \"%1\"").arg(actual().texto));
        return f;
    }

private:
    [[noreturn]] void falla(const QString& motivo, qsizetype posicion = -1) const {
        const qsizetype pos = posicion >= 0 ? posicion : actual().posicion;
        throw ErrorTabla(QStringLiteral("Filtro no válido para la tabla %1: \"%2\", posición %3: %4")
                             .arg(m_datos.ruta(), TextoVisible(m_texto, 80))
                             .arg(pos + 1)
                             .arg(motivo));
    }

    void trocea() {
        const QString& t = m_texto;
        qsizetype i = 0;
        while (i < t.size()) {
            const QChar c = t[i];
            if (c.isSpace()) {
                ++i;
            } else if (c.isLetter() || c == QLatin1Char('_')) {
                const qsizetype ini = i;
                while (i < t.size() && (t[i].isLetterOrNumber() || t[i] == QLatin1Char('_')))
                    ++i;
                m_piezas.push_back({Pieza::Tipo::Nombre, t.mid(ini, i - ini), ini});
            } else if (c.isDigit() || ((c == QLatin1Char('-') || c == QLatin1Char('.')) && i + 1 < t.size() &&
                                       (t[i + 1].isDigit() || t[i + 1] == QLatin1Char('.')))) {
                const qsizetype ini = i++;
                while (i < t.size() && (t[i].isDigit() || t[i] == QLatin1Char('.')))
                    ++i;
                m_piezas.push_back({Pieza::Tipo::Numero, t.mid(ini, i - ini), ini});
            } else if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
                const qsizetype ini = i++;
                QString valor;
                for (;;) {
                    if (i >= t.size()) falla(QStringLiteral("falta la comilla de cierre"), ini);
                    if (t[i] == c) {
                        if (i + 1 < t.size() && t[i + 1] == c) {
                            valor += c;
                            i += 2;
                            continue;
                        }
                        ++i;
                        break;
                    }
                    valor += t[i++];
                }
                m_piezas.push_back({Pieza::Tipo::Texto, valor, ini});
            } else if (c == QLatin1Char('(') || c == QLatin1Char(')')) {
                m_piezas.push_back(
                    {c == QLatin1Char('(') ? Pieza::Tipo::Abre : Pieza::Tipo::Cierra, QString(c), i++});
            } else if (QStringLiteral("=<>!").contains(c)) {
                const qsizetype ini = i++;
                if (i < t.size() &&
                    (t[i] == QLatin1Char('=') || (c == QLatin1Char('<') && t[i] == QLatin1Char('>'))))
                    ++i;
                const QString op = t.mid(ini, i - ini);
                if (op == QLatin1String("!")) falla(QStringLiteral("operador \"!\" desconocido"), ini);
                m_piezas.push_back({Pieza::Tipo::Operador, op, ini});
            } else {
                falla(QStringLiteral("carácter \"%1\" inesperado").arg(c), i);
            }
        }
        m_piezas.push_back({Pieza::Tipo::Fin, QStringLiteral("fin del texto"), t.size()});
    }

    const Pieza& actual() const { return m_piezas[m_pos]; }
    bool esPalabra(const char* palabra) const {
        return actual().tipo == Pieza::Tipo::Nombre &&
               actual().texto.compare(QLatin1String(palabra), Qt::CaseInsensitive) == 0;
    }

    // "a OR b OR ..." and "a AND b AND ...": one node for the whole chain (the single term as it is).
    std::unique_ptr<FiltroTabla> cadena(bool y) {
        std::vector<std::unique_ptr<FiltroTabla>> partes;
        partes.push_back(y ? factor() : cadena(true));
        while (esPalabra(y ? "AND" : "OR")) {
            ++m_pos;
            partes.push_back(y ? factor() : cadena(true));
        }
        if (partes.size() == 1) return std::move(partes.front());
        return std::make_unique<Logica>(y, std::move(partes));
    }

    std::unique_ptr<FiltroTabla> disyuncion() { return cadena(false); }

    // NOT and parentheses nest; each level is one more frame for the parser and the evaluator alike.
    std::unique_ptr<FiltroTabla> factor() {
        const bool niega = esPalabra("NOT");
        if (niega || actual().tipo == Pieza::Tipo::Abre) {
            if (m_profundidad == kProfundidadMaximaFiltro)
                falla(QStringLiteral("anida más de %1 niveles de paréntesis y NOT")
                          .arg(kProfundidadMaximaFiltro));
            ++m_profundidad;
            ++m_pos;
            std::unique_ptr<FiltroTabla> f;
            if (niega) {
                f = std::make_unique<Negacion>(factor());
            } else {
                f = disyuncion();
                if (actual().tipo != Pieza::Tipo::Cierra) falla(QStringLiteral("falta \")\""));
                ++m_pos;
            }
            --m_profundidad;
            return f;
        }
        return comparacion();
    }

    std::unique_ptr<FiltroTabla> comparacion() {
        if (actual().tipo != Pieza::Tipo::Nombre)
            falla(QStringLiteral("se esperaba un campo y hay \"%1\"").arg(actual().texto));
        const int campo = m_datos.indiceCampo(actual().texto);
        if (campo < 0) falla(QStringLiteral("la tabla no tiene el campo %1").arg(actual().texto));
        ++m_pos;
        if (actual().tipo != Pieza::Tipo::Operador)
            falla(QStringLiteral("se esperaba un operador y hay \"%1\"").arg(actual().texto));
        const QString op = actual().texto;
        ++m_pos;
        QVariant valor;
        switch (actual().tipo) {
        case Pieza::Tipo::Texto:
            valor = actual().texto;
            break;
        case Pieza::Tipo::Numero: {
            bool ok = false;
            valor = actual().texto.toDouble(&ok);
            if (!CampoNumerico(m_datos.campos()[campo].tipo))
                valor = actual().texto; // COD_PROV = 09 against a character field compares "09"
            if (!ok) falla(QStringLiteral("\"%1\" no es un número").arg(actual().texto));
            break;
        }
        case Pieza::Tipo::Nombre:
            if (esPalabra("TRUE") || esPalabra("FALSE")) {
                valor = esPalabra("TRUE");
                break;
            }
            [[fallthrough]];
        default:
            falla(QStringLiteral("se esperaba un valor y hay \"%1\"").arg(actual().texto));
        }
        ++m_pos;
        return std::make_unique<Comparacion>(campo, operador(op), PreparaValor(m_datos, campo, valor));
    }

    static Op operador(const QString& op) {
        if (op == QLatin1String("<>") || op == QLatin1String("!=")) return Op::Distinto;
        if (op == QLatin1String("<")) return Op::Menor;
        if (op == QLatin1String(">")) return Op::Mayor;
        if (op == QLatin1String("<=")) return Op::MenorIgual;
        if (op == QLatin1String(">=")) return Op::MayorIgual;
        return Op::Igual; // "=" and "=="
    }

    const DatosDbf& m_datos;
    const QString& m_texto;
    std::vector<Pieza> m_piezas;
    size_t m_pos = 0;
    int m_profundidad = 0;
};

} // namespace

std::unique_ptr<FiltroTabla> FiltroTabla::Compila(const DatosDbf& datos, const QString& texto) {
    return Analizador(datos, texto).analiza();
}

std::shared_ptr<const FiltroTabla> DatosDbf::filtro(const QString& texto) const {
    // Routines build their filters from a few patterns; a table that meets very many texts starts over.
    constexpr qsizetype kMaxFiltros = 256;
    {
        std::lock_guard lock(m_mutexOrdenes);
        if (const auto it = m_filtros.constFind(texto); it != m_filtros.cend()) return *it;
    }
    std::shared_ptr<const FiltroTabla> f = FiltroTabla::Compila(*this, texto);
    std::lock_guard lock(m_mutexOrdenes);
    if (m_filtros.size() >= kMaxFiltros) m_filtros.clear();
    m_filtros.insert(texto, f);
    return f;
}

} // namespace nod
