#include "prompts/preguntasfechas.h"

#include "companion/fechas.h"
#include "companion/hoy.h"
#include "frame/colores.h"
#include "prompts/preguntacomun_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <cmath>

namespace nod {

using namespace pregunta;

bool PreguntaDesdeElDia(TDateTime& fecha, int ano, int esquema, const QString& titulo, const QString& nota) {
    return Pregunta(
        QStringLiteral("DesdeDia"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            PonTextoLlamador(f.lblNotaDesdeDia, nota);
            f.PonEsquema(esquema);
            LimitaAlAno(f.dtpDesdeFecha, ano);
            PonFecha(f.dtpDesdeFecha, fecha);
        },
        [&](TFPreguntaDatos& f) { fecha = std::floor(ValorFecha(f.dtpDesdeFecha)); });
}

bool PreguntaDesdeHastaElDia(int programa, TDateTime& desde, TDateTime& hasta, int ano) {
    return programa > 0
               ? PreguntaDesdeHastaElDia(desde, hasta, ano, GetMaxColor(programa), GetMinColor(programa))
               : PreguntaDesdeHastaElDia(desde, hasta, ano, 0, 0);
}

namespace {

bool desdeHasta(TDateTime& desde, TDateTime& hasta, int ano, const QString* titulo,
                const std::function<void(TFPreguntaDatos&)>& colores) {
    return Pregunta(
        QStringLiteral("FechaDesdeHasta"), nullptr,
        [&](TFPreguntaDatos& f) {
            if (titulo) PonCaptionLlamador(&f, *titulo);
            colores(f);
            for (QDateTimeEdit* d : {f.dtpDesde, f.dtpHasta})
                LimitaAlAno(d, ano);
            PonFecha(f.dtpDesde, desde);
            PonFecha(f.dtpHasta, hasta);
        },
        [&](TFPreguntaDatos& f) {
            const TDateTime d = ValorFecha(f.dtpDesde), h = ValorFecha(f.dtpHasta);
            desde = d;
            hasta = h;
        });
}

} // namespace

bool PreguntaDesdeHastaElDia(TDateTime& desde, TDateTime& hasta, int ano, TColor colorArriba,
                             TColor colorAbajo) {
    return desdeHasta(desde, hasta, ano, nullptr,
                      [&](TFPreguntaDatos& f) { f.PonColores(colorArriba, colorAbajo); });
}

bool PreguntaDesdeHastaElDiaTitul(TDateTime& desde, TDateTime& hasta, int ano, const QString& titulo,
                                  int esquema) {
    return desdeHasta(desde, hasta, ano, &titulo, [&](TFPreguntaDatos& f) { f.PonEsquema(esquema); });
}

bool PreguntaFecha(TDateTime& fecha, int minima, const QString& titulo, const QString& etiqueta,
                   const QString& nota, int maxima) {
    return Pregunta(
        QStringLiteral("DesdeDia"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            if (!etiqueta.isEmpty()) PonTextoLlamador(f.lblDesdeFecha, etiqueta);
            PonTextoLlamador(f.lblNotaDesdeDia, nota);
            const QDateTime desde =
                minima > 0 ? TDateTimeToQDateTime(minima) : f.dtpDesdeFecha->minimumDateTime();
            const QDateTime hasta = maxima > 0 ? TDateTimeToQDateTime(maxima + 1.0 - 1.0 / 86400000.0)
                                               : f.dtpDesdeFecha->maximumDateTime();
            if (desde <= hasta) f.dtpDesdeFecha->setDateTimeRange(desde, hasta);
            PonFecha(f.dtpDesdeFecha, fecha);
        },
        [&](TFPreguntaDatos& f) { fecha = ValorFecha(f.dtpDesdeFecha); });
}

bool PreguntaDesdeHastaCuando(TDateTime& desde, TDateTime& hasta, TDateTime& cuando, int ano,
                              const QString& titulo, TColor colorArriba, TColor colorAbajo) {
    return Pregunta(
        QStringLiteral("FechaDesdeHastaCuando"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionYColores(f, titulo, colorArriba, colorAbajo);
            for (QDateTimeEdit* d : {f.dtpDesde2, f.dtpHasta2, f.dtpCuando})
                LimitaAlAno(d, ano);
        },
        [&](TFPreguntaDatos& f) {
            const TDateTime d = ValorFecha(f.dtpDesde2), h = ValorFecha(f.dtpHasta2),
                            c = ValorFecha(f.dtpCuando);
            desde = d;
            hasta = h;
            cuando = c;
        });
}

bool PreguntaDesdeHastaFactura(TDateTime& desde, TDateTime& hasta, QString& tipos, int ano,
                               const QString& titulo, int esquema) {
    return Pregunta(
        QStringLiteral("FechaDesdeHastaFactura"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            f.PonEsquema(esquema);
            for (QDateTimeEdit* d : {f.dtpDesde3, f.dtpHasta3})
                LimitaAlAno(d, ano);
        },
        [&](TFPreguntaDatos& f) {
            QString t = LetrasMarcadas({{f.cbTipoPendientes, u'N'},
                                        {f.cbTipoDispensadas, u'D'},
                                        {f.cbTipoCobradas, u'S'},
                                        {f.cbTipoEspeciales, u'E'},
                                        {f.cbTipoMorosos, u'M'}});
            const TDateTime d = ValorFecha(f.dtpDesde3), h = ValorFecha(f.dtpHasta3);
            desde = d;
            hasta = h;
            tipos = std::move(t);
        });
}

namespace {

bool mesAno(int& mes, int& ano, const QString& titulo, const std::function<void(TFPreguntaDatos&)>& colores) {
    return Pregunta(
        QStringLiteral("MesAño"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            colores(f);
        },
        [&](TFPreguntaDatos& f) {
            mes = TFPreguntaDatos::ItemIndex(f.cbMes) + 1;
            ano = f.seAno4->value();
        });
}

} // namespace

bool PreguntaMesAno(int& mes, int& ano, const QString& titulo, TColor colorArriba, TColor colorAbajo) {
    return mesAno(mes, ano, titulo, [&](TFPreguntaDatos& f) { f.PonColores(colorArriba, colorAbajo); });
}

bool PreguntaMesAno(int& mes, int& ano, int esquema, const QString& titulo) {
    return mesAno(mes, ano, titulo, [&](TFPreguntaDatos& f) { f.PonEsquema(esquema); });
}

bool PreguntaMesAnoSerie(int& mes, int& ano, QString& series, const QString& titulo,
                         const QString& ofrecidas) {
    return Pregunta(
        QStringLiteral("MesAñoSerie"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            if (ofrecidas.isEmpty()) return;
            for (auto [casilla, letra] : {std::pair{f.cbSerieA14, u'A'},
                                          {f.cbSerieB14, u'B'},
                                          {f.cbSerieC14, u'C'},
                                          {f.cbSerieD14, u'D'},
                                          {f.cbSerieE14, u'E'},
                                          {f.cbSerieR14, u'R'}})
                if (!ofrecidas.contains(QChar(letra))) {
                    casilla->setChecked(false);
                    casilla->hide();
                }
        },
        [&](TFPreguntaDatos& f) {
            QString s = LetrasMarcadas({{f.cbSerieA14, u'A'},
                                        {f.cbSerieB14, u'B'},
                                        {f.cbSerieC14, u'C'},
                                        {f.cbSerieD14, u'D'},
                                        {f.cbSerieE14, u'E'},
                                        {f.cbSerieR14, u'R'}});
            mes = TFPreguntaDatos::ItemIndex(f.cbMes14) + 1;
            ano = f.seAno14->value();
            series = std::move(s);
        });
}

bool PreguntaTrimAno(int& trimestre, int& ano, const QString& titulo, TColor colorArriba, TColor colorAbajo) {
    return Pregunta(
        QStringLiteral("TrimestreAño"), nullptr,
        [&](TFPreguntaDatos& f) { PonCaptionYColores(f, titulo, colorArriba, colorAbajo); },
        [&](TFPreguntaDatos& f) {
            trimestre = TFPreguntaDatos::ItemIndex(f.cbTrimestre) + 1;
            ano = f.seAno5->value();
        });
}

bool PreguntaSemestreAno(int& semestre, int& ano, const QString& titulo, TColor colorArriba,
                         TColor colorAbajo) {
    return Pregunta(
        QStringLiteral("SemestreAño"), nullptr,
        [&](TFPreguntaDatos& f) { PonCaptionYColores(f, titulo, colorArriba, colorAbajo); },
        [&](TFPreguntaDatos& f) {
            semestre = TFPreguntaDatos::ItemIndex(f.cbSemestre) + 1;
            ano = f.seAno6->value();
        });
}

namespace {

bool preguntaAno(int inicial, const QString& titulo, const QString& etiqueta, TColor colorArriba,
                 TColor colorAbajo, const std::function<void(int)>& recoge) {
    return Pregunta(
        QStringLiteral("Año"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            if (!etiqueta.isEmpty()) PonTextoLlamador(f.lblAno, etiqueta);
            f.PonColores(colorArriba, colorAbajo);
            const bool cabe = inicial >= 1 && inicial <= f.seAno->maximum();
            f.seAno->setValue(cabe ? inicial : Ano(Date()));
        },
        [&](TFPreguntaDatos& f) { recoge(f.seAno->value()); });
}

} // namespace

bool PreguntaAno(QString& anoTexto, const QString& titulo, const QString& etiqueta, TColor colorArriba,
                 TColor colorAbajo) {
    bool esNumero = false;
    const int inicial = anoTexto.trimmed().toInt(&esNumero);
    return preguntaAno(esNumero ? inicial : 0, titulo, etiqueta, colorArriba, colorAbajo,
                       [&](int v) { anoTexto = QString::number(v); });
}

bool PreguntaAno(int& anoValor, const QString& titulo, const QString& etiqueta, TColor colorArriba,
                 TColor colorAbajo) {
    return preguntaAno(anoValor, titulo, etiqueta, colorArriba, colorAbajo, [&](int v) { anoValor = v; });
}

bool PreguntaIndiceModeloAntiguo(int& mes, int& ano, bool& conCuantias) {
    return Pregunta(
        QStringLiteral("ModeloIndicSociedades"), nullptr, [](TFPreguntaDatos&) {},
        [&](TFPreguntaDatos& f) {
            mes = TFPreguntaDatos::ItemIndex(f.cbMes2) + 1;
            ano = f.seAno8->value();
            conCuantias = f.rbConCuantias->isChecked();
        });
}

} // namespace nod
