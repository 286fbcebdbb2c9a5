// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace LumetraHost {

/// Texts from files and file names, made safe to show: a control character in them could move the
/// cursor of a terminal, colour it, or turn the direction of what follows.
class VisibleText
{
public:
    /// True for control characters (C0, DEL, C1), line and paragraph separators, and the characters
    /// that embed, override or isolate a direction of writing. Names of presets have none of them.
    static bool IsControl(QChar character);
    static bool HasControls(const QString& text);

    /// `text` with each control character written out: \n, \t, \x1b, \u202e.
    static QString Make(const QString& text);
    /// Escapes control characters in a whole JSON text, which stays valid and means the same:
    /// inside strings they become \u001b and the like, line ends stay.
    static QByteArray MakeJson(const QByteArray& json);
    /// `text` with a space in place of each control character.
    static QString WithoutControls(const QString& text);
};

} // namespace LumetraHost
