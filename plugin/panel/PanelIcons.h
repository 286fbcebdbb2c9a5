// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace LumetraPlugin {

/// The panel's own icons, drawn in any colour and sharp at any scale.
class PanelIcons
{
public:
    /// `name` as in the resources ("star"), `size` in logical pixels. A null pixmap, and a warning,
    /// for a name that is not there.
    static QPixmap GetPixmap(const QString& name, int size, const QColor& color,
                             double devicePixelRatio);
    /// For buttons: in the palette's text colour, duller where disabled.
    static QIcon GetIcon(const QString& name, const QPalette& palette);
    /// The panel's own style sheet, which takes all its colours from the palette.
    static QString ReadStyleSheet();
};

} // namespace LumetraPlugin
