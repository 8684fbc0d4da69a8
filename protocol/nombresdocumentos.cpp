#include "protocol/nombresdocumentos.h"

#include "companion/config.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"
#include "frame/notarios.h"

#include <optional>

namespace nod {

namespace {

enum class Familia { Documento, Copia, Electronica };

QString sufijoBis(Familia familia, int bis) {
    static const char* const kSufijos[3][3] = {
        {"_1Bis", "_2Bis", "_3Bis"}, // documents
        {"Bis", "2Bis", "3Bis"},     // copies
        {"-1Bis", "-2Bis", "-3Bis"}, // electronic-file folders
    };
    if (bis < 1 || bis > 3) return {};
    return QLatin1String(kSufijos[static_cast<int>(familia)][bis - 1]);
}

// The template of a document name with its tags replaced (see the header). `seccion` is given for
// policies only; for deeds "<SECCION>" is as unknown as any other tag.
QString expandePlantilla(const QString& plantilla, int notario, int numero, int ano, const QString* seccion) {
    QString nombre;
    std::optional<QString> iniciales; // the notary is selected only when the template asks for it
    qsizetype i = 0;
    while (i < plantilla.size()) {
        const qsizetype abre = plantilla.indexOf(u'<', i);
        if (abre < 0) {
            nombre += QStringView(plantilla).mid(i);
            break;
        }
        nombre += QStringView(plantilla).mid(i, abre - i);
        const qsizetype cierra = plantilla.indexOf(u'>', abre);
        if (cierra < 0) {
            qCWarning(lcProtocolo).noquote() << "document name template" << plantilla << ": \"<\" at"
                                             << abre + 1 << "is not closed; the rest is left out";
            break;
        }
        const QStringView etiqueta = QStringView(plantilla).mid(abre, cierra - abre + 1);
        if (etiqueta == u"<INICIALES NOTARIO>") {
            if (!iniciales) iniciales = InicialesNotario(notario);
            nombre += *iniciales;
        } else if (etiqueta == u"<NUMERO>") {
            nombre += QString::number(numero);
        } else if (etiqueta == u"<NUMERO4>") {
            nombre += NumeroEnCifras(numero, 4);
        } else if (etiqueta == u"<NUMERO5>") {
            nombre += NumeroEnCifras(numero, 5);
        } else if (etiqueta == u"<AÑO>") {
            nombre += StrRight(QString::number(ano), 2);
        } else if (etiqueta == u"<AÑO4>") {
            nombre += QString::number(ano);
        } else if (seccion && etiqueta == u"<SECCION>") {
            nombre += *seccion;
        } else {
            qCWarning(lcProtocolo).noquote() << "document name template" << plantilla << ": unknown tag"
                                             << etiqueta.toString() << "left out";
        }
        i = cierra + 1;
    }
    return nombre;
}

} // namespace

QString SufijoBisDocumento(int bis) {
    return sufijoBis(Familia::Documento, bis);
}

QString SufijoBisCopia(int bis) {
    return sufijoBis(Familia::Copia, bis);
}

QString SufijoBisElectronico(int bis) {
    return sufijoBis(Familia::Electronica, bis);
}

QString NumeroEnCifras(qint64 numero, int cifras) {
    return StrRight(QString(cifras, u'0') + QString::number(numero), cifras);
}

QString DameNombreFicheroWordEscrituras(int modo, int notario, int numero, int ano, int bis) {
    if (modo == 1) return NumeroEnCifras(numero, 6);
    return expandePlantilla(Config.GetsEnlaceWordNombreFichero(), notario, numero, ano, nullptr) +
           SufijoBisDocumento(bis);
}

QString DameNombreFicheroCopiaAutorizada(const QString& cola, int numero, int bis) {
    return QStringLiteral("COPAUT_") + NumeroEnCifras(numero, 5) + SufijoBisCopia(bis) + QLatin1Char('_') +
           cola;
}

QString DameNombreFicheroCopiaSimple(int numero, int bis) {
    return QStringLiteral("COPSIM_") + NumeroEnCifras(numero, 5) + SufijoBisCopia(bis);
}

QString DameNombreFicheroWordPolizas(const QString& seccion, int notario, int numero, int ano, int bis) {
    const QString nombre =
        expandePlantilla(Config.GetsEnlaceWordNombreFicheroPoliza(), notario, numero, ano, &seccion);
    const QString& estilo = Config.GetsEnlaceWordBisFicheroPoliza();
    if (estilo == u"1") return nombre + SufijoBisDocumento(bis);
    static const char* const kLetras[] = {"A", "B", "C"};
    if (bis >= 1 && bis <= 3) return nombre + QLatin1String(kLetras[bis - 1]);
    return estilo == u"0" ? nombre + QLatin1Char('N') : nombre;
}

} // namespace nod
