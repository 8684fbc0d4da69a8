#pragma once
// TFVersionNod: the version box (unit Versionnod): the development environment, the build date, the
// program's file name, and one grid row per table of the suite's database alias (`GetAliasNodrim`).

#include "nod_widgets_export.h"

#include <QDialog>
#include <QStringList>

class QLabel;
class QTableWidget;

namespace nod NOD_WIDGETS_EXPORT {

/// Build date shown by the version box.
inline constexpr const char* kFechaCompilacion = "21/04/22";

/// The table files (.dbf, any case) in the folder of a database alias, sorted by name. Empty when the
/// alias has no folder or the folder cannot be read.
QStringList TablasDelAlias(const QString& alias);

class TFVersionNod : public QDialog {
    Q_OBJECT
public:
    /// Labels `LEntorno`, `LFecha`, `LPrograma`, the grid `SGTablas` (one row per table) and the button
    /// `BBAceptar`; when the alias has no folder, `LAviso` says so. `BBAceptar` gives 1; Escape and the
    /// close button 2. Enter moves the focus to the next control.
    explicit TFVersionNod(QWidget* owner = nullptr);

private:
    QTableWidget* m_tablas;
};

} // namespace nod
