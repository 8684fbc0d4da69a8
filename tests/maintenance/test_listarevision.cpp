// The printed list of the revision as PDF, read back with poppler's pdftotext and pdfinfo: heads on every
// page, every line in order, the page count at the foot, the empty list, a file that cannot be written;
// and a page rendered by pdftoppm, to see where the ink lies.
#include "companion/rnumcad.h"
#include "maintenance/listarevisioncodclienteqr.h"
#include "tests/maintenance/ayudas.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace nod;

namespace {

QString ejecuta(const QString& programa, const QStringList& argumentos) {
    QProcess p;
    p.start(programa, argumentos);
    if (!p.waitForFinished(30000) || p.exitCode() != 0) return {};
    return QString::fromUtf8(p.readAllStandardOutput());
}

// Line i: a deed of the notary whose client 9000 + i was deleted.
TMensajesRevision lineas(int n) {
    TMensajesRevision l;
    for (int i = 0; i < n; ++i)
        l.append({u"En la Tabla CLAVES del NOTARIO 1"_s,
                  u"El otorgante del protocolo %1/2.024 referencia al cliente 9.%2"_s.arg(i + 1).arg(
                      i, 3, 10, QLatin1Char('0')),
                  9000 + i});
    return l;
}

class ListaRevision : public ::testing::Test {
protected:
    // The PDF's text, page by page (pdftotext separates pages with a form feed).
    QStringList paginas(const TQRListaRevisionCodCliente& lista) {
        const QString pdf = dir.filePath(u"lista.pdf"_s);
        EXPECT_TRUE(lista.GuardaPdf(pdf));
        QStringList p = ejecuta(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s}).split(QLatin1Char('\f'));
        if (!p.isEmpty() && p.last().trimmed().isEmpty()) p.removeLast();
        return p;
    }
    QTemporaryDir dir;
};

TEST_F(ListaRevision, EveryPageCarriesTheHeadsAndTheLinesComeInOrder) {
    const TQRListaRevisionCodCliente lista(lineas(150), u"(En todas las tablas)"_s, QDate(2024, 5, 31));
    const QStringList p = paginas(lista);
    ASSERT_GE(p.size(), 2) << "150 lines do not fit one A4 page";
    for (int n = 0; n < p.size(); ++n) {
        SCOPED_TRACE(n + 1);
        EXPECT_TRUE(p[n].contains(u"DOCUMENTOS CON CÓDIGOS DE CLIENTES ERRÓNEOS"_s));
        EXPECT_TRUE(p[n].contains(u"(En todas las tablas)"_s));
        EXPECT_TRUE(p[n].contains(QRegularExpression(u"Tabla +Mensaje +Código"_s)));
        EXPECT_TRUE(p[n].contains(u"Página %1 de %2"_s.arg(n + 1).arg(p.size())));
        EXPECT_TRUE(p[n].contains(u"31/05/2024"_s));
    }
    // Every line once, in order: table, message and code on one printed row.
    const QString todo = p.join(QLatin1Char('\n'));
    qsizetype desde = 0;
    for (const TMensajeRevision& l : lista.Lineas()) {
        const QRegularExpression fila(
            QRegularExpression::escape(l.TABLA) + u" +"_s + QRegularExpression::escape(l.MENSAJE) + u" +"_s +
            QRegularExpression::escape(AgrupaMiles(QString::number(l.CODCLIENTE))) + u"\n"_s);
        const auto m = fila.match(todo, desde);
        ASSERT_TRUE(m.hasMatch()) << l.MENSAJE.toStdString();
        desde = m.capturedEnd();
    }
    const QString info = ejecuta(u"pdfinfo"_s, {dir.filePath(u"lista.pdf"_s)});
    EXPECT_TRUE(info.contains(QRegularExpression(u"Title: +Listado Clientes Repetidos"_s)))
        << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression(u"Page size: +595 x 842 pts \\(A4\\)"_s)))
        << info.toStdString();
}

TEST_F(ListaRevision, LongTextsWrapInsideTheirColumn) {
    TMensajesRevision l = lineas(1);
    l[0].MENSAJE = u"El cliente  GONZÁLEZ DE LA SERNA Y MARTÍNEZ DE IRUJO, MARÍA DEL CARMEN "
                   "INMACULADA (1.234) referencia al cliente 987.654"_s;
    const QStringList p =
        paginas(TQRListaRevisionCodCliente(l, TQRListaRevisionCodCliente::SubtituloDeTabla(u"clientes"_s)));
    ASSERT_EQ(p.size(), 1);
    EXPECT_TRUE(p[0].contains(u"(En la tabla CLIENTES)"_s));
    // The message takes several printed rows; the code stays in its column, on the first.
    EXPECT_TRUE(p[0].contains(QRegularExpression(u"El cliente +GONZÁLEZ .* +9.000\n"_s)))
        << p[0].toStdString();
    EXPECT_TRUE(p[0].contains(QRegularExpression(u"\n +INMACULADA|\n +MARÍA"_s))) << p[0].toStdString();
    EXPECT_TRUE(p[0].contains(u"987.654"_s));
}

TEST_F(ListaRevision, AnEmptyListSaysSoOnOnePage) {
    const QStringList p = paginas(TQRListaRevisionCodCliente({}));
    ASSERT_EQ(p.size(), 1);
    EXPECT_TRUE(p[0].contains(u"No se han encontrado códigos de clientes erróneos."_s));
    EXPECT_TRUE(p[0].contains(u"Página 1 de 1"_s));
}

// Ink of a page (pixels darker than mid grey). Rows inked across most of the page are the list's rules,
// not text: they are left out of the blocks of text.
struct Tinta {
    explicit Tinta(const QImage& pagina)
        : imagen(pagina.convertToFormat(QImage::Format_Grayscale8)) {}
    bool oscuro(int x, int y) const { return qGray(imagen.pixel(x, y)) < 128; }
    int enFila(int y) const {
        int n = 0;
        for (int x = 0; x < imagen.width(); ++x)
            n += oscuro(x, y);
        return n;
    }
    bool esRaya(int y) const { return enFila(y) > imagen.width() / 2; }
    int enFilas(int desde, int hasta) const {
        int n = 0;
        for (int y = desde; y < hasta; ++y)
            n += enFila(y);
        return n;
    }
    // The runs of columns with text between two rows, separated by at least `hueco` blank columns.
    QList<std::pair<int, int>> bloques(int desde, int hasta, int hueco) const {
        QList<std::pair<int, int>> b;
        int blancas = hueco;
        for (int x = 0; x < imagen.width(); ++x) {
            bool tinta = false;
            for (int y = desde; y < hasta && !tinta; ++y)
                tinta = oscuro(x, y) && !esRaya(y);
            if (!tinta) {
                ++blancas;
                continue;
            }
            if (blancas >= hueco) b.append({x, x});
            b.last().second = x;
            blancas = 0;
        }
        return b;
    }
    QImage imagen;
};

// The first page at 50 dots per inch: a centred title on top, three columns of text in the body, the
// foot at the bottom under its rule, and white paper between the last line and the foot.
TEST_F(ListaRevision, TheRenderedPageShowsTitleColumnsAndFoot) {
    ASSERT_TRUE(TQRListaRevisionCodCliente(lineas(20)).GuardaPdf(dir.filePath(u"lista.pdf"_s)));
    ejecuta(u"pdftoppm"_s, {u"-r"_s, u"50"_s, u"-f"_s, u"1"_s, u"-l"_s, u"1"_s, u"-png"_s, u"-singlefile"_s,
                            dir.filePath(u"lista.pdf"_s), dir.filePath(u"p"_s)});
    const Tinta t(QImage(dir.filePath(u"p.png"_s)));
    const int an = t.imagen.width(), al = t.imagen.height();
    ASSERT_NEAR(an, 414, 1); // A4, 8.27 by 11.69 inches (0 if pdftoppm failed)
    ASSERT_NEAR(al, 585, 1);

    // The title: ink in the top tenth, centred on the page.
    const auto titulo = t.bloques(0, al / 10, an);
    ASSERT_EQ(titulo.size(), 1);
    EXPECT_NEAR((titulo[0].first + titulo[0].second) / 2.0, an / 2.0, an * 0.03);
    // The heads and the body: three columns, the table's at the left margin, the code's at the right one.
    const auto columnas = t.bloques(al / 10, al * 3 / 4, 8);
    ASSERT_EQ(columnas.size(), 3) << "Tabla, Mensaje and Código";
    EXPECT_LT(columnas[0].first, an / 10);
    EXPECT_GT(columnas[2].second, an * 9 / 10);
    EXPECT_LT(columnas[2].second - columnas[2].first, an / 10);
    // Twenty lines fill a third of the page: the lower body is blank paper.
    EXPECT_EQ(t.enFilas(al * 3 / 4, al * 9 / 10), 0);
    // The foot: its rule, then the date at the left and the page count at the right.
    int raya = al * 9 / 10;
    while (raya < al && !t.esRaya(raya))
        ++raya;
    EXPECT_LT(raya, al) << "no rule above the foot";
    EXPECT_EQ(t.bloques(al * 9 / 10, al, an / 4).size(), 2);
    EXPECT_LT(t.enFilas(0, al), an * al / 10);
}

TEST_F(ListaRevision, AFileThatCannotBeWrittenGivesFalse) {
    EXPECT_FALSE(TQRListaRevisionCodCliente(lineas(3)).GuardaPdf(dir.filePath(u"no/existe/lista.pdf"_s)));
}

} // namespace
