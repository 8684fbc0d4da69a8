#include "comms/sendmail.h"

#include "companion/config.h"
#include "companion/errores.h"
#include "companion/registro.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>
#include <QUuid>
#include <curl/curl.h>
#include <memory>
#include <vector>

namespace nod {

namespace {

// ---------------------------------------------------------------------------------------------------
// Addresses

enum class Clase { Para, Copia, Oculta };

struct Destinatario {
    Clase clase;
    QByteArray ascii; // for the envelope and the headers
};

// The ASCII form of an address, or empty when it cannot be one: a single "@" with something on both sides,
// no blanks, controls or characters that delimit addresses, the part before "@" in ASCII (servers without
// SMTPUTF8 refuse anything else) and the domain in its IDNA form.
QByteArray direccionAscii(const QString& d) {
    const qsizetype arroba = d.indexOf(QLatin1Char('@'));
    if (arroba <= 0 || arroba != d.lastIndexOf(QLatin1Char('@')) || arroba == d.size() - 1) return {};
    for (QChar c : d)
        if (c.isSpace() || c.unicode() < 0x20 || c.unicode() == 0x7F ||
            QStringView(u"<>()[],;:\"\\").contains(c))
            return {};
    const QString local = d.left(arroba), dominio = d.mid(arroba + 1);
    for (QChar c : local)
        if (c.unicode() > 0x7E) return {};
    if (dominio.startsWith(QLatin1Char('.')) || dominio.endsWith(QLatin1Char('.')) ||
        dominio.contains(QStringLiteral("..")))
        return {};
    const QByteArray ace = QUrl::toAce(dominio);
    if (ace.isEmpty()) return {};
    return local.toLatin1() + '@' + ace;
}

std::vector<Destinatario> leeDestinatarios(const QStringList& entradas) {
    struct Prefijo {
        QLatin1StringView texto;
        Clase clase;
    };
    static constexpr Prefijo kPrefijos[] = {
        {QLatin1StringView("smtp:"), Clase::Para},
        {QLatin1StringView("CC:"), Clase::Copia},
        {QLatin1StringView("BCC:"), Clase::Oculta},
    };
    std::vector<Destinatario> r;
    for (const QString& entrada : entradas) {
        Clase clase = Clase::Para;
        QString resto = entrada;
        for (const Prefijo& p : kPrefijos) {
            if (entrada.startsWith(p.texto, Qt::CaseInsensitive)) {
                clase = p.clase;
                resto = entrada.mid(p.texto.size());
                break;
            }
        }
        resto = resto.trimmed();
        if (resto.isEmpty()) continue;
        const QByteArray ascii = direccionAscii(resto);
        if (ascii.isEmpty())
            throw ErrorEnvio(
                QStringLiteral("La dirección de correo «%1» no es válida. El correo no se ha enviado.")
                    .arg(resto));
        r.push_back({clase, ascii});
    }
    return r;
}

// ---------------------------------------------------------------------------------------------------
// Header texts

bool esAsciiImprimible(QStringView s) {
    for (QChar c : s)
        if (c.unicode() < 0x20 || c.unicode() > 0x7E) return false;
    return true;
}

// A header text as it stands when it is printable ASCII of a sensible length, else as RFC 2047 encoded words
// ("=?UTF-8?B?...?="), each at most 75 characters and never splitting a character, folded onto lines of their
// own.
QByteArray textoCabecera(const QString& texto) {
    if (esAsciiImprimible(texto) && texto.size() <= 900 && !texto.contains(QStringLiteral("=?")))
        return texto.toLatin1();
    constexpr int kBytesPorPalabra = 45; // 60 base64 characters inside "=?UTF-8?B?" and "?="
    QByteArray salida, trozo;
    const auto cierra = [&] {
        if (trozo.isEmpty()) return;
        if (!salida.isEmpty()) salida += "\r\n ";
        salida += "=?UTF-8?B?" + trozo.toBase64() + "?=";
        trozo.clear();
    };
    for (qsizetype i = 0; i < texto.size();) {
        const qsizetype n = texto.at(i).isHighSurrogate() && i + 1 < texto.size() ? 2 : 1;
        const QByteArray caracter = texto.mid(i, n).toUtf8();
        if (trozo.size() + caracter.size() > kBytesPorPalabra) cierra();
        trozo += caracter;
        i += n;
    }
    cierra();
    return salida;
}

// A printable ASCII text as a quoted string.
QByteArray citado(const QString& texto) {
    return '"' + texto.toLatin1().replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

// "Name <address>" with the name quoted or encoded as it needs; the address alone without a name.
QByteArray nombreYDireccion(const QString& nombre, const QByteArray& direccion) {
    const QString n = nombre.trimmed();
    if (n.isEmpty()) return direccion;
    const bool llano = esAsciiImprimible(n) && !n.contains(QStringLiteral("=?"));
    return (llano ? citado(n) : textoCabecera(n)) + " <" + direccion + '>';
}

QByteArray listaCabecera(const std::vector<Destinatario>& ds, Clase clase) {
    QByteArray r;
    for (const Destinatario& d : ds) {
        if (d.clase != clase) continue;
        if (!r.isEmpty()) r += ",\r\n ";
        r += d.ascii;
    }
    return r;
}

// Line breaks of any kind as CRLF, as the mail's text demands.
QByteArray cuerpoCrlf(const QString& cuerpo) {
    QString t = cuerpo;
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    t.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return t.toUtf8();
}

// The disposition and type of an attachment named `nombre`: plain quoted names for ASCII, RFC 2231 in the
// disposition and an encoded word in the type's name (what older mail programs read) for anything else.
struct CabecerasAdjunto {
    QByteArray disposicion; // the whole header line
    QByteArray tipo;        // the value of Content-Type
};

CabecerasAdjunto cabecerasAdjunto(const QString& nombre, const QString& tipo) {
    if (esAsciiImprimible(nombre)) {
        return {"Content-Disposition: attachment; filename=" + citado(nombre),
                tipo.toLatin1() + "; name=" + citado(nombre)};
    }
    return {"Content-Disposition: attachment; filename*=UTF-8''" + nombre.toUtf8().toPercentEncoding(),
            tipo.toLatin1() + "; name=\"" + textoCabecera(nombre).replace("\r\n ", " ") + '"'};
}

// ---------------------------------------------------------------------------------------------------
// libcurl

void iniciaCurl() {
    static const bool iniciado = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    if (!iniciado) throw ErrorEnvio(QStringLiteral("No se ha podido iniciar el envío de correo."));
}

struct BorraCurl {
    void operator()(CURL* c) const { curl_easy_cleanup(c); }
};
struct BorraMime {
    void operator()(curl_mime* m) const { curl_mime_free(m); }
};
struct BorraLista {
    void operator()(curl_slist* l) const { curl_slist_free_all(l); }
};
using Lista = std::unique_ptr<curl_slist, BorraLista>;

void agrega(Lista& lista, const QByteArray& linea) {
    curl_slist* nueva = curl_slist_append(lista.get(), linea.constData());
    if (!nueva) throw std::bad_alloc();
    (void)lista.release();
    lista.reset(nueva);
}

// What the dialogue with the server last said, to name a refused recipient or sender. Only the verb of each
// command is kept (and the address of MAIL and RCPT): the lines of an authentication are never looked at.
// The QUIT that follows a failure, and its answer, are left out.
struct Rastro {
    QByteArray orden;     // "EHLO", "MAIL", "RCPT", "DATA", "AUTH" ...
    QByteArray argumento; // the address of MAIL FROM and RCPT TO
    QByteArray respuesta; // the server's last reply line
    bool saliendo = false;
};

int rastrea(CURL*, curl_infotype tipo, char* datos, size_t largo, void* usuario) {
    auto* r = static_cast<Rastro*>(usuario);
    const QByteArray linea = QByteArray(datos, qsizetype(largo)).trimmed();
    if (r->saliendo) return 0;
    if (tipo == CURLINFO_HEADER_OUT && linea.startsWith("QUIT")) {
        r->saliendo = true;
    } else if (tipo == CURLINFO_HEADER_OUT) {
        static const QByteArray kOrdenes[] = {"EHLO", "HELO", "STARTTLS", "AUTH", "MAIL", "RCPT", "DATA"};
        for (const QByteArray& o : kOrdenes) {
            if (!linea.startsWith(o)) continue;
            r->orden = o;
            r->argumento.clear();
            if (o == "MAIL" || o == "RCPT") {
                const qsizetype a = linea.indexOf('<'), b = linea.indexOf('>');
                if (a >= 0 && b > a) r->argumento = linea.mid(a + 1, b - a - 1);
            }
            r->respuesta.clear();
            break;
        }
    } else if (tipo == CURLINFO_HEADER_IN && !linea.isEmpty()) {
        r->respuesta = linea.split('\n').last().trimmed();
    }
    return 0;
}

QString textoRespuesta(const Rastro& r) {
    return QString::fromUtf8(r.respuesta).left(200);
}

ErrorEnvio errorCurl(CURLcode codigo, const char* detalle, const Rastro& rastro, const ServidorSmtp& s) {
    const QString servidor = QStringLiteral("%1:%2").arg(s.servidor).arg(s.puerto);
    const QString curl = QString::fromUtf8(*detalle ? detalle : curl_easy_strerror(codigo));
    const bool rechazo = rastro.respuesta.startsWith('4') || rastro.respuesta.startsWith('5');
    const int espera = (qMax(1, s.esperaMs) + 999) / 1000;
    // Given up after the whole message went out: the server may have taken it.
    const bool quizas = rastro.orden == "DATA" && !rechazo &&
                        (codigo == CURLE_OPERATION_TIMEDOUT || codigo == CURLE_ABORTED_BY_CALLBACK);
    QString texto;
    switch (codigo) {
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_CONNECT:
        texto = QStringLiteral("No se puede conectar con el servidor de correo %1 (%2).").arg(servidor, curl);
        break;
    case CURLE_OPERATION_TIMEDOUT:
        texto = quizas ? QStringLiteral("El servidor de correo %1 no ha confirmado el envío en %2 s.")
                             .arg(servidor)
                             .arg(espera)
                       : QStringLiteral("El servidor de correo %1 no responde (%2 s de espera).")
                             .arg(servidor)
                             .arg(espera);
        break;
    case CURLE_ABORTED_BY_CALLBACK:
        texto = QStringLiteral("Envío cancelado.");
        break;
    case CURLE_LOGIN_DENIED:
        texto = QStringLiteral("El servidor de correo %1 no acepta el usuario o la contraseña configurados.")
                    .arg(servidor);
        break;
    case CURLE_USE_SSL_FAILED:
        texto = QStringLiteral("El servidor de correo %1 no ofrece una conexión segura (STARTTLS).")
                    .arg(servidor);
        break;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_CERTPROBLEM:
        texto = QStringLiteral(
                    "No se ha podido establecer una conexión segura con el servidor de correo %1 (%2).")
                    .arg(servidor, curl);
        break;
    default:
        if (rechazo && rastro.orden == "RCPT")
            texto = QStringLiteral("El servidor de correo ha rechazado al destinatario %1 (%2).")
                        .arg(QString::fromUtf8(rastro.argumento), textoRespuesta(rastro));
        else if (rechazo && rastro.orden == "MAIL")
            texto = QStringLiteral("El servidor de correo ha rechazado al remitente %1 (%2).")
                        .arg(QString::fromUtf8(rastro.argumento), textoRespuesta(rastro));
        else if (rechazo)
            texto = QStringLiteral("El servidor de correo %1 ha rechazado el mensaje (%2).")
                        .arg(servidor, textoRespuesta(rastro));
        else
            texto = QStringLiteral("No se ha podido enviar el correo por el servidor %1 (%2).")
                        .arg(servidor, curl);
    }
    texto += quizas ? QStringLiteral(" No consta que el correo se haya enviado.")
                    : QStringLiteral(" El correo no se ha enviado.");
    qCWarning(lcComms).noquote() << "SMTP sending failed:" << curl << "| last command" << rastro.orden
                                 << "| last reply" << rastro.respuesta;
    return ErrorEnvio(texto);
}

struct BorraMulti {
    void operator()(CURLM* m) const { curl_multi_cleanup(m); }
};

// Processes the program's events and asks whether the sending was cancelled. libcurl calls it from the
// waits it makes inside one call (the server's greeting, once a second), where `envia` is not reached.
int progresa(void* datos, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    if (QCoreApplication::instance()) QCoreApplication::processEvents();
    const auto& cancelada = *static_cast<const std::function<bool()>*>(datos);
    return cancelada && cancelada() ? 1 : 0;
}

// Runs the transfer while the program's events are processed every 50 ms (the screen keeps painting) and
// `cancelada` is polled; true abandons the transfer.
CURLcode envia(CURL* c, const std::function<bool()>& cancelada) {
    std::unique_ptr<CURLM, BorraMulti> multi(curl_multi_init());
    if (!multi || curl_multi_add_handle(multi.get(), c) != CURLM_OK) return CURLE_OUT_OF_MEMORY;
    CURLcode resultado = CURLE_OK;
    for (int activas = 1; activas > 0;) {
        if (curl_multi_perform(multi.get(), &activas) != CURLM_OK) {
            resultado = CURLE_SEND_ERROR;
            break;
        }
        if (activas == 0) {
            int quedan = 0;
            while (CURLMsg* m = curl_multi_info_read(multi.get(), &quedan))
                if (m->msg == CURLMSG_DONE) resultado = m->data.result;
            break;
        }
        curl_multi_poll(multi.get(), nullptr, 0, 50, nullptr);
        if (QCoreApplication::instance()) QCoreApplication::processEvents();
        if (cancelada && cancelada()) {
            resultado = CURLE_ABORTED_BY_CALLBACK;
            break;
        }
    }
    curl_multi_remove_handle(multi.get(), c);
    return resultado;
}

template <typename T> void fija(CURL* c, CURLoption opcion, T valor) {
    if (curl_easy_setopt(c, opcion, valor) != CURLE_OK)
        throw ErrorEnvio(
            QStringLiteral("No se ha podido preparar el envío de correo (opción %1).").arg(int(opcion)));
}

} // namespace

ServidorSmtp ServidorSmtp::DeConfiguracion() {
    ServidorSmtp s;
    s.servidor = Config.GetServidorCorreo().trimmed();
    s.puerto = Config.GetPuertoCorreo();
    const QString seguridad = Config.GetSeguridadCorreo().trimmed().toUpper();
    if (seguridad == u"NINGUNA")
        s.seguridad = SeguridadSmtp::Ninguna;
    else if (seguridad == u"STARTTLS")
        s.seguridad = SeguridadSmtp::StartTls;
    else if (seguridad == u"TLS")
        s.seguridad = SeguridadSmtp::Tls;
    else
        throw ErrorEnvio(
            QStringLiteral("La seguridad del servidor de correo configurada («%1») no es NINGUNA, "
                           "STARTTLS ni TLS. El correo no se ha enviado.")
                .arg(Config.GetSeguridadCorreo()));
    s.usuario = Config.GetUsuarioCorreo();
    s.password = Config.GetPasswordCorreo();
    s.remitente = Config.GetRemitenteCorreo().trimmed();
    if (s.remitente.isEmpty() && s.usuario.contains(QLatin1Char('@'))) s.remitente = s.usuario.trimmed();
    s.nombreRemitente = Config.GetNombreRemitenteCorreo();
    s.esperaMs = Config.GetEsperaCorreoMs();
    return s;
}

void TMAPIMail::Send() const {
    Send(ServidorSmtp::DeConfiguracion());
}

void TMAPIMail::Send(const ServidorSmtp& s) const {
    // Everything that can be wrong on this side is found before the server is contacted.
    if (s.servidor.isEmpty())
        throw ErrorEnvio(
            QStringLiteral("No se ha configurado el servidor de correo (CONFIG.INI, sección CORREO). "
                           "El correo no se ha enviado."));
    if (s.servidor.contains(QLatin1Char('/')) || s.servidor.contains(QLatin1Char(' ')) ||
        (!s.servidor.contains(QLatin1Char(':')) && QUrl::toAce(s.servidor).isEmpty()))
        throw ErrorEnvio(
            QStringLiteral("El servidor de correo configurado «%1» no es un nombre ni una dirección "
                           "válidos. El correo no se ha enviado.")
                .arg(s.servidor));
    if (s.puerto <= 0 || s.puerto > 65535)
        throw ErrorEnvio(
            QStringLiteral("El puerto del servidor de correo configurado (%1) no es válido. El correo "
                           "no se ha enviado.")
                .arg(s.puerto));
    const QByteArray remitente = direccionAscii(s.remitente);
    if (remitente.isEmpty())
        throw ErrorEnvio(
            s.remitente.isEmpty()
                ? QStringLiteral("No se ha configurado la dirección del remitente del correo "
                                 "(CONFIG.INI, sección CORREO). El correo no se ha enviado.")
                : QStringLiteral("La dirección del remitente configurada «%1» no es válida. El correo "
                                 "no se ha enviado.")
                      .arg(s.remitente));
    const std::vector<Destinatario> destinatarios = leeDestinatarios(Recipients);
    if (destinatarios.empty())
        throw ErrorEnvio(QStringLiteral("El correo no tiene ningún destinatario. No se ha enviado."));
    for (const QString& adjunto : Attachments) {
        const QFileInfo fi(adjunto);
        QFile f(adjunto);
        if (!fi.isFile() || !f.open(QIODevice::ReadOnly))
            throw ErrorEnvio(
                QStringLiteral("No se encuentra o no se puede leer el fichero adjunto «%1». El correo no "
                               "se ha enviado.")
                    .arg(adjunto));
    }

    iniciaCurl();
    std::unique_ptr<CURL, BorraCurl> curl(curl_easy_init());
    if (!curl) throw ErrorEnvio(QStringLiteral("No se ha podido iniciar el envío de correo."));
    CURL* c = curl.get();

    // An IPv6 address goes in brackets; a name with accents in its IDNA form.
    const QByteArray anfitrion =
        s.servidor.contains(QLatin1Char(':')) ? '[' + s.servidor.toLatin1() + ']' : QUrl::toAce(s.servidor);
    const QByteArray url =
        (s.seguridad == SeguridadSmtp::Tls ? QByteArrayLiteral("smtps://") : QByteArrayLiteral("smtp://")) +
        anfitrion + ':' + QByteArray::number(s.puerto);
    const QByteArray usuario = s.usuario.toUtf8(), password = s.password.toUtf8();
    fija(c, CURLOPT_URL, url.constData());
    fija(c, CURLOPT_USE_SSL, long(s.seguridad == SeguridadSmtp::Ninguna ? CURLUSESSL_NONE : CURLUSESSL_ALL));
    if (!s.usuario.isEmpty()) {
        fija(c, CURLOPT_USERNAME, usuario.constData());
        fija(c, CURLOPT_PASSWORD, password.constData());
    }
    const long segundos = std::max(1L, long((s.esperaMs + 999) / 1000));
    fija(c, CURLOPT_CONNECTTIMEOUT_MS, long(std::max(1, s.esperaMs)));
    fija(c, CURLOPT_SERVER_RESPONSE_TIMEOUT, segundos);
    fija(c, CURLOPT_LOW_SPEED_LIMIT, 1L);
    fija(c, CURLOPT_LOW_SPEED_TIME, segundos);
    fija(c, CURLOPT_NOSIGNAL, 1L);
    fija(c, CURLOPT_NOPROXY, "*");
    char detalle[CURL_ERROR_SIZE] = {};
    fija(c, CURLOPT_ERRORBUFFER, detalle);
    Rastro rastro;
    fija(c, CURLOPT_VERBOSE, 1L); // read by `rastrea`, never printed
    fija(c, CURLOPT_DEBUGFUNCTION, &rastrea);
    fija(c, CURLOPT_DEBUGDATA, &rastro);

    const QByteArray envoltorioRemitente = '<' + remitente + '>';
    fija(c, CURLOPT_MAIL_FROM, envoltorioRemitente.constData());
    Lista sobre;
    for (const Destinatario& d : destinatarios)
        agrega(sobre, '<' + d.ascii + '>');
    fija(c, CURLOPT_MAIL_RCPT, sobre.get());

    Lista cabeceras;
    agrega(cabeceras, "Date: " + QDateTime::currentDateTime().toString(Qt::RFC2822Date).toLatin1());
    agrega(cabeceras, "From: " + nombreYDireccion(s.nombreRemitente, remitente));
    if (const QByteArray para = listaCabecera(destinatarios, Clase::Para); !para.isEmpty())
        agrega(cabeceras, "To: " + para);
    else
        agrega(cabeceras, "To: undisclosed-recipients:;");
    if (const QByteArray copia = listaCabecera(destinatarios, Clase::Copia); !copia.isEmpty())
        agrega(cabeceras, "Cc: " + copia);
    agrega(cabeceras, "Subject: " + textoCabecera(Subject));
    agrega(cabeceras, "Message-ID: <" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + '@' +
                          remitente.mid(remitente.indexOf('@') + 1) + '>');
    if (AcuseRecibo) agrega(cabeceras, "Disposition-Notification-To: " + envoltorioRemitente);
    fija(c, CURLOPT_HTTPHEADER, cabeceras.get());

    std::unique_ptr<curl_mime, BorraMime> mime(curl_mime_init(c));
    const QByteArray cuerpo = cuerpoCrlf(Body);
    curl_mimepart* texto = curl_mime_addpart(mime.get());
    curl_mime_data(texto, cuerpo.constData(), size_t(cuerpo.size()));
    curl_mime_type(texto, "text/plain; charset=UTF-8");
    curl_mime_encoder(texto, "quoted-printable");
    const QMimeDatabase tipos;
    for (const QString& adjunto : Attachments) {
        const QString nombre = QFileInfo(adjunto).fileName();
        curl_mimepart* parte = curl_mime_addpart(mime.get());
        if (curl_mime_filedata(parte, QFile::encodeName(adjunto).constData()) != CURLE_OK)
            throw ErrorEnvio(
                QStringLiteral("No se puede adjuntar el fichero «%1». El correo no se ha enviado.")
                    .arg(adjunto));
        curl_mime_encoder(parte, "base64");
        const CabecerasAdjunto cabecera =
            cabecerasAdjunto(nombre, tipos.mimeTypeForFile(adjunto, QMimeDatabase::MatchExtension).name());
        curl_mime_type(parte, cabecera.tipo.constData());
        Lista propias;
        agrega(propias, cabecera.disposicion);
        curl_mime_headers(parte, propias.release(), 1);
    }
    fija(c, CURLOPT_MIMEPOST, mime.get());

    qCInfo(lcComms).noquote() << "sending mail through" << QString::fromLatin1(url) << "to"
                              << destinatarios.size() << "recipients," << Attachments.size() << "attachments";
    fija(c, CURLOPT_NOPROGRESS, 0L);
    fija(c, CURLOPT_XFERINFOFUNCTION, &progresa);
    fija(c, CURLOPT_XFERINFODATA, &Cancelada);
    const CURLcode resultado = envia(c, Cancelada);
    if (resultado != CURLE_OK) throw errorCurl(resultado, detalle, rastro, s);
}

} // namespace nod
