// The library frame's dialogs in the demo: message boxes, the progress window and the frame forms.
#include "apps/demo/catalogo.h"
#include "companion/mensajes.h"
#include "frame/esperalistado.h"
#include "frame/mensajeperson.h"
#include "frame/preguntazeb.h"
#include "frame/relojnod.h"
#include "frame/versionnod.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

namespace nod::demo {

namespace {

QString resultado(int r) {
    return QStringLiteral("resultado modal %1").arg(r);
}

// Lets the event loop run for a while, so that a non-modal window can be seen.
void espera(int ms) {
    QEventLoop bucle;
    QTimer::singleShot(ms, &bucle, &QEventLoop::quit);
    bucle.exec();
}

// A caller's text as the suite's programs build them: a name with "&" and "<", line breaks of every kind
// and more words than the box's three lines hold.
QString textoLargo() {
    QString t = QStringLiteral("La copia electrónica de la escritura 1234 de «Pérez & Cía <S.L.>» no se ha "
                               "podido firmar.\rMotivo: el certificado del notario caduca hoy.\r\n");
    while (t.size() < 2000)
        t += QStringLiteral("Revise el certificado en la configuración del puesto y vuelva a intentarlo; ");
    return t;
}

QString muestraProgreso() {
    TFEsperaListado* f = MuestraProgreso(QStringLiteral("Generando el Listado."));
    f->show();
    for (int i = 0; i <= 100; i += 10) {
        CambiaProgreso(QStringLiteral("Listando clientes: %1 %").arg(i), i, f);
        espera(150);
    }
    CierraProgreso(f);
    return QStringLiteral("barra llevada de 0 a 100 y ventana cerrada");
}

QString muestraEspera() {
    MuestraMensaje(QStringLiteral("Consultando el Catastro..."));
    espera(900);
    CambiaMensaje(QStringLiteral("Leyendo la respuesta..."));
    espera(900);
    CierraMensaje();
    return QStringLiteral("ventana de espera mostrada, cambiada y cerrada");
}

QString muestraReloj(QWidget* owner) {
    // The demo never changes the machine's clock: it reports what would have been set.
    QDateTime pedida;
    AjustadorReloj anterior = FijaAjustadorReloj([&](const QDateTime& t, QString&) {
        pedida = t;
        return true;
    });
    TFRelojNod f(owner);
    const int r = f.exec();
    FijaAjustadorReloj(anterior);
    return pedida.isValid() ? QStringLiteral("%1; el reloj se pondría a %2 (la demostración no lo cambia)")
                                  .arg(resultado(r), pedida.toString(QStringLiteral("dd/MM/yyyy HH:mm:ss")))
                            : resultado(r);
}

} // namespace

void RegistraDialogosFrame(CatalogoDemo& c) {
    c.agrega("Mensajes", "mensaje_person_sino", "Mensaje_Person: dos líneas, Si / No", [](QWidget*) {
        return resultado(
            Mensaje_Person(1, QStringLiteral("¿Desea continuar?"), 1, QStringLiteral("Confirmación"),
                           QStringLiteral("Se va a anular la escritura 1234 del protocolo de 2024."), {}, {},
                           0, 0x0000FF, 0xFFFFFF, 0));
    });
    c.agrega("Mensajes", "mensaje_person_aceptar", "Mensaje_Person: una línea, Aceptar, esquema 1",
             [](QWidget*) {
                 return resultado(
                     Mensaje_Person(0, {}, 0, QStringLiteral("Aviso"),
                                    QStringLiteral("No se ha encontrado el cliente con el código indicado."),
                                    {}, {}, 1, 0, 0xFFFFFF, 0));
             });
    c.agrega("Mensajes", "mensaje_person_botones", "Mensaje_Person: botones propios, esquema 2",
             [](QWidget*) {
                 return resultado(
                     Mensaje_Person(6, QStringLiteral("Elija qué hacer con la copia electrónica"), 1,
                                    QStringLiteral("Copia electrónica"), {}, QStringLiteral("&Enviar"),
                                    QStringLiteral("&Guardar"), 2, 0, 0xFFFFFF, 0));
             });
    c.agrega("Mensajes", "mensaje_person_larga", "Mensaje_Person: segunda línea larga", [](QWidget*) {
        return resultado(Mensaje_Person(
            3, QStringLiteral("Quedará pendiente hasta registrar el pago en caja."), 1,
            QStringLiteral("Facturación"), QStringLiteral("La factura no tiene forma de pago."), {}, {}, 0,
            0x800000, 0xFFFFFF, 0));
    });
    c.agrega("Mensajes", "mensaje_person_texto_largo", "Mensaje_Person: texto largo con saltos y marcas",
             [](QWidget*) {
                 return resultado(Mensaje_Person(2, QStringLiteral("¿Desea enviarla de todos modos?"), 0,
                                                 QStringLiteral("Copia electrónica"), textoLargo(), {}, {}, 0,
                                                 0x0000FF, 0xFFFFFF, 0));
             });
    c.agrega("Mensajes", "activos_financieros_sino", "Mensaje_ActivosFinancieros: Si / No",
             [](QWidget*) { return resultado(Mensaje_ActivosFinancieros(1)); });
    c.agrega("Mensajes", "activos_financieros_aceptar", "Mensaje_ActivosFinancieros: Aceptar",
             [](QWidget*) { return resultado(Mensaje_ActivosFinancieros(0)); });
    c.agrega("Mensajes", "mensaje_error", "Mensaje_Error", [](QWidget*) {
        Mensaje_Error(QStringLiteral("No se puede abrir la tabla CLIENTES.DBF."));
        return QStringLiteral("cerrado");
    });
    c.agrega("Mensajes", "mensaje_info", "Mensaje_Info", [](QWidget*) {
        Mensaje_Info(QStringLiteral("El listado se ha generado correctamente."));
        return QStringLiteral("cerrado");
    });
    c.agrega("Mensajes", "mensaje_sino", "Mensaje_SiNo", [](QWidget*) {
        return resultado(Mensaje_SiNo(QStringLiteral("¿Desea imprimirla ahora?"),
                                      QStringLiteral("La minuta está preparada."), QStringLiteral("Minuta")));
    });
    c.agrega("Mensajes", "mensaje_nosi", "Mensaje_NoSi", [](QWidget*) {
        return resultado(Mensaje_NoSi(QStringLiteral("¿Desea borrarlo de todos modos?"),
                                      QStringLiteral("El cliente tiene escrituras."),
                                      QStringLiteral("Clientes")));
    });
    c.agrega("Mensajes", "espera", "MuestraMensaje / CambiaMensaje / CierraMensaje",
             [](QWidget*) { return muestraEspera(); });
    c.agrega("Marco", "progreso", "Ventana de progreso (TFEsperaListado)",
             [](QWidget*) { return muestraProgreso(); });
    c.agrega("Marco", "pregunta_zeb", "Contacto con el fabricante (TFPreguntaZEB)", [](QWidget* owner) {
        TFPreguntaZEB f(owner,
                        QStringLiteral("Para cualquier consulta sobre el programa, póngase en contacto con "
                                       "nuestro servicio de atención:"));
        return resultado(f.exec());
    });
    c.agrega("Marco", "reloj", "Fecha y hora del sistema (TFRelojNod)",
             [](QWidget* owner) { return muestraReloj(owner); });
    c.agrega("Marco", "version", "Versión (TFVersionNod)", [](QWidget* owner) {
        TFVersionNod f(owner);
        return resultado(f.exec());
    });
}

} // namespace nod::demo
