#pragma once
// Where nodrim finds its helpers (the form layer nodrim-formularios, the PDF module nodrim_pdf.so):
// beside the program in a build folder, in the installed helpers' folder (libexec/nodrutinas) once
// installed, staged or unpacked from the packages.

#include <QString>

namespace nod::lote {

QString RutaAuxiliar(const QString& fichero);

} // namespace nod::lote
