// Opening a table (by alias or path, through the shared image of its file), the cursor and the field reads.
#include "tables/tablas.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "tables/dbfescritura.h"
#include "tables/tabla_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <mutex>

namespace nod {

namespace {

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
namespace {

// Where a table named by alias and file lies, as worked out from the configuration: the folder of the
// alias and the path with the name as given. Routines name the same few tables on every call, so it is
// kept for as long as the configuration is the one it came from (`TConfig::Generacion`); the file
// itself is still looked at on every open.
struct RutaDeTabla {
    quint64 generacion = 0;
    QString carpeta;
    QString directa;
    QByteArray nativa;
};

RutaDeTabla rutaDeTabla(const QString& alias, const QString& fichero) {
    static std::mutex mutex;
    static QHash<std::pair<QString, QString>, RutaDeTabla> rutas;
    const quint64 generacion = Config.Generacion();
    const std::pair clave(alias, fichero);
    {
        std::lock_guard lock(mutex);
        const auto it = rutas.constFind(clave);
        if (it != rutas.cend() && it->generacion == generacion) return *it;
    }
    RutaDeTabla r;
    r.generacion = generacion;
    r.carpeta = Config.CarpetaAlias(alias);
    if (r.carpeta.isEmpty())
        throw ErrorTabla(QStringLiteral("El alias %1 no está configurado (tabla %2)").arg(alias, fichero));
    r.directa = rutaDirecta(r.carpeta, fichero);
    r.nativa = QFile::encodeName(r.directa);
    std::lock_guard lock(mutex);
    if (rutas.size() >= 256) rutas.clear(); // names built on the fly would otherwise pile up
    rutas.insert(clave, r);
    return r;
}

} // namespace

std::unique_ptr<TTabla> CreaTabla(const QString& alias, const QString& fichero, const QString& indice) {
    const RutaDeTabla r = rutaDeTabla(alias, fichero);
    // The name as given first: one stat() when the table is warm; the folder is listed only when the file
    // has another case on disk, or is missing.
    if (auto datos = DatosDbf::CargaSiExiste(r.directa, r.nativa))
        return TTabla::Abre(r.directa, std::move(datos), indice);
    const QString ruta = resuelveFichero(r.carpeta, fichero);
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
void CreaFicheroDbf(const QString& ruta, const QList<TCampoDbf>& campos) {
    CreaDbf(ruta, campos);
}

void OlvidaTablasCargadas() {
    DatosDbf::OlvidaTodo();
}

} // namespace nod
