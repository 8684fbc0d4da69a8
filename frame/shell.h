#pragma once
// Opening a web page or a "mailto:" link with the desktop's default program. Behind a seam so that tests
// record what would have been opened instead of starting a browser.

#include "nod_widgets_export.h"

#include <QUrl>
#include <functional>

namespace nod NOD_WIDGETS_EXPORT {

/// Opens `url` with the desktop's default program; false when nothing could open it.
bool AbreEnShell(const QUrl& url);

/// Replaces the opener (nullptr function: back to the desktop's); returns the previous one.
using AbridorShell = std::function<bool(const QUrl&)>;
AbridorShell FijaAbridorShell(AbridorShell abridor);

} // namespace nod
