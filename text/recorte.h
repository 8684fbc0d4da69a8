#pragma once
// Trimming as the suite's routines trim: every character up to the blank (control characters too) goes
// from the ends, never a letter; Unicode spaces beyond the Western code page are kept.

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

QString Trim(const QString& s);
QString TrimLeft(const QString& s);
QString TrimRight(const QString& s);

} // namespace nod
