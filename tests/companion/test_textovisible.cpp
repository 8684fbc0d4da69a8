#include "companion/textovisible.h"

#include <gtest/gtest.h>

using namespace nod;

TEST(TextoVisible, EveryKindOfLineBreakBreaksAndControlCharactersAreBlanks) {
    const struct {
        const char16_t *entrada, *saltos, *visible;
    } casos[] = {
        {u"uno\rdos\r\ntres\n", u"uno\ndos\ntres\n", u"uno\ndos\ntres\n"},
        {u"\r\r\n\n", u"\n\n\n", u"\n\n\n"}, // "\r" then "\r\n" then "\n": three breaks, not four
        {u"\n\r", u"\n\n", u"\n\n"},         // "\n\r" is two breaks
        {u"a\tb\x01"
         u"c\x7f"
         u"d\x85"
         u"e",
         u"a\tb\x01"
         u"c\x7f"
         u"d\x85"
         u"e",
         u"a b c d e"},
        {u"<b>Pérez & Cía</b>", u"<b>Pérez & Cía</b>", u"<b>Pérez & Cía</b>"}, // markup is not touched
        {u"", u"", u""}};
    for (const auto& c : casos) {
        const QString entrada = QString::fromUtf16(c.entrada);
        EXPECT_EQ(NormalizaSaltos(entrada), QString::fromUtf16(c.saltos)) << entrada.toStdString();
        EXPECT_EQ(TextoVisible(entrada), QString::fromUtf16(c.visible)) << entrada.toStdString();
    }
}
