#include "tests/maintenance/oficina_revision.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace nod::prueba {

namespace {

constexpr unsigned M0 = 1, M1 = 2, M2 = 4, M3 = 8;

// Numeric, text and date fields.
const auto N = [](const char* n, int l) { return TCampoDbf{QLatin1String(n), 'N', l, 0}; };
const auto C = [](const char* n, int l) { return TCampoDbf{QLatin1String(n), 'C', l, 0}; };
const auto D = [](const char* n) { return TCampoDbf{QLatin1String(n), 'D', 8, 0}; };

TablaRevisionPrueba otra(const char* nombre, const char* fichero, const char* campoCliente,
                         const QList<TCampoDbf>& campos, unsigned modos) {
    return {QLatin1String(nombre), QLatin1String(fichero), QLatin1String(campoCliente), campos, modos};
}
TablaRevisionPrueba protocolo(const char* nombre, unsigned modos) {
    return otra(nombre, nombre, "CODCLIENTE", {N("CODNUMERO", 12), N("CODCLIENTE", 8), C("TEXTO", 20)},
                modos);
}
TablaRevisionPrueba factura(const char* nombre) {
    return otra(nombre, nombre, "CODCLIENTE", {N("CODFACTURA", 12), N("CODCLIENTE", 8)}, M3);
}

// The field's text for record i, right- or left-justified to its width.
QByteArray valor(const TCampoDbf& c, const TablaRevisionPrueba& t, qint64 i, qint64 cliente) {
    QByteArray v;
    if (c.nombre == t.campoCliente)
        v = QByteArray::number(cliente);
    else if (c.tipo == 'D')
        v = QDate(2024, 1, 1).addDays(i).toString(u"yyyyMMdd"_s).toLatin1();
    else if (c.nombre == QLatin1String("SERIE"))
        v = i % 2 ? "B" : "A";
    else if (c.tipo == 'C')
        v = "TEXTO " + QByteArray::number(i);
    else if (c.nombre == QLatin1String("CODPODER") ||
             (c.nombre == QLatin1String("CODNUMERO") && c.longitud == 8))
        v = QByteArray::number(2020 * 10000 + i + 1);
    else if (c.nombre == QLatin1String("CODNUMERO") || c.nombre == QLatin1String("CODFACTURA") ||
             c.nombre == QLatin1String("CODENTRADA"))
        v = QByteArray::number(qint64(2020) * 100000 + i + 1);
    else
        v = QByteArray::number(i + 1);
    return c.tipo == 'C' ? v.leftJustified(c.longitud, ' ', true) : v.rightJustified(c.longitud, ' ', true);
}

// Appends the records that `registro` gives to an empty table and fixes its record count.
void escribe(const QString& ruta, const QList<TCampoDbf>& campos, qint64 n,
             const std::function<QByteArray(qint64)>& registro) {
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    CreaFicheroDbf(ruta, campos);
    QFile f(ruta);
    if (!f.open(QIODevice::ReadWrite)) return;
    QByteArray cabecera = f.readAll();
    if (cabecera.endsWith('\x1a')) cabecera.chop(1);
    for (int b = 0; b < 4; ++b)
        cabecera[4 + b] = char(n >> (8 * b) & 0xFF);
    f.seek(0);
    f.resize(0);
    f.write(cabecera);
    QByteArray bloque;
    for (qint64 i = 0; i < n; ++i) {
        bloque += ' ';
        bloque += registro(i);
        if (bloque.size() > (1 << 20)) {
            f.write(bloque);
            bloque.clear();
        }
    }
    bloque += '\x1a';
    f.write(bloque);
}

} // namespace

const QList<TablaRevisionPrueba>& TablasRevisionPrueba() {
    static const QList<TablaRevisionPrueba> t = {
        protocolo("ACTIVOS", M0 | M1),
        otra("APODERADOS", "APODERAD", "CODCLIENTE", {N("CODPODER", 8), N("CODCLIENTE", 8)}, M0),
        otra("APUNTES", "APUNTES", "CODCLIENTE",
             {N("ASIENTO", 8), D("FECHA"), C("SERIE", 1), N("FACTURA", 10), N("CODCLIENTE", 8)}, M0),
        otra("BANCOS", "BANCOS", "CODCLIENTE", {N("CODBANCO", 4), C("NOMBRE", 40), N("CODCLIENTE", 8)}, M0),
        protocolo("CLAVES", M1 | M2 | M3),
        protocolo("CLAVES_C", M1 | M2 | M3),
        otra("CLAVES_E", "CLAVES_E", "CODCLIENTE", {N("CODENTRADA", 12), N("CODCLIENTE", 8)}, M0),
        protocolo("CLAVES_I", M1 | M2 | M3),
        protocolo("CLAVES_L", M3),
        protocolo("CLAVES_P", M3),
        protocolo("CLAVES_S", M1 | M2 | M3),
        otra("CLIENTES", "CLIENTES", "CONYUGE",
             {N("CODIGO", 8), C("APELLIDOS", 40), C("NOMBRE", 30), N("CONYUGE", 8)}, M0),
        otra("DEPOSITO", "DEPOSITO", "CLIENTE", {N("ASIENTO", 6), D("FECHA"), N("CLIENTE", 8)}, M0),
        protocolo("DEUDAS", M1 | M3),
        protocolo("ENTRADAS", M0),
        protocolo("FACTURAA", M1 | M3),
        protocolo("FACTURAB", M3),
        factura("FACTURAC"),
        factura("FACTURAD"),
        factura("FACTURAX"),
        protocolo("FACTURAE", M3),
        factura("FACTURAF"),
        protocolo("FACTURAG", M3),
        protocolo("PLUSVAL", M1 | M2 | M3),
        otra("PODERES", "PODERES", "PODERDANTE", {N("CODPODER", 8), N("PODERDANTE", 8)}, M0),
        protocolo("POLIZAS", M3),
        protocolo("TESTIGOS", M1 | M2 | M3),
        otra("TIT_CLI", "TIT_CLI", "CODCLIENTE", {N("CODCLIENTE", 8), N("SOCIEDAD", 8)}, 0),
        protocolo("TIT_REL", M1 | M3),
        otra("VALORES", "VALORES", "CODCLIENTE", {N("CODNUMERO", 8), N("CODCLIENTE", 8)}, M3),
    };
    return t;
}

const TablaRevisionPrueba& TablaRevisionPorNombre(const QString& nombre) {
    for (const auto& t : TablasRevisionPrueba())
        if (t.nombre == nombre) return t;
    static const TablaRevisionPrueba ninguna{};
    return ninguna;
}

QString CarpetaDeModo(int modo) {
    static const char* const carpetas[] = {"COMUN", "BORRADOR", "ARCHIVO", "NOTARIO1"};
    return QLatin1String(carpetas[modo]);
}

QString ConfigOficinaRevision() {
    return u"[GENERAL]\nAliasNodrim=DB\nAliasNotario=DBNOTARIO\nNumeroNotarios=1\nNotario=1\n"
           "[ALIAS]\nDB=COMUN\nDBBORRADOR=BORRADOR\nDBARCHIVO=ARCHIVO\nDBNOTARIO1=NOTARIO1\n"
           "[TABLAS]\nEsperaBloqueo=200\n"_s;
}

void EscribeTablaRevision(const QString& ruta, const TablaRevisionPrueba& t, qint64 n,
                          const std::function<qint64(qint64)>& codigo) {
    escribe(ruta, t.campos, n, [&](qint64 i) {
        const qint64 cliente = codigo(i);
        QByteArray r;
        for (const TCampoDbf& c : t.campos)
            r += valor(c, t, i, cliente);
        return r;
    });
}

void EscribeClientes(const QString& ruta, qint64 n, const std::function<qint64(qint64)>& conyuge) {
    const TablaRevisionPrueba& t = TablaRevisionPorNombre(u"CLIENTES"_s);
    escribe(ruta, t.campos, n, [&](qint64 i) {
        return QByteArray::number(i + 1).rightJustified(8, ' ') +
               ("APELLIDOS " + QByteArray::number(i)).leftJustified(40, ' ') +
               ("NOMBRE " + QByteArray::number(i)).leftJustified(30, ' ') +
               QByteArray::number(conyuge(i)).rightJustified(8, ' ');
    });
}

} // namespace nod::prueba
