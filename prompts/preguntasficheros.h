#pragma once
// Prompt routines that use other dialogs than the data prompt: a file to open and a password.

#include "nod_widgets_export.h"

#include <QString>

namespace nod NOD_WIDGETS_EXPORT {

/// Opens a file-open dialog titled `titulo` (the dialog's own title when empty) on the folder `carpeta`,
/// or on the office's "C:\MODELOS" when `carpeta` is empty (a Windows folder "C:\..." is taken under the
/// configured drive root, as every fixed Windows location of the suite). Filters "Plantillas de Word
/// (*.dot)", "Documentos de Word (*.doc) " and "Todos los archivos (*.*)"; a name typed without extension
/// gets ".doc". `fichero` is proposed when it is not empty; on accept it becomes the chosen file's path.
bool PreguntaFichero(const QString& titulo, QString& fichero, const QString& carpeta);

/// Asks for one of the suite's passwords with the configuration's password dialog (companion/pideclave.h):
/// caption `titulo`, prompt `pregunta`; true exactly when the clerk accepted having typed `clave`.
bool PreguntaClave(const QString& titulo, const QString& pregunta, const QString& clave);

} // namespace nod
