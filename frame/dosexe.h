#pragma once
// Running a console (DOS) program through a program-information image, as the suite has always done.

#include "nod_core_export.h"

#include <QByteArray>
#include <QString>

namespace nod NOD_CORE_EXPORT {

/// Size of the program-information image.
constexpr int kTamanoPif = 967;

/// The office's standard image before any field is filled: a basic section followed by the extension
/// sections "MICROSOFT PIFEX", "WINDOWS 386 3.0" and "WINDOWS VMM 4.0".
const QByteArray& PlantillaPif();

/// The image for one call: the template with the title (offset 2, blank-padded to 30), the program
/// (36), its folder with the final backslash (101) and the parameters (165 and 453), each cut at 63
/// characters and followed by a NUL. Empty when a text has characters Windows-1252 cannot hold.
QByteArray ImagenPif(const QString& programa, const QString& parametros, const QString& titulo);

/// Writes "UnPif.pif" beside the running program and runs the program it describes, keeping the
/// application's event loop alive once a second while it waits; then beeps, deletes the image and
/// returns true. False, leaving whatever was written, when the image cannot be written whole.
/// Off Windows the program itself is started with its parameters in its folder.
bool DOSExe(const QString& programa, const QString& parametros, const QString& titulo);

/// Where "UnPif.pif" is written (default: the running program's folder). Tests point it elsewhere.
void FijaCarpetaPif(const QString& carpeta);
QString CarpetaPif();

/// The sound made when the program ends (default: the terminal bell on standard error); programs with
/// a screen install the desktop's beep.
void FijaPitido(void (*pitido)());

} // namespace nod
