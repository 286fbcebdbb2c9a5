// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "style/StyleColours.h"

namespace LumetraHost {

/// The style sheet of the whole application, for QApplication::setStyleSheet(): the presets panel,
/// its dialog, alerts and tool tips. Made for the base style "Fusion" and EditorPalette(). Its
/// icons are only sharp on high-resolution screens with Qt::AA_UseHighDpiPixmaps.
QString StyleSheet(PaletteKind kind);

/// Colours of a slider's groove, in the order in which the presets library's builder takes them.
struct GrooveColours
{
    QString fill;
    QString disabledFill;
    QString hoverFill;
    QString background;
    QString disabledBackground;
    QString hoverBackground;
};

GrooveColours GrooveColoursOf(PaletteKind kind);

} // namespace LumetraHost
