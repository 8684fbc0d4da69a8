#include "prompts/preguntasnumeros.h"

#include "companion/editimporte.h"
#include "companion/rnumcad.h"
#include "prompts/preguntacomun_p.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace nod {

using namespace pregunta;

bool PreguntaNumAno(int& numero, int& ano, const QString& titulo, int esquema, bool anoEditable) {
    return Pregunta(
        QStringLiteral("NumeroAño"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            f.PonEsquema(esquema);
            f.seNumero2->setValue(numero);
            f.seAno7->setValue(ano);
            f.seAno7->setEnabled(anoEditable);
        },
        [&](TFPreguntaDatos& f) {
            numero = f.seNumero2->value();
            ano = f.seAno7->value();
        });
}

bool PreguntaNumeroMinuta(int& numero, int& ano, const QString& titulo, const QString& etiqueta,
                          bool anoEditable) {
    return Pregunta(
        QStringLiteral("NumeroMinuta"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            if (!etiqueta.isEmpty()) PonTextoLlamador(f.lblNumero9, etiqueta);
            f.seNumero9->setValue(ano == 0 ? 0 : numero);
            f.seAno9->setValue(ano);
            f.seAno9->setEnabled(anoEditable);
        },
        [&](TFPreguntaDatos& f) {
            numero = f.seNumero9->value();
            ano = f.seAno9->value();
        });
}

bool PreguntaNumFecha(int& numero, TDateTime& fecha, const QString& titulo, int esquema, bool fechaEditable) {
    return Pregunta(
        QStringLiteral("NumeroFecha"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            f.PonEsquema(esquema);
            f.seNumero->setValue(numero);
            PonFecha(f.tdpFecha, fecha);
            f.tdpFecha->setEnabled(fechaEditable);
        },
        [&](TFPreguntaDatos& f) {
            const TDateTime d = ValorFecha(f.tdpFecha);
            numero = f.seNumero->value();
            fecha = d;
        });
}

namespace {

// Euros take two decimals; any other currency whole units.
void ponMoneda(TEditImporte* e, const QString& moneda, double valor) {
    e->SetDecimales(moneda == u"E" ? 2 : 0);
    e->PonValor(valor);
}

} // namespace

bool PreguntaCantidad(double& cantidad, const QString& etiqueta, const QString& moneda) {
    return Pregunta(
        QStringLiteral("Cantidad"), nullptr,
        [&](TFPreguntaDatos& f) {
            if (!etiqueta.isEmpty()) PonTextoLlamador(f.lblCantidad, etiqueta);
            ponMoneda(f.FECantidad, moneda, cantidad);
        },
        [&](TFPreguntaDatos& f) { cantidad = f.FECantidad->Valor(); });
}

bool PreguntaCantidadMaxMin(double& minima, double& maxima, const QString& moneda) {
    return Pregunta(
        QStringLiteral("CantidadMaxMin"), nullptr,
        [&](TFPreguntaDatos& f) {
            ponMoneda(f.FECantidad, moneda, minima);
            ponMoneda(f.FECantidadMaxima, moneda, maxima);
        },
        [&](TFPreguntaDatos& f) {
            const double mn = f.FECantidad->Valor(), mx = f.FECantidadMaxima->Valor();
            minima = mn;
            maxima = mx;
        });
}

bool PreguntaCuantia(double& cuantia, const QString& moneda) {
    return Pregunta(
        QStringLiteral("Cuantia"), nullptr,
        [&](TFPreguntaDatos& f) { ponMoneda(f.FECantidad, moneda, cuantia); },
        [&](TFPreguntaDatos& f) { cuantia = f.FECantidad->Valor(); });
}

double PreguntaCuantiaOtorgante(const QString& etiqueta) {
    double cuantia = 0;
    Pregunta(
        QStringLiteral("CuantiaOtorgante"), nullptr,
        [&](TFPreguntaDatos& f) {
            if (!etiqueta.isEmpty()) PonTextoLlamador(f.lblCantidad, etiqueta);
            ponMoneda(f.FECantidad, QStringLiteral("E"), 0);
        },
        [&](TFPreguntaDatos& f) { cuantia = f.FECantidad->Valor(); });
    return cuantia;
}

bool PreguntaPorcentaje(double& porcentaje, const QString& titulo) {
    return Pregunta(
        QStringLiteral("Porcentaje"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            f.FEPorcentaje->PonValor(porcentaje);
        },
        [&](TFPreguntaDatos& f) { porcentaje = f.FEPorcentaje->Valor(); });
}

bool PreguntaXDias(int& dias, const QString& titulo) {
    return Pregunta(
        QStringLiteral("XDias"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            f.EDias->setText(QString::number(dias));
        },
        [&](TFPreguntaDatos& f) { dias = Cad_Int(f.EDias->text()); });
}

bool PreguntaNumCopiasPlusvalia(int& copias) {
    return Pregunta(
        QStringLiteral("NumCopiasPlusvalia"), nullptr, [](TFPreguntaDatos&) {},
        [&](TFPreguntaDatos& f) {
            copias = int(std::clamp(f.FECantidad->Valor(), -2147483648.0, 2147483647.0));
        });
}

bool PreguntaTurnoPolizas(int& ano, int& trimestre, double& aportacion, double& cuantiaMinima,
                          const QString& titulo, TColor colorArriba, TColor colorAbajo) {
    return Pregunta(
        QStringLiteral("TurnoPolizas"), nullptr,
        [&](TFPreguntaDatos& f) { PonCaptionYColores(f, titulo, colorArriba, colorAbajo); },
        [&](TFPreguntaDatos& f) {
            const double a = f.FEAportacionTP->Valor(), c = f.FECuantiaTP->Valor();
            ano = f.seAnoTP->value();
            trimestre = TFPreguntaDatos::ItemIndex(f.CBTrimestreTP) + 1;
            aportacion = a;
            cuantiaMinima = c;
        });
}

} // namespace nod
