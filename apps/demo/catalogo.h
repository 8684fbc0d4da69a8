#pragma once
// The demo program's list of dialogs. Each subsystem registers its own in one function
// (dialogos_<subsystem>.cpp) and adds one line to `RegistraTodos` in catalogo.cpp; an entry is one line:
//
//     c.agrega("Mensajes", "mensaje_person_sino", "Mensaje_Person con Si/No", [](QWidget* owner) { ... });

#include <QList>
#include <QString>
#include <functional>

class QWidget;

namespace nod::demo {

struct EntradaDemo {
    QString familia;
    QString nombre; // file-safe identifier, used for the screenshot "<nombre>.png"
    QString titulo;
    /// Opens the dialog (usually modally) over `owner` and describes what it returned.
    std::function<QString(QWidget* owner)> abre;
};

class CatalogoDemo {
public:
    void agrega(const char* familia, const char* nombre, const char* titulo,
                std::function<QString(QWidget*)> abre) {
        m_entradas.append({QString::fromUtf8(familia), QString::fromUtf8(nombre), QString::fromUtf8(titulo),
                           std::move(abre)});
    }
    const QList<EntradaDemo>& entradas() const { return m_entradas; }

private:
    QList<EntradaDemo> m_entradas;
};

// One registration function per subsystem.
void RegistraDialogosFrame(CatalogoDemo& c);
void RegistraDialogosProtocolo(CatalogoDemo& c);
void RegistraDialogosIdent(CatalogoDemo& c);
void RegistraDialogosDocumentos(CatalogoDemo& c);
void RegistraDialogosPreguntas(CatalogoDemo& c);
void RegistraDialogosComms(CatalogoDemo& c);
void RegistraDialogosMantenimiento(CatalogoDemo& c);

/// Every subsystem's dialogs, in the order of the library's parts.
CatalogoDemo RegistraTodos();

} // namespace nod::demo
