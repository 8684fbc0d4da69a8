#include "frame/unidades.h"

#include <QHash>

namespace nod {

namespace {
struct Contadores {
    int iniciada = 0;
    int finalizada = 0;
};
QHash<QString, Contadores>& contadores() {
    static QHash<QString, Contadores> c;
    return c;
}
} // namespace

const QStringList& UnidadesNodRutinas() {
    static const QStringList unidades =
        QStringLiteral(
            "Mensajenod Preguntadatos Calculaletranif Esperalistado Validareferenciacatastral Emaildm "
            "Listadosdm "
            "Datoscliente Listadoclientes Editoremail Mensajeactivosfinancieros Clasecierranodrims "
            "Preguntanumerofactura Rut Clacliraiz Entidadesfinancieras Listarevisioncodclienteqr Lugarfirma "
            "Rutshell "
            "Scngestorescanerdm Seleccionmodorevisioncodcliente Sustituto Calculametros Preguntazeb "
            "Servthread Nota "
            "Descarga Conversormoneda Responsabilidadhipotecaria Relojnod Controltecniconod Versionnod "
            "Masdatosfincasregistrales Impresiondbgridnodqr Confimpresiondbgridnod "
            "Exportacionimportaciondnis "
            "Formlistaencaja Preguntaimagen Preguntadatosmovilcorreo Seleccionapoder Listadoimagenes "
            "Clasificardocumentos")
            .split(QLatin1Char(' '));
    return unidades;
}

void IniciaUnidades() {
    for (const QString& u : UnidadesNodRutinas())
        ++contadores()[u].iniciada;
}

void FinalizaUnidades() {
    const QStringList& u = UnidadesNodRutinas();
    for (auto it = u.crbegin(); it != u.crend(); ++it)
        ++contadores()[*it].finalizada;
}

int VecesIniciada(const QString& unidad) {
    return contadores().value(unidad).iniciada;
}
int VecesFinalizada(const QString& unidad) {
    return contadores().value(unidad).finalizada;
}

} // namespace nod
