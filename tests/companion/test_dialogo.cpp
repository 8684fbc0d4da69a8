// The dialog conventions on small dialogs built here, driven by real key codes.
#include "companion/dialogo.h"
#include "companion/foco.h"
#include "companion/textovisible.h"
#include "tests/support/modal.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTextEdit>
#include <QVBoxLayout>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

namespace {

// Two fields with labels and an Aceptar/Cancelar button box: what Qt makes of Enter by itself is "accept".
struct Formulario : QDialog {
    QLineEdit* uno = new QLineEdit(this);
    QLineEdit* dos = new QLineEdit(this);
    QDialogButtonBox* caja = new QDialogButtonBox(this);
    QPushButton* aceptar = caja->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    QPushButton* cancelar = caja->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    QLabel* nota = new QLabel(this);
    int aceptados = 0;

    explicit Formulario(const OpcionesDialogo& o = {}, bool conConvenciones = true) {
        auto* f = new QFormLayout;
        f->addRow(QStringLiteral("&Uno:"), uno);
        f->addRow(QStringLiteral("&Dos:"), dos);
        auto* l = new QVBoxLayout(this);
        l->addLayout(f);
        l->addWidget(nota);
        l->addWidget(caja);
        connect(caja, &QDialogButtonBox::accepted, this, [this] {
            ++aceptados;
            accept();
        });
        connect(caja, &QDialogButtonBox::rejected, this, &QDialog::reject);
        if (conConvenciones) AplicaConvencionesDialogo(this, o);
    }
    void muestra() {
        show();
        QApplication::setActiveWindow(this);
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }
};

} // namespace

TEST(ConvencionesDialogo, EnterMovesTheFocusFromEveryControlAndNeverAccepts) {
    Formulario f;
    f.muestra();
    const QList<QWidget*> orden = {f.uno, f.dos, f.aceptar, f.cancelar, f.uno};
    f.uno->setFocus();
    for (int i = 0; i + 1 < orden.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), i % 2 ? Qt::Key_Enter : Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), orden[i + 1]) << i;
    }
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.aceptados, 0);
    EXPECT_FALSE(f.aceptar->isDefault()) << "no button is drawn as the one Enter presses";
    QTest::keyClick(f.aceptar, Qt::Key_Space);
    EXPECT_EQ(f.aceptados, 1) << "Space still presses a button";

    Formulario sin({}, false); // without the conventions Qt accepts on Enter: the check above is not empty
    sin.muestra();
    sin.uno->setFocus();
    QTest::keyClick(sin.uno, Qt::Key_Return);
    EXPECT_EQ(sin.aceptados, 1);
}

TEST(ConvencionesDialogo, EscapeCloseButtonAndRejectGiveTheCancelResultUnlessTheWindowCannotBeCancelled) {
    struct PropioReject : Formulario {
        void reject() override { done(7); }
    };
    // como: 0 Escape, 1 close button, 2 "&Cancelar", 3 reject()
    const std::tuple<const char*, int, bool, int, int> casos[] = {
        {"Escape", 2, false, 0, 2},
        {"close button", 2, false, 1, 2},
        {"Cancelar of a button box", 2, false, 2, 2},
        {"reject()", 2, false, 3, 2},
        {"another result", 6, false, 0, 6},
        {"the dialog's own reject()", 2, true, 0, 7}};
    for (const auto& [caso, resultadoEscape, propio, como, esperado] : casos) {
        OpcionesDialogo o;
        o.resultadoEscape = resultadoEscape;
        std::unique_ptr<Formulario> f =
            propio ? std::make_unique<PropioReject>() : std::make_unique<Formulario>();
        AplicaConvencionesDialogo(f.get(), o);
        prueba::AlAbrirseModal([&](QWidget* w) {
            if (como == 0)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            else if (como == 1)
                w->close();
            else if (como == 2)
                QTest::mouseClick(f->cancelar, Qt::LeftButton);
            else
                f->reject();
        });
        EXPECT_EQ(f->exec(), esperado) << caso;
        EXPECT_EQ(f->result(), esperado) << caso;
    }
    OpcionesDialogo o;
    o.escapeCierra = false;
    Formulario f(o);
    f.muestra();
    QTest::keyClick(f.uno, Qt::Key_Escape);
    EXPECT_FALSE(f.close());
    EXPECT_TRUE(f.isVisible());
}

TEST(ConvencionesDialogo, DefaultButtonRuleAndPlainLettersOnButtons) {
    OpcionesDialogo o;
    o.enter = ReglaEnter::BotonPorDefecto;
    o.letrasPulsanBotones = true;
    Formulario f(o);
    QSignalSpy cancelado(f.cancelar, &QPushButton::clicked);
    f.aceptar->setDefault(true);
    f.muestra();
    f.uno->setFocus();
    QTest::keyClick(f.uno, Qt::Key_C);
    EXPECT_EQ(f.uno->text(), QStringLiteral("c")) << "in a field a letter is a letter";
    EXPECT_EQ(cancelado.size(), 0);
    QTest::keyClick(f.uno, Qt::Key_Return);
    EXPECT_EQ(f.aceptados, 1) << "Enter in a field presses the default button";
    f.muestra();
    f.cancelar->setFocus();
    QTest::keyClick(f.cancelar, Qt::Key_Return);
    EXPECT_EQ(cancelado.size(), 1) << "Enter on a button presses that button";
    EXPECT_EQ(f.aceptados, 1);
    f.muestra();
    f.aceptar->setFocus();
    QTest::keyClick(f.aceptar, Qt::Key_X);
    EXPECT_TRUE(f.isVisible()) << "a letter of no button does nothing";
    QTest::keyClick(f.aceptar, Qt::Key_C);
    EXPECT_EQ(cancelado.size(), 2) << "a plain letter presses its button when the focus sits on one";
    f.muestra();
    f.aceptar->setDefault(false);
    f.aceptar->hide();
    f.uno->setFocus();
    QTest::keyClick(f.uno, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), f.dos) << "with no default button shown Enter moves on";
}

// Controls added after the conventions were applied follow them too.
TEST(ConvencionesDialogo, LabelsArePlainTextEnterIsLeftToAMultiLineEditAndTheFocusIsMarked) {
    Formulario f;
    auto* barra = new QStatusBar(&f);
    f.layout()->addWidget(barra);
    f.dos->setToolTip(QStringLiteral("El segundo"));
    OpcionesDialogo o;
    o.marcaFoco = MarcaFoco::Campos;
    o.barraAyuda = barra;
    AplicaConvencionesDialogo(&f, o);
    auto* memo = new QTextEdit(&f);
    auto* ayuda = new QTextEdit(&f);
    auto* tarde = new QLabel(&f);
    for (QWidget* w : std::initializer_list<QWidget*>{memo, ayuda, tarde})
        f.layout()->addWidget(w);
    ayuda->setReadOnly(true);
    ayuda->setFocusPolicy(Qt::ClickFocus);
    memo->setToolTip(QStringLiteral("Observaciones"));
    f.nota->setText(QStringLiteral("<b>Pérez & Cía</b>"));
    tarde->setText(QStringLiteral("<i>añadida después</i>"));
    f.muestra();
    for (QLabel* l : {f.nota, tarde})
        EXPECT_EQ(l->textFormat(), Qt::PlainText) << l->text().toStdString();
    memo->setFocus();
    QTest::keyClick(memo, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), memo);
    EXPECT_EQ(memo->toPlainText(), QStringLiteral("\n"));
    EXPECT_TRUE(ayuda->focusPolicy() & Qt::TabFocus) << "a read-only text is reached with Tab";
    EXPECT_EQ(memo->accessibleName(), QStringLiteral("Observaciones")) << "a field without label: its hint";
    EXPECT_TRUE(f.uno->accessibleName().isEmpty()) << "a field with a label is named by the label";

    f.dos->setFocus();
    EXPECT_TRUE(TieneFocoMarcado(f.dos));
    EXPECT_EQ(barra->currentMessage(), QStringLiteral("El segundo"));
    f.aceptar->setFocus();
    EXPECT_FALSE(TieneFocoMarcado(f.dos));
    EXPECT_FALSE(TieneFocoMarcado(f.aceptar)) << "buttons are not fields";
    EXPECT_TRUE(barra->currentMessage().isEmpty());
}

TEST(ConvencionesDialogo, ShownNextToAScreenEdgeTheWindowStaysInside) {
    const QRect zona = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget duena;
    duena.setGeometry(zona.right() - 120, zona.bottom() - 90, 400, 300);
    duena.show();
    const QPoint sitios[] = {{zona.right() - 50, zona.bottom() - 40}, {zona.left() - 300, zona.top() - 200}};
    for (const QPoint& p : sitios) {
        Formulario f;
        f.setParent(&duena, f.windowFlags());
        f.move(p);
        f.show();
        EXPECT_TRUE(zona.contains(f.frameGeometry())) << p.x() << "," << p.y();
    }
}

TEST(ConvencionesDialogo, AcceleratorsAreUniqueAmongVisibleControls) {
    const std::tuple<const char*, QChar> letras[] = {
        {"Cata&stro", u's'}, {"&Ñ", u'ñ'}, {"Pérez && Cía", QChar()}, {"&& &Otro", u'o'}, {"fin&", QChar()}};
    for (const auto& [texto, letra] : letras)
        EXPECT_EQ(Acelerador(QString::fromUtf8(texto)), letra) << texto;

    Formulario f;
    EXPECT_TRUE(AceleradoresRepetidos(&f).isEmpty());
    auto* otro = new QPushButton(QStringLiteral("Ot&ro"), &f);
    auto* choca = new QPushButton(QStringLiteral("&Copiar"), &f);
    EXPECT_EQ(AceleradoresRepetidos(&f), QStringList{QStringLiteral("c")});
    choca->hide();
    EXPECT_TRUE(AceleradoresRepetidos(&f).isEmpty()) << "a hidden control takes no key";
    otro->setText(QStringLiteral("&Dos veces"));
    EXPECT_EQ(AceleradoresRepetidos(&f), QStringList{QStringLiteral("d")}) << "a label with a buddy counts";
}

TEST(ConvencionesDialogo, ATextTooLongForItsLabelKeepsItsBeginning) {
    QLabel l;
    QFont fuente(QStringLiteral("Arial"));
    fuente.setPixelSize(15);
    l.setFont(fuente);
    l.setWordWrap(true);
    l.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    l.resize(526, 61);
    QString largo;
    for (int i = 0; largo.size() < 2000; ++i)
        largo += QStringLiteral("palabra%1 ").arg(i);
    const std::tuple<QString, bool> casos[] = {{QStringLiteral("Corto\r<b>dos</b>"), true},
                                               {largo, false},
                                               {QString(2000, u'x'), false},
                                               {QString(100000, u'y'), false},
                                               {QStringLiteral("uno\ndos\ntres\ncuatro\ncinco"), false}};
    for (const auto& [texto, cabe] : casos) {
        EXPECT_EQ(PonTextoAjustado(&l, texto), cabe) << texto.left(20).toStdString();
        EXPECT_EQ(l.textFormat(), Qt::PlainText);
        EXPECT_TRUE(l.text().startsWith(TextoVisible(texto).left(5))) << "the beginning is shown";
        if (cabe) {
            EXPECT_EQ(l.text(), QStringLiteral("Corto\n<b>dos</b>"));
            EXPECT_EQ(l.alignment(), Qt::AlignLeft | Qt::AlignVCenter);
            EXPECT_TRUE(l.toolTip().isEmpty());
        } else {
            EXPECT_TRUE(l.text().endsWith(QStringLiteral("…")));
            EXPECT_EQ(l.alignment(), Qt::AlignLeft | Qt::AlignTop);
            EXPECT_LE(l.text().count(u'\n') + 1, 3) << "no more lines than the label holds";
            const QFontMetrics fm(l.font());
            for (const QString& linea : l.text().split(u'\n'))
                EXPECT_LE(fm.horizontalAdvance(linea), l.contentsRect().width());
            EXPECT_EQ(l.accessibleDescription(), texto.size() > kMaximoTextoAyuda
                                                     ? texto.left(kMaximoTextoAyuda) + QStringLiteral("…")
                                                     : TextoVisible(texto));
            EXPECT_FALSE(l.toolTip().isEmpty());
        }
    }
}
