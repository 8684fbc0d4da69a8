#include "prompts/preguntasficheros.h"

#include "companion/config.h"
#include "companion/dialogo.h"
#include "companion/modal.h"
#include "companion/pideclave.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace nod {

namespace {

// A folder as the suite names it: "C:\MODELOS" lies under the configured drive root, a real path is
// taken as it is.
QString carpetaReal(const QString& carpeta) {
    const bool windows = carpeta.size() >= 2 && carpeta[1] == u':' && carpeta[0].isLetter();
    return windows ? Config.RutaUnidadC(carpeta) : carpeta;
}

} // namespace

bool PreguntaFichero(const QString& titulo, QString& fichero, const QString& carpeta) {
    // A folder that does not exist opens its nearest existing parent (never its name as a file name).
    QString inicial = QFileInfo(carpetaReal(carpeta.isEmpty() ? QStringLiteral("C:\\MODELOS") : carpeta))
                          .absoluteFilePath();
    while (!QFileInfo(inicial).isDir()) {
        const QString padre = QFileInfo(inicial).absolutePath();
        if (padre == inicial) break;
        inicial = padre;
    }
    QFileDialog d(nullptr, titulo);
    d.setDirectory(inicial);
    d.setObjectName(QStringLiteral("ODFichero"));
    // The suite's own dialog on every platform, so that scripts and tests answer it like the others.
    d.setOption(QFileDialog::DontUseNativeDialog);
    d.setAcceptMode(QFileDialog::AcceptOpen);
    d.setFileMode(QFileDialog::ExistingFile);
    d.setNameFilters({QStringLiteral("Plantillas de Word (*.dot)"),
                      QStringLiteral("Documentos de Word (*.doc) "),
                      QStringLiteral("Todos los archivos (*.*)")});
    d.setDefaultSuffix(QStringLiteral("doc"));
    d.setLabelText(QFileDialog::LookIn, QStringLiteral("Buscar en:"));
    d.setLabelText(QFileDialog::FileName, QStringLiteral("&Nombre:"));
    d.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo:"));
    d.setLabelText(QFileDialog::Accept, QStringLiteral("&Abrir"));
    d.setLabelText(QFileDialog::Reject, QStringLiteral("&Cancelar"));
    if (!fichero.isEmpty()) d.selectFile(fichero);
    // Enter opens the chosen file, as in every file dialog; Escape gives the suite's cancel result.
    AplicaConvencionesDialogo(&d, {.enter = ReglaEnter::BotonPorDefecto});
    if (EjecutaModal(d) != QDialog::Accepted) return false;
    const QStringList elegidos = d.selectedFiles();
    if (elegidos.isEmpty()) return false;
    fichero = QDir::toNativeSeparators(elegidos.front());
    return true;
}

bool PreguntaClave(const QString& titulo, const QString& pregunta, const QString& clave) {
    return PideClave(titulo, pregunta, clave);
}

} // namespace nod
