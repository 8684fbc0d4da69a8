#include "tables/dbfclaves.h"

#include "tables/catalogoindices.h"

#include <QDate>
#include <QDateTime>
#include <algorithm>
#include <cmath>
#include <cstring>

namespace nod {

namespace {

ValorPreparado numeroDe(const QVariant& valor, char tipo) {
    ValorPreparado v;
    switch (valor.typeId()) {
    case QMetaType::QDate:
        v.numero = QDateToTDateTime(valor.toDate());
        break;
    case QMetaType::QDateTime:
        v.numero = QDateTimeToTDateTime(valor.toDateTime());
        break;
    case QMetaType::Bool:
        v.numero = valor.toBool() ? 1 : 0;
        break;
    case QMetaType::QString: {
        const QString t = valor.toString().trimmed();
        const auto es = [&t](const char* palabra) {
            return t.compare(QLatin1String(palabra), Qt::CaseInsensitive) == 0;
        };
        if (tipo == 'L' && (es("T") || es("TRUE")))
            v.numero = 1;
        else if (tipo == 'L' && (es("F") || es("FALSE")))
            v.numero = 0;
        else if (!LeeNumeroDbf(t.toLatin1(), v.numero))
            return v; // a text that is no number matches no row
        break;
    }
    default: {
        bool ok = false;
        v.numero = valor.toDouble(&ok);
        if (!ok) return v;
    }
    }
    if (!std::isfinite(v.numero)) return v; // an infinite or NaN key equals no field
    v.clase = ValorPreparado::Clase::Numero;
    return v;
}

} // namespace

ValorPreparado PreparaValor(const DatosDbf& datos, int campo, const QVariant& valor) {
    const char tipo = datos.campos()[campo].tipo;
    if (CampoNumerico(tipo)) return numeroDe(valor, tipo);
    ValorPreparado v;
    // A text is read in place (searches pass texts far more often than anything else).
    const QString convertido = valor.typeId() == QMetaType::QString ? QString()
                               : valor.typeId() == QMetaType::Double
                                   ? QString::number(valor.toDouble(), 'f', -1)
                                   : valor.toString();
    QStringView texto = valor.typeId() == QMetaType::QString
                            ? QStringView(*static_cast<const QString*>(valor.constData()))
                            : convertido;
    while (!texto.isEmpty() && texto.back() == u' ')
        texto.chop(1);
    if (auto bytes = Codifica(texto, datos.paginaCodigos())) {
        v.texto = std::move(*bytes);
        v.clase = ValorPreparado::Clase::Texto;
    }
    return v;
}

const OrdenIndice& DatosDbf::orden(const std::vector<int>& campos) const {
    std::string clave;
    for (int c : campos)
        clave += std::to_string(c) + ',';
    std::lock_guard lock(m_mutexOrdenes);
    auto& hueco = m_ordenes[clave];
    if (hueco) return *hueco;
    auto o = std::make_unique<OrdenIndice>();
    o->campos = campos;
    o->filas.reserve(size_t(m_numRegistros));
    for (int i = 0; i < m_numRegistros; ++i)
        if (!borrado(i)) o->filas.push_back(quint32(i));
    if (!campos.empty()) {
        // Numeric keys are decoded once per record before sorting (this also reports a bad value).
        std::vector<std::vector<double>> numeros(campos.size());
        for (size_t k = 0; k < campos.size(); ++k)
            if (CampoNumerico(m_campos[campos[k]].tipo)) {
                numeros[k].resize(size_t(m_numRegistros));
                for (quint32 f : o->filas)
                    numeros[k][f] = numero(int(f), campos[k]);
            }
        const auto menor = [&](quint32 a, quint32 b) {
            for (size_t k = 0; k < campos.size(); ++k) {
                int c = 0;
                if (!numeros[k].empty())
                    c = numeros[k][a] < numeros[k][b] ? -1 : numeros[k][a] > numeros[k][b] ? 1 : 0;
                else
                    c = ComparaBytesDbf(crudo(int(a), campos[k]), crudo(int(b), campos[k]), false);
                if (c != 0) return c < 0;
            }
            return false;
        };
        std::stable_sort(o->filas.begin(), o->filas.end(), menor);
        if (!numeros[0].empty()) {
            o->claves.reserve(o->filas.size());
            for (quint32 f : o->filas)
                o->claves.push_back(numeros[0][f]);
        }
    }
    hueco = std::move(o);
    return *hueco;
}

const OrdenIndice& DatosDbf::ordenDeEtiqueta(const QString& etiqueta) const {
    {
        std::lock_guard lock(m_mutexOrdenes);
        if (const auto it = m_etiquetas.constFind(etiqueta); it != m_etiquetas.cend()) return **it;
    }
    const auto nombres = CamposDeIndice(m_ruta, etiqueta, m_campos);
    if (!nombres) throw ErrorTabla(QStringLiteral("Tabla %1: no tiene el índice %2").arg(m_ruta, etiqueta));
    std::vector<int> campos;
    for (const QString& n : *nombres) {
        campos.push_back(indiceCampo(n));
        if (campos.back() < 0)
            throw ErrorTabla(QStringLiteral("Tabla %1: no existe el campo %2").arg(m_ruta, n));
    }
    const OrdenIndice& o = orden(campos);
    std::lock_guard lock(m_mutexOrdenes);
    m_etiquetas.insert(etiqueta, &o);
    return o;
}

} // namespace nod
