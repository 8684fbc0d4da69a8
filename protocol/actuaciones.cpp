#include "protocol/actuaciones.h"

#include "companion/config.h"
#include "tables/tablas.h"

#include <QHash>

namespace nod {

namespace {

// A policy role: its word and its two declaration codes.
struct ActuacionPoliza {
    const char16_t* palabra;
    const char16_t* codigoM;
    const char16_t* codigoS;
};

const ActuacionPoliza* actuacionPoliza(const QString& codigo) {
    static const QHash<QChar, ActuacionPoliza> tabla = {
        {u'A', {u"Adquirente", u"01", u"02"}},    {u'C', {u"Conyuge", u"11", u"02"}},
        {u'E', {u"Requerido", u"03", u"02"}},     {u'F', {u"Fiador", u"13", u"13"}},
        {u'O', {u"Apoderado", u"12", u"01"}},     {u'P', {u"Pignorante", u"15", u"13"}},
        {u'R', {u"Representante", u"05", u"01"}}, {u'S', {u"Transmitente", u"02", u"01"}},
        {u'T', {u"Titular", u"10", u"02"}},       {u'V', {u"Avalista", u"14", u"13"}}};
    if (codigo.size() != 1) return nullptr;
    auto it = tabla.constFind(codigo[0]);
    return it == tabla.constEnd() ? nullptr : &*it;
}

// "0" and codes that are not one character stand for the party acting in its own name.
bool enSuPropioNombre(const QString& codigo) {
    return codigo.size() != 1 || codigo == QLatin1String("0");
}

} // namespace

QString Actuacion(const QString& codigo) {
    static const QHash<QChar, QString> tabla = {
        {u'A', QStringLiteral("Adquirente")},   {u'C', QStringLiteral("Comprador")},
        {u'D', QStringLiteral("Donante")},      {u'E', QStringLiteral("Cedente")},
        {u'H', QStringLiteral("Heredero")},     {u'I', QStringLiteral("Avalista")},
        {u'L', QStringLiteral("Legatario")},    {u'N', QStringLiteral("Donatario")},
        {u'O', QStringLiteral("Hipotecante")},  {u'P', QStringLiteral("Prestatario")},
        {u'R', QStringLiteral("Prestamista")},  {u'S', QStringLiteral("Cesionario")},
        {u'T', QStringLiteral("Transmitente")}, {u'U', QStringLiteral("Causante")},
        {u'V', QStringLiteral("Vendedor")},     {u'Z', QStringLiteral("Sociedad")}};
    return codigo.size() == 1 ? tabla.value(codigo[0]) : QString();
}

QString Actua_C(const QString& codigo) {
    const ActuacionPoliza* a = actuacionPoliza(codigo);
    return a ? QString::fromUtf16(a->palabra) : QStringLiteral("En su propio nombre");
}

QString Actua_CM(const QString& codigo) {
    if (const ActuacionPoliza* a = actuacionPoliza(codigo)) return QString::fromUtf16(a->codigoM);
    return enSuPropioNombre(codigo) ? QStringLiteral("09") : QString();
}

QString Actua_CS(const QString& codigo) {
    if (const ActuacionPoliza* a = actuacionPoliza(codigo)) return QString::fromUtf16(a->codigoS);
    return enSuPropioNombre(codigo) ? QStringLiteral("02") : QString();
}

QString ActuacionApoderado(const QString& codigo) {
    if (codigo.isEmpty()) return {};
    switch (codigo[0].unicode()) {
    case u'D':
        return QStringLiteral("Director Oficina");
    case u'I':
        return QStringLiteral("Interventor Oficina");
    case u'P':
        return QStringLiteral("Apoderado Particular");
    case u'S':
        return QStringLiteral("Subdirector Oficina");
    case u'Z':
        return QStringLiteral("Apoderado Sociedad");
    default:
        return {};
    }
}

QString Intervencion(int clase) {
    static const QString frases[] = {QStringLiteral("En su nombre."),
                                     QStringLiteral("En representación de"),
                                     QStringLiteral("Por sí y en representación de"),
                                     QStringLiteral("Mandatario verbal."),
                                     QStringLiteral("Los dos en representación de"),
                                     QStringLiteral("Representado."),
                                     QStringLiteral("Por sí y mandatario verbal de"),
                                     QStringLiteral("No presente por otorgamiento diferido o ausente")};
    return clase >= 0 && clase <= 7 ? frases[clase] : QString();
}

QString Intervencion_D(int clase, const QString& actuacion) {
    if (actuacion == QLatin1String("4")) return QStringLiteral("4");
    const bool propia = !actuacion.isEmpty() && QStringLiteral("0AIECDHO").contains(actuacion);
    if (clase == 1 || clase == 3 || clase == 4) return propia ? QStringLiteral("5") : QStringLiteral("6");
    return propia ? QStringLiteral("1") : QStringLiteral("2");
}

QString Actuacion_INTI(int codigo, TTabla& tabla) {
    if (!TBBusca(tabla, {{QStringLiteral("CODIGO"), codigo}})) return {};
    return tabla.AsString(QStringLiteral("DESCRIPCIO"));
}

QString Actuacion_INTI(int codigo) {
    const auto tabla = CreaTablaSinExcepcion(Config.GetAliasNodrim(), QStringLiteral("Tipo_Int.dbf"),
                                             QStringLiteral("CODIGO"));
    return tabla ? Actuacion_INTI(codigo, *tabla) : QString();
}

} // namespace nod
