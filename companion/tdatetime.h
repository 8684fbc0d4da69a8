#pragma once
// Date-times as the suite's tables and programs store them: days since 30 December 1899, with the time
// of day as the fraction. Dates compare as whole days (the integer part).

#include "nod_core_export.h"

#include <QDate>
#include <QDateTime>

namespace nod NOD_CORE_EXPORT {

using TDateTime = double;

/// The day 30/12/1899, serial 0.
inline QDate FechaBase() {
    return QDate(1899, 12, 30);
}

/// Serial of a calendar date at midnight; an invalid date gives 0.
inline TDateTime QDateToTDateTime(QDate d) {
    return d.isValid() ? double(FechaBase().daysTo(d)) : 0.0;
}

/// Serial of a date and time, to the millisecond.
TDateTime QDateTimeToTDateTime(const QDateTime& dt);

/// Calendar date of a serial (its whole days; negative serials count back from 1899 as the suite does:
/// the fraction of a negative serial is still a time after midnight of the day given by its integer part).
QDate TDateTimeToQDate(TDateTime t);

/// Date and time of a serial, local time.
QDateTime TDateTimeToQDateTime(TDateTime t);

/// The whole-day part of a serial, as the suite compares dates; 0 for a serial beyond any day an int
/// can count (or not a number).
inline int DiaDe(TDateTime t) {
    return t > -2147483649.0 && t < 2147483648.0 ? int(t) : 0;
}

/// Builds a serial from year, month and day; an impossible date gives 0.
inline TDateTime EncodeDate(int anno, int mes, int dia) {
    return QDateToTDateTime(QDate(anno, mes, dia));
}

} // namespace nod
