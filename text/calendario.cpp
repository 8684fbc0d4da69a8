#include "text/calendario.h"

#include "companion/errores.h"
#include "companion/rnumcad.h"

namespace nod {

int DiasMes(TDateTime fecha) {
    const QDate d = TDateTimeToQDate(fecha);
    return d.isValid() ? d.daysInMonth() : 0;
}

TDateTime UltimoDia(int mes, int anio) {
    if (mes < 1 || mes > 12 || anio < 1 || anio > 9999) return 0;
    const QDate primero(anio, mes, 1);
    return QDateToTDateTime(primero.addDays(primero.daysInMonth() - 1));
}

TDateTime EncodeFecha(int anio, int mes, int dia) {
    for (int v : {anio, mes, dia})
        if (v < 0 || v > 65535) throw EConvertError(QStringLiteral("Fecha no válida"));
    if (mes > 12) {
        anio += mes / 12;
        mes %= 12;
    }
    if (mes == 0 || anio < 1 || anio > 9999) throw EConvertError(QStringLiteral("Fecha no válida"));
    return QDateToTDateTime(QDate(anio, mes, 1)) + dia - 1;
}

QString IntToTrim(int trimestre) {
    static const char16_t* const kTrimestres[] = {u"PRIMER", u"SEGUNDO", u"TERCER", u"CUARTO"};
    return trimestre >= 1 && trimestre <= 4 ? QString::fromUtf16(kTrimestres[trimestre - 1]) : QString();
}

int TrimToInt(const QString& trimestre) {
    const QString t = UpperCase(trimestre.left(1));
    return t == u"P" ? 1 : t == u"S" ? 2 : t == u"T" ? 3 : t == u"C" ? 4 : 0;
}

int TrimToMes(int trimestre) {
    const qint64 mes = 3 * qint64(trimestre) - 2;
    return mes >= INT_MIN && mes <= INT_MAX ? int(mes) : 0;
}

} // namespace nod
