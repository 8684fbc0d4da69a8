#include "companion/tdatetime.h"

#include <cmath>

namespace nod {

namespace {
constexpr double kMsPorDia = 86400000.0;
} // namespace

TDateTime QDateTimeToTDateTime(const QDateTime& dt) {
    if (!dt.isValid()) return 0.0;
    const double dias = double(FechaBase().daysTo(dt.date()));
    const double fraccion = dt.time().msecsSinceStartOfDay() / kMsPorDia;
    // Before the base day the fraction is still added as a positive time, as Delphi stores it.
    return dias >= 0 ? dias + fraccion : dias - fraccion;
}

QDate TDateTimeToQDate(TDateTime t) {
    if (!std::isfinite(t) || std::fabs(t) > 3.0e6) // beyond year 9999 either way
        return {};
    return FechaBase().addDays(qint64(std::trunc(t)));
}

QDateTime TDateTimeToQDateTime(TDateTime t) {
    const QDate d = TDateTimeToQDate(t);
    if (!d.isValid()) return {};
    const double fraccion = std::fabs(t - std::trunc(t));
    const int ms = int(std::lround(fraccion * kMsPorDia));
    return QDateTime(d, QTime(0, 0)).addMSecs(ms);
}

} // namespace nod
