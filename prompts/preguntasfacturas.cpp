#include "prompts/preguntasfacturas.h"

#include "companion/config.h"
#include "prompts/preguntacomun_p.h"
#include "protocol/preguntanumerofactura.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

namespace nod {

using namespace pregunta;

bool PreguntaNumeroFactura(QString& serie, QString& numero, QString& bis) {
    return Pregunta(
        QStringLiteral("NumeroFactura"), nullptr, [](TFPreguntaDatos&) {},
        [&](TFPreguntaDatos& f) {
            QString n = (f.AnoNumeroResultado + QString(10, u' ')).left(10);
            QString s = (QStringLiteral("  ") + f.SerieResultado).right(2);
            QString b = f.BisResultado.isEmpty() ? QStringLiteral(" ") : f.BisResultado;
            numero = std::move(n);
            serie = std::move(s);
            bis = std::move(b);
        });
}

bool PreguntaNumeroFactura(QString& serie, QString& numero) {
    QString bis;
    return PreguntaNumeroFactura(serie, numero, bis);
}

bool PreguntaNumeroFacturaSerie(QString& serie, int& numero, const QString& titulo, const QString& bis,
                                int ano, const QString&) {
    QString s = serie, b = bis;
    int a = ano, n = numero;
    if (!PreguntaNumeroFacturaForm(s, a, n, b, titulo)) return false;
    serie = std::move(s);
    numero = n;
    return true;
}

namespace {

QString seriesBalance(const TFPreguntaDatos& f) {
    return LetrasMarcadas({{f.cbSerieA3, u'A'},
                           {f.cbSerieB3, u'B'},
                           {f.cbSerieC3, u'C'},
                           {f.cbSerieD3, u'D'},
                           {f.cbSerieE3, u'E'},
                           {f.cbSerieF3, u'F'}});
}

} // namespace

bool PreguntaBalanMensaEspecial(int& ano, QString& iva, bool& devengo, bool& cobro, bool& suplidos,
                                QString& series, const QString& titulo) {
    return Pregunta(
        QStringLiteral("BalanMensaEspecial"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            f.seAno3->setValue(ano);
        },
        [&](TFPreguntaDatos& f) {
            QString s = seriesBalance(f), i = f.eIVA2->text();
            ano = f.seAno3->value();
            iva = std::move(i);
            devengo = f.rbDevengo->isChecked();
            cobro = f.rbCobro->isChecked();
            suplidos = f.cbSuplidos->isChecked();
            series = std::move(s);
        });
}

bool PreguntaBalanMensualCobro(int& mes, int& ano, bool& todas, bool& suplidos, QString& series,
                               TDateTime& desde, TDateTime& hasta, const QString& titulo) {
    return Pregunta(
        QStringLiteral("BalanMensualCobro"), nullptr,
        [&](TFPreguntaDatos& f) { PonCaptionLlamador(&f, titulo); },
        [&](TFPreguntaDatos& f) {
            QString s = seriesBalance(f);
            const TDateTime d = ValorFecha(f.dtpDesde16), h = ValorFecha(f.dtpHasta16);
            mes = TFPreguntaDatos::ItemIndex(f.cbMes16) + 1;
            ano = f.seAno16->value();
            todas = f.cbTodas16->isChecked();
            suplidos = f.cbSuplidos->isChecked();
            series = std::move(s);
            desde = d;
            hasta = h;
        });
}

bool PreguntaMoneda(QString& moneda, TColor colorArriba, TColor colorAbajo, const QString& titulo) {
    if (Config.GetSoloEuros()) {
        moneda = QStringLiteral("E");
        return true;
    }
    return Pregunta(
        QStringLiteral("Moneda"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionYColores(f, titulo, colorArriba, colorAbajo);
            f.CBMoneda->setCurrentIndex(Config.GetMonedaListados() == u"P" ? 0 : 1);
        },
        [&](TFPreguntaDatos& f) {
            const int i = f.CBMoneda->currentIndex();
            if (i >= 0 && i < 2) moneda = QStringLiteral("PE").mid(i, 1);
        });
}

bool PreguntaSerieGastos() {
    if (Config.GetnPreguntaSerieGastos() != 1) return true;
    return Pregunta(
        QStringLiteral("SerieGastos"), nullptr,
        [](TFPreguntaDatos& f) {
            for (auto [boton, letra] :
                 {std::pair{f.rbSerieR, u'R'}, {f.rbSerieS, u'S'}, {f.rbSerieP, u'P'}, {f.rbSerieN, u'N'}})
                if (Config.GetSerieGastos() == QChar(letra)) boton->setChecked(true);
        },
        [](TFPreguntaDatos& f) {
            const QString serie = LetrasMarcadas(
                {{f.rbSerieR, u'R'}, {f.rbSerieS, u'S'}, {f.rbSerieP, u'P'}, {f.rbSerieN, u'N'}});
            if (!serie.isEmpty()) Config.SetSerieGastos(serie);
        });
}

bool PreguntaSerieAno(int& ano, QChar& serie) {
    return Pregunta(
        QStringLiteral("AñoSerie"), nullptr,
        [&](TFPreguntaDatos& f) {
            f.seAno2->setValue(ano);
            for (auto [boton, letra] :
                 {std::pair{f.rbSerieA, u'A'}, {f.rbSerieB, u'B'}, {f.rbSerieC, u'C'}, {f.rbSerieD, u'D'}})
                if (serie == QChar(letra)) boton->setChecked(true);
        },
        [&](TFPreguntaDatos& f) {
            const QString letra = LetrasMarcadas(
                {{f.rbSerieA, u'A'}, {f.rbSerieB, u'B'}, {f.rbSerieC, u'C'}, {f.rbSerieD, u'D'}});
            ano = f.seAno2->value();
            if (!letra.isEmpty()) serie = letra.front();
        });
}

} // namespace nod
