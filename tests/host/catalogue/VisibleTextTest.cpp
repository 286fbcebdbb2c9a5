// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/VisibleText.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

#include <gtest/gtest.h>

using LumetraHost::VisibleText;

namespace {

QString Of(const char16_t* text)
{
    return QString::fromUtf16(text);
}

std::string Make(const char16_t* text)
{
    return VisibleText::Make(Of(text)).toStdString();
}

} // namespace

TEST(VisibleText, writesControlCharactersOut)
{
    EXPECT_EQ(Make(u"a\x1b[31mb"), "a\\x1b[31mb");
    EXPECT_EQ(Make(u"a\nb\tc\rd"), "a\\nb\\tc\\x0dd");
    EXPECT_EQ(Make(u"\x07\x7f"), "\\x07\\x7f");
    EXPECT_EQ(Make(u"\x9b\x31m"), "\\x9b1m");
    EXPECT_EQ(Make(u"\x202egpj.exe\x202c"), "\\u202egpj.exe\\u202c");
    EXPECT_EQ(Make(u"\x2066\x2069\x2028\x2029"), "\\u2066\\u2069\\u2028\\u2029");
    EXPECT_EQ(VisibleText::Make(QString(QChar(0))).toStdString(), "\\x00");
}

TEST(VisibleText, leavesEveryOtherTextAlone)
{
    for (const char16_t* text : {u"Soft Light", u"Köln, 日本, שלום, \xd83d\xdcf7", u"C:\\n \"x\"",
                                 u"\x200f\x05d0\x200e", u"\xd83d\xdc69\x200d\xd83d\xdcbb"}) {
        EXPECT_FALSE(VisibleText::HasControls(Of(text)));
        EXPECT_EQ(VisibleText::Make(Of(text)), Of(text));
    }
}

TEST(VisibleText, keepsJsonValidAndItsMeaning)
{
    LumetraHost::JsonDocument document("names");
    const std::string name = Of(u"a\x1b\n\x7f\x9b\x202e\\\"z").toStdString();
    document.GetRoot()->Set("name", name);

    const QByteArray json = VisibleText::MakeJson(document.ToText());

    EXPECT_EQ(LumetraHost::JsonDocument::Parse(json, "names").GetRoot()->Get("name", ""), name);
    EXPECT_FALSE(VisibleText::HasControls(QString::fromUtf8(json).remove(QLatin1Char('\n'))));
}

TEST(VisibleText, putsSpacesInPlaceOfControlCharacters)
{
    EXPECT_EQ(VisibleText::WithoutControls(Of(u"a\x1b[1mb\n")), Of(u"a [1mb "));
}
