#include "companion/rficheros.h"

#include "companion/config.h"
#include "companion/registro.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace nod {

namespace {

bool esSeparador(QChar c) {
    return c == u'\\' || c == u'/';
}

// A Windows mask as an anchored, case-blind expression: "*" any text, "?" one character, the rest
// literal. "*.*" takes names without a dot too, as on Windows.
QRegularExpression expresionDeMascara(const QString& mascara) {
    if (mascara == QLatin1String("*.*")) return expresionDeMascara(QStringLiteral("*"));
    QString patron;
    for (QChar c : mascara) {
        if (c == u'*')
            patron += QLatin1String(".*");
        else if (c == u'?')
            patron += QLatin1Char('.');
        else
            patron += QRegularExpression::escape(QString(c));
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(patron),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

bool esImagenJpeg(const QString& nombre) {
    return nombre.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive) ||
           nombre.endsWith(QLatin1String(".jpeg"), Qt::CaseInsensitive);
}

} // namespace

QString SlashSep(const QString& ruta, const QString& parte) {
    if (ruta.isEmpty()) return parte;
    qsizetype fin = ruta.size();
    while (fin > 0 && esSeparador(ruta[fin - 1]))
        --fin;
    qsizetype inicio = 0;
    while (inicio < parte.size() && esSeparador(parte[inicio]))
        ++inicio;
    return ruta.left(fin) + QLatin1Char('\\') + parte.mid(inicio);
}

QString RutaEnDisco(const QString& ruta) {
    if (ruta.isEmpty()) return {};
    if (ruta.contains(QChar(0))) {
        qCWarning(lcFicheros) << "RutaEnDisco: a path with a NUL character names no file:" << ruta;
        return {};
    }
    QString r = ruta;
    r.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const bool conUnidad = r.size() >= 2 && r[1] == u':' && r[0].isLetter() && r[0].unicode() < 128;
    if (conUnidad && r[0].toUpper() == u'C') return Config.RutaUnidadC(ruta);
    if (conUnidad || r.startsWith(QLatin1String("//"))) {
#ifdef Q_OS_WIN
        return QDir::cleanPath(r);
#else
        qCWarning(lcFicheros) << "RutaEnDisco: another drive or a network name cannot be reached here:"
                              << ruta;
        return {};
#endif
    }
    if (r.startsWith(u'/')) return QDir::cleanPath(r);
    return QDir::cleanPath(QDir(Config.CarpetaOficina()).absoluteFilePath(r));
}

bool ExisteCarpeta(const QString& ruta) {
    const QString disco = RutaEnDisco(ruta);
    return !disco.isEmpty() && QFileInfo(disco).isDir();
}

bool ExisteFichero(const QString& ruta) {
    const QString disco = RutaEnDisco(ruta);
    return !disco.isEmpty() && QFileInfo::exists(disco);
}

bool CreaCarpeta(const QString& ruta) {
    return CreaCarpetaEnDisco(RutaEnDisco(ruta));
}

bool CreaCarpetaEnDisco(const QString& disco) {
    if (disco.isEmpty() || disco.contains(QChar(0))) return false;
    if (QFileInfo(disco).isDir()) return true;
    if (QDir().mkpath(disco)) return true;
    qCWarning(lcFicheros).noquote() << "CreaCarpeta: the folder" << disco << "cannot be created";
    return false;
}

QStringList FindFileNoRecursivo(const QString& carpeta, const QString& mascara) {
    const QString disco = RutaEnDisco(carpeta);
    if (disco.isEmpty()) return {};
    const QStringList todos =
        QDir(disco).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name | QDir::IgnoreCase);
    const QRegularExpression expresion = expresionDeMascara(mascara);
    QStringList encontrados;
    for (const QString& nombre : todos)
        if (expresion.match(nombre).hasMatch()) encontrados << nombre;
    return encontrados;
}

QStringList ImagenesJpeg(const QString& carpeta) {
    QStringList imagenes = FindFileNoRecursivo(carpeta, QStringLiteral("*"));
    imagenes.removeIf([](const QString& nombre) { return !esImagenJpeg(nombre); });
    return imagenes;
}

bool CopiaFichero(const QString& origen, const QString& destino) {
    const QString o = RutaEnDisco(origen), d = RutaEnDisco(destino);
    if (o.isEmpty() || d.isEmpty()) return false;
    if (QFileInfo::exists(d)) {
        qCWarning(lcFicheros).noquote() << "CopiaFichero:" << d << "already exists and is not overwritten";
        return false;
    }
    QFile f(o);
    if (f.copy(d)) return true;
    qCWarning(lcFicheros).noquote() << "CopiaFichero:" << o << "->" << d << ":" << f.errorString();
    return false;
}

int MueveImagenesA(const QString& origen, const QString& destino) {
    const QString o = RutaEnDisco(origen), d = RutaEnDisco(destino);
    if (o.isEmpty() || d.isEmpty()) return 0;
    const QStringList imagenes = ImagenesJpeg(origen);
    if (imagenes.isEmpty() || !CreaCarpeta(destino)) return 0;
    int movidas = 0;
    for (const QString& nombre : imagenes) {
        const QString desde = o + QLatin1Char('/') + nombre, hacia = d + QLatin1Char('/') + nombre;
        if (QFileInfo::exists(hacia)) {
            qCWarning(lcFicheros).noquote()
                << "MueveImagenesA:" << hacia << "already exists;" << desde << "stays where it is";
            continue;
        }
        QFile f(desde);
        if (f.rename(hacia))
            ++movidas;
        else
            qCWarning(lcFicheros).noquote()
                << "MueveImagenesA:" << desde << "->" << hacia << ":" << f.errorString();
    }
    return movidas;
}

} // namespace nod
