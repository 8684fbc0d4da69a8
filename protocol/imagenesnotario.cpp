#include "protocol/imagenesnotario.h"

#include "companion/config.h"
#include "companion/rficheros.h"
#include "companion/rnumcad.h"

namespace nod {

namespace {

// Signature images stay on the workstation's own disk on purpose, whatever the office configures.
constexpr char16_t kCarpetaFirmas[] = u"C:\\WORDZEB\\IMAGENES\\";

QString numeroDeNotario(const QString& notario) {
    const QString n = notario.trimmed();
    return n.isEmpty() || Cad_Int(n) == 0 ? QStringLiteral("1") : n;
}

QString imagen(const QString& carpeta, const char* nombre, const QString& notario, const char* cola) {
    return SlashSep(carpeta, QLatin1String(nombre) + numeroDeNotario(notario) + QLatin1String(cola));
}

} // namespace

QString FicheroPubli(const QString& notario) {
    return imagen(Config.GetCarpetaImagenes(), "PUBLI", notario, ".PNG");
}

QString FicheroSello(const QString& notario) {
    return imagen(Config.GetCarpetaImagenes(), "SELLO", notario, ".PNG");
}

QString FicheroSelloCopNotario(const QString& notario) {
    return imagen(Config.GetCarpetaImagenes(), "SELLO", notario, "COP.PNG");
}

QString FicheroFirma(const QString& notario) {
    return imagen(QString::fromUtf16(kCarpetaFirmas), "FIRMA", notario, ".PNG");
}

QString FicheroRubrica(const QString& notario) {
    return imagen(QString::fromUtf16(kCarpetaFirmas), "RUBRICA", notario, ".JPG");
}

QString FicheroSelloFirma(const QString& notario) {
    return imagen(QString::fromUtf16(kCarpetaFirmas), "SELLO_FIRMA", notario, ".PNG");
}

} // namespace nod
