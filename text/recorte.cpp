#include "text/recorte.h"

namespace nod {

namespace {
bool esBlanco(QChar c) {
    return c.unicode() <= u' ';
}
} // namespace

QString TrimLeft(const QString& s) {
    qsizetype i = 0;
    while (i < s.size() && esBlanco(s[i]))
        ++i;
    return s.mid(i);
}

QString TrimRight(const QString& s) {
    qsizetype n = s.size();
    while (n > 0 && esBlanco(s[n - 1]))
        --n;
    return s.left(n);
}

QString Trim(const QString& s) {
    return TrimLeft(TrimRight(s));
}

} // namespace nod
