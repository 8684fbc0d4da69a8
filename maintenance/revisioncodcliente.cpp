#include "maintenance/revisioncodcliente.h"

#include "companion/codepage.h"
#include "companion/config.h"
#include "companion/errores.h"
#include "companion/mensajes.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"
#include "frame/notarios.h"
#include "protocol/numeros.h"
#include "tables/catalogoindices.h"
#include "tables/tablas.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <limits>

namespace nod {

namespace {

// How a check describes the record that refers to a missing client.
enum class Describe {
    Protocolo,  // words + the code of `campoCodigo` decoded with DecodeCod: "El protocolo 1.234/2.008"
    Protocolo4, // the same with DecodeCod4
    Banco,      // "El banco " + CODBANCO + " con nombre: " + NOMBRE
    Deposito,   // "El asiento " + ASIENTO + " del depósito del " + FECHA
    Apunte,     // "El apunte " + ASIENTO + " del " + FECHA + ", factura " + SERIE-FACTURA
    Cliente,    // "El cliente  " + APELLIDOS + ", " + NOMBRE + " (" + CODIGO + ")"
    Palabras,   // the words alone
};

struct Revision {
    const char* nombre;  // name in the list and in the progress window
    const char* fichero; // table file, without ".DBF"
    const char* indice;  // index tag whose order the lines follow; "" physical order
    const char* campo;   // client code searched
    Describe describe;
    const char* campoCodigo; // code decoded by Protocolo and Protocolo4
    const char* palabras;    // words that open the description
    unsigned modos;          // bit m: the all-tables run reads the table in mode m
};

constexpr unsigned M0 = 1, M1 = 2, M2 = 4, M3 = 8;

// In the order of the all-tables run, with its modes.
constexpr Revision kRevisiones[] = {
    {"ACTIVOS", "ACTIVOS", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El activo financiero del protocolo", M0 | M1},
    {"APODERADOS", "APODERAD", "PODER", "CODCLIENTE", Describe::Protocolo4, "CODPODER",
     "El apoderado del poder", M0},
    {"APUNTES", "APUNTES", "FACTURA", "CODCLIENTE", Describe::Apunte, "", "", M0},
    {"BANCOS", "BANCOS", "CODBANCO", "CODCLIENTE", Describe::Banco, "", "", M0},
    {"CLAVES", "CLAVES", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El otorgante del protocolo", M1 | M2 | M3},
    {"CLAVES_C", "CLAVES_C", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El compareciente del protocolo", M1 | M2 | M3},
    {"CLAVES_E", "CLAVES_E", "ENTRADA", "CODCLIENTE", Describe::Protocolo, "CODENTRADA", "La entrada", M0},
    {"CLAVES_I", "CLAVES_I", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El interviniente del protocolo", M1 | M2 | M3},
    {"CLAVES_L", "CLAVES_L", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El otorgante del asiento del Libro Indicador", M3},
    {"CLAVES_P", "CLAVES_P", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El interviniente de la póliza", M3},
    {"CLAVES_S", "CLAVES_S", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El sujeto del protocolo", M1 | M2 | M3},
    {"CLIENTES", "CLIENTES", "CONYUGE", "CONYUGE", Describe::Cliente, "", "", M0},
    {"DEPOSITO", "DEPOSITO", "ASIENTO", "CLIENTE", Describe::Deposito, "", "", M0},
    {"DEUDAS", "DEUDAS", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "La deuda del protocolo", M1 | M3},
    {"ENTRADAS", "ENTRADAS", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El otorgante de la entrada", M0},
    {"FACTURAA", "FACTURAA", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "La factura del protocolo", M1 | M3},
    {"FACTURAB", "FACTURAB", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "La factura del protocolo", M3},
    {"FACTURAC", "FACTURAC", "FACTURA", "CODCLIENTE", Describe::Protocolo, "CODFACTURA", "La factura", M3},
    {"FACTURAD", "FACTURAD", "FACTURA", "CODCLIENTE", Describe::Protocolo, "CODFACTURA", "La factura", M3},
    {"FACTURAX", "FACTURAX", "FACTURA", "CODCLIENTE", Describe::Protocolo, "CODFACTURA", "La factura", M3},
    {"FACTURAE", "FACTURAE", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "La factura del protocolo", M3},
    {"FACTURAF", "FACTURAF", "FACTURA", "CODCLIENTE", Describe::Protocolo, "CODFACTURA", "La factura", M3},
    {"FACTURAG", "FACTURAG", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "La factura del protocolo", M3},
    {"PLUSVAL", "PLUSVAL", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "La plusvalía del protocolo", M1 | M2 | M3},
    {"PODERES", "PODERES", "NUMERO", "PODERDANTE", Describe::Protocolo4, "CODPODER",
     "El poderdante del poder", M0},
    {"POLIZAS", "POLIZAS", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO", "La póliza", M3},
    {"TESTIGOS", "TESTIGOS", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El testigo del protocolo", M1 | M2 | M3},
    {"TIT_CLI", "TIT_CLI", "CODCLIENTE", "CODCLIENTE", Describe::Palabras, "", "El titular real", 0},
    {"TIT_REL", "TIT_REL", "CODCLIENTE", "CODCLIENTE", Describe::Protocolo, "CODNUMERO",
     "El titular real del protocolo", M1 | M3},
    {"VALORES", "VALORES", "", "CODCLIENTE", Describe::Protocolo4, "CODNUMERO", "El valor", M3},
};

const Revision* buscaRevision(const QString& nombre) {
    const QString n = nombre.trimmed().toUpper();
    for (const Revision& r : kRevisiones)
        if (n == QLatin1String(r.nombre)) return &r;
    return nullptr;
}

QString L(const char* s) {
    return QString::fromUtf8(s);
}

// "#," of the suite: the whole number grouped by thousands.
QString miles(qint64 n) {
    return AgrupaMiles(QString::number(n));
}

qint64 entero(double x) {
    return std::isfinite(x) && std::fabs(x) < 9.0e18 ? std::llround(x) : 0;
}

QString numeroYAnno(int numero, int anno) {
    return miles(numero) + QLatin1Char('/') + miles(anno);
}

// A key value of the tag, compared as the table layer orders it: numbers, dates and logicals as numbers,
// texts by their bytes in the table's code page without trailing blanks.
struct ValorClave {
    double numero = 0;
    QByteArray bytes;
};

struct Fallo {
    std::vector<ValorClave> clave;
    TMensajeRevision linea;
};

bool menorClave(const std::vector<ValorClave>& a, const std::vector<ValorClave>& b) {
    for (size_t k = 0; k < a.size(); ++k) {
        if (a[k].numero != b[k].numero) return a[k].numero < b[k].numero;
        if (a[k].bytes != b[k].bytes) return a[k].bytes < b[k].bytes;
    }
    return false;
}

// Reads what a check needs of one table: the searched field, the tag's key fields, the described fields.
// Fields a description names but the table lacks read as empty.
class Lector {
public:
    Lector(const TTabla& tb, const Revision& r, const QStringList& camposClave)
        : m_tb(tb)
        , m_r(r) {
        for (const QString& c : camposClave) {
            const int i = tb.IndiceCampo(c);
            m_clave.push_back({i, tb.Campos()[i].tipo});
        }
        m_codigo = tb.IndiceCampo(L(r.campoCodigo));
    }

    std::vector<ValorClave> clave() const {
        std::vector<ValorClave> v(m_clave.size());
        for (size_t k = 0; k < m_clave.size(); ++k) {
            const auto [campo, tipo] = m_clave[k];
            if (tipo == 'C' || tipo == 'M')
                v[k].bytes = Codifica(m_tb.AsString(campo), m_tb.PaginaCodigos()).value_or(QByteArray());
            else if (tipo == 'D')
                v[k].numero = m_tb.AsDateTime(campo);
            else if (tipo == 'L')
                v[k].numero = m_tb.AsBoolean(campo) ? 1 : 0;
            else
                v[k].numero = m_tb.AsFloat(campo);
        }
        return v;
    }

    QString descripcion() const {
        switch (m_r.describe) {
        case Describe::Protocolo: {
            int anno = 0, numero = 0;
            DecodeCod(valor(m_codigo), anno, numero);
            return L(m_r.palabras) + QLatin1Char(' ') + numeroYAnno(numero, anno);
        }
        case Describe::Protocolo4: {
            int anno = 0, numero = 0;
            const qint64 codigo = entero(valor(m_codigo));
            if (codigo >= std::numeric_limits<int>::min() && codigo <= std::numeric_limits<int>::max())
                DecodeCod4(int(codigo), anno, numero);
            return L(m_r.palabras) + QLatin1Char(' ') + numeroYAnno(numero, anno);
        }
        case Describe::Banco:
            return QStringLiteral("El banco ") + miles(entero(numero(u"CODBANCO"))) +
                   QStringLiteral(" con nombre: ") + texto(u"NOMBRE");
        case Describe::Deposito:
            return QStringLiteral("El asiento ") + miles(entero(numero(u"ASIENTO"))) +
                   QStringLiteral(" del depósito del ") + fecha(u"FECHA");
        case Describe::Apunte: {
            const QString serie = texto(u"SERIE").trimmed();
            return QStringLiteral("El apunte ") + miles(entero(numero(u"ASIENTO"))) +
                   QStringLiteral(" del ") + fecha(u"FECHA") + QStringLiteral(", factura ") +
                   (serie.isEmpty() ? QString() : serie + QLatin1Char('-')) +
                   miles(entero(numero(u"FACTURA")));
        }
        case Describe::Cliente:
            return QStringLiteral("El cliente  ") + texto(u"APELLIDOS") + QStringLiteral(", ") +
                   texto(u"NOMBRE") + QStringLiteral(" (") + miles(entero(numero(u"CODIGO"))) +
                   QLatin1Char(')');
        case Describe::Palabras:
            break;
        }
        return L(m_r.palabras);
    }

private:
    double valor(int campo) const { return campo < 0 ? 0 : m_tb.AsFloat(campo); }
    double numero(QStringView nombre) const { return valor(m_tb.IndiceCampo(nombre.toString())); }
    QString texto(QStringView nombre) const {
        const int c = m_tb.IndiceCampo(nombre.toString());
        return c < 0 ? QString() : m_tb.AsString(c);
    }
    QString fecha(QStringView nombre) const {
        const int c = m_tb.IndiceCampo(nombre.toString());
        const TDateTime f = c < 0 ? 0 : m_tb.AsDateTime(c);
        return f == 0 ? QString() : TDateTimeToQDate(f).toString(QStringLiteral("dd/MM/yyyy"));
    }

    const TTabla& m_tb;
    const Revision& m_r;
    std::vector<std::pair<int, char>> m_clave;
    int m_codigo = -1;
};

// Whether a check opens its table in `modo`: the common, draft and notary's databases always; the
// archive only for the tables of deeds the run reads there.
bool abreEnModo(const Revision& r, int modo) {
    if (modo == 2) return r.modos & M2;
    return modo == 0 || modo == 1 || modo == 3;
}

constexpr qint64 kRegistrosEntreEventos = 65536;

} // namespace

// The codes of the clients table, for the question every referring record asks: is there a client with
// this code? The answer is the one an exact search of the code on the clients' tag "CODIGO" gives, but
// a binary search over a hundred thousand keys misses the processor's cache at every step, while the
// whole codes from 1 up, kept as bits (12.5 KB for 100,000 clients), stay in it. Any other code (a
// fraction, zero, a negative or a huge one) waits in a short sorted list.
class ConjuntoCodigos {
public:
    explicit ConjuntoCodigos(TTabla& clientes) {
        const int campo = clientes.IndiceCampo(QStringLiteral("CODIGO"));
        if (campo < 0) throw ErrorTabla(QStringLiteral("no tiene el campo CODIGO"));
        for (clientes.First(); !clientes.Eof(); clientes.Next()) {
            const double codigo = clientes.AsFloat(campo);
            if (codigo >= 1 && codigo <= kMayorEnBits && codigo == std::floor(codigo)) {
                const auto n = size_t(codigo);
                if (n / 64 >= m_bits.size()) m_bits.resize(n / 64 + 1);
                m_bits[n / 64] |= quint64(1) << (n % 64);
            } else {
                m_otros.push_back(codigo);
            }
        }
        std::sort(m_otros.begin(), m_otros.end());
    }

    bool contiene(double codigo) const {
        if (codigo >= 1 && codigo <= kMayorEnBits && codigo == std::floor(codigo)) {
            const auto n = size_t(codigo);
            return n / 64 < m_bits.size() && (m_bits[n / 64] >> (n % 64) & 1);
        }
        return std::binary_search(m_otros.begin(), m_otros.end(), codigo);
    }

private:
    static constexpr double kMayorEnBits = 1 << 27; // 16 MB of bits at most, for codes of up to 9 digits
    std::vector<quint64> m_bits;
    std::vector<double> m_otros;
};

namespace {

// Reads the table in physical order and gives its misses with the keys of the check's tag.
std::vector<Fallo> recorre(TTabla& tb, const Revision& r, int modo, const ConjuntoCodigos& clientes,
                           qint64& leidos) {
    const QString fichero = L(r.fichero);
    const int campo = tb.IndiceCampo(L(r.campo));
    const auto camposClave = *r.indice ? CamposDeIndice(fichero, L(r.indice), tb.Campos()) : QStringList();
    const bool tieneClave =
        camposClave && std::all_of(camposClave->begin(), camposClave->end(),
                                   [&](const QString& c) { return tb.IndiceCampo(c) >= 0; });
    if (campo < 0 || !tieneClave) {
        qCWarning(lcTablas).noquote() << tb.Ruta() << "lacks the field" << r.campo << "or the tag" << r.indice
                                      << "of the client-code revision";
        return {};
    }
    QString nombreTabla;
    MensajeTabla(fichero, modo, nombreTabla);
    const Lector lector(tb, r, *camposClave);
    std::vector<Fallo> fallos;
    double anterior = std::numeric_limits<double>::quiet_NaN();
    bool encontrado = true;
    try {
        for (tb.First(); !tb.Eof(); tb.Next()) {
            if (++leidos % kRegistrosEntreEventos == 0) QCoreApplication::processEvents();
            const double codigo = tb.AsFloat(campo);
            if (codigo == 0) continue; // no client
            if (codigo != anterior) {  // records of one client often come together
                anterior = codigo;
                encontrado = clientes.contiene(codigo);
            }
            if (!encontrado)
                fallos.push_back({lector.clave(),
                                  {nombreTabla,
                                   lector.descripcion() + QStringLiteral(" referencia al cliente ") +
                                       miles(entero(codigo)),
                                   entero(codigo)}});
        }
    } catch (const ErrorNod& e) {
        qCWarning(lcTablas).noquote() << "client-code revision, rest of the table skipped:" << e.mensaje();
    }
    return fallos;
}

} // namespace

void MensajeTabla(const QString& tabla, int modo, QString& texto) {
    texto = QStringLiteral("En la Tabla ") + UpperCase(tabla);
    switch (modo) {
    case 0:
        texto += QStringLiteral(" de COMUN");
        break;
    case 1:
        texto += QStringLiteral(" de BORRADOR");
        break;
    case 3:
        texto += Config.GetnCuantos() > 0 ? QStringLiteral(" del NOTARIO ") + Config.GetsNotario()
                                          : QStringLiteral(" de NOTARIO");
        break;
    default:
        break;
    }
}

QString AliasRevision(int modo) {
    switch (modo) {
    case 0:
        return Config.GetAliasNodrim();
    case 1:
        return Config.GetAliasBorrador();
    case 2:
        return Config.GetAliasArchivo();
    case 3:
        return AliasNotarioActual();
    default:
        return {};
    }
}

QStringList TablasConCodCliente() {
    QStringList l;
    for (const Revision& r : kRevisiones)
        l << L(r.nombre);
    l.sort();
    return l;
}

QList<int> ModosRevision(const QString& tabla) {
    QList<int> modos;
    if (const Revision* r = buscaRevision(tabla))
        for (int m = 0; m < 4; ++m)
            if (r->modos & (1u << m)) modos << m;
    return modos;
}

TRevisionCodCliente::TRevisionCodCliente() = default;
TRevisionCodCliente::~TRevisionCodCliente() = default;

bool TRevisionCodCliente::Prepara() {
    m_mensajes.clear();
    m_leidos = 0;
    m_clientes.reset();
    try {
        auto tb = CreaTabla(Config.GetAliasNodrim(), QStringLiteral("Clientes.dbf"));
        m_clientes = std::make_unique<ConjuntoCodigos>(*tb);
        return true;
    } catch (const ErrorNod& e) {
        Mensaje_Error(QStringLiteral("No se puede abrir la tabla de clientes: ") + e.mensaje());
        return false;
    }
}

void TRevisionCodCliente::Revisa(const QString& tabla, int modo) {
    const Revision* r = buscaRevision(tabla);
    if (!r || !m_clientes || !abreEnModo(*r, modo)) return;
    auto tb = CreaTablaSinExcepcion(AliasRevision(modo), L(r->fichero)); // physical order
    if (!tb) return;
    std::vector<Fallo> fallos = recorre(*tb, *r, modo, *m_clientes, m_leidos);
    const QString ruta = tb->Ruta();
    tb.reset();
    OlvidaTablaCargada(ruta);
    // The table was read in physical order; the few misses are now put in the order of the tag: the
    // same lines in the same order as a walk on the tag, without sorting every record of the table.
    std::stable_sort(fallos.begin(), fallos.end(),
                     [](const Fallo& a, const Fallo& b) { return menorClave(a.clave, b.clave); });
    for (Fallo& f : fallos)
        m_mensajes.append(std::move(f.linea));
}

bool TRevisionCodCliente::MuestraCodClienteIncorrectoEnTodasTablas() {
    QStringList tablas;
    for (const Revision& r : kRevisiones)
        tablas << L(r.nombre);
    return corre(tablas);
}

bool TRevisionCodCliente::MuestraCodClienteIncorrectoEnTabla(const QString& tabla) {
    const Revision* r = buscaRevision(tabla);
    return r && corre({L(r->nombre)});
}

bool TRevisionCodCliente::corre(const QStringList& tablas) {
    if (!Prepara()) return false;
    MuestraMensaje(QString());
    for (const QString& tabla : tablas) {
        CambiaMensaje(QStringLiteral("Buscando clientes erróneos en la tabla ") + tabla);
        QCoreApplication::processEvents();
        const QList<int> modos = ModosRevision(tabla);
        if (modos.isEmpty()) Revisa(tabla, 0); // TIT_CLI, which takes no mode
        for (int modo : modos)
            Revisa(tabla, modo);
    }
    CambiaMensaje(QStringLiteral("El proceso ha finalizado"));
    CierraMensaje();
    return true;
}

} // namespace nod
