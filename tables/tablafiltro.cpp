#include "tables/tablafiltro.h"

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

class Logica : public FiltroTabla {
public:
    Logica(bool y, std::unique_ptr<FiltroTabla> a, std::unique_ptr<FiltroTabla> b)
        : m_y(y)
        , m_a(std::move(a))
        , m_b(std::move(b)) {}
    bool cumple(const DatosDbf& datos, int fila) const override {
        return m_y ? m_a->cumple(datos, fila) && m_b->cumple(datos, fila)
                   : m_a->cumple(datos, fila) || m_b->cumple(datos, fila);
    }

private:
    bool m_y;
    std::unique_ptr<FiltroTabla> m_a, m_b;
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
        , m_texto(texto) {
        trocea();
    }

    std::unique_ptr<FiltroTabla> analiza() {
        auto f = disyuncion();
        if (actual().tipo != Pieza::Tipo::Fin) falla(QStringLiteral("sobra \"%1\"").arg(actual().texto));
        return f;
    }

private:
    [[noreturn]] void falla(const QString& motivo, qsizetype posicion = -1) const {
        const qsizetype pos = posicion >= 0 ? posicion : actual().posicion;
        throw ErrorTabla(QStringLiteral("Filtro no válido para la tabla %1: \"%2\", posición %3: %4")
                             .arg(m_datos.ruta(), m_texto)
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

    std::unique_ptr<FiltroTabla> disyuncion() {
        auto a = conjuncion();
        while (esPalabra("OR")) {
            ++m_pos;
            a = std::make_unique<Logica>(false, std::move(a), conjuncion());
        }
        return a;
    }

    std::unique_ptr<FiltroTabla> conjuncion() {
        auto a = factor();
        while (esPalabra("AND")) {
            ++m_pos;
            a = std::make_unique<Logica>(true, std::move(a), factor());
        }
        return a;
    }

    std::unique_ptr<FiltroTabla> factor() {
        if (esPalabra("NOT")) {
            ++m_pos;
            return std::make_unique<Negacion>(factor());
        }
        if (actual().tipo == Pieza::Tipo::Abre) {
            ++m_pos;
            auto f = disyuncion();
            if (actual().tipo != Pieza::Tipo::Cierra) falla(QStringLiteral("falta \")\""));
            ++m_pos;
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
