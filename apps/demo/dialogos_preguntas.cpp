// The data prompts in the demo: the generic form in each of its kinds, and every prompt routine with
// what it returned.
#include "apps/demo/catalogo.h"
#include "companion/config.h"
#include "companion/editimporte.h"
#include "companion/fechas.h"
#include "companion/hoy.h"
#include "companion/modal.h"
#include "prompts/preguntadatos.h"
#include "prompts/preguntas.h"

#include <QComboBox>
#include <QDate>
#include <QSpinBox>

namespace nod::demo {

namespace {

QString si(bool b) {
    return b ? QStringLiteral("aceptada") : QStringLiteral("cancelada");
}

QString fecha(TDateTime t) {
    return TDateTimeToQDate(t).toString(QStringLiteral("dd/MM/yyyy"));
}

QString texto(const QString& s) {
    return QLatin1Char('"') + s + QLatin1Char('"');
}

// A kind of the form as it stands, shown over `owner`: its caption and modal result.
QString formulario(QWidget* owner, const QString& tipo) {
    TFPreguntaDatos f(owner, tipo);
    const int r = EjecutaModal(f);
    return QStringLiteral("\"%1\": resultado modal %2").arg(f.windowTitle()).arg(r);
}

// The file name of a kind's picture: ASCII letters only ("MesAño" gives "formulario_MesAno").
QString nombreFichero(const QString& tipo) {
    QString n = tipo;
    n.replace(u'ñ', u'n');
    return QStringLiteral("formulario_") + n;
}

// A routine run with a configuration value changed for it, so that the demo shows its form.
template <typename F> QString conAjuste(const std::function<void(TConfig&)>& ajusta, F&& llama) {
    const TConfig antes = Config;
    ajusta(Config);
    const QString r = llama();
    Config = antes;
    return r;
}

void rutina(CatalogoDemo& c, const char* nombre, const char* titulo, std::function<QString()> llama) {
    c.agrega("Preguntas: rutinas", nombre, titulo, [llama = std::move(llama)](QWidget*) { return llama(); });
}

} // namespace

void RegistraDialogosPreguntas(CatalogoDemo& c) {
    for (const QString& tipo : TFPreguntaDatos::Tipos()) {
        const QByteArray nombre = nombreFichero(tipo).toUtf8();
        const QByteArray titulo = (QStringLiteral("TFPreguntaDatos: \"") + tipo + QLatin1Char('"')).toUtf8();
        c.agrega("Preguntas: formulario", nombre.constData(), titulo.constData(),
                 [tipo](QWidget* owner) { return formulario(owner, tipo); });
    }

    rutina(c, "pregunta_texto", "PreguntaTexto", [] {
        QString t = QStringLiteral("Pérez & Cía <S.L.>");
        const bool r = PreguntaTexto(QStringLiteral("Nombre de la sociedad:"), t);
        return si(r) + QStringLiteral(", texto ") + texto(t);
    });
    rutina(c, "pregunta_oficial", "PreguntaOficial", [] {
        QString n;
        const bool r = PreguntaOficial(n);
        return si(r) + QStringLiteral(", oficial ") + texto(n);
    });
    rutina(c, "pregunta_notario", "PreguntaNotario", [] {
        QString n;
        const bool r = PreguntaNotario(nullptr, n);
        return si(r) + QStringLiteral(", notario ") + texto(n);
    });
    rutina(c, "pregunta_profesion_juridica", "PreguntaProfesionJuridica (código 2)", [] {
        int codigo = 2;
        const bool r = PreguntaProfesionJuridica(nullptr, codigo);
        return si(r) + QStringLiteral(", código %1").arg(codigo);
    });
    rutina(c, "pregunta_desde_el_dia", "PreguntaDesdeElDia (año en curso)", [] {
        TDateTime d = Date();
        const bool r =
            PreguntaDesdeElDia(d, Ano(Date()), 0, QStringLiteral("Listado de escrituras"),
                               QStringLiteral("Se listarán las escrituras firmadas desde ese día."));
        return si(r) + QStringLiteral(", día ") + fecha(d);
    });
    rutina(c, "pregunta_desde_hasta_programa", "PreguntaDesdeHastaElDia (programa 1)", [] {
        TDateTime d = Date() - 30, h = Date();
        const bool r = PreguntaDesdeHastaElDia(1, d, h, 0);
        return si(r) + QStringLiteral(", del ") + fecha(d) + QStringLiteral(" al ") + fecha(h);
    });
    rutina(c, "pregunta_desde_hasta_colores", "PreguntaDesdeHastaElDia (colores)", [] {
        TDateTime d = Date() - 7, h = Date();
        const bool r = PreguntaDesdeHastaElDia(d, h, 0, 0xF0E0D0, 0xFFFFFF);
        return si(r) + QStringLiteral(", del ") + fecha(d) + QStringLiteral(" al ") + fecha(h);
    });
    rutina(c, "pregunta_desde_hasta_titul", "PreguntaDesdeHastaElDiaTitul", [] {
        TDateTime d = Date() - 7, h = Date();
        const bool r = PreguntaDesdeHastaElDiaTitul(d, h, 0, QStringLiteral("Relación de copias"), 2);
        return si(r) + QStringLiteral(", del ") + fecha(d) + QStringLiteral(" al ") + fecha(h);
    });
    rutina(c, "pregunta_num_ano", "PreguntaNumAno", [] {
        int n = 1234, a = Ano(Date());
        const bool r = PreguntaNumAno(n, a, QStringLiteral("Escritura"), 0, true);
        return si(r) + QStringLiteral(", número %1, año %2").arg(n).arg(a);
    });
    rutina(c, "pregunta_numero_minuta", "PreguntaNumeroMinuta", [] {
        int n = 15, a = Ano(Date());
        const bool r =
            PreguntaNumeroMinuta(n, a, QStringLiteral("Minuta"), QStringLiteral("Nº de minuta:"), false);
        return si(r) + QStringLiteral(", minuta %1 de %2").arg(n).arg(a);
    });
    rutina(c, "rutina_pregunta_numero_factura", "PreguntaNumeroFactura", [] {
        QString s, n, b;
        const bool r = PreguntaNumeroFactura(s, n, b);
        return si(r) + QStringLiteral(", serie ") + texto(s) + QStringLiteral(", número ") + texto(n) +
               QStringLiteral(", bis ") + texto(b);
    });
    rutina(c, "pregunta_numero_factura_serie", "PreguntaNumeroFacturaSerie", [] {
        QString s = QStringLiteral("A");
        int n = 27;
        const bool r =
            PreguntaNumeroFacturaSerie(s, n, QStringLiteral("Factura a reimprimir"), {}, Ano(Date()), {});
        return si(r) + QStringLiteral(", serie ") + texto(s) + QStringLiteral(", número %1").arg(n);
    });
    rutina(c, "pregunta_reparacion_cliente", "PreguntaReparacionCliente", [] {
        QString o;
        const bool r = PreguntaReparacionCliente(o);
        return si(r) + QStringLiteral(", reparaciones ") + texto(o);
    });
    rutina(c, "pregunta_clave", "PreguntaClave (la clave es ZEB)", [] {
        return PreguntaClave(QStringLiteral("Facturación"), QStringLiteral("Clave de acceso al módulo:"),
                             QStringLiteral("ZEB"))
                   ? QStringLiteral("clave correcta")
                   : QStringLiteral("clave no dada o incorrecta");
    });
    rutina(c, "pregunta_turno_polizas", "PreguntaTurnoPolizas", [] {
        int a = 0, t = 0;
        double ap = 0, cu = 0;
        const bool r = PreguntaTurnoPolizas(a, t, ap, cu, QStringLiteral("Turno de pólizas"), 0, 0);
        return si(r) + QStringLiteral(", %1º trimestre de %2, aportación %3 %, cuantía mínima %4")
                           .arg(t)
                           .arg(a)
                           .arg(FormateaImporte(ap, 2), FormateaImporte(cu, 2));
    });
    rutina(c, "pregunta_sexo_clientes", "PreguntaSexoClientes", [] {
        QString s;
        const bool r = PreguntaSexoClientes(s, QStringLiteral("GARCÍA LÓPEZ, ANA"), 0, 0);
        return si(r) + QStringLiteral(", sexo ") + texto(s);
    });
    rutina(c, "pregunta_porcentaje", "PreguntaPorcentaje", [] {
        double p = 21;
        const bool r = PreguntaPorcentaje(p, QStringLiteral("Porcentaje de descuento"));
        return si(r) + QStringLiteral(", %1 %").arg(FormateaImporte(p, 2));
    });
    rutina(c, "pregunta_check_box", "PreguntaCheckBox", [] {
        bool v = true;
        const bool r = PreguntaCheckBox(v, QStringLiteral("Impresión"),
                                        QStringLiteral("Imprimir también las copias simples"));
        return si(r) + QStringLiteral(", casilla ") +
               (v ? QStringLiteral("marcada") : QStringLiteral("sin marcar"));
    });
    rutina(c, "pregunta_ano_texto", "PreguntaAno (texto)", [] {
        QString a = QStringLiteral("2019");
        const bool r =
            PreguntaAno(a, QStringLiteral("Protocolo"), QStringLiteral("Año del protocolo:"), 0, 0);
        return si(r) + QStringLiteral(", año ") + texto(a);
    });
    rutina(c, "pregunta_ano_numero", "PreguntaAno (número 0: el año en curso)", [] {
        int a = 0;
        const bool r = PreguntaAno(a, QStringLiteral("Índices"), {}, 0x8C0000, 0xF5D8B4);
        return si(r) + QStringLiteral(", año %1").arg(a);
    });
    rutina(c, "pregunta_balan_mensa_especial", "PreguntaBalanMensaEspecial", [] {
        int a = Ano(Date());
        QString iva, series;
        bool devengo = false, cobro = false, suplidos = false;
        const bool r = PreguntaBalanMensaEspecial(a, iva, devengo, cobro, suplidos, series,
                                                  QStringLiteral("Balance mensual especial"));
        return si(r) + QStringLiteral(", año %1, IVA %2, %3, suplidos %4, series %5")
                           .arg(a)
                           .arg(iva, devengo ? QStringLiteral("devengo") : QStringLiteral("cobro"),
                                suplidos ? QStringLiteral("sí") : QStringLiteral("no"), texto(series));
    });
    rutina(c, "pregunta_balan_mensual_cobro", "PreguntaBalanMensualCobro", [] {
        int m = 0, a = 0;
        bool todas = false, suplidos = false;
        QString series;
        TDateTime d = 0, h = 0;
        const bool r = PreguntaBalanMensualCobro(m, a, todas, suplidos, series, d, h,
                                                 QStringLiteral("Balance mensual de cobros"));
        return si(r) + QStringLiteral(", %1/%2, series %3, escrituras del %4 al %5")
                           .arg(m)
                           .arg(a)
                           .arg(texto(series), fecha(d), fecha(h));
    });
    rutina(c, "pregunta_fecha", "PreguntaFecha (sólo este mes)", [] {
        const QDate hoy = TDateTimeToQDate(Date());
        TDateTime d = Date();
        const bool r = PreguntaFecha(
            d, int(QDateToTDateTime(QDate(hoy.year(), hoy.month(), 1))), QStringLiteral("Fecha de firma"),
            QStringLiteral("Firmada el día:"), QStringLiteral("Sólo días de este mes."),
            int(QDateToTDateTime(QDate(hoy.year(), hoy.month(), hoy.daysInMonth()))));
        return si(r) + QStringLiteral(", día ") + fecha(d);
    });
    rutina(c, "pregunta_moneda", "PreguntaMoneda (oficina que aún lista en pesetas)", [] {
        return conAjuste([](TConfig& k) { k.SetSoloEuros(false); },
                         [] {
                             QString m;
                             const bool r = PreguntaMoneda(m, 0, 0, QStringLiteral("Moneda del listado"));
                             return si(r) + QStringLiteral(", moneda ") + texto(m);
                         });
    });
    rutina(c, "pregunta_modelo_carta", "PreguntaModeloCarta", [] {
        int t = 0;
        const bool r = PreguntaModeloCarta(t);
        return si(r) + QStringLiteral(", tono %1").arg(t);
    });
    rutina(c, "pregunta_fichero", "PreguntaFichero (C:\\MODELOS)", [] {
        QString f;
        const bool r = PreguntaFichero(QStringLiteral("Plantilla de la carta"), f, {});
        return si(r) + QStringLiteral(", fichero ") + texto(f);
    });
    rutina(c, "pregunta_mes_ano", "PreguntaMesAno", [] {
        int m = 0, a = 0;
        const bool r = PreguntaMesAno(m, a, QStringLiteral("Listado mensual"), 0, 0);
        return si(r) + QStringLiteral(", %1/%2").arg(m).arg(a);
    });
    rutina(c, "pregunta_mes_ano_esquema", "PreguntaMesAno (esquema 3)", [] {
        int m = 0, a = 0;
        const bool r = PreguntaMesAno(m, a, 3, QStringLiteral("Estadística mensual"));
        return si(r) + QStringLiteral(", %1/%2").arg(m).arg(a);
    });
    rutina(c, "pregunta_mes_ano_serie", "PreguntaMesAnoSerie (series A, B y R)", [] {
        int m = 0, a = 0;
        QString s;
        const bool r =
            PreguntaMesAnoSerie(m, a, s, QStringLiteral("Facturación mensual"), QStringLiteral("ABR"));
        return si(r) + QStringLiteral(", %1/%2, series %3").arg(m).arg(a).arg(texto(s));
    });
    rutina(c, "pregunta_trim_ano", "PreguntaTrimAno", [] {
        int t = 0, a = 0;
        const bool r = PreguntaTrimAno(t, a, QStringLiteral("Declaración trimestral"), 0, 0);
        return si(r) + QStringLiteral(", %1º trimestre de %2").arg(t).arg(a);
    });
    rutina(c, "pregunta_semestre_ano", "PreguntaSemestreAno", [] {
        int s = 0, a = 0;
        const bool r = PreguntaSemestreAno(s, a, QStringLiteral("Índice semestral"), 0, 0);
        return si(r) + QStringLiteral(", %1º semestre de %2").arg(s).arg(a);
    });
    rutina(c, "pregunta_serie_ano", "PreguntaSerieAno", [] {
        int a = Ano(Date());
        QChar s = u'B';
        const bool r = PreguntaSerieAno(a, s);
        return si(r) + QStringLiteral(", año %1, serie %2").arg(a).arg(s);
    });
    rutina(c, "pregunta_serie_cliente", "PreguntaSerieCliente", [] {
        bool todas = false;
        QString s;
        const bool r = PreguntaSerieCliente(todas, s, QStringLiteral("Documentos del cliente"));
        return si(r) +
               QStringLiteral(", series %1%2").arg(texto(s), todas ? QStringLiteral(" (todas)") : QString());
    });
    rutina(c, "pregunta_serie_interesado", "PreguntaSerieInteresado", [] {
        bool todas = false;
        QString s = QStringLiteral("AE");
        const bool r = PreguntaSerieInteresado(todas, s, QStringLiteral("Documentos del interesado"));
        return si(r) + QStringLiteral(", series ") + texto(s);
    });
    rutina(c, "pregunta_num_fecha", "PreguntaNumFecha", [] {
        int n = 7;
        TDateTime d = Date();
        const bool r = PreguntaNumFecha(n, d, QStringLiteral("Póliza"), 0, true);
        return si(r) + QStringLiteral(", número %1 del ").arg(n) + fecha(d);
    });
    rutina(c, "pregunta_desde_hasta_cuando", "PreguntaDesdeHastaCuando", [] {
        TDateTime d = 0, h = 0, p = 0;
        const bool r = PreguntaDesdeHastaCuando(d, h, p, 0, QStringLiteral("Facturas pendientes"), 0, 0);
        return si(r) + QStringLiteral(", del %1 al %2 pendientes el %3").arg(fecha(d), fecha(h), fecha(p));
    });
    rutina(c, "pregunta_desde_hasta_factura", "PreguntaDesdeHastaFactura", [] {
        TDateTime d = 0, h = 0;
        QString t;
        const bool r = PreguntaDesdeHastaFactura(d, h, t, 0, QStringLiteral("Relación de facturas"), 0);
        return si(r) + QStringLiteral(", del %1 al %2, tipos %3").arg(fecha(d), fecha(h), texto(t));
    });
    rutina(c, "pregunta_indice_modelo_antiguo", "PreguntaIndiceModeloAntiguo", [] {
        int m = 0, a = 0;
        bool cuantias = false;
        const bool r = PreguntaIndiceModeloAntiguo(m, a, cuantias);
        return si(r) + QStringLiteral(", %1/%2, %3")
                           .arg(m)
                           .arg(a)
                           .arg(cuantias ? QStringLiteral("con cuantías") : QStringLiteral("sin cuantías"));
    });
    rutina(c, "pregunta_cantidad", "PreguntaCantidad (euros)", [] {
        double x = 1500.5;
        const bool r = PreguntaCantidad(x, QStringLiteral("Provisión de fondos:"), QStringLiteral("E"));
        return si(r) + QStringLiteral(", cantidad ") + FormateaImporte(x, 2);
    });
    rutina(c, "pregunta_cantidad_max_min", "PreguntaCantidadMaxMin (pesetas)", [] {
        double mn = 1000, mx = 250000;
        const bool r = PreguntaCantidadMaxMin(mn, mx, QStringLiteral("P"));
        return si(r) + QStringLiteral(", de %1 a %2").arg(FormateaImporte(mn, 0), FormateaImporte(mx, 0));
    });
    rutina(c, "pregunta_cuantia", "PreguntaCuantia", [] {
        double x = 60000;
        const bool r = PreguntaCuantia(x, QStringLiteral("E"));
        return si(r) + QStringLiteral(", cuantía ") + FormateaImporte(x, 2);
    });
    rutina(c, "pregunta_cuantia_otorgante", "PreguntaCuantiaOtorgante", [] {
        return QStringLiteral("cuantía ") +
               FormateaImporte(PreguntaCuantiaOtorgante(QStringLiteral("Cuantía de GARCÍA LÓPEZ, ANA:")), 2);
    });
    rutina(c, "pregunta_x_dias", "PreguntaXDias", [] {
        int d = 15;
        const bool r = PreguntaXDias(d, QStringLiteral("Escrituras de cuantía"));
        return si(r) + QStringLiteral(", %1 días").arg(d);
    });
    rutina(c, "pregunta_num_copias_plusvalia", "PreguntaNumCopiasPlusvalia", [] {
        int n = 0;
        const bool r = PreguntaNumCopiasPlusvalia(n);
        return si(r) + QStringLiteral(", %1 copias").arg(n);
    });
    rutina(c, "pregunta_serie_gastos", "PreguntaSerieGastos (oficina que la pregunta)", [] {
        return conAjuste([](TConfig& k) { k.SetnPreguntaSerieGastos(1); },
                         [] {
                             const bool r = PreguntaSerieGastos();
                             return si(r) + QStringLiteral(", serie de gastos ") +
                                    texto(Config.GetSerieGastos());
                         });
    });
    rutina(c, "pregunta_ref_catastral", "PreguntaRefCatastral", [] {
        QString ref = QStringLiteral("9872023vh5797s0001wx");
        const bool r = PreguntaRefCatastral(ref);
        return si(r) + QStringLiteral(", referencia ") + texto(ref);
    });
    rutina(c, "confirma_borrado_apuntes", "ConfirmaBorradoApuntes (apuntes del año pasado)", [] {
        const bool r = ConfirmaBorradoApuntes(nullptr, EncodeDate(Ano(Date()) - 1, 12, 30));
        return r ? QStringLiteral("se pueden borrar") : QStringLiteral("no se borran");
    });
}

} // namespace nod::demo
