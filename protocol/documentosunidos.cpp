#include "protocol/documentosunidos.h"

#include "companion/config.h"
#include "companion/mensajes.h"
#include "companion/rficheros.h"
#include "companion/rnumcad.h"
#include "protocol/nombresdocumentos.h"

#include <QFile>

namespace nod {

namespace {

// The running number a name of the general folder holds: "0007.JPG" holds 7, "12.jpeg" 12, others 0.
// A 32-bit number, as the suite reads it, so that the count upwards cannot overflow.
int numeroDeImagen(QString nombre) {
    for (const QLatin1String extension : {QLatin1String(".jpeg"), QLatin1String(".jpg")})
        if (nombre.endsWith(extension, Qt::CaseInsensitive)) {
            nombre.chop(extension.size());
            break;
        }
    return Cad_Int(nombre);
}

} // namespace

void PasaImagenesADU(const QString& origen, const QString& moverA) {
    if (!ExisteCarpeta(origen)) {
        Mensaje_Error(QStringLiteral("No hay DU asociados al expediente"),
                      QStringLiteral("Sin DU asociados"));
        return;
    }
    const QString general = Config.GetCarpetaDocumentosUnidos();
    if (!ExisteCarpeta(general)) {
        Mensaje_Error(QStringLiteral("No se ha encontrado la carpeta ") + general,
                      QStringLiteral("Error consultar DU general"));
        return;
    }
    qint64 mayor = 0;
    for (const QString& nombre : ImagenesJpeg(general))
        mayor = qMax<qint64>(mayor, numeroDeImagen(nombre));

    const QStringList imagenes = ImagenesJpeg(origen);
    if (imagenes.isEmpty()) {
        Mensaje_Error(QStringLiteral("No se han encontrado imágenes en la carpeta ") + origen,
                      QStringLiteral("No hay DU asociados al expediente"));
        return;
    }
    const QString titulo = QStringLiteral("Incorporar Documentos Unidos");
    if (Mensaje_SiNo(QStringLiteral("¿Desea incorporar los documentos unidos asociados al protocolo?"),
                     QStringLiteral("Hay documentos unidos asociados al protocolo"), titulo) != 1)
        return;

    QStringList copias;
    qint64 siguiente = mayor + 1;
    for (const QString& imagen : imagenes) {
        const QString desde = SlashSep(origen, imagen);
        const QString hacia = SlashSep(general, NumeroEnCifras(siguiente++, 4) + QStringLiteral(".jpg"));
        if (!CopiaFichero(desde, hacia)) {
            for (const QString& copia : copias)
                QFile::remove(RutaEnDisco(copia));
            Mensaje_Error(QStringLiteral("No se ha podido copiar la imagen %1 en %2").arg(desde, hacia),
                          titulo);
            return;
        }
        copias << hacia;
    }
    if (!moverA.isEmpty()) MueveImagenesA(origen, moverA);
}

} // namespace nod
