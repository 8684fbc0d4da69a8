#include "companion/tablas.h"

#include "companion/catalogoindices.h"
#include "companion/config.h"
#include "companion/dbfclaves.h"
#include "companion/dbfdatos.h"
#include "companion/dbfescritura.h"
#include "companion/registro.h"
#include "companion/tablafiltro.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <charconv>
#include <cmath>

namespace nod {

namespace {

using ClavesPreparadas = std::vector<std::pair<int, ValorPreparado>>;

// The real file for a name in a folder: the name as given, else the one entry that matches it without
// regard to case (tables copied from Windows keep whatever case they had there).
QString conExtension(const QString& fichero) {
    return QFileInfo(fichero).suffix().isEmpty() ? fichero + QStringLiteral(".DBF") : fichero;
}

// The path of a table file in a folder (an absolute, clean path), with the name as given.
QString rutaDirecta(const QString& carpeta, const QString& fichero) {
    return QDir(carpeta).absoluteFilePath(conExtension(fichero));
}

QString resuelveFichero(const QString& carpeta, const QString& fichero) {
    const QString nombre = conExtension(fichero);
    const QDir dir(carpeta);
    const QString directa = dir.absoluteFilePath(nombre);
    if (QFileInfo::exists(directa)) return directa;
    for (const QString& entrada : dir.entryList(QDir::Files))
        if (entrada.compare(nombre, Qt::CaseInsensitive) == 0) return dir.absoluteFilePath(entrada);
    return directa;
}

} // namespace

struct TTabla::Impl {
    QString ruta;
    QString indice;
    std::shared_ptr<const DatosDbf> datos;
    const OrdenIndice* orden = nullptr;

    // Range: positions [lo, hi) of the order when its fields lead the tag, else a per-row test.
    bool hayRango = false;
    TClaves rangoDesde, rangoHasta;
    ClavesPreparadas desdePreparado, hastaPreparado;
    bool rangoPorPosicion = true;
    qsizetype lo = 0, hi = 0;

    QString textoFiltro;
    std::shared_ptr<const FiltroTabla> filtro;

    qsizetype pos = -1; // position in orden->filas; -1 when there is no current row
    bool eof = true, bof = true;

    enum class Estado { Navegando, Insertando, Editando } estado = Estado::Navegando;
    QByteArray buffer;
    int filaEditada = -1;
    BloqueoFichero bloqueoRetenido;

    [[noreturn]] void falla(const QString& motivo) const {
        throw ErrorTabla(QStringLiteral("Tabla %1: %2").arg(ruta, motivo));
    }

    int campo(const QString& nombre) const {
        const int c = datos->indiceCampo(nombre);
        if (c < 0) falla(QStringLiteral("no existe el campo %1").arg(nombre));
        return c;
    }

    ClavesPreparadas prepara(const TClaves& claves) const {
        ClavesPreparadas r;
        for (const auto& [nombre, valor] : claves) {
            const int c = campo(nombre);
            r.emplace_back(c, PreparaValor(*datos, c, valor));
        }
        return r;
    }

    int fila(qsizetype p) const { return int(orden->filas[size_t(p)]); }

    // Compares the row at position p with keys: the first differing key decides.
    int compara(qsizetype p, const ClavesPreparadas& claves, bool parcial) const {
        for (size_t k = 0; k < claves.size(); ++k) {
            const auto& [c, v] = claves[k];
            int r;
            if (k == 0 && !orden->claves.empty() && v.clase == ValorPreparado::Clase::Numero &&
                !orden->campos.empty() && orden->campos[0] == c) {
                const double x = orden->claves[size_t(p)];
                r = x < v.numero ? -1 : x > v.numero ? 1 : 0;
            } else {
                r = ComparaCampo(*datos, fila(p), c, v, parcial);
            }
            if (r != 0) return r;
        }
        return 0;
    }

    // The keys reordered as the leading fields of the tag, or empty when they are not those fields.
    ClavesPreparadas comoPrefijo(const ClavesPreparadas& claves) const {
        if (claves.empty() || claves.size() > orden->campos.size()) return {};
        ClavesPreparadas r;
        for (size_t i = 0; i < claves.size(); ++i) {
            const auto it = std::find_if(claves.begin(), claves.end(),
                                         [&](const auto& k) { return k.first == orden->campos[i]; });
            if (it == claves.end()) return {};
            r.push_back(*it);
        }
        return r;
    }

    qsizetype cota(qsizetype desde, qsizetype hasta, const ClavesPreparadas& claves, bool parcial,
                   bool superior) const {
        while (desde < hasta) {
            const qsizetype m = desde + (hasta - desde) / 2;
            const int c = compara(m, claves, parcial);
            if (c < 0 || (superior && c == 0))
                desde = m + 1;
            else
                hasta = m;
        }
        return desde;
    }

    bool dentroDeRango(qsizetype p) const {
        if (!hayRango || rangoPorPosicion) return true;
        return compara(p, desdePreparado, false) >= 0 && compara(p, hastaPreparado, false) <= 0;
    }

    bool visible(qsizetype p) const {
        return dentroDeRango(p) && (!filtro || filtro->cumple(*datos, fila(p)));
    }

    qsizetype siguienteVisible(qsizetype p) const {
        for (; p < hi; ++p)
            if (visible(p)) return p;
        return -1;
    }

    qsizetype anteriorVisible(qsizetype p) const {
        for (; p >= lo; --p)
            if (visible(p)) return p;
        return -1;
    }

    void aplicaRango() {
        lo = 0;
        hi = qsizetype(orden->filas.size());
        if (!hayRango) return;
        desdePreparado = prepara(rangoDesde);
        hastaPreparado = prepara(rangoHasta);
        const ClavesPreparadas d = comoPrefijo(desdePreparado), h = comoPrefijo(hastaPreparado);
        rangoPorPosicion = !d.empty() && d.size() == h.size();
        if (rangoPorPosicion) {
            lo = cota(0, hi, d, false, false);
            hi = std::max(lo, cota(lo, hi, h, false, true));
        }
    }

    void primero() {
        pos = siguienteVisible(lo);
        eof = bof = pos < 0;
    }

    void ultimo() {
        pos = anteriorVisible(hi - 1);
        eof = bof = pos < 0;
    }

    void usaIndice(const QString& tag) {
        indice = tag.trimmed();
        orden = indice.isEmpty() ? &datos->ordenFisico() : &datos->ordenDeEtiqueta(indice);
    }

    // After a write of this process: the new image, the same tag, range and filter, on record `registro`.
    void recarga(int registro) {
        datos = DatosDbf::Carga(ruta, &bloqueoRetenido);
        usaIndice(indice);
        filtro = textoFiltro.isEmpty() ? nullptr : datos->filtro(textoFiltro);
        aplicaRango();
        primero();
        for (qsizetype p = lo; p < hi && registro >= 0; ++p)
            if (fila(p) == registro && visible(p)) {
                pos = p;
                eof = bof = false;
                break;
            }
    }

    // The leading key field of the tag, the one TBBuscaClave searches.
    int campoPrincipal() const {
        if (orden->campos.empty()) falla(QStringLiteral("no está ordenada por ningún índice"));
        return orden->campos[0];
    }

    // Stands on the first visible row from position p on, while `igual` says the key still matches.
    template <typename Igual> bool posicionaDesde(qsizetype p, Igual igual) {
        for (; p < hi && igual(p); ++p)
            if (visible(p)) {
                pos = p;
                eof = bof = false;
                return true;
            }
        return false;
    }

    const char* registroActual() const { return pos >= 0 ? datos->registro(fila(pos)) : nullptr; }

    char* campoEnBuffer(const QString& nombre, int& c) {
        if (estado == Estado::Navegando)
            falla(QStringLiteral("se asigna el campo %1 sin Append ni Edit").arg(nombre));
        c = campo(nombre);
        return buffer.data() + datos->desplazamiento(c);
    }

    void ponTexto(const QString& nombre, QByteArrayView bytes, bool alineaDerecha) {
        int c = 0;
        char* p = campoEnBuffer(nombre, c);
        const int ancho = datos->campos()[c].longitud;
        if (bytes.size() > ancho)
            falla(QStringLiteral("\"%1\" no cabe en el campo %2 (%3 caracteres)")
                      .arg(QString::fromLatin1(bytes), nombre)
                      .arg(ancho));
        std::memset(p, ' ', size_t(ancho));
        if (bytes.isEmpty()) return; // a blank field (an empty view has no data pointer to copy from)
        std::memcpy(p + (alineaDerecha ? ancho - bytes.size() : 0), bytes.data(), size_t(bytes.size()));
    }
};

TTabla::TTabla(std::unique_ptr<Impl> impl)
    : d(std::move(impl)) {}
TTabla::~TTabla() = default;

std::unique_ptr<TTabla> TTabla::AbreRuta(const QString& ruta, const QString& indice) {
    const QString absoluta = QFileInfo(ruta).absoluteFilePath();
    return Abre(absoluta, DatosDbf::Carga(absoluta), indice);
}

std::unique_ptr<TTabla> TTabla::Abre(const QString& ruta, std::shared_ptr<const DatosDbf> datos,
                                     const QString& indice) {
    auto impl = std::make_unique<Impl>();
    impl->ruta = ruta;
    impl->datos = std::move(datos);
    impl->usaIndice(indice);
    impl->aplicaRango();
    impl->primero();
    return std::unique_ptr<TTabla>(new TTabla(std::move(impl)));
}

const QString& TTabla::Ruta() const {
    return d->ruta;
}
const QString& TTabla::Indice() const {
    return d->indice;
}
const QList<TCampoDbf>& TTabla::Campos() const {
    return d->datos->campos();
}
bool TTabla::TieneCampo(const QString& campo) const {
    return d->datos->indiceCampo(campo) >= 0;
}
int TTabla::IndiceCampo(const QString& campo) const {
    return d->datos->indiceCampo(campo);
}
CodePage TTabla::PaginaCodigos() const {
    return d->datos->paginaCodigos();
}

void TTabla::First() {
    d->primero();
}
void TTabla::Last() {
    d->ultimo();
}

void TTabla::Next() {
    d->bof = false;
    if (d->pos < 0) return;
    const qsizetype p = d->siguienteVisible(d->pos + 1);
    if (p < 0)
        d->eof = true;
    else
        d->pos = p;
}

void TTabla::Prior() {
    d->eof = false;
    if (d->pos < 0) return;
    const qsizetype p = d->anteriorVisible(d->pos - 1);
    if (p < 0)
        d->bof = true;
    else
        d->pos = p;
}

bool TTabla::Eof() const {
    return d->eof;
}
bool TTabla::Bof() const {
    return d->bof;
}

int TTabla::RecordCount() const {
    if (!d->filtro && d->rangoPorPosicion) return int(d->hi - d->lo);
    int n = 0;
    for (qsizetype p = d->lo; p < d->hi; ++p)
        n += d->visible(p) ? 1 : 0;
    return n;
}

int TTabla::RecNo() const {
    return d->pos >= 0 ? d->fila(d->pos) + 1 : 0;
}

QString TTabla::AsString(const QString& campo) const {
    return AsString(d->campo(campo));
}
int TTabla::AsInteger(const QString& campo) const {
    return int(AsLargeInt(d->campo(campo)));
}
qint64 TTabla::AsLargeInt(const QString& campo) const {
    return AsLargeInt(d->campo(campo));
}
double TTabla::AsFloat(const QString& campo) const {
    return AsFloat(d->campo(campo));
}
bool TTabla::AsBoolean(const QString& campo) const {
    return AsBoolean(d->campo(campo));
}
TDateTime TTabla::AsDateTime(const QString& campo) const {
    return AsDateTime(d->campo(campo));
}

bool TTabla::EsNulo(const QString& campo) const {
    const int c = d->campo(campo);
    return d->pos < 0 || d->datos->blanco(d->fila(d->pos), c);
}

QString TTabla::AsString(int campo) const {
    if (d->pos < 0) return {};
    const DatosDbf& datos = *d->datos;
    const int f = d->fila(d->pos);
    switch (datos.campos()[campo].tipo) {
    case 'L':
        return datos.logico(f, campo) ? QStringLiteral("True") : QStringLiteral("False");
    case 'D': {
        const TDateTime t = datos.fecha(f, campo);
        return t == 0 ? QString() : TDateTimeToQDate(t).toString(QStringLiteral("dd/MM/yyyy"));
    }
    default:
        return datos.texto(f, campo);
    }
}

qint64 TTabla::AsLargeInt(int campo) const {
    return d->pos < 0 ? 0 : d->datos->entero(d->fila(d->pos), campo);
}
double TTabla::AsFloat(int campo) const {
    return d->pos < 0 ? 0 : d->datos->numero(d->fila(d->pos), campo);
}
bool TTabla::AsBoolean(int campo) const {
    return d->pos >= 0 && d->datos->logico(d->fila(d->pos), campo);
}
TDateTime TTabla::AsDateTime(int campo) const {
    return d->pos < 0 ? 0 : d->datos->fecha(d->fila(d->pos), campo);
}

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

std::unique_ptr<TTabla> CreaTabla(const QString& alias, const QString& fichero, const QString& indice) {
    const QString carpeta = Config.CarpetaAlias(alias);
    if (carpeta.isEmpty())
        throw ErrorTabla(QStringLiteral("El alias %1 no está configurado (tabla %2)").arg(alias, fichero));
    // The name as given first: one stat() when the table is warm; the folder is listed only when the file
    // has another case on disk, or is missing.
    const QString directa = rutaDirecta(carpeta, fichero);
    if (auto datos = DatosDbf::CargaSiExiste(directa)) return TTabla::Abre(directa, std::move(datos), indice);
    const QString ruta = resuelveFichero(carpeta, fichero);
    return TTabla::Abre(ruta, DatosDbf::Carga(ruta), indice);
}

std::unique_ptr<TTabla> CreaTablaSinExcepcion(const QString& alias, const QString& fichero,
                                              const QString& indice, bool creaSiFalta) {
    try {
        if (creaSiFalta) {
            const QString carpeta = Config.CarpetaAlias(alias);
            const auto estructura = EstructuraTabla(fichero);
            if (!carpeta.isEmpty() && estructura) {
                const QString ruta = resuelveFichero(carpeta, fichero);
                if (!QFileInfo::exists(ruta)) {
                    QDir().mkpath(carpeta);
                    CreaDbf(ruta, *estructura);
                }
            }
        }
        return CreaTabla(alias, fichero, indice);
    } catch (const ErrorNod& e) {
        qCWarning(lcTablas).noquote() << e.mensaje();
        return nullptr;
    }
}

bool TBBusca(TTabla& tb, const TClaves& claves, bool exacta) {
    auto& d = *tb.d;
    const ClavesPreparadas preparadas = d.prepara(claves);
    const ClavesPreparadas prefijo = d.comoPrefijo(preparadas);
    if (!prefijo.empty()) {
        for (qsizetype p = d.cota(d.lo, d.hi, prefijo, !exacta, false);
             p < d.hi && d.compara(p, prefijo, !exacta) == 0; ++p)
            if (d.visible(p)) {
                d.pos = p;
                d.eof = d.bof = false;
                return true;
            }
        return false;
    }
    for (qsizetype p = d.lo; p < d.hi; ++p)
        if (d.compara(p, preparadas, !exacta) == 0 && d.visible(p)) {
            d.pos = p;
            d.eof = d.bof = false;
            return true;
        }
    return false;
}

bool TBBuscaClave(TTabla& tb, double valor) {
    auto& d = *tb.d;
    const int c = d.campoPrincipal();
    const std::vector<double>& claves = d.orden->claves;
    if (claves.empty()) return TBBusca(tb, {{d.datos->campos()[c].nombre, valor}}); // a character field
    if (!std::isfinite(valor)) return false;
    const auto desde = std::lower_bound(claves.begin() + d.lo, claves.begin() + d.hi, valor);
    return d.posicionaDesde(desde - claves.begin(), [&](qsizetype p) { return claves[size_t(p)] == valor; });
}

bool TBBuscaClave(TTabla& tb, QStringView valor) {
    auto& d = *tb.d;
    const int c = d.campoPrincipal();
    const TCampoDbf& campo = d.datos->campos()[c];
    while (!valor.isEmpty() && valor.back() == QLatin1Char(' '))
        valor.chop(1);
    // Plain ASCII reads the same in every page the office meets: it is copied, not encoded. Anything else,
    // and fields that are neither text nor numbers, take the general path.
    char ascii[256];
    const bool simple = (campo.tipo == 'C' || campo.tipo == 'N' || campo.tipo == 'F') &&
                        valor.size() <= qsizetype(sizeof ascii) &&
                        std::all_of(valor.begin(), valor.end(),
                                    [](QChar ch) { return ch.unicode() >= 0x20 && ch.unicode() < 0x7F; });
    if (!simple) return TBBusca(tb, {{campo.nombre, valor.toString()}});
    for (qsizetype i = 0; i < valor.size(); ++i)
        ascii[i] = char(valor[i].unicode());
    const QByteArrayView texto(ascii, valor.size());
    if (campo.tipo != 'C') {
        double numero = 0;
        return LeeNumeroDbf(texto, numero) && TBBuscaClave(tb, numero);
    }
    const auto compara = [&](qsizetype p) {
        return ComparaBytesDbf(d.datos->crudo(d.fila(p), c), texto, false);
    };
    qsizetype lo = d.lo, hi = d.hi;
    while (lo < hi) {
        const qsizetype m = lo + (hi - lo) / 2;
        if (compara(m) < 0)
            lo = m + 1;
        else
            hi = m;
    }
    return d.posicionaDesde(lo, [&](qsizetype p) { return compara(p) == 0; });
}

void TBRango(TTabla& tb, const TClaves& desde, const TClaves& hasta) {
    auto& d = *tb.d;
    d.hayRango = true;
    d.rangoDesde = desde;
    d.rangoHasta = hasta;
    d.aplicaRango();
    d.primero();
}

void TBQuitaRango(TTabla& tb) {
    auto& d = *tb.d;
    d.hayRango = false;
    d.rangoPorPosicion = true;
    d.aplicaRango();
    d.primero();
}

void TBIndexa(TTabla& tb, const QString& indice) {
    auto& d = *tb.d;
    d.usaIndice(indice);
    d.aplicaRango();
    d.primero();
}

void TBFiltra(TTabla& tb, const QString& filtro) {
    auto& d = *tb.d;
    d.filtro = filtro.trimmed().isEmpty() ? nullptr : d.datos->filtro(filtro);
    d.textoFiltro = d.filtro ? filtro : QString();
    d.primero();
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

void CreaFicheroDbf(const QString& ruta, const QList<TCampoDbf>& campos) {
    CreaDbf(ruta, campos);
}

void OlvidaTablasCargadas() {
    DatosDbf::OlvidaTodo();
}

} // namespace nod
