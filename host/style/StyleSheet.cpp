// SPDX-License-Identifier: GPL-2.0-or-later
#include "style/StyleSheet.h"

#include <QFile>

#include <utility>
#include <vector>

namespace LumetraHost {
namespace {

QString ReadTemplate()
{
    QFile file(QStringLiteral(":/lumetra/style/editor.qss"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    Q_UNUSED(isOpen)
    return QString::fromUtf8(file.readAll());
}

/// The words between two @ in the template, and what replaces them.
std::vector<std::pair<const char*, QString>> Replacements(PaletteKind kind)
{
    const StyleColours& colours = ColoursOf(kind);
    return {{"kind", kind == PaletteKind::Light ? QStringLiteral("light") : QStringLiteral("dark")},
            {"window", colours.window.name()},
            {"panel", colours.panel.name()},
            {"field", colours.field.name()},
            {"header", colours.header.name()},
            {"headerHover", colours.headerHover.name()},
            {"headerPressed", colours.headerPressed.name()},
            {"button", colours.button.name()},
            {"buttonHover", colours.buttonHover.name()},
            {"buttonPressed", colours.buttonPressed.name()},
            {"selection", colours.selection.name()},
            {"border", colours.border.name()},
            {"fieldBorder", colours.fieldBorder.name()},
            {"text", colours.text.name()},
            {"mutedText", colours.mutedText.name()},
            {"disabledText", colours.disabledText.name()},
            {"accent", colours.accent.name()},
            {"accentHover", colours.accentHover.name()},
            {"accentPressed", colours.accentPressed.name()},
            {"accentText", colours.accentText.name()},
            {"groove", colours.groove.name()},
            {"disabledGroove", colours.disabledGroove.name()},
            {"disabledFill", colours.disabledFill.name()},
            {"handle", colours.handle.name()},
            {"toolTip", colours.toolTip.name()},
            {"toolTipText", colours.toolTipText.name()}};
}

} // namespace

QString StyleSheet(PaletteKind kind)
{
    QString sheet = ReadTemplate();
    for (const auto& [name, value] : Replacements(kind))
        sheet.replace(QLatin1Char('@') + QLatin1String(name) + QLatin1Char('@'), value);
    return sheet;
}

GrooveColours GrooveColoursOf(PaletteKind kind)
{
    const StyleColours& colours = ColoursOf(kind);
    return {colours.accent.name(), colours.disabledFill.name(),   colours.accentHover.name(),
            colours.groove.name(), colours.disabledGroove.name(), colours.grooveHover.name()};
}

} // namespace LumetraHost
