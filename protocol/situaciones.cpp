#include "protocol/situaciones.h"

#include <QStringList>

namespace nod {

namespace {

const QString kSinInformacion = QStringLiteral("No hay información anotada");

// Position of a one-character code in `codigos`, -1 when the code is not one of them.
qsizetype posicion(const QString& codigo, QLatin1String codigos) {
    if (codigo.size() != 1) return -1;
    return QString(codigos).indexOf(codigo[0]);
}

const QStringList& situacionesEscritura() {
    static const QStringList t = {
        QStringLiteral("Pendiente de algún documento"),    QStringLiteral("Pendiente de hacer las copias"),
        QStringLiteral("La tiene el Notario para firmar"), QStringLiteral("Terminado, para retirar"),
        QStringLiteral("Retiradas algunas copias"),        QStringLiteral("Retiradas todas las copias")};
    return t;
}

const QStringList& situacionesEscrituraCortas() {
    static const QStringList t = {QStringLiteral("Pend. docum."),     QStringLiteral("Pend. copias"),
                                  QStringLiteral("Pend. firma not."), QStringLiteral("Para retirar"),
                                  QStringLiteral("Retiró parte"),     QStringLiteral("Retirado")};
    return t;
}

const QStringList& situacionesMatriz() {
    static const QStringList t = {QStringLiteral("Pendiente de ratificación"),
                                  QStringLiteral("Pendiente de documento"),
                                  QStringLiteral("Pendiente de modificación"),
                                  QStringLiteral("Pendiente de cierre"),
                                  QStringLiteral("Pendiente de subsanación"),
                                  QStringLiteral("Pendiente de copia"),
                                  QStringLiteral("Pendiente de índice"),
                                  QStringLiteral("Pendiente de firma"),
                                  QStringLiteral("Archivada"),
                                  QStringLiteral("Pendiente de nota de envío telemático"),
                                  QStringLiteral("Pendiente de nota de traslado a papel"),
                                  QStringLiteral("Pendiente de oficio de ratificación"),
                                  QStringLiteral("Pendiente de oficio de subsanación")};
    return t;
}

const QStringList& situacionesMatrizCortas() {
    static const QStringList t = {QStringLiteral("Pend. rat."),     QStringLiteral("Pend. documento"),
                                  QStringLiteral("Pend. mod."),     QStringLiteral("Pend. cierre"),
                                  QStringLiteral("Pend. sub."),     QStringLiteral("Pend. copia"),
                                  QStringLiteral("Pend. índice"),   QStringLiteral("Pend. firma"),
                                  QStringLiteral("Archivada"),      QStringLiteral("Pend. tel."),
                                  QStringLiteral("Pend. tras."),    QStringLiteral("Pend. ofi. rat."),
                                  QStringLiteral("Pend. ofi. sub.")};
    return t;
}

constexpr QLatin1String kCodigosEscritura("123456");
constexpr QLatin1String kCodigosMatriz("BCDEFGHIJKLMN"); // "A" is no situation of its own

QString busca(const QStringList& textos, const QString& codigo, QLatin1String codigos, const QString& otro) {
    const qsizetype i = posicion(codigo, codigos);
    return i < 0 ? otro : textos[i];
}

} // namespace

QString Situacion(const QString& codigo) {
    return busca(situacionesEscritura(), codigo, kCodigosEscritura, kSinInformacion);
}

QString Situa_2(const QString& codigo) {
    return busca(situacionesEscrituraCortas(), codigo, kCodigosEscritura, {});
}

QString SituacionMatriz(const QString& codigo) {
    return busca(situacionesMatriz(), codigo, kCodigosMatriz, kSinInformacion);
}

QString Situa_2Matriz(const QString& codigo) {
    return busca(situacionesMatrizCortas(), codigo, kCodigosMatriz, {});
}

QString SituacionPoliza(int codigo) {
    static const QStringList t = {QStringLiteral("Pendiente de la firma del cliente"),
                                  QStringLiteral("Pendiente de la firma de la entidad bancaria"),
                                  QStringLiteral("Para preparar"),
                                  QStringLiteral("Pendiente de hacer las copias"),
                                  QStringLiteral("Pendiente de retirar"),
                                  QStringLiteral("Entregada y pagada")};
    return codigo >= 1 && codigo <= 6 ? t[codigo - 1] : QString();
}

QString LetraActuacionNumeros(int clase) {
    switch (clase) {
    case 1:
        return QStringLiteral("A");
    case 2:
        return QStringLiteral("T");
    case 3:
        return QStringLiteral("R");
    case 4:
        return QStringLiteral("P");
    case 5:
        return QStringLiteral("I");
    case 6:
        return QStringLiteral("Z");
    case 7:
    case 8:
    case 9:
    case 10:
    case 11:
    case 12:
    case 16:
    case 17:
    case 99:
        return QStringLiteral("0");
    default:
        return {};
    }
}

} // namespace nod
