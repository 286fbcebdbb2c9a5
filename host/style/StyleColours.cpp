// SPDX-License-Identifier: GPL-2.0-or-later
#include "style/StyleColours.h"

namespace LumetraHost {
namespace {

StyleColours LightColours()
{
    StyleColours colours;
    colours.window = 0xececef;
    colours.panel = 0xf8f8f9;
    colours.field = 0xffffff;
    colours.header = 0xe1e3e7;
    colours.headerHover = 0xd3d6dd;
    colours.headerPressed = 0xc8ccd4;
    colours.button = 0xdfe1e6;
    colours.buttonHover = 0xd1d4db;
    colours.buttonPressed = 0xc0c4cd;
    colours.selection = 0xcfdff2;
    colours.border = 0xc3c6cd;
    colours.fieldBorder = 0x8a8f9a;
    colours.text = 0x1c1d20;
    colours.mutedText = 0x565a63;
    colours.disabledText = 0x9397a0;
    colours.accent = 0x1766c4;
    colours.accentHover = 0x0f56ab;
    colours.accentPressed = 0x0b478f;
    colours.accentText = 0xffffff;
    colours.groove = 0xc2c5cc;
    colours.grooveHover = 0xb3b7c0;
    colours.disabledGroove = 0xdddfe3;
    colours.disabledFill = 0xb9bcc4;
    colours.handle = 0xffffff;
    colours.toolTip = 0x2b2d32;
    colours.toolTipText = 0xf2f3f5;
    return colours;
}

StyleColours DarkColours()
{
    StyleColours colours;
    colours.window = 0x1b1c1f;
    colours.panel = 0x242529;
    colours.field = 0x17181a;
    colours.header = 0x303238;
    colours.headerHover = 0x3e414a;
    colours.headerPressed = 0x4d515c;
    colours.button = 0x3d4048;
    colours.buttonHover = 0x4a4e58;
    colours.buttonPressed = 0x5a5f6b;
    colours.selection = 0x2c4766;
    colours.border = 0x43464e;
    colours.fieldBorder = 0x747985;
    colours.text = 0xe6e7ea;
    colours.mutedText = 0xa8abb4;
    colours.disabledText = 0x6d717b;
    colours.accent = 0x5aa3f2;
    colours.accentHover = 0x7bb6f6;
    colours.accentPressed = 0x3f8ce0;
    colours.accentText = 0x0c1624;
    colours.groove = 0x4b4e57;
    colours.grooveHover = 0x5a5e69;
    colours.disabledGroove = 0x34363c;
    colours.disabledFill = 0x565a63;
    colours.handle = 0xdfe1e6;
    colours.toolTip = 0x3f424a;
    colours.toolTipText = 0xf2f3f5;
    return colours;
}

} // namespace

const StyleColours& ColoursOf(PaletteKind kind)
{
    static const StyleColours light = LightColours();
    static const StyleColours dark = DarkColours();
    return kind == PaletteKind::Light ? light : dark;
}

QPalette EditorPalette(PaletteKind kind)
{
    const StyleColours& colours = ColoursOf(kind);
    QPalette palette(colours.button, colours.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colours.text);
        palette.setColor(QPalette::Disabled, role, colours.disabledText);
    }
    palette.setColor(QPalette::Base, colours.field);
    palette.setColor(QPalette::AlternateBase, colours.window);
    palette.setColor(QPalette::PlaceholderText, colours.mutedText);
    palette.setColor(QPalette::Midlight, colours.buttonHover);
    palette.setColor(QPalette::Dark, colours.buttonPressed);
    palette.setColor(QPalette::Mid, colours.fieldBorder);
    palette.setColor(QPalette::Highlight, colours.accent);
    palette.setColor(QPalette::HighlightedText, colours.accentText);
    palette.setColor(QPalette::Link, colours.accent);
    palette.setColor(QPalette::ToolTipBase, colours.toolTip);
    palette.setColor(QPalette::ToolTipText, colours.toolTipText);
    return palette;
}

} // namespace LumetraHost
