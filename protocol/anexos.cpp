#include "protocol/anexos.h"

#include "companion/mensajes.h"
#include "companion/rficheros.h"
#include "frame/ficheros.h"

#include <QFile>
#include <QFileInfo>

namespace nod {

namespace {

bool existe(const QString& disco) {
    const QFileInfo fi(disco);
    return fi.exists() || fi.isSymLink();
}

// True when the file is gone, whether this call or someone else removed it.
bool borra(const QString& disco) {
    return QFile::remove(disco) || !existe(disco);
}

} // namespace

void DeleteAnexos(const QString& fichero) {
    const QString carpeta = ExtraePath(fichero);
    const QString nombre = fichero.mid(carpeta.size());
    if (carpeta.isEmpty() || nombre.isEmpty()) return;
    const qsizetype punto = nombre.lastIndexOf(u'.');
    const QString extension = punto < 0 ? QString() : nombre.mid(punto);
    QString raiz = nombre;
    if (!extension.isEmpty()) raiz.replace(extension, QString(), Qt::CaseInsensitive);
    const QString principio = raiz + QStringLiteral("_Anexo");

    // Names are compared as they are, not as a mask, so that a "*" or "?" in a document's name (which
    // this platform allows) cannot reach other files.
    for (const QString& anexo : FindFileNoRecursivo(carpeta, QStringLiteral("*"))) {
        if (anexo.size() < principio.size() + extension.size() ||
            !anexo.startsWith(principio, Qt::CaseInsensitive) ||
            !anexo.endsWith(extension, Qt::CaseInsensitive))
            continue;
        const QString ruta = carpeta + anexo;
        const QString disco = RutaEnDisco(ruta);
        while (!borra(disco)) {
            const int r =
                Mensaje_SiNo(QStringLiteral("Cierre el documento y pulse Si. Pulse No para cancelar."),
                             QStringLiteral("No se puede eliminar el fichero ") + ruta +
                                 QStringLiteral("\rasegúrese de que no está abierto"),
                             QStringLiteral("Eliminar anexos"));
            if (r != 1) break;
        }
    }
}

} // namespace nod
