#include "prompts/preguntaselecciones.h"

#include "companion/config.h"
#include "ident/editrefcatastral.h"
#include "prompts/preguntacomun_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace nod {

using namespace pregunta;

namespace {

// Shows `texto` in a list when it is one of its items.
void eligeTexto(QComboBox* lista, const QString& texto) {
    const int i = lista->findText(texto, Qt::MatchExactly);
    if (i >= 0) lista->setCurrentIndex(i);
}

// The list's text: what the clerk sees, an item or nothing.
QString textoLista(const QComboBox* lista) {
    const int i = TFPreguntaDatos::ItemIndex(lista);
    return i >= 0 ? lista->itemText(i) : lista->currentText();
}

} // namespace

bool PreguntaTexto(const QString& titulo, QString& texto) {
    return Pregunta(
        QStringLiteral("Texto"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonTextoLlamador(f.lblTexto, titulo);
            f.eTexto->setText(texto);
            f.eTexto->setCursorPosition(0);
        },
        [&](TFPreguntaDatos& f) { texto = f.eTexto->text(); });
}

bool PreguntaOficial(QString& nombre) {
    return Pregunta(
        QStringLiteral("Oficial"), nullptr, [&](TFPreguntaDatos& f) { eligeTexto(f.CBOficial, nombre); },
        [&](TFPreguntaDatos& f) { nombre = textoLista(f.CBOficial); });
}

bool PreguntaNotario(QWidget* owner, QString& notario) {
    return Pregunta(
        QStringLiteral("Notario"), owner, [&](TFPreguntaDatos& f) { eligeTexto(f.cbNotario, notario); },
        [&](TFPreguntaDatos& f) { notario = textoLista(f.cbNotario); });
}

namespace {
constexpr int kCodigosProfesion[] = {1, 2, 3, 9};
} // namespace

bool PreguntaProfesionJuridica(QWidget* owner, int& codigo) {
    return Pregunta(
        QStringLiteral("ProfesionJuridica"), owner,
        [&](TFPreguntaDatos& f) {
            const auto* c = std::find(std::begin(kCodigosProfesion), std::end(kCodigosProfesion), codigo);
            f.cbNotario->setCurrentIndex(c == std::end(kCodigosProfesion) ? -1 : int(c - kCodigosProfesion));
        },
        [&](TFPreguntaDatos& f) {
            const int i = f.cbNotario->currentIndex();
            if (i >= 0 && i < 4) codigo = kCodigosProfesion[i];
        });
}

bool PreguntaSexoClientes(QString& sexo, const QString& titulo, TColor colorArriba, TColor colorAbajo) {
    return Pregunta(
        QStringLiteral("SexoClientes"), nullptr,
        [&](TFPreguntaDatos& f) { PonCaptionYColores(f, titulo, colorArriba, colorAbajo); },
        [&](TFPreguntaDatos& f) {
            const int i = f.CBSexo->currentIndex();
            if (i >= 0 && i < 3) sexo = QStringLiteral("HMS").mid(i, 1);
        });
}

bool PreguntaModeloCarta(int& tono) {
    return Pregunta(
        QStringLiteral("ModeloCarta"), nullptr, [](TFPreguntaDatos&) {},
        [&](TFPreguntaDatos& f) { tono = f.rbBlando->isChecked()  ? 0
                                         : f.rbMedio->isChecked() ? 1
                                                                  : 2; });
}

bool PreguntaReparacionCliente(QString& opciones) {
    return Pregunta(
        QStringLiteral("ReparacionClientes"), nullptr, [](TFPreguntaDatos&) {},
        [&](TFPreguntaDatos& f) {
            opciones = LetrasMarcadas({{f.cbReparacion1, u'1'},
                                       {f.cbReparacion2, u'2'},
                                       {f.cbReparacion3, u'3'},
                                       {f.cbReparacion4, u'4'}});
        });
}

bool PreguntaCheckBox(bool& valor, const QString& titulo, const QString& etiqueta) {
    return Pregunta(
        QStringLiteral("CheckBox"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            if (!etiqueta.isEmpty()) f.cbCheckBox->setText(etiqueta);
            f.cbCheckBox->setChecked(valor);
        },
        [&](TFPreguntaDatos& f) { valor = f.cbCheckBox->isChecked(); });
}

namespace {

bool seriesCliente(bool& todas, QString& series, const QString& titulo, bool guarda) {
    return Pregunta(
        QStringLiteral("SerieCliente"), nullptr,
        [&](TFPreguntaDatos& f) {
            PonCaptionLlamador(&f, titulo);
            const QString propuestas = todas              ? QStringLiteral("ABCDEF")
                                       : series.isEmpty() ? Config.GetsComunDocumentosCliente()
                                                          : series;
            MarcaLetras({{f.cbClienteA, u'A'},
                         {f.cbClienteB, u'B'},
                         {f.cbClienteC, u'C'},
                         {f.cbClienteD, u'D'},
                         {f.cbClienteE, u'E'},
                         {f.cbClienteF, u'F'}},
                        propuestas);
        },
        [&](TFPreguntaDatos& f) {
            QString s = LetrasMarcadas({{f.cbClienteA, u'A'},
                                        {f.cbClienteB, u'B'},
                                        {f.cbClienteC, u'C'},
                                        {f.cbClienteD, u'D'},
                                        {f.cbClienteE, u'E'},
                                        {f.cbClienteF, u'F'}});
            todas = s.size() == 6;
            if (guarda) Config.SetsComunDocumentosCliente(s);
            series = std::move(s);
        });
}

} // namespace

bool PreguntaSerieCliente(bool& todas, QString& series, const QString& titulo) {
    return seriesCliente(todas, series, titulo, true);
}

bool PreguntaSerieInteresado(bool& todas, QString& series, const QString& titulo) {
    return seriesCliente(todas, series, titulo, false);
}

bool PreguntaRefCatastral(QString& ref) {
    return Pregunta(
        QStringLiteral("ReferenciaCatastral"), nullptr,
        [&](TFPreguntaDatos& f) { f.eRefCatastral->setText(ref); },
        [&](TFPreguntaDatos& f) { ref = f.eRefCatastral->text(); });
}

} // namespace nod
