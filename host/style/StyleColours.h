// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

namespace LumetraHost {

enum class PaletteKind
{
    Light,
    Dark
};

/// The editor's colours by their role. Text on its background has a contrast of at least 4.5 : 1,
/// disabled text excepted. Four states look different: held down, under the pointer, at rest, and
/// the panel behind.
struct StyleColours
{
    QColor window;         // behind panels
    QColor panel;          // pages, dialogs
    QColor field;          // what takes text
    QColor header;         // section headers
    QColor headerHover;    // under the pointer
    QColor headerPressed;  // held down
    QColor button;         // buttons other than the main one
    QColor buttonHover;    // under the pointer
    QColor buttonPressed;  // held down
    QColor selection;      // selected, without the focus
    QColor border;         // between areas, around dialogs
    QColor fieldBorder;    // around what takes input
    QColor text;           // on all of the above
    QColor mutedText;      // labels
    QColor disabledText;   // of what cannot be used
    QColor accent;         // fills, main button, selection, focus
    QColor accentHover;    // under the pointer
    QColor accentPressed;  // held down
    QColor accentText;     // on the accent
    QColor groove;         // unfilled part of sliders
    QColor grooveHover;    // under the pointer
    QColor disabledGroove; // unfilled part where disabled
    QColor disabledFill;   // filled part where disabled
    QColor handle;         // slider handles
    QColor toolTip;        // behind tool tips
    QColor toolTipText;
};

const StyleColours& ColoursOf(PaletteKind kind);

/// The palette for widgets that the style sheet leaves to the base style, and for panels that take
/// their colours from it: Midlight is a button under the pointer, Dark one that is held down, and
/// Mid the border of input fields.
QPalette EditorPalette(PaletteKind kind);

} // namespace LumetraHost
