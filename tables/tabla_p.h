#pragma once
// The state of an open table handle, shared by the files that implement the table API (opening and
// reading, searching and ranges, editing and packing). Not part of the installed interface.

#include "tables/catalogoindices.h"
#include "tables/dbfclaves.h"
#include "tables/dbfdatos.h"
#include "tables/tablafiltro.h"
#include "tables/tablas.h"

#include <algorithm>
#include <vector>

namespace nod {

using ClavesPreparadas = std::vector<std::pair<int, ValorPreparado>>;

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
        r.reserve(size_t(claves.size()));
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

    // Puts the keys in the order of the tag's fields when they are its leading fields, and says whether
    // they are; otherwise they are left as they were.
    bool ordenaComoPrefijo(ClavesPreparadas& claves) const {
        if (claves.empty() || claves.size() > orden->campos.size()) return false;
        const auto busca = [&](size_t desde, size_t i) {
            return std::find_if(claves.begin() + qsizetype(desde), claves.end(),
                                [&](const auto& k) { return k.first == orden->campos[i]; });
        };
        for (size_t i = 0; i < claves.size(); ++i)
            if (busca(0, i) == claves.end()) return false;
        for (size_t i = 0; i < claves.size(); ++i)
            std::iter_swap(claves.begin() + qsizetype(i), busca(i, i));
        return true;
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
        ClavesPreparadas d = desdePreparado, h = hastaPreparado;
        rangoPorPosicion = ordenaComoPrefijo(d) && ordenaComoPrefijo(h) && d.size() == h.size();
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

} // namespace nod
