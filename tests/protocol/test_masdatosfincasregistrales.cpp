// The registered properties of an entry: the stored "|" string, and the form driven by its keys.
#include "companion/mensajes.h"
#include "protocol/masdatosfincasregistrales.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace nod {
namespace {

using Form = TFMasDatosFincasRegistrales;

QStringList lista(std::initializer_list<const char*> l) {
    QStringList r;
    for (const char* s : l)
        r << QString::fromUtf8(s);
    return r;
}

TEST(FincasRegistrales, DecodingAsWritten) {
    // The form trims the whole string, never the items.
    const std::pair<const char*, QStringList> casos[] = {
        {"A|B|", lista({"A", "B"})}, {"|A", lista({"", "A"})}, {"A||B", lista({"A", "", "B"})},   {"", {}},
        {"A", lista({"A"})},         {"|", lista({""})},       {" A | B ", lista({" A ", " B "})}};
    for (const auto& [guardado, esperado] : casos)
        EXPECT_EQ(Form::DescodificaFincasRegistrales(QString::fromUtf8(guardado)), esperado) << guardado;
}

TEST(FincasRegistrales, EncodingLeavesNoTraceOfAnEmptyFirstItem) {
    const std::pair<QStringList, const char*> casos[] = {
        {lista({"", "A"}), "A"},    {lista({"A", "", "B"}), "A||B"}, {{}, ""},
        {lista({"A", "B"}), "A|B"}, {lista({"", "", "A"}), "A"},
    };
    for (const auto& [items, esperado] : casos)
        EXPECT_EQ(Form::CodificaFincasRegistrales(items), QString::fromUtf8(esperado)) << esperado;
}

class FormFincas : public ::testing::Test {
protected:
    void abre(const QString& fincas) {
        f = std::make_unique<Form>(nullptr, 200801234.1, QStringLiteral("COMPRAVENTA <b>&</b>"), fincas);
        f->show();
        QApplication::setActiveWindow(f.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(f.get()));
    }
    void tecla(Qt::Key k) {
        QTest::keyClick(QApplication::focusWidget(), k);
        QApplication::processEvents();
    }
    void selecciona(int fila) {
        f->LBFincasRegistrales->setCurrentRow(fila);
        f->LBFincasRegistrales->setFocus();
        QApplication::processEvents();
    }
    bool editando() const { return f->EFincaRegistral->isEnabled(); }
    ServicioMensajesGuionado mensajes;
    ServicioMensajesInstalado instalado{mensajes};
    std::unique_ptr<Form> f;
};

TEST_F(FormFincas, ShowsTheEntryAndTheSortedList) {
    abre(QStringLiteral("  b-22|A-7|c-3 "));
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Información de Fincas Registrales"));
    EXPECT_EQ(QStringList({f->STNumero->text(), f->STAno->text(), f->LBis->text()}),
              QStringList({QStringLiteral("1234"), QStringLiteral("2008"), QStringLiteral("bis")}));
    EXPECT_EQ(f->STConcepto->textFormat(), Qt::PlainText);
    EXPECT_EQ(f->Fincas, QStringLiteral("b-22|A-7|c-3"));
    EXPECT_EQ(f->Lista(), lista({"A-7", "b-22", "c-3"})) << "sorted without regard to case";
    EXPECT_FALSE(editando());
    EXPECT_TRUE(f->BBAnadir->isEnabled() && f->BBAceptar->isEnabled());
}

TEST_F(FormFincas, InsertTypesAnIdentifierWithBlanksAndInsertAcceptsIt) {
    abre(QStringLiteral("A-7"));
    tecla(Qt::Key_Insert);
    ASSERT_TRUE(editando());
    EXPECT_EQ(QApplication::focusWidget(), f->EFincaRegistral);
    EXPECT_FALSE(f->BBAceptar->isEnabled());
    QTest::keyClicks(f->EFincaRegistral, QStringLiteral("12|"));
    tecla(Qt::Key_Space);
    QTest::keyClicks(f->EFincaRegistral, QStringLiteral("B"));
    EXPECT_EQ(f->EFincaRegistral->text(), QStringLiteral("12 B")) << "Space types a blank; \"|\" is refused";
    tecla(Qt::Key_Insert);
    EXPECT_FALSE(editando());
    EXPECT_EQ(f->Lista(), lista({"12 B", "A-7"}));
    EXPECT_TRUE(mensajes.mostrados().isEmpty());
}

TEST_F(FormFincas, DuplicatesAreExactAndEmptyIsRefused) {
    abre(QStringLiteral("A-7"));
    // The identifier typed and why it is refused (nullptr: accepted).
    const std::pair<const char*, const char*> casos[] = {{"a-7", nullptr},
                                                         {" A-7 ", "Ya está insertada esta Finca Registral"},
                                                         {"   ", "No ha escrito ninguna Finca Registral"}};
    for (const auto& [tecleado, mensaje] : casos) {
        mensajes.limpia();
        f->BBAnadir->click();
        f->EFincaRegistral->setText(QString::fromUtf8(tecleado));
        f->BBAceptarCambios->click();
        if (!mensaje) {
            EXPECT_TRUE(mensajes.mostrados().isEmpty()) << tecleado;
            EXPECT_FALSE(editando());
            continue;
        }
        ASSERT_EQ(mensajes.mostrados().size(), 1) << tecleado;
        EXPECT_EQ(mensajes.mostrados()[0].kind, QStringLiteral("Mensaje_Info"));
        EXPECT_EQ(mensajes.mostrados()[0].title, QStringLiteral("Finca Registral no válida"));
        EXPECT_EQ(mensajes.mostrados()[0].text, QString::fromUtf8(mensaje));
        EXPECT_TRUE(editando()) << "a refused identifier stays in the edit";
        tecla(Qt::Key_Escape);
    }
    EXPECT_EQ(f->Lista(), lista({"A-7", "a-7"}));
    EXPECT_TRUE(f->isVisible()) << "Escape while editing cancels the identifier, not the form";
}

TEST_F(FormFincas, ModifyAndDeleteNeedASelection) {
    abre({});
    const auto ultimo = [this] { return mensajes.mostrados().last(); };
    tecla(Qt::Key_Space);
    EXPECT_EQ(ultimo().title, QStringLiteral("Listado Vacio"));
    EXPECT_EQ(ultimo().text, QStringLiteral("No hay Fincas Registrales almacenadas"));
    tecla(Qt::Key_Delete);
    EXPECT_EQ(mensajes.mostrados().size(), 2);

    f->BBAnadir->click();
    f->EFincaRegistral->setText(QStringLiteral("X-1"));
    f->BBAceptarCambios->click();
    f->LBFincasRegistrales->clearSelection();
    f->BBBorrar->click();
    EXPECT_EQ(ultimo().title, QStringLiteral("Selecciones Finca Registral"));
    EXPECT_EQ(ultimo().text, QStringLiteral("No tiene seleccionada ninguna Finca Registral"));
    EXPECT_FALSE(editando());
}

TEST_F(FormFincas, ModifyingTakesTheIdentifierOutEvenWhenCancelled) {
    abre(QStringLiteral("A|B|C"));
    selecciona(1);
    tecla(Qt::Key_Space);
    ASSERT_TRUE(editando());
    EXPECT_EQ(f->EFincaRegistral->text(), QStringLiteral("B"));
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(editando());
    EXPECT_EQ(f->Lista(), lista({"A", "C"}));
    selecciona(0);
    tecla(Qt::Key_Delete);
    EXPECT_EQ(f->Lista(), lista({"C"}));
}

TEST_F(FormFincas, AcceptStoresTheSortedListAndCancelKeepsTheString) {
    abre(QStringLiteral("|B|a"));
    f->BBAceptar->click();
    EXPECT_EQ(f->result(), 1);
    EXPECT_EQ(f->Fincas, QStringLiteral("a|B")) << "the empty item sorts first and leaves no trace";

    abre(QStringLiteral("|B|a"));
    selecciona(1);
    tecla(Qt::Key_Delete);
    tecla(Qt::Key_Escape);
    EXPECT_EQ(f->result(), 2);
    EXPECT_FALSE(f->isVisible());
    EXPECT_EQ(f->Fincas, QStringLiteral("|B|a"));
}

} // namespace
} // namespace nod
