#pragma once
// The pieces the panels of the data prompt are built from (prompts/paneles*.cpp). Each makes one
// control with its name as `objectName` and its design limits; `Filas` lays a panel out as rows of a
// label, its control and an optional text after it.

#include <QString>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;
class QWidget;

namespace nod {

class TEditImporte;

namespace pregunta {

/// The dynamic property that holds a panel's hint (the form's caption when the panel is shown).
inline constexpr char kHint[] = "hint";
/// The dynamic property that marks a year field, whose exit completes the year.
inline constexpr char kCampoAno[] = "nodCampoAno";

/// A panel: a raised frame, or a group box with `titulo` when one is given. `tipo` goes into the hidden
/// static text every panel holds.
QWidget* NuevoPanel(QWidget* padre, const char* nombre, const QString& hint, const QString& tipo,
                    const QString& titulo = {});
QGroupBox* Grupo(QWidget* padre, const char* nombre, const QString& titulo);

/// A year field: spin edit of four characters, 0..`maximo`, showing `diseno`.
QSpinBox* Ano(QWidget* padre, const char* nombre, int diseno, int maximo = 3000);
/// A number field: spin edit of `caracteres` characters, `minimo`..`maximo`.
QSpinBox* Numero(QWidget* padre, const char* nombre, int maximo = 99999, int caracteres = 5, int minimo = 0);
/// A list the clerk types into (month, quarter ... lists), or a pick-only one.
QComboBox* Lista(QWidget* padre, const char* nombre, const QStringList& elementos, bool editable = true);
QComboBox* ListaMeses(QWidget* padre, const char* nombre);
QComboBox* ListaTrimestres(QWidget* padre, const char* nombre);
QComboBox* ListaSemestres(QWidget* padre, const char* nombre);
/// A date field (dd/mm/yyyy with a calendar); the time of day it is given is kept.
QDateTimeEdit* Fecha(QWidget* padre, const char* nombre);
QLineEdit* Edit(QWidget* padre, const char* nombre, int caracteres);
TEditImporte* Importe(QWidget* padre, const char* nombre, int decimales);
QCheckBox* Casilla(QWidget* padre, const char* nombre, const QString& texto, bool marcada = false);
QRadioButton* Radio(QWidget* padre, const char* nombre, const QString& texto, bool marcada = false);
/// A plain-text label; `de` becomes its buddy.
QLabel* Etiqueta(QWidget* padre, const QString& texto, QWidget* de = nullptr, const char* nombre = nullptr);

/// Rows of a panel or group: label, control and an optional text after it, in a grid.
class Filas {
public:
    explicit Filas(QWidget* contenedor);
    /// A row "etiqueta [control] cola"; returns the label (its buddy is the control).
    QLabel* fila(const QString& etiqueta, QWidget* control, const QString& cola = {},
                 const char* nombreEtiqueta = nullptr);
    /// The same with labels made by the caller (either may be null).
    void fila(QLabel* etiqueta, QWidget* control, QWidget* cola = nullptr);
    /// A widget across the whole row.
    void ocupa(QWidget* w);
    /// Several widgets side by side across the row.
    void juntos(std::initializer_list<QWidget*> ws);
    QGridLayout* rejilla() const { return m_rejilla; }

private:
    QWidget* m_contenedor;
    QGridLayout* m_rejilla;
    int m_fila = 0;
};

/// Lays `ws` out one under the other in `contenedor` (radio and check boxes of a group).
void EnColumna(QWidget* contenedor, std::initializer_list<QWidget*> ws);

} // namespace pregunta
} // namespace nod
