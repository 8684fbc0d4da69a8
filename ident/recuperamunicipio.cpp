#include "ident/recuperamunicipio.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "text/recorte.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QXmlStreamReader>
#include <memory>
#include <vector>

namespace nod {

namespace {

// A parsed answer as a plain tree in which, like the document models the service was designed for, the
// XML declaration, doctype, comments and processing instructions are children too, and text made only
// of blanks is not.
struct Nodo {
    QString nombre; // qualified element name; empty for other nodes
    QString texto;  // the text of a text node
    std::vector<std::unique_ptr<Nodo>> hijos;

    const Nodo* hijo(qsizetype i) const { return i < qsizetype(hijos.size()) ? hijos[i].get() : nullptr; }
    const Nodo* busca(QStringView n) const {
        for (const auto& h : hijos)
            if (h->nombre == n) return h.get();
        return nullptr;
    }
    QString textoCompleto() const {
        QString t = texto;
        for (const auto& h : hijos)
            t += h->textoCompleto();
        return t;
    }
};

constexpr int kProfundidadMaxima = 64;

Nodo* agrega(Nodo* padre) {
    padre->hijos.push_back(std::make_unique<Nodo>());
    return padre->hijos.back().get();
}

// The tree of `xml`, or nullptr when it does not parse. External entities are never fetched.
std::unique_ptr<Nodo> analiza(const QByteArray& xml) {
    auto documento = std::make_unique<Nodo>();
    std::vector<Nodo*> pila{documento.get()};
    QXmlStreamReader r(xml);
    r.setNamespaceProcessing(false);
    while (!r.atEnd()) {
        switch (r.readNext()) {
        case QXmlStreamReader::StartDocument:
            if (!r.documentVersion().isEmpty()) agrega(pila.back()); // the XML declaration
            break;
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            agrega(pila.back());
            break;
        case QXmlStreamReader::StartElement:
            if (int(pila.size()) > kProfundidadMaxima) return nullptr;
            pila.push_back(agrega(pila.back()));
            pila.back()->nombre = r.qualifiedName().toString();
            break;
        case QXmlStreamReader::EndElement:
            pila.pop_back();
            break;
        case QXmlStreamReader::Characters:
            if (!r.isWhitespace()) agrega(pila.back())->texto = r.text().toString();
            break;
        case QXmlStreamReader::EntityReference: // an entity nobody declared: never resolved from outside
            return nullptr;
        default:
            break;
        }
    }
    return r.hasError() ? nullptr : std::move(documento);
}

// Down the tree by child position: each step needs more than `minimo` children and takes child `indice`.
const Nodo* baja(const Nodo* nodo) {
    struct Paso {
        qsizetype minimo, indice;
    };
    static constexpr Paso kPasos[] = {{1, 1}, {0, 0}, {0, 0}, {0, 0}, {1, 1}, {0, 0}, {2, 1}};
    for (const Paso& p : kPasos) {
        if (!nodo || qsizetype(nodo->hijos.size()) <= p.minimo) return nullptr;
        nodo = nodo->hijo(p.indice);
    }
    return nodo && nodo->hijos.size() > 2 ? nodo : nullptr;
}

const Nodo* buscaEnDosFormas(const Nodo* nodo, QStringView minusculas, QStringView mayusculas) {
    const Nodo* n = nodo->busca(minusculas);
    return n ? n : nodo->busca(mayusculas);
}

QString escapaXml(QString s) {
    return s.replace(u'&', QStringLiteral("&amp;"))
        .replace(u'<', QStringLiteral("&lt;"))
        .replace(u'>', QStringLiteral("&gt;"));
}

} // namespace

QByteArray PeticionSoapCatastro(const QString& referencia) {
    const QString ns = Config.GetEspacioNombresCatastro();
    const QString lineas[] = {
        QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>"),
        QStringLiteral("<soap:Envelope xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                       "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" "
                       "xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\">"),
        QStringLiteral("  <soap:Body>"),
        QStringLiteral("    <CodigoProvincia xmlns=\"%1\" />").arg(ns),
        QStringLiteral("    <CodigoMunicipio xmlns=\"%1\" />").arg(ns),
        QStringLiteral("    <CodigoMunicipioINE xmlns=\"%1\" />").arg(ns),
        QStringLiteral("    <RefCat xmlns=\"%1\">%2</RefCat>").arg(ns, escapaXml(Trim(referencia))),
        QStringLiteral("  </soap:Body>"),
        QStringLiteral("</soap:Envelope>"),
    };
    QByteArray cuerpo;
    for (const QString& l : lineas)
        cuerpo += l.toUtf8() + '\r';
    return cuerpo;
}

QByteArray SoapActionConsultaCatastro() {
    return (Config.GetSoapActionCatastro() +
            QStringLiteral("/OVCServWeb/OVCCallejeroID/Consulta_DNPRC_Codigos"))
        .toUtf8();
}

bool LeeRespuestaCatastro(const QByteArray& respuesta, QString& provincia, QString& municipio) {
    provincia.clear();
    municipio.clear();
    if (respuesta.isEmpty() || respuesta.toUpper().contains("<ERR>")) return false;
    const std::unique_ptr<Nodo> documento = analiza(respuesta);
    const Nodo* datos = documento ? baja(documento.get()) : nullptr;
    if (!datos) return false;
    const Nodo* loine = buscaEnDosFormas(datos, u"loine", u"LOINE");
    const Nodo* cp = loine ? buscaEnDosFormas(loine, u"cp", u"CP") : nullptr;
    if (!cp) return false;
    provincia = cp->textoCompleto();
    if (const Nodo* cmc = buscaEnDosFormas(datos, u"cmc", u"CMC")) municipio = cmc->textoCompleto();
    return !provincia.isEmpty();
}

ConsultaCatastro ConsultaCodigosCatastro(const QString& referencia, const std::function<bool()>& cancelada) {
    ConsultaCatastro consulta;
    QNetworkAccessManager red;
    red.setProxy(QNetworkProxy::NoProxy);
    QNetworkRequest peticion(QUrl(Config.GetServidorCatastro() + QString::fromUtf16(kRutaServicioCatastro)));
    peticion.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("text/xml; charset=utf-8"));
    peticion.setRawHeader("SOAPAction", SoapActionConsultaCatastro());
    peticion.setTransferTimeout(qMax(1, Config.GetEsperaCatastroMs()));
    peticion.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);

    std::unique_ptr<QNetworkReply> respuesta(red.post(peticion, PeticionSoapCatastro(referencia)));
    QByteArray leido;
    bool demasiado = false, cancelo = false;
    QEventLoop bucle;
    QObject::connect(respuesta.get(), &QNetworkReply::readyRead, &bucle, [&] {
        if (demasiado || cancelo) return;
        leido += respuesta->readAll();
        if (leido.size() > kMaximoRespuestaCatastro) {
            demasiado = true;
            respuesta->abort();
        }
    });
    QObject::connect(respuesta.get(), &QNetworkReply::finished, &bucle, &QEventLoop::quit);
    QTimer sondeo;
    if (cancelada) {
        QObject::connect(&sondeo, &QTimer::timeout, &bucle, [&] {
            if (cancelada()) {
                cancelo = true;
                respuesta->abort();
            }
        });
        sondeo.start(50);
    }
    if (!respuesta->isFinished()) bucle.exec();
    sondeo.stop();
    if (!demasiado && !cancelo) leido += respuesta->readAll();

    if (cancelo) {
        consulta.resultado = ResultadoCatastro::Cancelada;
    } else if (demasiado || respuesta->error() != QNetworkReply::NoError) {
        qCWarning(lcIdent) << "cadastre consultation failed:"
                           << (demasiado ? QStringLiteral("answer too large") : respuesta->errorString());
        consulta.resultado = ResultadoCatastro::SinConexion;
    } else {
        consulta.resultado = LeeRespuestaCatastro(leido, consulta.provincia, consulta.municipio)
                                 ? ResultadoCatastro::Encontrada
                                 : ResultadoCatastro::NoEncontrada;
    }
    return consulta;
}

void RecuperaMunicipio(const QString& referencia, QString& provincia, QString& municipio) {
    const ConsultaCatastro c = ConsultaCodigosCatastro(referencia);
    provincia = c.provincia;
    municipio = c.municipio;
}

QUrl DireccionConsultaCatastro(const QString& referencia, const QString& provincia, const QString& municipio,
                               bool urbana) {
    QString del = provincia;
    if (del == u"51")
        del = QStringLiteral("55");
    else if (del == u"52")
        del = QStringLiteral("56");
    return QUrl(Config.GetWebConsultaCatastro() + QStringLiteral("/CYCBienInmueble/OVCConCiud.aspx?UrbRus=") +
                (urbana ? u'U' : u'R') + QStringLiteral("&RefC=") + referencia + QStringLiteral("&del=") +
                del + QStringLiteral("&mun=") + municipio);
}

} // namespace nod
