// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/VisibleText.h"

#include <algorithm>

namespace LumetraHost {
namespace {

constexpr ushort FirstEmbedding = 0x202a; // with the overrides, to 0x202e
constexpr ushort LastOverride = 0x202e;
constexpr ushort FirstIsolate = 0x2066;
constexpr ushort LastIsolate = 0x2069;
constexpr ushort LastLatin = 0xff;

QString WriteCode(QChar character)
{
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

QString WriteOut(QChar character)
{
    if (character == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    if (character == QLatin1Char('\t'))
        return QStringLiteral("\\t");
    if (character.unicode() > LastLatin)
        return WriteCode(character);
    return QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
}

} // namespace

bool VisibleText::IsControl(QChar character)
{
    const ushort code = character.unicode();
    return character.category() == QChar::Other_Control ||
           character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph ||
           (code >= FirstEmbedding && code <= LastOverride) ||
           (code >= FirstIsolate && code <= LastIsolate);
}

bool VisibleText::HasControls(const QString& text)
{
    return std::any_of(text.begin(), text.end(), IsControl);
}

QString VisibleText::Make(const QString& text)
{
    QString visible;
    visible.reserve(text.size());
    for (const QChar character : text) {
        if (IsControl(character))
            visible += WriteOut(character);
        else
            visible += character;
    }
    return visible;
}

QByteArray VisibleText::MakeJson(const QByteArray& json)
{
    const QString text = QString::fromUtf8(json);
    QString visible;
    visible.reserve(text.size());
    for (const QChar character : text) {
        if (IsControl(character) && character != QLatin1Char('\n'))
            visible += WriteCode(character);
        else
            visible += character;
    }
    return visible.toUtf8();
}

QString VisibleText::WithoutControls(const QString& text)
{
    QString result = text;
    std::replace_if(result.begin(), result.end(), IsControl, QLatin1Char(' '));
    return result;
}

} // namespace LumetraHost
