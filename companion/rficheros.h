#pragma once
// Files and folders as the maker's generic library (unit Rficheros) offers them to the suite.
//
// Two forms of a path meet here. The suite writes its locations the Windows way, with "\" between the
// parts ("C:\WORDZEB\IMAGENES\SELLO1.PNG", "EXPEDIENTES\2024\"), and the routines that name a file or a
// folder return that form. Before a file is touched, `RutaEnDisco` turns it into a real path of this
// machine: "C:" is the drive root folder of the office (`UnidadC`), a relative location hangs from the
// office folder, and "\" is always a separator. Every routine below that touches the disk accepts
// either form.

#include "nod_core_export.h"

#include <QString>
#include <QStringList>

namespace nod NOD_CORE_EXPORT {

/// Joins two parts of a suite path with exactly one "\" between them, whatever ends the first part or
/// starts the second: SlashSep("C:\DATOS\", "\2024") == "C:\DATOS\2024". An empty first part gives the
/// second alone, an empty second part the first with one final "\": SlashSep("C:\DATOS", "") == "C:\DATOS\".
QString SlashSep(const QString& ruta, const QString& parte);

/// The real path on this machine of a suite path, without a final separator:
///   "C:\WORDZEB\IMAGENES\" (drive C, any case) -> <office>/<UnidadC>/WORDZEB/IMAGENES;
///   "EXPEDIENTES\2024" (relative) -> <office>/EXPEDIENTES/2024;
///   "/srv/nodrim\DATOS" (absolute on this machine) -> /srv/nodrim/DATOS.
/// Other drives and network names ("D:\...", "\\SERVIDOR\...") are real paths on Windows only; elsewhere
/// they cannot be reached and give an empty text, with a warning in the log. An empty path gives "".
QString RutaEnDisco(const QString& ruta);

/// Whether a suite path names an existing folder (or file) on this machine.
bool ExisteCarpeta(const QString& ruta);
bool ExisteFichero(const QString& ruta);

/// Creates the folder with every missing parent; true when it exists afterwards. A folder the file
/// system refuses (a name too long, a read-only parent) gives false and a warning in the log, never a
/// message: the caller meets the failure when it writes the file.
bool CreaCarpeta(const QString& ruta);
/// The same for a folder given by its real path on this machine (a database alias's folder, or what
/// `RutaEnDisco` gave), which is not read as a suite path again.
bool CreaCarpetaEnDisco(const QString& rutaEnDisco);

/// The names of the files (not folders) directly inside `carpeta` whose names match `mascara`, in name
/// order without regard to case. The mask takes the Windows wildcards "*" (any text) and "?" (one
/// character) and, as on Windows, ignores case: FindFileNoRecursivo(dir, "*.jpg") lists "0007.JPG".
/// Hidden and system files are listed too. A missing folder gives an empty list.
QStringList FindFileNoRecursivo(const QString& carpeta, const QString& mascara);

/// Copies a file; an existing destination is never overwritten. True when the copy was made; a failure
/// is logged with its reason.
bool CopiaFichero(const QString& origen, const QString& destino);

/// Moves every JPEG image (".jpg" or ".jpeg", any case) of the folder `origen` into the folder
/// `destino`, which is created when missing. An image whose name is already taken in `destino` stays
/// where it is (nothing is overwritten), with a warning in the log. Returns how many images moved.
int MueveImagenesA(const QString& origen, const QString& destino);

/// The names of the JPEG images directly inside `carpeta`: files ending ".jpg" or ".jpeg", any case
/// (the suite's scanners write "0007.JPG", cameras "foto.jpeg"), in the order of `FindFileNoRecursivo`.
QStringList ImagenesJpeg(const QString& carpeta);

} // namespace nod
