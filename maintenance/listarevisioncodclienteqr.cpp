#include "maintenance/listarevisioncodclienteqr.h"

#include "companion/hoy.h"
#include "companion/registro.h"
#include "companion/rnumcad.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace nod {

namespace {

// Fonts of the list (the design's Arial, served by an Arial-metric font) in points.
QFont fuente(double puntos, bool negrita = false) {
    QFont f(QStringLiteral("Arial"));
    f.setPointSizeF(puntos);
    f.setBold(negrita);
    return f;
}

// Where things go on a page, in device pixels.
struct Geometria {
    double ancho = 0, alto = 0;
    double xTabla = 0, anchoTabla = 0, xMensaje = 0, anchoMensaje = 0, xCodigo = 0, anchoCodigo = 0;
    double cuerpo = 0; // first line of the body
    double pie = 0;    // top of the foot
    double separacion = 0;
};

constexpr int kAlineaTexto = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

} // namespace

TQRListaRevisionCodCliente::TQRListaRevisionCodCliente(TMensajesRevision lineas, QString subtitulo,
                                                       QDate fecha)
    : m_lineas(std::move(lineas))
    , m_subtitulo(std::move(subtitulo))
    , m_fecha(fecha.isValid() ? fecha : TDateTimeToQDate(Date())) {}

QString TQRListaRevisionCodCliente::SubtituloDeTabla(const QString& tabla) {
    return QStringLiteral("(En la tabla ") + UpperCase(tabla.trimmed()) + QLatin1Char(')');
}

QString TQRListaRevisionCodCliente::Caption() {
    return QStringLiteral("Listado Clientes Repetidos");
}

QString TQRListaRevisionCodCliente::Titulo() {
    return QStringLiteral("DOCUMENTOS CON CÓDIGOS DE CLIENTES ERRÓNEOS");
}

int TQRListaRevisionCodCliente::Dibuja(QPagedPaintDevice& dispositivo) const {
    QPainter p;
    if (!p.begin(&dispositivo)) return 0;
    const QFont fTitulo = fuente(14, true), fSubtitulo = fuente(11), fCabecera = fuente(9, true),
                fCuerpo = fuente(9), fPie = fuente(8);
    // Metrics on the device, so that the measures are those of the painting.
    const QFontMetricsF mTitulo(fTitulo, &dispositivo), mSubtitulo(fSubtitulo, &dispositivo),
        mCabecera(fCabecera, &dispositivo), mCuerpo(fCuerpo, &dispositivo), mPie(fPie, &dispositivo);

    Geometria g;
    g.ancho = dispositivo.width();
    g.alto = dispositivo.height();
    g.separacion = mCuerpo.height() * 0.35;
    g.xTabla = 0;
    g.anchoTabla = g.ancho * 0.33;
    g.xMensaje = g.anchoTabla + g.separacion * 2;
    g.anchoCodigo = g.ancho * 0.10;
    g.xCodigo = g.ancho - g.anchoCodigo;
    g.anchoMensaje = g.xCodigo - g.separacion * 2 - g.xMensaje;
    const double yCabecera = mTitulo.height() + mSubtitulo.height() + g.separacion * 3;
    g.cuerpo = yCabecera + mCabecera.height() + g.separacion * 2;
    g.pie = g.alto - mPie.height();

    // Each line's height: its tallest column, wrapped within its width.
    const auto altoDe = [&](const QString& texto, double ancho) {
        return mCuerpo.boundingRect(QRectF(0, 0, ancho, 1e9), kAlineaTexto, texto).height();
    };
    std::vector<double> altos;
    altos.reserve(size_t(m_lineas.size()));
    for (const TMensajeRevision& l : m_lineas)
        altos.push_back(std::max(altoDe(l.TABLA, g.anchoTabla), altoDe(l.MENSAJE, g.anchoMensaje)) +
                        g.separacion);

    // Pages: the lines that fit between the heads and the foot; a line taller than a whole page gets one
    // of its own, cut at the foot.
    const double disponible = g.pie - g.separacion - g.cuerpo;
    std::vector<qsizetype> inicios = {0};
    double usado = 0;
    for (qsizetype i = 0; i < qsizetype(altos.size()); ++i) {
        if (usado > 0 && usado + altos[size_t(i)] > disponible) {
            inicios.push_back(i);
            usado = 0;
        }
        usado += altos[size_t(i)];
    }
    const int paginas = int(inicios.size());

    for (int n = 0; n < paginas; ++n) {
        if (n > 0 && !dispositivo.newPage()) break;
        // Heads.
        p.setPen(Qt::black);
        p.setFont(fTitulo);
        p.drawText(QRectF(0, 0, g.ancho, mTitulo.height()), Qt::AlignHCenter | Qt::AlignTop, Titulo());
        p.setFont(fSubtitulo);
        p.drawText(QRectF(0, mTitulo.height() + g.separacion, g.ancho, mSubtitulo.height()),
                   Qt::AlignHCenter | Qt::AlignTop, m_subtitulo);
        p.setFont(fCabecera);
        p.drawText(QRectF(g.xTabla, yCabecera, g.anchoTabla, mCabecera.height()), Qt::AlignLeft,
                   QStringLiteral("Tabla"));
        p.drawText(QRectF(g.xMensaje, yCabecera, g.anchoMensaje, mCabecera.height()), Qt::AlignLeft,
                   QStringLiteral("Mensaje"));
        p.drawText(QRectF(g.xCodigo, yCabecera, g.anchoCodigo, mCabecera.height()), Qt::AlignRight,
                   QStringLiteral("Código"));
        const double grosor = std::max(1.0, dispositivo.logicalDpiY() / 150.0);
        p.setPen(QPen(Qt::black, grosor));
        const double yRaya = yCabecera + mCabecera.height() + g.separacion * 0.5;
        p.drawLine(QPointF(0, yRaya), QPointF(g.ancho, yRaya));

        // Lines.
        p.setFont(fCuerpo);
        double y = g.cuerpo;
        const qsizetype hasta = n + 1 < paginas ? inicios[size_t(n) + 1] : qsizetype(m_lineas.size());
        for (qsizetype i = inicios[size_t(n)]; i < hasta; ++i) {
            const TMensajeRevision& l = m_lineas[i];
            const double alto = std::min(altos[size_t(i)], g.pie - g.separacion - y);
            p.save();
            p.setClipRect(QRectF(0, y, g.ancho, alto));
            p.drawText(QRectF(g.xTabla, y, g.anchoTabla, alto), kAlineaTexto, l.TABLA);
            p.drawText(QRectF(g.xMensaje, y, g.anchoMensaje, alto), kAlineaTexto, l.MENSAJE);
            p.drawText(QRectF(g.xCodigo, y, g.anchoCodigo, alto), Qt::AlignRight | Qt::AlignTop,
                       AgrupaMiles(QString::number(l.CODCLIENTE)));
            p.restore();
            y += alto;
        }
        if (m_lineas.isEmpty())
            p.drawText(QRectF(0, y, g.ancho, mCuerpo.height() * 2), kAlineaTexto,
                       QStringLiteral("No se han encontrado códigos de clientes erróneos."));

        // Foot.
        p.setPen(QPen(Qt::black, grosor));
        p.drawLine(QPointF(0, g.pie - g.separacion * 0.5), QPointF(g.ancho, g.pie - g.separacion * 0.5));
        p.setFont(fPie);
        p.drawText(QRectF(0, g.pie, g.ancho / 2, mPie.height()), Qt::AlignLeft,
                   m_fecha.toString(QStringLiteral("dd/MM/yyyy")));
        p.drawText(QRectF(g.ancho / 2, g.pie, g.ancho / 2, mPie.height()), Qt::AlignRight,
                   QStringLiteral("Página %1 de %2").arg(n + 1).arg(paginas));
    }
    p.end();
    return paginas;
}

bool TQRListaRevisionCodCliente::GuardaPdf(const QString& fichero) const {
    {
        QFile prueba(fichero); // QPdfWriter says nothing when it cannot write
        if (!prueba.open(QIODevice::WriteOnly)) {
            qCWarning(lcFrame).noquote() << "cannot write the PDF" << fichero << ":" << prueba.errorString();
            return false;
        }
    }
    QPdfWriter pdf(fichero);
    pdf.setTitle(Caption());
    pdf.setCreator(QStringLiteral("NodRutinas"));
    pdf.setResolution(300);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
                                  QPageLayout::Millimeter));
    return Dibuja(pdf) > 0;
}

} // namespace nod
