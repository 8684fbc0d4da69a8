#include "tables/catalogoindices.h"

#include <QFileInfo>

namespace nod {

namespace {

struct Etiqueta {
    const char* tabla;     // base name of the file, upper case
    const char* etiqueta;  // tag name
    const char* expresion; // fields joined by "+"
};

// Tags whose key is not simply the field of the same name. One line per tag; tables of other subsystems
// add their lines here.
constexpr Etiqueta kEtiquetas[] = {
    // Geography
    {"PROVIN", "ALFABETICO", "PROVINCIA"},
    {"MUNICIPI", "CPROVMUN", "COD_PROV+COD_MUN"},
    // Staff and substitute notaries
    {"SUSTIT", "NUMERO", "NUMEROSUST"},
    // Invoices: the invoice table of the numbering prompt orders by invoice number; the others by their code
    {"FACTURAA", "FACTURA", "NUMEROFAC"},
    {"FACTURAB", "FACTURA", "CODFACTURA"},
    {"FACTURAC", "FACTURA", "CODFACTURA"},
    {"FACTURAD", "FACTURA", "CODFACTURA"},
    {"FACTURAE", "FACTURA", "CODFACTURA"},
    {"FACTURAF", "FACTURA", "CODFACTURA"},
    {"FACTURAG", "FACTURA", "CODFACTURA"},
    {"FACTURAX", "FACTURA", "CODFACTURA"},
    // Powers of attorney and entries
    {"PODERES", "NUMERO", "CODPODER"},
    {"APODERAD", "PODER", "CODPODER"},
    {"CLAVES_E", "ENTRADA", "CODENTRADA"},
    // Accounting entries, by series and invoice
    {"APUNTES", "FACTURA", "SERIE+FACTURA"},
};

QString baseDe(const QString& fichero) {
    QString base = QFileInfo(fichero).fileName().toUpper();
    if (base.endsWith(QLatin1String(".DBF"))) base.chop(4);
    return base;
}

} // namespace

std::optional<QStringList> CamposDeIndice(const QString& fichero, const QString& etiqueta,
                                          const QList<TCampoDbf>& campos) {
    const QString base = baseDe(fichero);
    const QString tag = etiqueta.trimmed().toUpper();
    for (const Etiqueta& e : kEtiquetas)
        if (base == QLatin1String(e.tabla) && tag == QLatin1String(e.etiqueta))
            return QString::fromLatin1(e.expresion).split(QLatin1Char('+'));
    for (const TCampoDbf& c : campos)
        if (c.nombre.compare(tag, Qt::CaseInsensitive) == 0) return QStringList{c.nombre};
    return std::nullopt;
}

std::optional<QList<TCampoDbf>> EstructuraTabla(const QString& fichero) {
    if (baseDe(fichero) == QLatin1String("CONEXION"))
        // One row per workstation running a program of the suite: its address, and when it said so last.
        return QList<TCampoDbf>{{QStringLiteral("EQUIPO"), 'C', 60, 0},
                                {QStringLiteral("FECHA"), 'D', 8, 0},
                                {QStringLiteral("HORA"), 'C', 8, 0}};
    return std::nullopt;
}

} // namespace nod
