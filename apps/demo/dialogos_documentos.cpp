// The document files in the demo: for a deed chosen by notary, number, year and bis, where each of its
// files lives and how it is named, as every program of the suite finds it, with the notary's images
// and whether each file or folder is on the office's disk.
#include "apps/demo/catalogo.h"
#include "companion/config.h"
#include "companion/dialogo.h"
#include "companion/modal.h"
#include "companion/rficheros.h"
#include "frame/notarios.h"
#include "protocol/carpetasdocumentos.h"
#include "protocol/imagenesnotario.h"
#include "protocol/nombresdocumentos.h"

#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace nod::demo {

namespace {

class FicherosDeEscritura : public QDialog {
public:
    explicit FicherosDeEscritura(QWidget* owner)
        : QDialog(owner) {
        setWindowTitle(QStringLiteral("Ficheros de una escritura"));
        m_notario = spin(1, 5, qBound(1, Config.GetsNotario().trimmed().toInt(), 5), "SENotario");
        m_numero = spin(1, 999999, 12, "SENumero");
        m_ano = spin(1900, 2100, 2024, "SEAno");
        m_bis = spin(0, 3, 1, "SEBis");
        m_seccion = new QLineEdit(QStringLiteral("A"), this);
        m_seccion->setObjectName(QStringLiteral("ESeccion"));
        m_cola = new QLineEdit(QStringLiteral("A"), this);
        m_cola->setObjectName(QStringLiteral("ECola"));

        auto* datos = new QFormLayout;
        datos->addRow(QStringLiteral("&Notario (1 a 5):"), m_notario);
        datos->addRow(QStringLiteral("N&úmero:"), m_numero);
        datos->addRow(QStringLiteral("&Año:"), m_ano);
        datos->addRow(QStringLiteral("&Bis (0 a 3):"), m_bis);
        datos->addRow(QStringLiteral("&Sección de póliza:"), m_seccion);
        datos->addRow(QStringLiteral("C&ola de copia autorizada:"), m_cola);

        m_imagenes = new QHBoxLayout;
        auto* arriba = new QHBoxLayout;
        arriba->addLayout(datos);
        arriba->addSpacing(16);
        arriba->addLayout(m_imagenes, 1);

        m_tabla = new QTableWidget(0, 3, this);
        m_tabla->setObjectName(QStringLiteral("TBFicheros"));
        m_tabla->setHorizontalHeaderLabels(
            {QStringLiteral("Rutina"), QStringLiteral("Resultado"), QStringLiteral("En disco")});
        m_tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
        m_tabla->setSelectionBehavior(QAbstractItemView::SelectRows);
        m_tabla->verticalHeader()->hide();
        m_tabla->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
        m_tabla->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
        m_tabla->horizontalHeader()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
        m_tabla->setMinimumSize(640, 300);
        auto* etiquetaTabla = new QLabel(QStringLiteral("&Ficheros y carpetas:"), this);
        etiquetaTabla->setBuddy(m_tabla);
        m_tabla->setAccessibleName(
            QStringLiteral("Ficheros y carpetas")); // a grid takes no name from a buddy

        auto* consultar = new QPushButton(QStringLiteral("&Consultar"), this);
        consultar->setObjectName(QStringLiteral("BConsultar"));
        consultar->setToolTip(
            QStringLiteral("Calcula los nombres y carpetas (crea las carpetas que falten)"));
        auto* cerrar = new QPushButton(QStringLiteral("Ce&rrar"), this);
        cerrar->setObjectName(QStringLiteral("BCerrar"));
        auto* botones = new QHBoxLayout;
        botones->addStretch();
        botones->addWidget(consultar);
        botones->addWidget(cerrar);

        auto* capa = new QVBoxLayout(this);
        capa->addLayout(arriba);
        capa->addWidget(etiquetaTabla);
        capa->addWidget(m_tabla, 1);
        capa->addLayout(botones);

        connect(consultar, &QPushButton::clicked, this, &FicherosDeEscritura::consulta);
        connect(cerrar, &QPushButton::clicked, this, [this] { done(1); });
        consulta();
        AplicaConvencionesDialogo(this);
    }

    /// The deed document's name as the last query gave it.
    QString nombreDocumento() const { return m_nombreDocumento; }

private:
    QSpinBox* spin(int minimo, int maximo, int valor, const char* nombre) {
        auto* s = new QSpinBox(this);
        s->setObjectName(QLatin1String(nombre));
        s->setRange(minimo, maximo);
        s->setValue(valor);
        return s;
    }

    enum class Clase { Fichero, Carpeta, Nombre };

    void fila(const char* rutina, const QString& resultado, Clase clase) {
        const int r = m_tabla->rowCount();
        m_tabla->insertRow(r);
        m_tabla->setItem(r, 0, new QTableWidgetItem(QLatin1String(rutina)));
        m_tabla->setItem(r, 1, new QTableWidgetItem(resultado));
        QString enDisco = QStringLiteral("(nombre)");
        if (clase == Clase::Fichero)
            enDisco = ExisteFichero(resultado) ? QStringLiteral("sí") : QStringLiteral("no");
        if (clase == Clase::Carpeta)
            enDisco = ExisteCarpeta(resultado) ? QStringLiteral("sí") : QStringLiteral("no");
        m_tabla->setItem(r, 2, new QTableWidgetItem(enDisco));
    }

    void imagen(const QString& titulo, const QString& fichero) {
        auto* caja = new QVBoxLayout;
        auto* dibujo = new QLabel(this);
        const QPixmap p(RutaEnDisco(fichero));
        dibujo->setFixedSize(110, 110);
        dibujo->setAlignment(Qt::AlignCenter);
        dibujo->setFrameShape(QFrame::StyledPanel);
        if (p.isNull())
            dibujo->setText(QStringLiteral("(no está)"));
        else
            dibujo->setPixmap(p.scaled(104, 104, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        dibujo->setToolTip(fichero);
        caja->addWidget(dibujo);
        caja->addWidget(new QLabel(titulo, this), 0, Qt::AlignHCenter);
        m_imagenes->addLayout(caja);
    }

    void consulta() {
        const int notario = m_notario->value(), numero = m_numero->value(), ano = m_ano->value(),
                  bis = m_bis->value();
        const QString n = QString::number(notario), seccion = m_seccion->text();
        m_tabla->setRowCount(0);
        fila("FicheroSello", FicheroSello(n), Clase::Fichero);
        fila("FicheroSelloCopNotario", FicheroSelloCopNotario(n), Clase::Fichero);
        fila("FicheroPubli", FicheroPubli(n), Clase::Fichero);
        fila("FicheroFirma", FicheroFirma(n), Clase::Fichero);
        fila("FicheroRubrica", FicheroRubrica(n), Clase::Fichero);
        fila("FicheroSelloFirma", FicheroSelloFirma(n), Clase::Fichero);
        fila("DameCarpetaFicheroWordEscrituras", DameCarpetaFicheroWordEscrituras(0, notario, ano),
             Clase::Carpeta);
        m_nombreDocumento = DameNombreFicheroWordEscrituras(0, notario, numero, ano, bis);
        fila("DameNombreFicheroWordEscrituras", m_nombreDocumento, Clase::Nombre);
        fila("DameCarpetaFicheroWordEscrituras (expediente)",
             DameCarpetaFicheroWordEscrituras(1, notario, ano), Clase::Carpeta);
        fila("DameNombreFicheroWordEscrituras (expediente)",
             DameNombreFicheroWordEscrituras(1, notario, numero, ano, bis), Clase::Nombre);
        fila("DameCarpetaFicheroCopiaAutorizada", DameCarpetaFicheroCopiaAutorizada(notario, ano),
             Clase::Carpeta);
        fila("DameNombreFicheroCopiaAutorizada",
             DameNombreFicheroCopiaAutorizada(m_cola->text(), numero, bis), Clase::Nombre);
        fila("DameCarpetaFicheroCopiaSimple", DameCarpetaFicheroCopiaSimple(notario, ano), Clase::Carpeta);
        fila("DameNombreFicheroCopiaSimple", DameNombreFicheroCopiaSimple(numero, bis), Clase::Nombre);
        fila("DameCarpetaFicherosElectronicosEscrituras",
             DameCarpetaFicherosElectronicosEscrituras(0, notario, numero, bis, ano, {}), Clase::Carpeta);
        fila("DameCarpetaFicheroWordPolizas", DameCarpetaFicheroWordPolizas(ano), Clase::Carpeta);
        fila("DameNombreFicheroWordPolizas", DameNombreFicheroWordPolizas(seccion, notario, numero, ano, bis),
             Clase::Nombre);
        fila("DameCarpetaFicherosElectronicosPolizas",
             DameCarpetaFicherosElectronicosPolizas(0, notario, seccion, numero, bis, ano, {}),
             Clase::Carpeta);

        while (QLayoutItem* i = m_imagenes->takeAt(0)) {
            if (auto* caja = i->layout())
                while (QLayoutItem* j = caja->takeAt(0)) {
                    delete j->widget();
                    delete j;
                }
            delete i;
        }
        imagen(QStringLiteral("Sello"), FicheroSello(n));
        imagen(QStringLiteral("Sello de copia"), FicheroSelloCopNotario(n));
        imagen(QStringLiteral("Firma"), FicheroFirma(n));
        imagen(QStringLiteral("Rúbrica"), FicheroRubrica(n));
        m_imagenes->addStretch();
    }

    QSpinBox *m_notario, *m_numero, *m_ano, *m_bis;
    QLineEdit *m_seccion, *m_cola;
    QTableWidget* m_tabla;
    QHBoxLayout* m_imagenes;
    QString m_nombreDocumento;
};

QString ficherosDeEscritura(QWidget* owner) {
    FicherosDeEscritura d(owner);
    EjecutaModal(d);
    return QStringLiteral("documento \"%1\"").arg(d.nombreDocumento());
}

} // namespace

void RegistraDialogosDocumentos(CatalogoDemo& c) {
    c.agrega("Documentos", "ficheros_escritura", "Ficheros y carpetas de una escritura (Rut)",
             ficherosDeEscritura);
}

} // namespace nod::demo
