#include "companion/fechas.h"

namespace nod {

int Ano(TDateTime fecha)
{
    const QDate d = TDateTimeToQDate(fecha);
    return d.isValid() ? d.year() : 0;
}

int Mes(TDateTime fecha)
{
    const QDate d = TDateTimeToQDate(fecha);
    return d.isValid() ? d.month() : 0;
}

QString CompletaAnno(const QString& anno)
{
    const QString t = anno.trimmed();
    if (t.isEmpty() || t.size() > 2)
        return anno;
    for (QChar c : t)
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return anno;
    const int yy = t.toInt();
    return QString::number(yy < 50 ? 2000 + yy : 1900 + yy);
}

} // namespace nod
