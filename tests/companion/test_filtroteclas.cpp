// Character filters driven by real key codes, pastes and programmatic text.
#include "companion/filtroteclas.h"
#include "companion/rnumcad.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QTest>
#include <gtest/gtest.h>
#include <tuple>

using namespace nod;

namespace {

// A key as X11 delivers it: Delete carries the text "\x7f".
void pulsa(QWidget* w, int tecla, const QString& texto = {}, Qt::KeyboardModifiers mod = Qt::NoModifier) {
    QKeyEvent k(QEvent::KeyPress, tecla, mod, texto);
    QApplication::sendEvent(w, &k);
}

} // namespace

TEST(FiltroCaracteres, KeysThatAreNotCharactersAlwaysPass) {
    for (int tecla :
         {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
          Qt::Key_Home, Qt::Key_End, Qt::Key_Insert, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_F1,
          Qt::Key_F12, Qt::Key_F35, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape})
        EXPECT_TRUE(TeclaSiemprePasa(tecla)) << tecla;
    for (int tecla : {Qt::Key_A, Qt::Key_0, Qt::Key_Space, Qt::Key_Period, Qt::Key_Minus})
        EXPECT_FALSE(TeclaSiemprePasa(tecla)) << tecla;
}

// Editing keys over a selection, in a digits-only edit holding "123456" with "34" selected.
TEST(FiltroCaracteres, EditingKeysOverASelectionInADigitsEdit) {
    const std::tuple<const char*, int, const char16_t*, const char*, int> casos[] = {
        {"Delete as X11 sends it", Qt::Key_Delete, u"\x7f", "1256", 2},
        {"Backspace", Qt::Key_Backspace, u"\b", "1256", 2},
        {"a refused letter leaves text and selection", Qt::Key_A, u"a", "123456", 4},
        {"a refused point", Qt::Key_Period, u".", "123456", 4},
        {"a digit replaces the selection", Qt::Key_9, u"9", "12956", 3},
        {"Home", Qt::Key_Home, u"", "123456", 0},
        {"End", Qt::Key_End, u"", "123456", 6}};
    for (const auto& [caso, tecla, texto, queda, cursor] : casos) {
        QLineEdit e;
        SoloDigitos(&e);
        e.setText(QStringLiteral("123456"));
        e.setSelection(2, 2);
        pulsa(&e, tecla, QString::fromUtf16(texto));
        EXPECT_EQ(e.text(), QLatin1String(queda)) << caso;
        EXPECT_EQ(e.cursorPosition(), cursor) << caso;
        EXPECT_EQ(e.selectedText(), cursor == 4 ? QStringLiteral("34") : QString()) << caso;
    }
}

TEST(FiltroCaracteres, PastedAndProgrammaticTextPassTheSameFilter) {
    QLineEdit digitos;
    SoloDigitos(&digitos);
    digitos.setText(QStringLiteral("12.345.678-Z"));
    EXPECT_EQ(digitos.text(), QStringLiteral("12345678"));
    digitos.setSelection(0, 2);
    QApplication::clipboard()->setText(QStringLiteral("9a9"));
    pulsa(&digitos, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    EXPECT_EQ(digitos.text(), QStringLiteral("99345678"));
    EXPECT_EQ(digitos.cursorPosition(), 2) << "the cursor stays after the pasted digits";
    digitos.insert(QStringLiteral("x"));
    EXPECT_EQ(digitos.text(), QStringLiteral("99345678"));

    QLineEdit capitales;
    QStringList vistos;
    QObject::connect(&capitales, &QLineEdit::textChanged, [&](const QString& t) { vistos << t; });
    EscribeEnMayusculas(&capitales);
    capitales.setText(QStringLiteral(" 9872023vh5797s0001wx "));
    EXPECT_EQ(capitales.text(), QStringLiteral(" 9872023VH5797S0001WX "));
    EXPECT_EQ(vistos, QStringList{capitales.text()}) << "nobody sees the lower-case text";
    capitales.clear();
    for (const QChar c : QStringLiteral("añß")) // key by key, as a keyboard sends them
        pulsa(&capitales, 0, QString(c));
    EXPECT_EQ(capitales.text(), QStringLiteral("AÑß"));
    capitales.undo();
    EXPECT_EQ(capitales.text(), QString()) << "what was typed is undone as typing";
}

TEST(FiltroCaracteres, AValidatorTheEditHadStillJudgesTheFilteredText) {
    QLineEdit serie;
    serie.setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[A-Z0-9]{0,2}")), &serie));
    EscribeEnMayusculas(&serie);
    QTest::keyClicks(&serie, QStringLiteral("a1b"));
    EXPECT_EQ(serie.text(), QStringLiteral("A1"));
    EXPECT_EQ(TextoFiltrado(QStringLiteral("12a-3"), {[](QChar c) { return EsUnNumero(c); }}),
              QStringLiteral("123"));
}
