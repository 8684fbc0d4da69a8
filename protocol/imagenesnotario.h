#pragma once
// The notary's images that documents print: the advertisement banner, the seal and the seal of copies
// (kept per office in `CarpetaImagenes`), and the signature, the flourish and the signed seal (kept on
// each workstation's own disk, in the fixed folder "C:\WORDZEB\IMAGENES\"). The flourish alone is a JPEG.
//
// The notary is given as text, as the suite's templates pass it: trimmed, and "1" when it is empty or
// not a number other than 0. The result is the file's full path as the suite writes it; the file itself
// is not looked at (`RutaEnDisco` gives the real file).

#include "nod_core_export.h"

#include <QString>

namespace nod NOD_CORE_EXPORT {

/// `CarpetaImagenes`\PUBLIn.PNG: FicheroPubli("2") ends "\PUBLI2.PNG".
QString FicheroPubli(const QString& notario);
/// `CarpetaImagenes`\SELLOn.PNG: FicheroSello("") and FicheroSello("0") end "\SELLO1.PNG",
/// FicheroSello(" 2 ") ends "\SELLO2.PNG".
QString FicheroSello(const QString& notario);
/// `CarpetaImagenes`\SELLOnCOP.PNG, the seal printed on copies.
QString FicheroSelloCopNotario(const QString& notario);
/// "C:\WORDZEB\IMAGENES\FIRMAn.PNG".
QString FicheroFirma(const QString& notario);
/// "C:\WORDZEB\IMAGENES\RUBRICAn.JPG".
QString FicheroRubrica(const QString& notario);
/// "C:\WORDZEB\IMAGENES\SELLO_FIRMAn.PNG".
QString FicheroSelloFirma(const QString& notario);

} // namespace nod
