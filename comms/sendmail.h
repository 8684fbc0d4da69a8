#pragma once
// TMAPIMail: the suite's mail component. The suite handed its messages to the workstation's mail program;
// here they go straight to the office's SMTP server (libcurl), configured in CONFIG.INI section [CORREO]
// (docs/configuration.md).
//
//     TMAPIMail m;
//     m.Subject = "Factura 12/2024";
//     m.Body = "Le adjuntamos la factura.";
//     m.Recipients = {"smtp:cliente@example.es", "CC:gestor@example.es", "BCC:archivo@notaria.example"};
//     m.Attachments = {"/datos/facturas/F12-2024.pdf"};
//     m.Send(); // throws ErrorEnvio when the message cannot be sent
//
// Recipients carry the prefix of their kind: "smtp:" (To), "CC:" (Cc) and "BCC:" (Bcc; prefixes are read
// without regard to case, and an entry without a prefix is a To address). Bcc addresses go to the server in
// the envelope only and never appear in the message's headers. Blanks around an address are dropped and a
// blank entry is skipped; an address with blanks inside, without exactly one "@", with characters an address
// cannot hold or with letters beyond ASCII before the "@" is refused (a domain with accents is sent in its
// ASCII form).
//
// The message is UTF-8 throughout: the subject and display names as RFC 2047 encoded words, the body as
// quoted-printable text, each attachment as a base64 MIME part named after its file (RFC 2231 for names
// beyond ASCII). Everything that can be checked is checked before the server is contacted (settings,
// addresses, attachments), and SMTP delivers a message whole or not at all, so an error always means that
// nothing was sent.

#include "nod_core_export.h"

#include <QString>
#include <QStringList>
#include <functional>

namespace nod NOD_CORE_EXPORT {

/// How the connection to the SMTP server is protected.
enum class SeguridadSmtp {
    Ninguna,  // plain text
    StartTls, // the server must offer STARTTLS, or nothing is sent
    Tls,      // implicit TLS from the first byte (port 465)
};

/// The server and account one sending uses.
struct ServidorSmtp {
    QString servidor;
    int puerto = 587;
    SeguridadSmtp seguridad = SeguridadSmtp::StartTls;
    QString usuario, password;
    QString remitente, nombreRemitente;
    int esperaMs = 30000;

    /// The office's settings (`GetServidorCorreo` ...). Throws ErrorEnvio for a security setting it does not
    /// know, naming it.
    static ServidorSmtp DeConfiguracion();
};

class TMAPIMail {
public:
    QString Subject;
    QString Body;
    /// "smtp:", "CC:" or "BCC:" followed by one address each.
    QStringList Recipients;
    /// Paths of the files to attach, in order.
    QStringList Attachments;
    /// Asks the recipients' mail programs for a read receipt (Disposition-Notification-To the sender).
    bool AcuseRecibo = false;
    /// Polled while the message goes out (the program's events are processed meanwhile, so the screen
    /// keeps painting, at least once a second); true abandons the sending. libcurl waits for the server's
    /// answer to the finished message in a loop of its own: that last wait (at most `esperaMs`) neither
    /// paints nor hears a cancel.
    std::function<bool()> Cancelada;

    /// Sends the message with the office's settings.
    void Send() const;
    /// Sends the message through `servidor`. Throws ErrorEnvio, with a Spanish message for the clerk, when
    /// a setting, an address or an attachment is wrong (before contacting the server) or when the server
    /// refuses, stalls or cannot be reached; the password never appears in it nor in the log.
    void Send(const ServidorSmtp& servidor) const;
};

} // namespace nod
