#include "prompts/borradoapuntes.h"

#include "companion/config.h"
#include "companion/fechas.h"
#include "companion/hoy.h"
#include "companion/mensajes.h"

#include <algorithm>

namespace nod {

namespace {

const QString kTitulo = QStringLiteral("Confirmación de borrado de apuntes");

// Each question in its box: a warning line and the question under it, or the question alone.
bool sigue(const QString& aviso, const QString& pregunta) {
    if (pregunta.isEmpty()) return NoSi(aviso, kTitulo);
    return Mensaje_NoSi(pregunta, aviso, kTitulo) == 1;
}

} // namespace

TDateTime CierreTrimestre(TDateTime fecha) {
    const QDate d = TDateTimeToQDate(fecha);
    if (!d.isValid() || fecha == 0) return 0;
    // Quarters start on 01/01, 01/04, 01/07 and 01/10; the next one's first day follows the last day.
    const int primerMes = (d.month() - 1) / 3 * 3 + 1;
    const QDate siguiente = QDate(d.year(), primerMes, 1).addMonths(3);
    const int dias = std::max(Config.GetnDiasCierreTrimestre(), 1);
    return QDateToTDateTime(siguiente.addDays(qint64(dias) - 1));
}

bool ConfirmaBorradoApuntes(QObject*, TDateTime fecha) {
    const qint64 hoy = DiaDe(Date());
    const qint64 dia = DiaDe(fecha);
    bool seguir = true;
    if (hoy - dia > 3)
        seguir = sigue(QStringLiteral("Existen apuntes contables con más de 3 días de antigüedad"),
                       QStringLiteral("¿Desea continuar con el proceso?"));
    const TDateTime cierre = CierreTrimestre(fecha);
    if (seguir && cierre != 0 && hoy >= DiaDe(cierre))
        seguir = sigue(QStringLiteral("Los apuntes seleccionados son de un trimestre ya cerrado"), {});
    if (seguir && Ano(fecha) < Ano(Date()))
        seguir = sigue(QStringLiteral("Los apuntes son de un año anterior"),
                       QStringLiteral("¿Está totalmente seguro de que desea borrarlos?"));
    if (seguir) seguir = sigue(QStringLiteral("¿Está seguro de que desea borrarlos?"), {});
    if (!seguir) Mensaje_Info(QStringLiteral("Proceso cancelado."), QStringLiteral("Atención"));
    return seguir;
}

} // namespace nod
