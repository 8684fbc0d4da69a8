#include "companion/fechas.h"

namespace nod {

int Ano(TDateTime fecha) {
    const QDate d = TDateTimeToQDate(fecha);
    return d.isValid() ? d.year() : 0;
}

int Mes(TDateTime fecha) {
    const QDate d = TDateTimeToQDate(fecha);
    return d.isValid() ? d.month() : 0;
}

QString CompletaAnno(const QString& anno) {
    const QString t = anno.trimmed();
    if (t.isEmpty() || t.size() > 2) return anno;
    for (QChar c : t)
        if (c < QLatin1Char('0') || c > QLatin1Char('9')) return anno;
    const int yy = t.toInt();
    return QString::number(yy < 50 ? 2000 + yy : 1900 + yy);
}

namespace {

// Fixed tables (the office prints the same names whatever the workstation's locale).
const char16_t* const kMesesEs[] = {u"enero",      u"febrero", u"marzo",     u"abril",
                                    u"mayo",       u"junio",   u"julio",     u"agosto",
                                    u"septiembre", u"octubre", u"noviembre", u"diciembre"};
const char16_t* const kMesesCa[] = {u"gener",  u"febrer", u"març",     u"abril",   u"maig",     u"juny",
                                    u"juliol", u"agost",  u"setembre", u"octubre", u"novembre", u"desembre"};
// Monday first, as QDate::dayOfWeek counts (1 Monday .. 7 Sunday).
const char16_t* const kDiasEs[] = {u"lunes",   u"martes", u"miércoles", u"jueves",
                                   u"viernes", u"sábado", u"domingo"};
const char16_t* const kDiasCa[] = {u"dilluns",   u"dimarts",  u"dimecres", u"dijous",
                                   u"divendres", u"dissabte", u"diumenge"};

QString conForma(const char16_t* nombre, int forma) {
    QString s = QString::fromUtf16(nombre);
    if (forma == NombreMayusculas) return s.toUpper();
    if (forma == NombreCapital) s[0] = s[0].toUpper();
    return s;
}

} // namespace

QString MesToStr(int mes, int idioma, int forma) {
    if (mes < 1 || mes > 12) return {};
    return conForma((idioma == 1 ? kMesesCa : kMesesEs)[mes - 1], forma);
}

QString DiaTexto(TDateTime fecha, int idioma, int forma) {
    const QDate d = TDateTimeToQDate(fecha);
    if (!d.isValid()) return {};
    return conForma((idioma == 1 ? kDiasCa : kDiasEs)[d.dayOfWeek() - 1], forma);
}

} // namespace nod
