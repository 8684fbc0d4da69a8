// Writing through an open table: the edit buffer, Post, deleting, packing and the lock on the last row.
#include "companion/config.h"
#include "companion/registro.h"
#include "tables/dbfescritura.h"
#include "tables/tabla_p.h"

#include <charconv>
#include <cmath>

namespace nod {

void TTabla::Append() {
    d->buffer = QByteArray(d->datos->longitudRegistro(), ' ');
    d->estado = Impl::Estado::Insertando;
    d->filaEditada = -1;
}

void TTabla::Edit() {
    if (d->pos < 0) d->falla(QStringLiteral("no hay registro que modificar"));
    d->buffer = QByteArray(d->registroActual(), d->datos->longitudRegistro());
    d->estado = Impl::Estado::Editando;
    d->filaEditada = d->fila(d->pos);
}

void TTabla::SetString(const QString& campo, const QString& valor) {
    const int c = d->campo(campo);
    const char tipo = d->datos->campos()[c].tipo;
    if (tipo == 'N' || tipo == 'F') {
        double v = 0;
        if (!LeeNumeroDbf(valor.toLatin1(), v))
            d->falla(QStringLiteral("\"%1\" no es un número para el campo %2").arg(valor, campo));
        return SetFloat(campo, v);
    }
    if (tipo == 'L') return SetBoolean(campo, valor.trimmed().toUpper().startsWith(QLatin1Char('T')));
    if (tipo == 'M') d->falla(QStringLiteral("el campo memo %1 no se puede escribir").arg(campo));
    qsizetype fallo = -1;
    const auto bytes = Codifica(valor, d->datos->paginaCodigos(), &fallo);
    if (!bytes)
        d->falla(QStringLiteral("el carácter \"%1\" de \"%2\" no existe en la página de códigos de la tabla")
                     .arg(valor.mid(fallo, 1), valor));
    d->ponTexto(campo, *bytes, false);
}

void TTabla::SetInteger(const QString& campo, qint64 valor) {
    SetFloat(campo, double(valor));
}

void TTabla::SetFloat(const QString& campo, double valor) {
    int c = 0;
    d->campoEnBuffer(campo, c);
    const TCampoDbf& def = d->datos->campos()[c];
    if (def.tipo == 'D') return SetDateTime(campo, valor);
    if (def.tipo == 'L') return SetBoolean(campo, valor != 0);
    if (def.tipo != 'N' && def.tipo != 'F') return SetString(campo, QString::number(valor, 'f', -1));
    if (!std::isfinite(valor)) d->falla(QStringLiteral("valor no finito para el campo %1").arg(campo));
    // A dBase numeric field is at most a few dozen characters wide: a figure that does not even fit this
    // buffer cannot fit the field, and is reported the same way.
    char texto[64];
    const auto r = std::to_chars(texto, texto + sizeof texto, valor, std::chars_format::fixed, def.decimales);
    if (r.ec != std::errc())
        d->falla(QStringLiteral("el valor %1 no cabe en el campo %2").arg(valor, 0, 'g', 17).arg(campo));
    d->ponTexto(campo, QByteArrayView(texto, r.ptr - texto), true);
}

void TTabla::SetBoolean(const QString& campo, bool valor) {
    int c = 0;
    char* p = d->campoEnBuffer(campo, c);
    if (d->datos->campos()[c].tipo != 'L')
        return SetString(campo, valor ? QStringLiteral("T") : QStringLiteral("F"));
    *p = valor ? 'T' : 'F';
}

void TTabla::SetDateTime(const QString& campo, TDateTime valor) {
    int c = 0;
    d->campoEnBuffer(campo, c);
    if (d->datos->campos()[c].tipo != 'D') d->falla(QStringLiteral("el campo %1 no es de fecha").arg(campo));
    if (valor == 0) return SetNulo(campo);
    const QDate f = TDateTimeToQDate(valor);
    if (!f.isValid() || f.year() < 1 || f.year() > 9999)
        d->falla(QStringLiteral("fecha imposible para el campo %1").arg(campo));
    d->ponTexto(campo, f.toString(QStringLiteral("yyyyMMdd")).toLatin1(), false);
}

void TTabla::SetNulo(const QString& campo) {
    d->ponTexto(campo, {}, false);
}

void TTabla::Post() {
    if (d->estado == Impl::Estado::Navegando) return;
    const int escrita = EscribeRegistroDbf(d->ruta, d->filaEditada, d->buffer, &d->bloqueoRetenido);
    d->estado = Impl::Estado::Navegando;
    d->buffer.clear();
    d->recarga(escrita);
}

void TTabla::Cancel() {
    d->estado = Impl::Estado::Navegando;
    d->buffer.clear();
}

bool TTabla::Editando() const {
    return d->estado != Impl::Estado::Navegando;
}

bool BloqueaUltimo(TTabla& tb) {
    auto& d = *tb.d;
    try {
        if (!d.bloqueoRetenido.activo())
            d.bloqueoRetenido = BloqueoFichero::Toma(d.ruta, true, EsperaBloqueoConfigurada());
        // What others appended before the lock was had must be seen: reload under the lock.
        d.recarga(-1);
        d.ultimo();
        return d.pos >= 0;
    } catch (const ErrorNod& e) {
        qCWarning(lcTablas).noquote() << e.mensaje();
        return false;
    }
}

void LiberaBloqueo(TTabla& tb) {
    tb.d->bloqueoRetenido.suelta();
}

bool TBDelete(TTabla& tb) {
    auto& d = *tb.d;
    if (d.pos < 0) return false;
    const int borrada = d.fila(d.pos);
    // The row to stand on afterwards: the next visible one, else the previous one.
    qsizetype siguiente = d.siguienteVisible(d.pos + 1);
    if (siguiente < 0) siguiente = d.anteriorVisible(d.pos - 1);
    const int destino = siguiente >= 0 ? d.fila(siguiente) : -1;
    BorraRegistroDbf(d.ruta, borrada, &d.bloqueoRetenido);
    d.recarga(destino);
    return true;
}

bool TBPackDbf(TTabla& tb) {
    auto& d = *tb.d;
    try {
        EmpaquetaDbf(d.ruta, &d.bloqueoRetenido);
        d.bloqueoRetenido.suelta(); // it locked the file that was replaced
        d.recarga(-1);
        return true;
    } catch (const ErrorNod& e) {
        qCWarning(lcTablas).noquote() << e.mensaje();
        return false;
    }
}
} // namespace nod
