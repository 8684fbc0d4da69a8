#include "protocol/carpetasdocumentos.h"

#include "companion/config.h"
#include "companion/mensajes.h"
#include "companion/registro.h"
#include "companion/rficheros.h"
#include "frame/notarios.h"
#include "protocol/nombresdocumentos.h"
#include "text/limpieza.h"

#include <QDir>

namespace nod {

namespace {

QString carpetaDelNotario(int notario) {
    switch (notario) {
    case 1:
        return Config.GetsEnlaceWordCarpeta1();
    case 2:
        return Config.GetsEnlaceWordCarpeta2();
    case 3:
        return Config.GetsEnlaceWordCarpeta3();
    case 4:
        return Config.GetsEnlaceWordCarpeta4();
    case 5:
        return Config.GetsEnlaceWordCarpeta5();
    default:
        qCWarning(lcProtocolo) << "document folders: notary" << notario
                               << "has no folder of its own (1 to 5)";
        return {};
    }
}

QString creada(const QString& carpeta) {
    CreaCarpeta(carpeta);
    return carpeta;
}

// The folder of documents or copies under `base` (see the header for the three cases).
QString carpetaPorConvenio(const QString& base, int notario, int ano) {
    const QString anno = QString::number(ano);
    if (!Config.GetbEnlaceWordConvenio()) return creada(SlashSep(base, anno));
    if (Config.GetnCuantos() > 0) {
        const QString delNotario = carpetaDelNotario(notario);
        const QString debajo =
            Config.GetbEnlaceWordAnoMasNotario() ? SlashSep(anno, delNotario) : SlashSep(delNotario, anno);
        return creada(PonBarraFinal(SlashSep(base, debajo)));
    }
    Mensaje_Error(
        QStringLiteral("El programa no se encuentra en convenio actualmente pero en la configuración "
                       "del Enlace Word sí.\rVaya a la configuración y modifique los datos.\r"
                       "Desactive el convenio y revise la carpeta base."),
        QStringLiteral("Configuración errónea"));
    return creada(base);
}

// The electronic files' folder of a deed, dossier or policy under the main database's folder: the
// parts below it are joined the suite's way, and the real folder is the database folder plus them.
QString carpetaElectronica(const QString& clase, const QString& seccion, const QString& carpetaDelFichero,
                           int bis, int ano, const QString& subcarpeta) {
    const QString base = Config.CarpetaAlias(Config.GetAliasNodrim());
    if (base.isEmpty()) {
        qCWarning(lcProtocolo) << "electronic files: the main database alias" << Config.GetAliasNodrim()
                               << "has no folder in CONFIG.INI [ALIAS]";
        return {};
    }
    QString debajo = SlashSep(SlashSep(QStringLiteral("Archivos"), clase), QString::number(ano));
    if (!seccion.isEmpty()) debajo = SlashSep(debajo, seccion);
    debajo = SlashSep(debajo, carpetaDelFichero + SufijoBisElectronico(bis));
    if (!subcarpeta.isEmpty()) debajo = SlashSep(debajo, subcarpeta);
    CreaCarpetaEnDisco(base + QLatin1Char('/') +
                       QString(debajo).replace(QLatin1Char('\\'), QLatin1Char('/')));
    return SlashSep(QDir::toNativeSeparators(base), debajo);
}

QString carpetaElectronicaDeExpediente(int numero, int bis, int ano, const QString& subcarpeta) {
    return carpetaElectronica(QStringLiteral("Expediente"), {}, NumeroEnCifras(numero, 6), bis, ano,
                              subcarpeta);
}

} // namespace

QString DameCarpetaFicheroWordEscrituras(int modo, int notario, int ano) {
    if (modo == 1)
        return creada(PonBarraFinal(SlashSep(Config.GetCARPETAS_EXPEDIENTE(), QString::number(ano))));
    return carpetaPorConvenio(Config.GetsEnlaceWordCarpetaBase(), notario, ano);
}

QString DameCarpetaFicheroCopiaAutorizada(int notario, int ano) {
    return carpetaPorConvenio(Config.GetCARPETAS_ENVIOREGISTRO(), notario, ano);
}

QString DameCarpetaFicheroCopiaSimple(int notario, int ano) {
    return carpetaPorConvenio(Config.GetCARPETAS_CSIMPLEELECTRONICA(), notario, ano);
}

QString DameCarpetaFicherosElectronicosEscrituras(int modo, int notario, int numero, int bis, int ano,
                                                  const QString& subcarpeta) {
    if (modo == 1) return carpetaElectronicaDeExpediente(numero, bis, ano, subcarpeta);
    return carpetaElectronica(QStringLiteral("Protocolo"), {},
                              InicialesNotario(notario) + NumeroEnCifras(numero, 5), bis, ano, subcarpeta);
}

QString DameCarpetaFicheroWordPolizas(int ano) {
    return creada(SlashSep(Config.GetsRutaPolizasDigitalizadas(), QString::number(ano)));
}

QString DameCarpetaFicherosElectronicosPolizas(int modo, int notario, const QString& seccion, int numero,
                                               int bis, int ano, const QString& subcarpeta) {
    if (modo == 1) return carpetaElectronicaDeExpediente(numero, bis, ano, subcarpeta);
    return carpetaElectronica(QStringLiteral("Polizas"), seccion,
                              InicialesNotario(notario) + NumeroEnCifras(numero, 5), bis, ano, subcarpeta);
}

} // namespace nod
