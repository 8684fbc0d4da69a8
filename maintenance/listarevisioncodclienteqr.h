#pragma once
// TQRListaRevisionCodCliente: the printed list of the client-code revision (unit Listarevisioncodclienteqr),
// a Qt print document. Every page carries the title "DOCUMENTOS CON CÓDIGOS DE CLIENTES ERRÓNEOS", the
// subtitle ("(En todas las tablas)", or "(En la tabla CLAVES)" after a one-table run) and the column heads
// "Tabla", "Mensaje", "Código"; one line per line of the result set, in its order (long texts wrap within
// their column), and at its foot the date of the list and "Página 2 de 5". An empty result set still gives
// one page, reading "No se han encontrado códigos de clientes erróneos.", so that the clerk sees that the
// revision ran.
//
//     TQRListaRevisionCodCliente lista(revision.Mensajes());
//     lista.GuardaPdf("/tmp/revision.pdf");   // A4, 15 mm margins
//     lista.Preview(this);                    // the window "Listado Clientes Repetidos"
//
// Painting and the PDF need Qt Gui (a QGuiApplication); `Preview` and `Print` need Qt Widgets and Qt Print
// Support and live in the maintenance dialogs' library.

#include "maintenance/revisioncodcliente.h"
#include "nod_widgets_export.h"

#include <QDate>
#include <QString>

class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace nod NOD_WIDGETS_EXPORT {

class TQRListaRevisionCodCliente {
public:
    /// The list of `lineas` under `subtitulo`, dated `fecha` (today when not valid).
    explicit TQRListaRevisionCodCliente(TMensajesRevision lineas,
                                        QString subtitulo = QStringLiteral("(En todas las tablas)"),
                                        QDate fecha = {});

    /// The subtitle of a one-table run: "(En la tabla " + the table's name in upper case + ")".
    static QString SubtituloDeTabla(const QString& tabla);

    /// "Listado Clientes Repetidos": the preview window's caption and the PDF's title.
    static QString Caption();
    static QString Titulo();
    const QString& Subtitulo() const { return m_subtitulo; }
    const TMensajesRevision& Lineas() const { return m_lineas; }

    /// Paints the list on a paged device (a QPdfWriter, a QPrinter), page after page, inside the device's
    /// margins. Returns the number of pages, 0 when the device cannot be painted on.
    int Dibuja(QPagedPaintDevice& dispositivo) const;

    /// Writes the list as a PDF file (A4 portrait, 15 mm margins). False when the file cannot be written
    /// (the reason goes to the log).
    bool GuardaPdf(const QString& fichero) const;

    /// Shows the list in a modal preview window captioned `Caption()`, from which the clerk prints it.
    void Preview(QWidget* owner = nullptr) const;
    /// Prints the list on `impresora` (A4 and 15 mm margins are set first). False when nothing printed.
    bool Print(QPrinter& impresora) const;

private:
    TMensajesRevision m_lineas;
    QString m_subtitulo;
    QDate m_fecha;
};

} // namespace nod
