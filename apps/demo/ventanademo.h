#pragma once
// The demo's main window: the library's dialogs by family; opening one shows what it returned.

#include "apps/demo/catalogo.h"

#include <QMainWindow>

class QPlainTextEdit;
class QTreeWidget;

namespace nod::demo {

class VentanaDemo : public QMainWindow {
    Q_OBJECT
public:
    explicit VentanaDemo(CatalogoDemo catalogo, QWidget* parent = nullptr);

    /// Opens one entry and writes its result in the log; returns the result text.
    QString abre(const EntradaDemo& e);

private:
    void abreSeleccionada();

    CatalogoDemo m_catalogo;
    QTreeWidget* m_arbol;
    QPlainTextEdit* m_registro;
};

} // namespace nod::demo
