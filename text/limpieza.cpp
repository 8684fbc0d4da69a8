#include "text/limpieza.h"

#include "companion/rnumcad.h"
#include "text/recorte.h"

namespace nod {

namespace {

// Plain vowel of an accented one, or the character itself.
QChar sinAcento(QChar c, bool todas) {
    switch (c.unicode()) {
    case u'Á':
        return u'A';
    case u'É':
        return u'E';
    case u'Í':
        return u'I';
    case u'Ó':
        return u'O';
    case u'Ú':
        return u'U';
    }
    if (!todas) return c;
    switch (c.unicode()) {
    case u'À':
        return u'A';
    case u'È':
        return u'E';
    case u'Ì':
        return u'I';
    case u'Ò':
        return u'O';
    case u'Ù':
        return u'U';
    case u'á':
    case u'à':
        return u'a';
    case u'é':
    case u'è':
        return u'e';
    case u'í':
    case u'ì':
        return u'i';
    case u'ó':
    case u'ò':
        return u'o';
    case u'ú':
    case u'ù':
        return u'u';
    }
    return c;
}

QString cambiaVocales(const QString& s, bool todas) {
    QString r = s;
    for (QChar& c : r)
        c = sinAcento(c, todas);
    return r;
}

QString quitaCaracteres(const QString& s, QStringView quitar) {
    QString r;
    r.reserve(s.size());
    for (QChar c : s)
        if (!quitar.contains(c)) r += c;
    return r;
}

// "Letter, blank, letter, blank" at the start of an already reduced text, without looking at its last
// character.
bool estaEspaciado(const QString& s) {
    enum { Primero, Blanco, SaltaBlancos, BlancoFinal } estado = Primero;
    for (qsizetype i = 0; i + 1 < s.size(); ++i) {
        const bool blanco = s[i] == u' ';
        switch (estado) {
        case Primero:
            estado = Blanco;
            break;
        case Blanco:
            if (!blanco) return false;
            estado = SaltaBlancos;
            break;
        case SaltaBlancos:
            if (!blanco) estado = BlancoFinal;
            break;
        case BlancoFinal:
            return blanco;
        }
    }
    return false;
}

} // namespace

QString QuitaAcentos(const QString& s) {
    return cambiaVocales(s, false);
}

QString QuitaAcentoMayMin(const QString& s) {
    return cambiaVocales(s, true);
}

QString ConvertirDoblesEspaciosEnUno(const QString& s) {
    QString r;
    r.reserve(s.size());
    for (qsizetype i = 0; i < s.size(); ++i)
        if (s[i] != u' ' || i == 0 || s[i - 1] != u' ') r += s[i];
    return r;
}

QString SinDoblesEspacios(const QString& s) {
    return ConvertirDoblesEspaciosEnUno(Trim(s));
}

QString QuitaEspaciosIntermedios(const QString& s) {
    QString r = SinDoblesEspacios(s);
    // A letter-spaced text loses all its blanks: only a double blank would leave one, and the reduction
    // above has removed those.
    if (estaEspaciado(r)) r = TrimTotal(r);
    return QuitaAcentos(r);
}

QString TrimTotal(const QString& s) {
    return quitaCaracteres(s, u" ");
}

QString QuitaNumeros(const QString& s) {
    QString r = s;
    for (QChar& c : r)
        if (EsUnNumero(c)) c = u' ';
    return TrimTotal(r);
}

QString StrNeto(const QString& s) {
    return quitaCaracteres(Trim(s), u"-_,./\\");
}

QString PonBarraFinal(const QString& ruta, const QString&) {
    const QString r = Trim(ruta);
    return r.isEmpty() || r.endsWith(u'\\') ? r : r + u'\\';
}

QString QuitaBarraFinal(const QString& ruta, const QString&) {
    const QString r = Trim(ruta);
    return r.endsWith(u'\\') ? r.chopped(1) : r;
}

} // namespace nod
