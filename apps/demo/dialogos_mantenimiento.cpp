// The maintenance family in the demo: the client-code revision (its form, and its list over the office)
// and the closing of the suite's programs on a scene of its own.
#include "apps/demo/catalogo.h"
#include "companion/config.h"
#include "companion/hoy.h"
#include "maintenance/clasecierranodrims.h"
#include "maintenance/escuchacierre.h"
#include "maintenance/listarevisioncodclienteqr.h"
#include "maintenance/seleccionmodorevisioncodcliente.h"
#include "tables/tablas.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTime>

namespace nod::demo {

namespace {

QString seleccionModoRevision(QWidget* owner) {
    return SeleccionModoRevisionCodCliente(owner) ? QStringLiteral("revisión hecha")
                                                  : QStringLiteral("cancelado");
}

QString listaRevision(QWidget* owner) {
    TRevisionCodCliente revision;
    if (!revision.MuestraCodClienteIncorrectoEnTodasTablas()) return QStringLiteral("sin tabla de clientes");
    TQRListaRevisionCodCliente(revision.Mensajes()).Preview(owner);
    return QStringLiteral("%1 líneas").arg(revision.Mensajes().size());
}

// Three other workstations in a connection table of a scene of its own (the office's table is left alone):
// a program on 127.0.0.1 that leaves when told, nobody on 127.0.0.2, and a row of yesterday.
QString cierraNodrims(QWidget* owner) {
    QTemporaryDir escena;
    TEscuchaCierre programa;
    if (!escena.isValid() || !programa.Escucha(0, QStringLiteral("127.0.0.1")))
        return QStringLiteral("sin escena");
    QObject::connect(&programa, &TEscuchaCierre::CierrePedido, [] {
        auto tb =
            CreaTablaSinExcepcion(QStringLiteral("DB"), QStringLiteral("CONEXION"), QStringLiteral("EQUIPO"));
        if (tb && TBBusca(*tb, {{QStringLiteral("EQUIPO"), QStringLiteral("127.0.0.1")}})) TBDelete(*tb);
    });
    QDir(escena.path()).mkpath(QStringLiteral("CONFIG"));
    QDir(escena.path()).mkpath(QStringLiteral("DATOS"));
    QFile ini(escena.filePath(QStringLiteral("CONFIG/CONFIG.INI")));
    if (!ini.open(QIODevice::WriteOnly)) return QStringLiteral("sin escena");
    ini.write(QStringLiteral("[ALIAS]\nDB=DATOS\n[ACTUALIZACION]\nPuerto=%1\nTiempoEspera=3\nPausaMs=600\n"
                             "EsperaConexionMs=1500\n")
                  .arg(programa.Puerto())
                  .toLatin1());
    ini.close();

    const TConfig anterior = Config;
    Config.Carga(escena.path());
    const TDateTime ahora = Now();
    const QString hora = QTime::currentTime().toString(QStringLiteral("hh:mm:ss"));
    if (auto tb = CreaTablaSinExcepcion(QStringLiteral("DB"), QStringLiteral("CONEXION"), {}, true)) {
        for (const auto& [equipo, fecha] :
             {std::pair{QStringLiteral("127.0.0.1"), ahora}, std::pair{QStringLiteral("127.0.0.2"), ahora},
              std::pair{QStringLiteral("127.0.0.3"), ahora - 1}}) {
            tb->Append();
            tb->SetString(QStringLiteral("EQUIPO"), equipo);
            tb->SetDateTime(QStringLiteral("FECHA"), fecha);
            tb->SetString(QStringLiteral("HORA"), hora);
            tb->Post();
        }
    }
    const bool cerrados = NodrimsCerrados(owner, 1);
    Config = anterior;
    return cerrados ? QStringLiteral("true: nadie más tiene Nodrim abierto") : QStringLiteral("false");
}

} // namespace

void RegistraDialogosMantenimiento(CatalogoDemo& c) {
    c.agrega("Mantenimiento", "seleccion_modo_revision",
             "TFSeleccionModoRevisionCodCliente: revisión de códigos de cliente", seleccionModoRevision);
    c.agrega("Mantenimiento", "lista_revision",
             "TQRListaRevisionCodCliente: códigos de clientes erróneos en todas las tablas", listaRevision);
    c.agrega("Mantenimiento", "cierra_nodrims", "NodrimsCerrados: cerrar Nodrim en los demás puestos",
             cierraNodrims);
}

} // namespace nod::demo
